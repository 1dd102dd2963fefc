#pragma once

#include <QSyntaxHighlighter>

class QPlainTextEdit;

namespace explorer {

/// Colours JSON in the palette of the widget that shows it.
class JsonHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

public:
    explicit JsonHighlighter(QPlainTextEdit& edit);

protected:
    void highlightBlock(const QString& text) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    [[nodiscard]] QColor ColourOf(const QString& token, bool isKey) const;

    QPlainTextEdit& m_edit;
};

}  // namespace explorer

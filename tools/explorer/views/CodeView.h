#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace explorer {

/// A text to read and to copy. A very long one is shown in part; the copy is whole.
class CodeView : public QWidget {
    Q_OBJECT

public:
    enum class Kind {
        Json,
        Code,
        Text  ///< with lines of any length, which are wrapped
    };

    /// @p hint stands there while there is no text.
    CodeView(Kind kind, const QString& hint, QWidget* pParent = nullptr);

    void SetText(const QString& text);
    [[nodiscard]] QString Text() const { return m_text; }

private:
    QString m_text;
    QPlainTextEdit* m_pEdit;
    QLabel* m_pShortened;
    QPushButton* m_pCopy;
};

}  // namespace explorer

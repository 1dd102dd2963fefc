#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace explorer {

class FindBar;

/// Shows a text that can be searched and copied. Of a very long text it shows a part at first; search and copy cover
/// all of it.
class CodeView : public QWidget {
    Q_OBJECT

public:
    enum class Kind {
        Json,
        Code,
        Text  ///< with lines of any length, which are wrapped
    };

    /// @param hint shown while there is no text
    CodeView(Kind kind, const QString& hint, QWidget* pParent = nullptr);

    void SetText(const QString& text);
    [[nodiscard]] QString Text() const { return m_text; }

protected:
    bool event(QEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    void ShowPart(int from, int length);
    void ShowMatch(int position, int length);

    QString m_text;
    int m_from = 0;  // start of the visible part
    int m_length = 0;
    QPlainTextEdit* m_pEdit;
    QLabel* m_pShortened;
    QPushButton* m_pAll;
    FindBar* m_pFind;
    QPushButton* m_pCopy;
};

}  // namespace explorer

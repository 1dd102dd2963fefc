#pragma once

#include <QVector>
#include <QWidget>

#include <optional>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QToolButton;

namespace explorer {

/// Searches a text, ignoring case: a field, the number of matches, and buttons for the next and previous match.
class FindBar : public QWidget {
    Q_OBJECT

public:
    explicit FindBar(QWidget* pParent = nullptr);

    /// Sets the text to search. The first match becomes the current one.
    void SetText(const QString& text);
    void FocusField();
    /// Handles the keys Find, FindNext and FindPrevious. @return false for any other key
    bool Press(const QKeyEvent& event);
    [[nodiscard]] static bool IsFindKey(const QKeyEvent& event);

signals:
    void Found(int position, int length);

private:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

    void Search();
    void Step(int steps);
    void ShowCount();

    QString m_text;
    QVector<int> m_matches;
    int m_current = 0;
    bool m_bShown = false;  // the current match has been shown
    QLineEdit* m_pField;
    QLabel* m_pCount;
    QToolButton* m_pPrevious;
    QToolButton* m_pNext;
};

}  // namespace explorer

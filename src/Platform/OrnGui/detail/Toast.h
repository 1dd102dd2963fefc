#pragma once

#include <QDeadlineTimer>
#include <QString>
#include <QTimer>
#include <QWidget>

class QLabel;

namespace ORNGUI::detail {

/// The content of a toast.
struct ToastContent {
    QString strText;
    bool bWithButton = false;
    QString strButtonText;
    QString strLink;
    bool bStayOpen = false;
    int nCount = 1;  ///< number of consecutive equal notifications

    /// Whether both show the same notification, regardless of their counts.
    [[nodiscard]] bool Equals(const ToastContent& other) const;
};

/// A notification on the screen, or several equal ones with their number. A click closes it; its owner deletes it.
class Toast : public QWidget {
    Q_OBJECT

public:
    explicit Toast(const ToastContent& content);

    [[nodiscard]] const ToastContent& Content() const { return m_content; }
    [[nodiscard]] bool IsOpen() const { return m_bOpen; }

    /// Closes @p nLifetimeMs after this call or the last Repeat(), but at the latest when @p deadline expires.
    void CloseAfter(int nLifetimeMs, const QDeadlineTimer& deadline);
    /// Counts another notification that equals this one.
    /// @return false when the toast closes too soon for the new count to be read
    bool Repeat();

signals:
    void Closed();

protected:
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void closeEvent(QCloseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

private:
    QWidget* MakeText(const QString& strText);
    QWidget* MakeButton(const QString& strButtonText, const QString& strLink);
    void ShowCount();

    ToastContent m_content;
    QLabel* m_pCount = nullptr;
    QTimer m_lifetime{this};
    QDeadlineTimer m_deadline{QDeadlineTimer::Forever};
    bool m_bOpen = true;
};

constexpr int kReadableMs = 1500;  ///< the shortest time in which a toast can be read

}  // namespace ORNGUI::detail

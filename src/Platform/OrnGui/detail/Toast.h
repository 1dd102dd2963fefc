#pragma once

#include <QString>
#include <QWidget>

class QLabel;

namespace ORNGUI::detail {

/// What a toast is to show.
struct ToastContent {
    QString strText;
    bool bWithButton = false;
    QString strButtonText;
    QString strLink;
    bool bStayOpen = false;
};

/// One notification on the screen. It closes when it is clicked; whoever shows it deletes it.
class Toast : public QWidget {
    Q_OBJECT

public:
    explicit Toast(const ToastContent& content);

    [[nodiscard]] bool StaysOpen() const { return m_bStayOpen; }
    [[nodiscard]] bool IsOpen() const { return m_bOpen; }

signals:
    void Closed();

protected:
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void closeEvent(QCloseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

private:
    QWidget* MakeText(const QString& strText);
    QWidget* MakeButton(const QString& strButtonText, const QString& strLink);

    const bool m_bStayOpen;
    bool m_bOpen = true;
};

}  // namespace ORNGUI::detail

#pragma once

#include "Toast.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QVector>

#include <deque>

namespace ORNGUI::detail {

/// The toasts on the screen and those that wait for room. It is destroyed with the QApplication.
class ToastStack : public QObject {
    Q_OBJECT

public:
    static ToastStack& Instance();
    ~ToastStack() override;

    void Add(const ToastContent& content);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    struct Waiting {
        ToastContent content;
        QDeadlineTimer deadline;
    };

    ToastStack();

    [[nodiscard]] QVector<Toast*> OpenToasts() const;
    [[nodiscard]] bool HasRoom(bool bStayOpen) const;
    [[nodiscard]] QRect Area() const;

    [[nodiscard]] QRect Place(const QSize& size) const;

    [[nodiscard]] bool CountWithLatest(const ToastContent& content);
    void ShowWaiting();
    Toast* Show(const ToastContent& content);
    void FollowActiveWindow();
    void Arrange();
    void CloseAll();

    QVector<QPointer<Toast>> m_toasts;
    std::deque<Waiting> m_transient;
    std::deque<ToastContent> m_persistent;
    ToastContent m_latest;
    QPointer<QWidget> m_pAnchor;
};

}  // namespace ORNGUI::detail

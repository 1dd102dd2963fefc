#include "ToastStack.h"

#include "../OrnWaitDialog.h"
#include "QuitWatcher.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace ORNGUI::detail {
namespace {

constexpr int kLifetimeMs = 5000;
constexpr int kGoneByMs = 9500;    ///< a timer may be late, and ten seconds are promised
constexpr int kReadableMs = 1500;  ///< a toast is not worth showing for less
constexpr int kMaxShown = 6;
constexpr int kMaxStaying = 4;
constexpr int kTallest = 160;
constexpr std::size_t kMaxPassing = 6;  ///< no more of those that wait can have their turn in time
constexpr int kMargin = 16;
constexpr int kSpacing = 8;

ToastStack* g_pStack = nullptr;

void DeleteStack()
{
    delete g_pStack;
    g_pStack = nullptr;
}

bool IsOnScreen(const QWidget* pWindow)
{
    return pWindow != nullptr && pWindow->isVisible() && !pWindow->isMinimized();
}

/// The window that counts as active: below a wait dialog, that of its parent.
QWidget* ActiveWindow()
{
    QWidget* pWindow = QApplication::activeWindow();
    while (const auto* pWaitDialog = qobject_cast<OrnWaitDialog*>(pWindow)) {
        QWidget* const pParent = pWaitDialog->parentWidget();
        pWindow = pParent != nullptr ? pParent->window() : nullptr;
    }
    return pWindow;
}

}  // namespace

ToastStack& ToastStack::Instance()
{
    if (g_pStack == nullptr) {
        g_pStack = new ToastStack;
        // The widgets must be deleted before the QApplication, whether or not it ever ran.
        qAddPostRoutine(DeleteStack);
    }
    return *g_pStack;
}

ToastStack::ToastStack()
{
    const auto* pQuitWatcher = new QuitWatcher(this);
    connect(pQuitWatcher, &QuitWatcher::Quitting, this, &ToastStack::CloseAll);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &ToastStack::CloseAll);
    // The active window is known only after this signal.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &ToastStack::FollowActiveWindow, Qt::QueuedConnection);
}

ToastStack::~ToastStack()
{
    for (const QPointer<Toast>& pToast : qAsConst(m_toasts)) {
        delete pToast;
    }
}

void ToastStack::Add(const ToastContent& content)
{
    if (content.bStayOpen) {
        m_staying.push_back(content);
    } else {
        m_passing.push_back({content, QDeadlineTimer(kGoneByMs)});
    }
    FollowActiveWindow();
    ShowWaiting();
    if (m_passing.size() > kMaxPassing) {
        m_passing.pop_front();
    }
}

bool ToastStack::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    switch (pEvent->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        Arrange();
        break;
    default:
        break;
    }
    return QObject::eventFilter(pWatched, pEvent);
}

QVector<Toast*> ToastStack::OpenToasts() const
{
    QVector<Toast*> open;
    for (const QPointer<Toast>& pToast : m_toasts) {
        if (pToast && pToast->IsOpen()) {
            open.append(pToast);
        }
    }
    return open;
}

/// Toasts that stay leave room for those that pass.
bool ToastStack::HasRoom(bool bStayOpen) const
{
    const QVector<Toast*> open = OpenToasts();
    int nHeight = bStayOpen ? 2 * kTallest : kTallest;
    for (const Toast* pToast : open) {
        nHeight += pToast->height() + kSpacing;
    }
    const int nMost = bStayOpen ? kMaxStaying : kMaxShown;
    return open.isEmpty() || (open.size() < nMost && nHeight <= Area().height());
}

void ToastStack::ShowWaiting()
{
    while (!m_passing.empty() && HasRoom(false)) {
        const Waiting next = m_passing.front();
        m_passing.pop_front();
        const auto nLeftMs = static_cast<int>(next.goneBy.remainingTime());
        if (nLeftMs >= kReadableMs) {
            Show(next.content, std::min(kLifetimeMs, nLeftMs));
        }
    }
    while (!m_staying.empty() && HasRoom(true)) {
        const ToastContent next = m_staying.front();
        m_staying.pop_front();
        Show(next, 0);
    }
    Arrange();
}

void ToastStack::Show(const ToastContent& content, int nLifetimeMs)
{
    auto* pToast = new Toast(content);
    m_toasts.removeAll(nullptr);
    m_toasts.append(pToast);
    connect(pToast, &Toast::Closed, pToast, &QObject::deleteLater);
    connect(pToast, &Toast::Closed, this, &ToastStack::ShowWaiting, Qt::QueuedConnection);
    if (!content.bStayOpen) {
        QTimer::singleShot(nLifetimeMs, pToast, &QWidget::close);
    }
    pToast->winId();  // makes the window
    pToast->windowHandle()->setTransientParent(m_pAnchor ? m_pAnchor->windowHandle() : nullptr);
    Arrange();
    pToast->show();
}

/// The stack stays where it is while another application is active.
void ToastStack::FollowActiveWindow()
{
    QWidget* pActive = ActiveWindow();
    if (pActive == nullptr && IsOnScreen(m_pAnchor)) {
        return;
    }
    if (pActive != m_pAnchor) {
        if (m_pAnchor) {
            m_pAnchor->removeEventFilter(this);
        }
        m_pAnchor = pActive;
        if (m_pAnchor) {
            m_pAnchor->installEventFilter(this);
        }
    }
    Arrange();
}

/// The screen that the stack is on.
QRect ToastStack::Area() const
{
    const QScreen* pScreen = IsOnScreen(m_pAnchor) ? m_pAnchor->screen() : QGuiApplication::primaryScreen();
    return pScreen != nullptr ? pScreen->availableGeometry() : QRect();
}

/// From the lower right corner upwards, the oldest first.
void ToastStack::Arrange()
{
    const QVector<Toast*> open = OpenToasts();
    const QRect area = Area().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QPoint corner = area.bottomRight();
    if (IsOnScreen(m_pAnchor)) {
        corner = m_pAnchor->mapToGlobal(m_pAnchor->rect().bottomRight()) - QPoint(kMargin, kMargin);
    }

    int nHeight = 0;
    for (const Toast* pToast : open) {
        nHeight += pToast->height() + kSpacing;
    }
    corner.setY(qBound(area.top() + nHeight, corner.y(), area.bottom()));
    for (Toast* pToast : open) {
        const int nRight = qBound(area.left() + pToast->width(), corner.x(), area.right());
        pToast->move(nRight - pToast->width() + 1, corner.y() - pToast->height() + 1);
        corner.ry() -= pToast->height() + kSpacing;
    }
}

void ToastStack::CloseAll()
{
    m_passing.clear();
    m_staying.clear();
    const auto open = OpenToasts();
    for (Toast* pToast : open) {
        pToast->close();
    }
}

}  // namespace ORNGUI::detail

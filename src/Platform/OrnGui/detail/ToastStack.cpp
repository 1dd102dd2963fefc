#include "ToastStack.h"

#include "../OrnWaitDialog.h"
#include "QuitWatcher.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace ORNGUI::detail {
namespace {

constexpr int kLifetimeMs = 5000;
constexpr int kDeadlineMs = 9500;  ///< toasts must close within ten seconds, and a timer may be late
constexpr int kMaxShown = 6;
constexpr int kMaxPersistent = 4;
constexpr int kTallest = 160;
constexpr std::size_t kMaxTransient = 6;  ///< more queued toasts could not be shown in time
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

/// The active window; for a wait dialog, the window of its parent.
QWidget* ActiveWindow()
{
    QWidget* pWindow = QApplication::activeWindow();
    while (const auto* pWaitDialog = qobject_cast<OrnWaitDialog*>(pWindow)) {
        QWidget* const pParent = pWaitDialog->parentWidget();
        pWindow = pParent != nullptr ? pParent->window() : nullptr;
    }
    return pWindow;
}

/// The dialogs on the screen. A wait dialog has no controls.
QVector<QDialog*> Dialogs()
{
    QVector<QDialog*> dialogs;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* pWindow : windows) {
        auto* pDialog = qobject_cast<QDialog*>(pWindow);
        if (IsOnScreen(pDialog) && qobject_cast<OrnWaitDialog*>(pDialog) == nullptr) {
            dialogs.append(pDialog);
        }
    }
    return dialogs;
}

/// The areas of a dialog that the user can reach with mouse or keyboard.
QVector<QRect> ControlsOf(const QDialog& dialog)
{
    QVector<QRect> controls;
    const auto widgets = dialog.findChildren<QWidget*>();
    for (const QWidget* pWidget : widgets) {
        if (pWidget->window() == &dialog && pWidget->isVisible() && pWidget->focusPolicy() != Qt::NoFocus) {
            controls.append({pWidget->mapToGlobal(QPoint()), pWidget->size()});
        }
    }
    return controls;
}

qint64 Overlap(const QRect& place, const QVector<QRect>& obstacles)
{
    qint64 nPixels = 0;
    for (const QRect& obstacle : obstacles) {
        const QRect common = place & obstacle;
        nPixels += qint64(common.width()) * common.height();
    }
    return nPixels;
}

/// The places inside the four corners of an area, the lower right one first.
QVector<QRect> Corners(const QRect& area, const QSize& size)
{
    QVector<QRect> corners(4, QRect(QPoint(), size));
    corners[0].moveBottomRight(area.bottomRight());
    corners[1].moveBottomLeft(area.bottomLeft());
    corners[2].moveTopRight(area.topRight());
    corners[3].moveTopLeft(area.topLeft());
    return corners;
}

/// The places beside the lower right corner of a dialog and its other sides.
QVector<QRect> Beside(const QRect& dialog, const QSize& size)
{
    const QRect around = dialog.adjusted(-kSpacing, -kSpacing, kSpacing, kSpacing);
    QVector<QRect> places(4, QRect(QPoint(), size));
    places[0].moveBottomLeft({around.right() + 1, dialog.bottom()});
    places[1].moveBottomRight({around.left() - 1, dialog.bottom()});
    places[2].moveTopRight({dialog.right(), around.bottom() + 1});
    places[3].moveBottomRight({dialog.right(), around.top() - 1});
    return places;
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
    for (const QPointer<Toast>& pToast : std::as_const(m_toasts)) {
        delete pToast;
    }
}

void ToastStack::Add(const ToastContent& content)
{
    if (CountWithLatest(content)) {
        Arrange();
        return;
    }
    m_latest = content;
    if (content.bStayOpen) {
        m_persistent.push_back(content);
    } else {
        m_transient.push_back({content, QDeadlineTimer(kDeadlineMs)});
    }
    FollowActiveWindow();
    ShowWaiting();
    if (m_transient.size() > kMaxTransient) {
        m_transient.pop_front();
    }
}

/// Counts the notification with the previous one if both are equal. @return false if they differ
bool ToastStack::CountWithLatest(const ToastContent& content)
{
    if (!content.Equals(m_latest)) {
        return false;
    }
    if (content.bStayOpen && !m_persistent.empty()) {
        ++m_persistent.back().nCount;
        return true;
    }
    if (!content.bStayOpen && !m_transient.empty()) {
        ++m_transient.back().content.nCount;
        m_transient.back().deadline = QDeadlineTimer(kDeadlineMs);
        return true;
    }
    const QVector<Toast*> open = OpenToasts();
    const auto shown = std::find_if(open.crbegin(), open.crend(),
                                    [&](const Toast* pToast) { return pToast->Content().Equals(content); });
    return shown != open.crend() && (*shown)->Repeat();
}

/// Installed on the application while toasts are open.
bool ToastStack::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    switch (pEvent->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        if (pWatched == m_pAnchor || qobject_cast<QDialog*>(pWatched) != nullptr) {
            Arrange();
        }
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

/// Persistent toasts leave room for transient ones.
bool ToastStack::HasRoom(bool bStayOpen) const
{
    const QVector<Toast*> open = OpenToasts();
    int nHeight = bStayOpen ? 2 * kTallest : kTallest;
    for (const Toast* pToast : open) {
        nHeight += pToast->height() + kSpacing;
    }
    const int nMost = bStayOpen ? kMaxPersistent : kMaxShown;
    return open.isEmpty() || (open.size() < nMost && nHeight <= Area().height());
}

void ToastStack::ShowWaiting()
{
    while (!m_transient.empty() && HasRoom(false)) {
        const Waiting next = m_transient.front();
        m_transient.pop_front();
        const auto nLeftMs = static_cast<int>(next.deadline.remainingTime());
        if (nLeftMs >= kReadableMs) {
            Show(next.content)->CloseAfter(std::min(kLifetimeMs, nLeftMs), next.deadline);
        }
    }
    while (!m_persistent.empty() && HasRoom(true)) {
        const ToastContent next = m_persistent.front();
        m_persistent.pop_front();
        Show(next);
    }
    Arrange();
    if (OpenToasts().isEmpty()) {
        qApp->removeEventFilter(this);
    }
}

Toast* ToastStack::Show(const ToastContent& content)
{
    qApp->installEventFilter(this);
    auto* pToast = new Toast(content);
    m_toasts.removeAll(nullptr);
    m_toasts.append(pToast);
    connect(pToast, &Toast::Closed, pToast, &QObject::deleteLater);
    connect(pToast, &Toast::Closed, this, &ToastStack::ShowWaiting, Qt::QueuedConnection);
    pToast->winId();  // creates the window
    pToast->windowHandle()->setTransientParent(m_pAnchor ? m_pAnchor->windowHandle() : nullptr);
    Arrange();
    pToast->show();
    return pToast;
}

/// While another application is active, the stack does not move.
void ToastStack::FollowActiveWindow()
{
    QWidget* pActive = ActiveWindow();
    if (pActive == nullptr && IsOnScreen(m_pAnchor)) {
        return;
    }
    m_pAnchor = pActive;
    Arrange();
}

/// The screen that the stack is on.
QRect ToastStack::Area() const
{
    const QScreen* pScreen = IsOnScreen(m_pAnchor) ? m_pAnchor->screen() : QGuiApplication::primaryScreen();
    return pScreen != nullptr ? pScreen->availableGeometry() : QRect();
}

/// The lower right corner of the active window or of the screen; if that covers a dialog, the next place that covers
/// none. If every place covers a dialog, the one that covers the least of their controls.
QRect ToastStack::Place(const QSize& size) const
{
    const QRect area = Area().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QVector<QRect> dialogs;
    QVector<QRect> controls;
    QVector<QRect> besideDialogs;
    const QVector<QDialog*> open = Dialogs();
    for (const QDialog* pDialog : open) {
        const QRect frame = pDialog->frameGeometry();
        dialogs.append(frame);
        controls += ControlsOf(*pDialog);
        besideDialogs =
            pDialog == m_pAnchor ? Beside(frame, size) + besideDialogs : besideDialogs + Beside(frame, size);
    }
    QVector<QRect> places;
    if (IsOnScreen(m_pAnchor) && qobject_cast<QDialog*>(m_pAnchor) == nullptr) {
        const QRect window(m_pAnchor->mapToGlobal(QPoint()), m_pAnchor->size());
        places = Corners(window.adjusted(kMargin, kMargin, -kMargin, -kMargin), size);
    } else if (!IsOnScreen(m_pAnchor)) {
        places = Corners(area, size);
    }
    places += besideDialogs + Corners(area, size);

    QRect best;
    qint64 nLeast = -1;
    for (QRect& place : places) {
        place.moveRight(qBound(area.left() + size.width() - 1, place.right(), area.right()));
        place.moveBottom(qBound(area.top() + size.height() - 1, place.bottom(), area.bottom()));
        if (Overlap(place, dialogs) == 0) {
            return place;
        }
        const qint64 nCovered = Overlap(place, controls);
        if (nLeast < 0 || nCovered < nLeast) {
            nLeast = nCovered;
            best = place;
        }
    }
    return best;
}

/// From the lower right corner upwards, the oldest first.
void ToastStack::Arrange()
{
    const QVector<Toast*> open = OpenToasts();
    if (open.isEmpty()) {
        return;
    }
    QSize size(open.first()->width(), -kSpacing);
    for (const Toast* pToast : open) {
        size.rheight() += pToast->height() + kSpacing;
    }
    QPoint corner = Place(size).bottomRight();
    for (Toast* pToast : open) {
        pToast->move(corner - QPoint(pToast->width() - 1, pToast->height() - 1));
        corner.ry() -= pToast->height() + kSpacing;
    }
}

void ToastStack::CloseAll()
{
    m_transient.clear();
    m_persistent.clear();
    const auto open = OpenToasts();
    for (Toast* pToast : open) {
        pToast->close();
    }
}

}  // namespace ORNGUI::detail

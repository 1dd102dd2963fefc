#include "OrnWaitDialog.h"

#include "detail/QuitWatcher.h"

#include <QEvent>
#include <QEventLoop>
#include <QPainter>
#include <QScreen>

#include <utility>

namespace ORNGUI {
namespace {

constexpr int kSize = 88;
constexpr int kRingDiameter = 44;
constexpr int kRingWidth = 4;
constexpr int kFrameMs = 40;
constexpr int kTurnMs = 1200;
constexpr int kArcDegrees = 100;
constexpr int kVeilAlpha = 110;

/// Dims the widget below it and blocks the mouse. A child of the window, so that no compositor is needed.
class Veil : public QWidget {
public:
    explicit Veil(QWidget* pWindow) : QWidget(pWindow)
    {
        setObjectName(QStringLiteral("OrnWaitVeil"));
        setAttribute(Qt::WA_NoMousePropagation);
        setCursor(Qt::BusyCursor);
    }

protected:
    void paintEvent(QPaintEvent* /*pEvent*/) override { QPainter(this).fillRect(rect(), QColor(0, 0, 0, kVeilAlpha)); }
};

/// The visible part of a widget, or its complete window if nothing of it is visible, in coordinates of the window.
/// Empty when the window is not on the screen either.
QRect SeenInWindow(const QWidget& widget)
{
    const QWidget* const pWindow = widget.window();
    if (!pWindow->isVisible() || pWindow->isMinimized()) {
        return {};
    }
    QRect area = widget.isVisible() ? widget.rect() : QRect();
    for (const QWidget* pLevel = &widget; pLevel != pWindow; pLevel = pLevel->parentWidget()) {
        area = area.translated(pLevel->pos()) & pLevel->parentWidget()->rect();
    }
    return area.isEmpty() ? pWindow->rect() : area;
}

QColor Faint(QColor color, int nAlpha)
{
    color.setAlpha(nAlpha);
    return color;
}

}  // namespace

OrnWaitDialog::OrnWaitDialog(QWidget* pParent, bool bCoverParent) : OrnDialog(pParent), m_bCoverParent(bCoverParent)
{
    setWindowFlag(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAccessibleName(tr("Please wait"));
    setWindowTitle(tr("Please wait"));

    setFixedSize(kSize, kSize);

    m_frameTimer.setInterval(kFrameMs);
    connect(&m_frameTimer, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    const auto* pQuitWatcher = new detail::QuitWatcher(this);
    connect(pQuitWatcher, &detail::QuitWatcher::Quitting, this, &OrnWaitDialog::OnStopWaitImmediately);
    WatchParent();
}

OrnWaitDialog::~OrnWaitDialog()
{
    EndExecution();
    Uncover();
}

void OrnWaitDialog::OnStopWaitImmediately()
{
    EndExecution();
    if (isVisible()) {
        OrnDialog::done(Rejected);
    }
}

// Uses its own loop, because that of QDialog does not end when the dialog is stopped while it is being shown.
int OrnWaitDialog::exec()
{
    if (m_pLoop) {
        return Rejected;
    }
    if (isVisible() && !isModal()) {
        hide();  // a window becomes modal only when it is shown
    }
    const QPointer<OrnWaitDialog> pSelf(this);
    QEventLoop loop;
    m_pLoop = &loop;
    setModal(true);
    show();
    if (pSelf && m_pLoop) {
        loop.exec(QEventLoop::DialogExec);
    }
    if (pSelf) {
        OnStopWaitImmediately();  // still shown when the application quits
    }
    if (pSelf) {
        setModal(false);
    }
    return Rejected;
}

void OrnWaitDialog::EndExecution()
{
    if (m_pLoop) {
        m_pLoop->quit();
        m_pLoop = nullptr;
    }
}

void OrnWaitDialog::done(int /*nResult*/)
{
    // Escape, the close button, accept() and reject() all end here.
}

bool OrnWaitDialog::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::ParentChange) {
        WatchParent();
    }
    return OrnDialog::event(pEvent);
}

bool OrnWaitDialog::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    switch (pEvent->type()) {
    case QEvent::ParentChange:
        WatchAncestors();
        PlaceOverParent();
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        PlaceOverParent();
        break;
    default:
        break;
    }
    return OrnDialog::eventFilter(pWatched, pEvent);
}

void OrnWaitDialog::showEvent(QShowEvent* pEvent)
{
    m_clock.start();
    m_frameTimer.start();
    PlaceOverParent();
    OrnDialog::showEvent(pEvent);
}

void OrnWaitDialog::hideEvent(QHideEvent* pEvent)
{
    m_frameTimer.stop();
    Uncover();
    OrnDialog::hideEvent(pEvent);
}

void OrnWaitDialog::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(QPalette::Window));

    const QColor foreground = palette().color(QPalette::WindowText);
    painter.setPen(Faint(foreground, 60));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));

    QRectF ring(0, 0, kRingDiameter, kRingDiameter);
    ring.moveCenter(QRectF(rect()).center());
    painter.setPen(QPen(Faint(foreground, 40), kRingWidth));
    painter.drawEllipse(ring);

    constexpr int kSixteenthsPerTurn = 360 * 16;
    const auto nTurned = static_cast<int>(m_clock.elapsed() % kTurnMs * kSixteenthsPerTurn / kTurnMs);
    painter.setPen(QPen(palette().color(QPalette::Highlight), kRingWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, -nTurned, kArcDegrees * 16);
}

void OrnWaitDialog::WatchParent()
{
    disconnect(m_parentDestroyed);
    if (parentWidget() != nullptr) {
        // Emitted before a widget deletes its children, which include this dialog.
        m_parentDestroyed = connect(parentWidget(), &QObject::destroyed, this, &OrnWaitDialog::ParentDestroyed);
    }
    WatchAncestors();
}

/// The parent moves on the screen when any widget up to its window moves.
void OrnWaitDialog::WatchAncestors()
{
    for (const QPointer<QWidget>& pWidget : std::as_const(m_watched)) {
        if (pWidget) {
            pWidget->removeEventFilter(this);
        }
    }
    m_watched.clear();
    for (QWidget* pWidget = parentWidget(); pWidget != nullptr; pWidget = pWidget->parentWidget()) {
        pWidget->installEventFilter(this);
        m_watched.append(pWidget);
        if (pWidget->isWindow()) {
            break;
        }
    }
}

void OrnWaitDialog::ParentDestroyed()
{
    const QPointer<OrnWaitDialog> pSelf(this);
    OnStopWaitImmediately();
    if (pSelf) {
        setParent(nullptr, windowFlags());
    }
}

void OrnWaitDialog::PlaceOverParent()
{
    if (!isVisible()) {
        return;
    }
    const QRect area = parentWidget() != nullptr ? SeenInWindow(*parentWidget()) : QRect();
    if (area.isEmpty()) {
        Uncover();
        move(screen()->availableGeometry().center() - rect().center());
        return;
    }
    if (m_bCoverParent) {
        Cover(area);
    }
    move(parentWidget()->window()->mapToGlobal(area.center()) - rect().center());
}

void OrnWaitDialog::Cover(const QRect& area)
{
    QWidget* const pWindow = parentWidget()->window();
    if (m_pVeil && m_pVeil->parentWidget() != pWindow) {
        Uncover();
    }
    if (!m_pVeil) {
        m_pVeil = new Veil(pWindow);
    }
    m_pVeil->setGeometry(area);
    m_pVeil->raise();
    m_pVeil->show();
}

void OrnWaitDialog::Uncover()
{
    if (m_pVeil) {
        // Not deleted here, because its window may be iterating over its children.
        m_pVeil->hide();
        m_pVeil->deleteLater();
        m_pVeil.clear();
    }
}

}  // namespace ORNGUI

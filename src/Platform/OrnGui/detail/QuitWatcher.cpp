#include "QuitWatcher.h"

#include <QCoreApplication>
#include <QEvent>

namespace ORNGUI::detail {

QuitWatcher::QuitWatcher(QObject* pParent) : QObject(pParent)
{
    qApp->installEventFilter(this);
}

bool QuitWatcher::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Quit && pWatched == qApp) {
        emit Quitting();
    }
    return QObject::eventFilter(pWatched, pEvent);
}

}  // namespace ORNGUI::detail

#include "OrnMessageNotify.h"

#include "detail/ToastStack.h"

#include <QApplication>

namespace ORNGUI {

template class OrnSingleton<OrnMessageNotify>;

void OrnMessageNotify::AddTextNotification(const QString& strText, bool bWithButton, const QString& strButtonText,
                                           const QString& strLink, bool bStayOpen)
{
    const bool bHasWindows = qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
    const bool bHasContent = bWithButton || !strText.trimmed().isEmpty();
    if (bHasWindows && !QCoreApplication::closingDown() && bHasContent) {
        detail::ToastStack::Instance().Add({strText, bWithButton, strButtonText, strLink, bStayOpen});
    }
    emit TextNotificationAdded(strText);
}

}  // namespace ORNGUI

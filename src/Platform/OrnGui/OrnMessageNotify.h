#pragma once

#include "OrnGuiGlobal.h"
#include "OrnSingleton.h"

#include <QObject>
#include <QString>

namespace ORNGUI {

/// Short messages to the user, as toasts that stack in a corner of the active window, or of the screen without one.
///
/// Toasts take no focus and do not keep the application running after its last window; quitting closes them. Hosts use
/// the instance of the process, OrnSingleton<OrnMessageNotify>::Instance(). GUI thread only.
class ORNGUI_EXPORT OrnMessageNotify : public QObject {
    Q_OBJECT

public:
    /// Shows a toast. A click closes it; otherwise it closes after about five seconds.
    ///
    /// A toast for which there is no room waits. It is dropped if it could not be shown and closed within ten seconds
    /// of the call, unless it stays open. A text too long for a toast is truncated. Nothing is shown without a
    /// QApplication, or with neither a text nor a button.
    ///
    /// @param strText the message, shown as plain text
    /// @param bWithButton add a button that opens @p strLink and closes the toast
    /// @param strButtonText text of the button
    /// @param strLink URL or absolute file path, opened by the desktop
    /// @param bStayOpen stay until clicked
    void AddTextNotification(const QString& strText, bool bWithButton, const QString& strButtonText,
                             const QString& strLink, bool bStayOpen);

Q_SIGNALS:
    /// Emitted once inside each AddTextNotification(), whether or not a toast can be shown.
    /// @param strText the message
    void TextNotificationAdded(const QString& strText);
};

/// The one instance of the process, whichever library asks for it.
extern template class ORNGUI_EXPORT OrnSingleton<OrnMessageNotify>;

}  // namespace ORNGUI

#pragma once

#include "APIModuleGlobal.h"

#include <QObject>

#include <memory>

class QWidget;

namespace APIModule {

class CAPIWaitDialogPrivate;

/// A busy indicator over a widget for as long as the object lives, for work of the host's own.
///
/// The dialog is shown without blocking: the constructor returns at once. Calls that run through
/// CAPIModule::ExecuteFuncs() bring a wait dialog of their own.
class APIMODULE_EXPORT CAPIWaitDialog : public QObject {
    Q_OBJECT

public:
    /// Shows the wait dialog. It is gone from the screen, without harm to this object, when the parent is destroyed
    /// first. Without a QApplication nothing is shown.
    ///
    /// @param parent widget under the dialog, or null for a dialog on its own
    explicit CAPIWaitDialog(QWidget* parent);

    /// Hides the wait dialog, takes it from its parent and deletes it.
    ~CAPIWaitDialog() override;

private:
    Q_DECLARE_PRIVATE(CAPIWaitDialog)
    Q_DISABLE_COPY(CAPIWaitDialog)

    const std::unique_ptr<CAPIWaitDialogPrivate> d_ptr;
};

}  // namespace APIModule

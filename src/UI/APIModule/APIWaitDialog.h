#pragma once

#include "APIModuleGlobal.h"

#include <QObject>

#include <memory>

class QWidget;

namespace APIModule {

class CAPIWaitDialogPrivate;

/// Shows a busy indicator over a widget during its lifetime, for work of the host.
///
/// The dialog is shown without blocking: the constructor returns at once. Calls that run through
/// CAPIModule::ExecuteFuncs() show a wait dialog themselves.
class APIMODULE_EXPORT CAPIWaitDialog : public QObject {
    Q_OBJECT

public:
    /// Shows the wait dialog. If the parent is destroyed first, the dialog disappears and this object stays valid.
    /// Without a QApplication nothing is shown.
    ///
    /// @param parent widget that the dialog covers, or null for a dialog without a parent
    explicit CAPIWaitDialog(QWidget* parent);

    /// Hides the wait dialog and deletes it.
    ~CAPIWaitDialog() override;

private:
    Q_DECLARE_PRIVATE(CAPIWaitDialog)
    Q_DISABLE_COPY(CAPIWaitDialog)

    const std::unique_ptr<CAPIWaitDialogPrivate> d_ptr;
};

}  // namespace APIModule

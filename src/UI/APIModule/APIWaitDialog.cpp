#include "APIWaitDialog.h"

#include <OrnGui/OrnWaitDialog.h>

#include <QApplication>
#include <QPointer>

namespace APIModule {

class CAPIWaitDialogPrivate {
public:
    QPointer<ORNGUI::OrnWaitDialog> m_pDialog;
};

CAPIWaitDialog::CAPIWaitDialog(QWidget* parent) : d_ptr(std::make_unique<CAPIWaitDialogPrivate>())
{
    Q_D(CAPIWaitDialog);
    if (qobject_cast<QApplication*>(QCoreApplication::instance())) {
        d->m_pDialog = new ORNGUI::OrnWaitDialog(parent, true);
        d->m_pDialog->show();
    }
}

CAPIWaitDialog::~CAPIWaitDialog()
{
    Q_D(CAPIWaitDialog);
    if (d->m_pDialog) {
        d->m_pDialog->hide();
        d->m_pDialog->setParent(nullptr);
        delete d->m_pDialog;
    }
}

}  // namespace APIModule

// Defined in this file because abidw loses functions of a class that is defined in several units.
#include "moc_APIWaitDialog.cpp"  // NOLINT(bugprone-suspicious-include)

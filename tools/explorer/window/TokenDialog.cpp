#include "TokenDialog.h"
#include "../views/Widgets.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>

namespace explorer {

TokenDialog::TokenDialog(const QString& serverName, QWidget* pParent)
    : QDialog(pParent), m_pToken(Named(new QLineEdit, "token")),
      m_pKeep(new QCheckBox(tr("Store it in the desktop's secret service")))
{
    setWindowTitle(tr("Session token"));
    setObjectName(QStringLiteral("tokenDialog"));
    m_pToken->setEchoMode(QLineEdit::Password);
    m_pKeep->setChecked(true);
    auto* const pLabel = new QLabel(tr("Session &token for “%1”:").arg(serverName));
    pLabel->setBuddy(m_pToken);
    auto* const pHint = new QLabel(tr("Without a secret service, the token is kept until the program exits. It is "
                                      "never written to a file."));
    pHint->setWordWrap(true);
    pHint->setForegroundRole(QPalette::PlaceholderText);
    auto* const pButtons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    Column({pLabel, m_pToken, m_pKeep, pHint, Space(8), pButtons}, this)->setContentsMargins(16, 16, 16, 16);
    constexpr int kWidth = 420;
    setMinimumWidth(kWidth);
}

QString TokenDialog::Token() const
{
    return m_pToken->text();
}

bool TokenDialog::Keep() const
{
    return m_pKeep->isChecked();
}

}  // namespace explorer

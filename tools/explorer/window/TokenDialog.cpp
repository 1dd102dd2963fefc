#include "TokenDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace explorer {

TokenDialog::TokenDialog(const QString& serverName, QWidget* pParent)
    : QDialog(pParent), m_pToken(new QLineEdit), m_pKeep(new QCheckBox(tr("Store it in the desktop's secret service")))
{
    setWindowTitle(tr("Session token"));
    setObjectName(QStringLiteral("tokenDialog"));
    m_pToken->setObjectName(QStringLiteral("token"));
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

    auto* const pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(16, 16, 16, 16);
    pLayout->addWidget(pLabel);
    pLayout->addWidget(m_pToken);
    pLayout->addWidget(m_pKeep);
    pLayout->addWidget(pHint);
    pLayout->addSpacing(8);
    pLayout->addWidget(pButtons);
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

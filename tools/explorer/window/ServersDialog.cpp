#include "ServersDialog.h"

#include "Icons.h"

#include "../core/CertificateLook.h"
#include "../core/Tokens.h"
#include "../views/Theme.h"
#include "../views/TintedLabel.h"
#include "../views/Widgets.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace explorer {
namespace {

constexpr int kHttpsPort = 443;
constexpr int kHttpPort = 80;
constexpr int kHighestPort = 65535;

/// IPv6 addresses are in brackets, as in requests.
bool IsHost(const QString& text)
{
    const QUrl url(QStringLiteral("http://%1:80/").arg(text), QUrl::StrictMode);
    return url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty() && url.path() == QLatin1String("/") &&
           url.port() == kHttpPort;
}

/// The format of common tools, on two lines.
QString DigestText(const QByteArray& digest)
{
    const QByteArray first = digest.left(digest.size() / 2);
    return QString::fromLatin1(first.toHex(':') + ":\n" + digest.mid(first.size()).toHex(':'));
}

QLabel* Selectable(QLabel* pLabel)
{
    pLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    pLabel->setWordWrap(true);
    return pLabel;
}

}  // namespace

ServersDialog::ServersDialog(Servers& servers, Tokens& tokens, QWidget* pParent)
    : QDialog(pParent), m_servers(servers), m_tokens(tokens), m_edited(servers.All()),
      m_pList(Named(new QListWidget, "serverList")), m_pRemove(Named(new QToolButton, "removeServer")),
      m_pName(Named(new QLineEdit, "serverName")), m_pScheme(Named(new QComboBox, "serverScheme")),
      m_pHost(Named(new QLineEdit, "serverHost")), m_pPort(Named(new QSpinBox, "serverPort")),
      m_pToken(Named(new QLineEdit, "serverToken")), m_pLanguage(Named(new QComboBox, "serverLanguage")),
      m_pTrusted(Named(Selectable(new QLabel), "trustedCertificate")),
      m_pPresented(Named(Selectable(new QLabel), "presentedCertificate")),
      m_pChanged(Named(Selectable(new TintedLabel(theme::Error)), "changedCertificate")),
      m_pLookAt(Named(new QPushButton(tr("Fetch from the server")), "showCertificate")),
      m_pTrust(Named(new QPushButton(tr("Trust this certificate")), "trustCertificate")),
      m_pTrustAny(Named(new QPushButton(tr("Trust any certificate")), "trustAnyCertificate")),
      m_pProblem(new TintedLabel(theme::Error)),
      m_pButtons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(tr("Servers"));
    setObjectName(QStringLiteral("serversDialog"));
    connect(m_pButtons, &QDialogButtonBox::accepted, this, &ServersDialog::accept);
    connect(m_pButtons, &QDialogButtonBox::rejected, this, &ServersDialog::reject);

    auto* const pPanes = Row({{MakeList(), 2}, {MakeForm(), 3}});
    pPanes->setSpacing(16);
    auto* const pLayout = Column({pPanes, m_pButtons}, this);
    pLayout->setContentsMargins(16, 16, 16, 16);
    pLayout->setSpacing(12);
    m_pList->setCurrentRow(m_servers.CurrentIndex());
    constexpr QSize kSize(860, 460);
    resize(kSize);
}

QWidget* ServersDialog::MakeList()
{
    m_pList->setAccessibleName(tr("Servers"));
    for (const Server& server : std::as_const(m_edited)) {
        m_pList->addItem(server.name);
    }
    connect(m_pList, &QListWidget::currentRowChanged, this, &ServersDialog::ShowServer);

    auto* const pAdd = Named(new QToolButton, "addServer");
    pAdd->setIcon(Icon("add"));
    pAdd->setText(tr("Add"));
    pAdd->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(pAdd, &QToolButton::clicked, this, &ServersDialog::Add);
    m_pRemove->setIcon(Icon("remove"));
    m_pRemove->setText(tr("Remove"));
    m_pRemove->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(m_pRemove, &QToolButton::clicked, this, &ServersDialog::Remove);

    auto* const pPane = new QWidget;
    Column({m_pList, Row({pAdd, m_pRemove, Stretch()})}, pPane)->setContentsMargins(0, 0, 0, 0);
    return pPane;
}

QWidget* ServersDialog::MakeForm()
{
    m_pHost->setPlaceholderText(tr("Host name or IP address"));
    m_pPort->setRange(1, kHighestPort);
    m_pScheme->addItem(QStringLiteral("https"), true);
    m_pScheme->addItem(QStringLiteral("http"), false);
    m_pToken->setEchoMode(QLineEdit::Password);
    m_pToken->setPlaceholderText(tr("Unchanged"));
    m_pLanguage->setEditable(true);
    m_pLanguage->addItems({QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("zh")});
    m_pLanguage->setToolTip(tr("Language for the server's replies"));

    connect(m_pName, &QLineEdit::textEdited, this, [this](const QString& name) {
        m_pList->currentItem()->setText(name);
        TakeOver();
    });
    connect(m_pHost, &QLineEdit::textEdited, this, [this](const QString& text) {
        TakeUrl(text.trimmed());
        TakeOver();
    });
    connect(m_pToken, &QLineEdit::textEdited, this,
            [this](const QString& token) { m_newTokens.insert(m_edited.at(m_shown).id, token); });
    connect(m_pPort, qOverload<int>(&QSpinBox::valueChanged), this, &ServersDialog::TakeOver);
    connect(m_pLanguage, &QComboBox::editTextChanged, this, &ServersDialog::TakeOver);
    connect(m_pScheme, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] {
        const bool https = m_pScheme->currentData().toBool();
        if (m_pPort->value() == (https ? kHttpPort : kHttpsPort)) {
            m_pPort->setValue(https ? kHttpsPort : kHttpPort);
        }
        TakeOver();
    });

    auto* const pPane = new QWidget;
    auto* const pForm = new QFormLayout(pPane);
    pForm->setContentsMargins(0, 0, 0, 0);
    pForm->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    pForm->addRow(tr("&Name"), m_pName);
    pForm->addRow(tr("&Scheme"), m_pScheme);
    pForm->addRow(tr("&Host"), m_pHost);
    pForm->addRow(tr("&Port"), m_pPort);
    pForm->addRow(tr("To&ken"), m_pToken);
    pForm->addRow(tr("&Language"), m_pLanguage);
    pForm->addRow(tr("Certificate"), MakeCertificate());
    pForm->addRow(m_pProblem);
    return pPane;
}

QWidget* ServersDialog::MakeCertificate()
{
    connect(m_pLookAt, &QPushButton::clicked, this, &ServersDialog::LookAtCertificate);
    connect(m_pTrust, &QPushButton::clicked, this, [this] { Pin(m_presented); });
    connect(m_pTrustAny, &QPushButton::clicked, this, [this] { Pin({}); });

    auto* const pPane = new QWidget;
    auto* const pLayout = new QVBoxLayout(pPane);
    pLayout->setContentsMargins(0, 0, 0, 0);
    for (QLabel* const pLabel : {m_pTrusted, m_pPresented, m_pChanged}) {
        pLayout->addWidget(pLabel);
    }
    auto* const pBar = new QHBoxLayout;
    for (QPushButton* const pButton : {m_pLookAt, m_pTrust, m_pTrustAny}) {
        pButton->setAutoDefault(false);
        pBar->addWidget(pButton);
    }
    pBar->addStretch();
    pLayout->addLayout(pBar);
    return pPane;
}

void ServersDialog::LookAtCertificate()
{
    ForgetPresented();
    const Server& server = m_edited.at(m_shown);
    auto* const pLook = new CertificateLook(server.host, server.port, this);
    m_pLook = pLook;
    const auto end = [this](const QByteArray& digest, const QString& why) {
        m_presented = digest;
        m_whyNotPresented = why;
        m_pLook->deleteLater();
        m_pLook.clear();
        ShowCertificate();
    };
    connect(pLook, &CertificateLook::Seen, this, [end](const QByteArray& digest) { end(digest, QString()); });
    connect(pLook, &CertificateLook::Failed, this, [end](const QString& why) { end(QByteArray(), why); });
    ShowCertificate();
}

void ServersDialog::ForgetPresented()
{
    delete m_pLook;
    m_presented.clear();
    m_whyNotPresented.clear();
    ShowCertificate();
}

void ServersDialog::Pin(const QByteArray& digest)
{
    m_edited[m_shown].pin = digest;
    ShowCertificate();
}

void ServersDialog::ShowCertificate()
{
    const Server& server = m_edited.at(m_shown);
    const bool isEmulator = server.id == kEmulatorId;
    const bool isPinned = !server.pin.isEmpty();
    if (isEmulator) {
        m_pTrusted->setText(tr("New at each start"));
    } else if (!server.https) {
        m_pTrusted->setText(tr("None: everything is sent unencrypted."));
    } else if (isPinned) {
        m_pTrusted->setText(tr("Only this certificate is trusted (SHA-256):\n%1").arg(DigestText(server.pin)));
    } else {
        m_pTrusted->setText(tr("Any certificate is trusted: anyone who intercepts the connection can read the token."));
    }

    QString presented;
    if (m_pLook) {
        presented = tr("Fetching the certificate…");
    } else if (!m_whyNotPresented.isEmpty()) {
        presented = tr("The server presented no certificate: %1").arg(m_whyNotPresented);
    } else if (!m_presented.isEmpty() && m_presented == server.pin) {
        presented = tr("The server presents this certificate.");
    } else if (!m_presented.isEmpty()) {
        presented = tr("The server presents (SHA-256):\n%1").arg(DigestText(m_presented));
    }
    m_pPresented->setText(presented);
    m_pPresented->setVisible(!presented.isEmpty());

    const bool isOther = !m_presented.isEmpty() && m_presented != server.pin;
    m_pChanged->setText(isPinned && isOther
                            ? tr("The certificate has changed: someone may be impersonating the server. "
                                 "Compare the digest with the one on the server.")
                            : QString());
    m_pChanged->setVisible(isPinned && isOther);

    const bool isOffered = server.https && !isEmulator;
    m_pLookAt->setEnabled(isOffered && !m_pLook && IsHost(server.host));
    m_pTrust->setEnabled(isOffered && isOther);
    m_pTrustAny->setEnabled(isOffered && isPinned);
}

void ServersDialog::Add()
{
    m_edited.append(Servers::Fresh(tr("New server")));
    m_pList->addItem(m_edited.last().name);
    m_pList->setCurrentRow(m_edited.size() - 1);
    m_pName->setFocus();
    m_pName->selectAll();
}

void ServersDialog::Remove()
{
    const int index = m_shown;
    m_newTokens.remove(m_edited.at(index).id);
    m_edited.remove(index);
    m_shown = -1;  // its row is removed
    delete m_pList->takeItem(index);
    ShowServer(m_pList->currentRow());
}

void ServersDialog::ShowServer(int index)
{
    if (index < 0 || index >= m_edited.size()) {
        return;
    }
    m_shown = -1;  // the changes below are not edits by the user
    const Server server = m_edited.at(index);
    const bool isEmulator = server.id == kEmulatorId;
    m_pName->setText(server.name);
    m_pHost->setText(server.host);
    m_pPort->setMinimum(isEmulator ? 0 : 1);
    m_pPort->setSpecialValueText(isEmulator ? tr("any free port") : QString());
    m_pPort->setValue(server.port);
    m_pScheme->setCurrentIndex(server.https ? 0 : 1);
    m_pLanguage->setEditText(server.language);
    m_pToken->setText(m_newTokens.value(server.id));
    m_pToken->setPlaceholderText(isEmulator                 ? tr("New at each start")
                                 : m_tokens.Find(server.id) ? tr("Unchanged")
                                                            : tr("Asked for when needed"));
    for (QWidget* const pWidget : std::initializer_list<QWidget*>{m_pName, m_pHost, m_pPort, m_pToken, m_pRemove}) {
        pWidget->setEnabled(!isEmulator);
    }
    m_shown = index;
    ForgetPresented();
    Check();
}

/// Distributes a pasted URL over the fields.
void ServersDialog::TakeUrl(const QString& text)
{
    const QUrl url(text);
    const bool https = url.scheme() == QLatin1String("https");
    if (url.host().isEmpty() || (!https && url.scheme() != QLatin1String("http"))) {
        return;
    }
    const QString host = url.host();
    m_pScheme->setCurrentIndex(m_pScheme->findData(https));
    m_pHost->setText(host.contains(QLatin1Char(':')) ? QLatin1Char('[') + host + QLatin1Char(']') : host);
    m_pPort->setValue(url.port(https ? kHttpsPort : kHttpPort));
}

void ServersDialog::TakeOver()
{
    if (m_shown < 0) {
        return;
    }
    Server& server = m_edited[m_shown];
    const QString address = server.Address();
    server.name = m_pName->text().trimmed();
    server.host = m_pHost->text().trimmed();
    server.port = m_pPort->value();
    server.https = m_pScheme->currentData().toBool();
    server.language = m_pLanguage->currentText().trimmed();
    if (server.Address() != address) {
        ForgetPresented();
    }
    Check();
}

void ServersDialog::Check()
{
    QString problem;
    for (const Server& server : std::as_const(m_edited)) {
        if (server.name.isEmpty()) {
            problem = tr("A server needs a name.");
        } else if (!IsHost(server.host)) {
            problem = tr("“%1” needs a host name or an IP address (IPv6 in brackets).").arg(server.name);
        } else if (server.language.isEmpty()) {
            problem = tr("“%1” needs a language.").arg(server.name);
        }
    }
    m_pProblem->setText(problem);
    m_pButtons->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty());
}

void ServersDialog::accept()
{
    const QVector<Server> before = m_servers.All();
    for (const Server& server : before) {
        const bool stays = std::any_of(m_edited.cbegin(), m_edited.cend(),
                                       [&server](const Server& edited) { return edited.id == server.id; });
        if (!stays) {
            m_tokens.Forget(server.id);
        }
    }
    const bool isNew = std::none_of(before.cbegin(), before.cend(),
                                    [this](const Server& server) { return server.id == m_edited.constLast().id; });
    m_servers.Replace(m_edited);
    if (isNew) {
        m_servers.SetCurrent(m_edited.size() - 1);
    }
    for (auto token = m_newTokens.cbegin(); token != m_newTokens.cend(); ++token) {
        constexpr bool kKeep = true;
        m_tokens.Set(token.key(), token.value(), kKeep);
    }
    QDialog::accept();
}

}  // namespace explorer

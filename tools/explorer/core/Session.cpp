#include "Session.h"

#include <APIModule.h>
#include <ServerTrust.h>

#include <QSettings>

#include <malloc.h>

namespace explorer {
namespace {

constexpr const char* kScaleKey = "emulator/scale";
constexpr const char* kSeedKey = "emulator/seedFolder";

}  // namespace

Session::Session(QSettings& allSettings, Tokens::Vault* vault, const QString& emulatorProgram, QObject* parent)
    : QObject(parent), settings(allSettings), servers(allSettings), tokens(vault), emulator(emulatorProgram),
      history(allSettings)
{
    emulator.SetOptions(
        {settings.value(QLatin1String(kScaleKey), 1).toInt(), settings.value(QLatin1String(kSeedKey)).toString()});
    connect(&servers, &Servers::Changed, this, &Session::UseCurrentServer);
    connect(&tokens, &Tokens::Changed, this, &Session::UseCurrentServer);
    connect(&emulator, &EmulatorProcess::StateChanged, this,
            [this] { servers.SetEmulatorPorts(emulator.HttpPort(), emulator.HttpsPort()); });
    connect(&runner, &Runner::Finished, &history, &History::Add);
    connect(&runner, &Runner::Finished, &identifiers, &Identifiers::Add);
    connect(&runner, &Runner::Finished, this, &Session::ReleaseMemory);
    connect(&runner, &Runner::Notifying, &notifications, &NotificationFeed::ExpectOutcome);
    connect(&runner, &Runner::TokenRefused, &tokens, &Tokens::Refuse);
    UseCurrentServer();
    APIModule::CAPIModule::GetInstance().Init(&m_users);
}

Session::~Session()
{
    APIModule::CAPIModule::GetInstance().UnInit();
    APIModule::CAPIModule::GetInstance().SetServerTrust({});
}

std::optional<QString> Session::CurrentToken() const
{
    return servers.IsEmulator() ? emulator.Token() : tokens.Find(servers.Current().id);
}

void Session::SetEmulatorOptions(const EmulatorOptions& options)
{
    settings.setValue(QLatin1String(kScaleKey), options.scale);
    settings.setValue(QLatin1String(kSeedKey), options.seedFolder);
    emulator.SetOptions(options);
}

bool Session::IsReady() const
{
    return !servers.IsEmulator() || emulator.GetState() == EmulatorProcess::Running;
}

void Session::UseCurrentServer()
{
    const Server& server = servers.Current();
    m_users.Use(server.host.toStdString(), server.port, CurrentToken().value_or(QString()).toStdString());
    APIModule::CAPIModule::GetInstance().SetHttpsMode(server.https ? 1 : 0);
    APIModule::CAPIModule::GetInstance().SetLanguage(server.language.toStdString());
    TrustCurrentServer();
    if (!servers.IsEmulator()) {
        tokens.Fetch(server.id);
    }
}

/// Large replies and records consist of many small allocations, whose memory the C library would keep.
void Session::ReleaseMemory(const CallOutcome& outcome)
{
    constexpr int kLarge = 1 << 20;
    if (outcome.reply && outcome.reply->body.size() > kLarge) {
        QMetaObject::invokeMethod(
            this, [] { malloc_trim(0); }, Qt::QueuedConnection);  // after the outcome has been deleted
    }
}

void Session::TrustCurrentServer()
{
    const Server& server = servers.Current();
    if (server.pin == m_pin) {
        return;  // keeps the connections
    }
    m_pin = server.pin;
    APIModule::ServerTrust trust;
    if (!m_pin.isEmpty()) {
        trust.pins = {{m_pin, QString(), 0}};
    }
    APIModule::CAPIModule::GetInstance().SetServerTrust(trust);
}

}  // namespace explorer

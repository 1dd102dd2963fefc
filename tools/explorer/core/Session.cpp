#include "Session.h"

#include <APIModule.h>

#include <QSettings>

namespace explorer {

Session::Session(QSettings& allSettings, Tokens::Vault* vault, const QString& emulatorProgram, QObject* parent)
    : QObject(parent), settings(allSettings), servers(allSettings), tokens(vault), emulator(emulatorProgram),
      runner(tap)
{
    connect(&servers, &Servers::Changed, this, &Session::UseCurrentServer);
    connect(&tokens, &Tokens::Changed, this, &Session::UseCurrentServer);
    connect(&emulator, &EmulatorProcess::StateChanged, this,
            [this] { servers.SetEmulatorPorts(emulator.HttpPort(), emulator.HttpsPort()); });
    UseCurrentServer();
    APIModule::CAPIModule::GetInstance().Init(&m_users);
}

Session::~Session()
{
    APIModule::CAPIModule::GetInstance().UnInit();
}

std::optional<QString> Session::CurrentToken() const
{
    return servers.IsEmulator() ? emulator.Token() : tokens.Find(servers.Current().id);
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
    if (!servers.IsEmulator()) {
        tokens.Fetch(server.id);
    }
}

}  // namespace explorer

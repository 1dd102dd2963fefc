#include "Servers.h"

#include "../CallOutcome.h"

#include <QSettings>
#include <QUuid>

namespace explorer {

const QString kEmulatorId = QStringLiteral("emulator");

namespace {

constexpr const char* kArray = "servers";
constexpr const char* kCurrent = "currentServer";

QString Key(const char* name)
{
    return QLatin1String(name);
}

}  // namespace

QString Server::Address() const
{
    return QStringLiteral("%1://%2:%3")
        .arg(https ? QStringLiteral("https") : QStringLiteral("http"), host,
             port > 0 ? QString::number(port) : QString::fromLatin1(kUnknownPort));
}

Servers::Servers(QSettings& settings, QObject* parent) : QObject(parent), m_settings(settings)
{
    Load();
}

Server Servers::Fresh(const QString& name)
{
    Server server;
    server.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    server.name = name;
    return server;
}

void Servers::SetCurrent(int index)
{
    if (index >= 0 && index < m_servers.size() && index != m_current) {
        m_current = index;
        Save();
        emit Changed();
    }
}

void Servers::Replace(const QVector<Server>& servers)
{
    Take(servers, Current().id);
    Save();
    emit Changed();
}

void Servers::Take(const QVector<Server>& servers, const QString& current)
{
    QVector<Server> taken{m_servers.first()};
    int index = 0;
    for (const Server& server : servers) {
        if (server.id == kEmulatorId) {
            taken.first().https = server.https;
            taken.first().language = server.language;
        } else {
            taken.append(server);
            index = server.id == current ? taken.size() - 1 : index;
        }
    }
    m_servers = taken;
    m_current = index;
    PlaceEmulator();
}

void Servers::SetEmulatorPorts(int http, int https)
{
    m_emulatorHttp = http;
    m_emulatorHttps = https;
    PlaceEmulator();
    emit Changed();
}

void Servers::Retranslate()
{
    m_servers.first().name = tr("Built-in emulator");
    emit Changed();
}

void Servers::PlaceEmulator()
{
    Server& emulator = m_servers.first();
    emulator.port = emulator.https ? m_emulatorHttps : m_emulatorHttp;
}

void Servers::Load()
{
    Server emulator;
    emulator.id = kEmulatorId;
    emulator.name = tr("Built-in emulator");
    emulator.host = QStringLiteral("127.0.0.1");
    m_servers = {emulator};

    QVector<Server> stored;
    const int count = m_settings.beginReadArray(Key(kArray));
    for (int index = 0; index < count; ++index) {
        m_settings.setArrayIndex(index);
        Server server;
        server.id = m_settings.value(Key("id")).toString();
        server.name = m_settings.value(Key("name")).toString();
        server.host = m_settings.value(Key("host")).toString();
        server.port = m_settings.value(Key("port"), server.port).toInt();
        server.https = m_settings.value(Key("https"), true).toBool();
        server.language = m_settings.value(Key("language"), server.language).toString();
        server.pin = QByteArray::fromHex(m_settings.value(Key("pin")).toByteArray());
        if (!server.id.isEmpty()) {
            stored.append(server);
        }
    }
    m_settings.endArray();
    Take(stored, m_settings.value(Key(kCurrent)).toString());
}

void Servers::Save() const
{
    m_settings.remove(Key(kArray));
    m_settings.beginWriteArray(Key(kArray), m_servers.size());
    for (int index = 0; index < m_servers.size(); ++index) {
        const Server& server = m_servers.at(index);
        m_settings.setArrayIndex(index);
        m_settings.setValue(Key("id"), server.id);
        m_settings.setValue(Key("name"), server.name);
        m_settings.setValue(Key("host"), server.host);
        m_settings.setValue(Key("port"), server.port);
        m_settings.setValue(Key("https"), server.https);
        m_settings.setValue(Key("language"), server.language);
        m_settings.setValue(Key("pin"), QString::fromLatin1(server.pin.toHex()));
    }
    m_settings.endArray();
    m_settings.setValue(Key(kCurrent), Current().id);
}

}  // namespace explorer

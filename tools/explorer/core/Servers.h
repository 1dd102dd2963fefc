#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVector>

class QSettings;

namespace explorer {

/// Address of a server. Its token is in the token store.
struct Server {
    QString id;  ///< key of the server in settings and token store
    QString name;
    QString host;
    int port = 443;
    bool https = true;
    QString language = QStringLiteral("en");
    QByteArray pin = {};  ///< SHA-256 digest of the only certificate that calls trust; empty to trust any

    /// "https://host:port", with kUnknownPort as the port of a stopped emulator
    [[nodiscard]] QString Address() const;
};

/// The identifier of the entry for the emulator that this program starts.
extern const QString kEmulatorId;

/// The named servers, stored in the settings. The entry of the emulator is always the first; it has an address while
/// the emulator runs.
class Servers : public QObject {
    Q_OBJECT

public:
    /// @param settings must outlive the list
    explicit Servers(QSettings& settings, QObject* parent = nullptr);

    [[nodiscard]] const QVector<Server>& All() const { return m_servers; }
    [[nodiscard]] const Server& Current() const { return m_servers.at(m_current); }
    [[nodiscard]] bool IsEmulator() const { return m_current == 0; }
    [[nodiscard]] int CurrentIndex() const { return m_current; }

    void SetCurrent(int index);

    /// Replaces all entries except that of the emulator, which only takes scheme and language.
    void Replace(const QVector<Server>& servers);

    /// Sets the address of the emulator; port 0 while it is stopped.
    void SetEmulatorPorts(int http, int https);

    /// Renames the entry of the emulator after a change of language.
    void Retranslate();

    /// A server with a new identifier.
    static Server Fresh(const QString& name);

Q_SIGNALS:
    void Changed();

private:
    /// Takes these servers, and of the emulator scheme and language. An unknown current server becomes the emulator.
    void Take(const QVector<Server>& servers, const QString& current);
    void Load();
    void Save() const;
    void PlaceEmulator();

    QSettings& m_settings;
    QVector<Server> m_servers;
    int m_current = 0;
    int m_emulatorHttp = 0;
    int m_emulatorHttps = 0;
};

}  // namespace explorer

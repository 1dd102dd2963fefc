#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVector>

class QSettings;

namespace explorer {

/// How a server is reached. Its token is not here: that is the token store's.
struct Server {
    QString id;  ///< names the server in settings and token store
    QString name;
    QString host;
    int port = 443;
    bool https = true;
    QString language = QStringLiteral("en");
    QByteArray pin = {};  ///< SHA-256 digest of the only certificate that calls trust; empty to trust any

    /// "https://host:port", with kUnknownPort for the port of an emulator that does not run
    [[nodiscard]] QString Address() const;
};

bool operator==(const Server& left, const Server& right);

/// The identifier of the entry that stands for the emulator that the program itself starts.
extern const QString kEmulatorId;

/// The named servers, kept in the settings. The emulator's entry is always the first; its address comes and goes with
/// it.
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

    /// Takes the place of every entry but the emulator's own, of which scheme and language are taken over.
    void Replace(const QVector<Server>& servers);

    /// Where the emulator listens; the port is 0 while it does not.
    void SetEmulatorPorts(int http, int https);

    /// Names the emulator's entry in the language of now.
    void Retranslate();

    /// A server with a fresh identifier.
    static Server Fresh(const QString& name);

Q_SIGNALS:
    void Changed();

private:
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

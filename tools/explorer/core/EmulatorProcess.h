#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QProcess;

namespace explorer {

/// Start options of the emulator.
struct EmulatorOptions {
    int scale = 1;       ///< multiplies the length of the seeded lists
    QString seedFolder;  ///< empty for the bundled one
};

/// The platform emulator as a child of this program, on free ports of the loopback address.
class EmulatorProcess : public QObject {
    Q_OBJECT

public:
    enum State {
        Stopped,
        Starting,
        Running
    };

    /// @param program path of platform-emulator
    explicit EmulatorProcess(QString program, QObject* parent = nullptr);
    /// Stops the emulator.
    ~EmulatorProcess() override;

    /// The emulator beside this program.
    static QString DefaultProgram();

    void Start();
    void Stop();
    /// Restarts with the current options.
    void Restart();

    [[nodiscard]] const EmulatorOptions& Options() const { return m_options; }
    /// Takes effect at the next start.
    void SetOptions(const EmulatorOptions& options) { m_options = options; }

    [[nodiscard]] State GetState() const { return m_state; }
    [[nodiscard]] int HttpPort() const { return m_httpPort; }
    [[nodiscard]] int HttpsPort() const { return m_httpsPort; }
    /// Token of calls and of the control path; a new one for each start.
    [[nodiscard]] const QString& Token() const { return m_token; }

Q_SIGNALS:
    void StateChanged();
    /// The emulator ended unexpectedly or could not be started.
    void Failed(const QString& why);

private:
    void ReadAddresses();
    void SetState(State state);
    void Ended();

    const QString m_program;
    const std::unique_ptr<QProcess> m_process;
    EmulatorOptions m_options;
    QString m_token;
    State m_state = Stopped;
    int m_httpPort = 0;
    int m_httpsPort = 0;
    bool m_stopping = false;
    bool m_restarting = false;
};

}  // namespace explorer

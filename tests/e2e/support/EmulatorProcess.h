#pragma once

#include <TestClient.h>

#include <QProcess>
#include <QStringList>

#include <memory>
#include <string>

namespace e2e {

/// The emulator as a program of its own.
class EmulatorProcess {
public:
    /// Starts it and waits until it listens.
    /// @throws std::runtime_error when it does not
    explicit EmulatorProcess(const QStringList& arguments);
    ~EmulatorProcess();
    EmulatorProcess(const EmulatorProcess&) = delete;
    EmulatorProcess& operator=(const EmulatorProcess&) = delete;
    EmulatorProcess(EmulatorProcess&&) = delete;
    EmulatorProcess& operator=(EmulatorProcess&&) = delete;

    [[nodiscard]] int HttpPort() const { return m_httpPort; }
    [[nodiscard]] int HttpsPort() const { return m_httpsPort; }

    /// For its control path.
    TestClient& Control() { return *m_control; }

    /// Ends it.
    /// @return all that it printed
    std::string End();

private:
    int ReadPort(const QByteArray& scheme);

    QProcess m_process;
    QByteArray m_printed;
    int m_httpPort = 0;
    int m_httpsPort = 0;
    std::unique_ptr<TestClient> m_control;
};

}  // namespace e2e

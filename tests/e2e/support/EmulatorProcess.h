#pragma once

#include "support/Program.h"

#include <TestClient.h>

#include <QStringList>

#include <csignal>
#include <string>

namespace e2e {

/// The emulator as a separate process.
class EmulatorProcess {
public:
    /// Starts the emulator and waits until it listens.
    explicit EmulatorProcess(const QStringList& arguments)
        : m_program(QStringLiteral(EMULATOR_PROGRAM), arguments), m_httpPort(m_program.Port("http")),
          m_httpsPort(m_program.Port("https")), m_control(TestClient::Scheme::Http, m_httpPort, std::string())
    {}

    [[nodiscard]] int HttpPort() const { return m_httpPort; }
    [[nodiscard]] int HttpsPort() const { return m_httpsPort; }

    /// A client for the control path.
    TestClient& Control() { return m_control; }

    /// Stops the emulator.
    /// @return everything that it printed
    std::string End()
    {
        m_program.Signal(SIGTERM);
        m_program.ExitStatus();
        return m_program.Output();
    }

private:
    testing_support::RunningProgram m_program;
    const int m_httpPort;
    const int m_httpsPort;
    TestClient m_control;
};

}  // namespace e2e

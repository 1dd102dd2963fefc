#pragma once

#include "support/Program.h"

#include <TestClient.h>

#include <QStringList>

#include <string>

namespace e2e {

/// The emulator as a program of its own.
class EmulatorProcess {
public:
    /// Starts it and waits until it listens.
    explicit EmulatorProcess(const QStringList& arguments);

    [[nodiscard]] int HttpPort() const { return m_httpPort; }
    [[nodiscard]] int HttpsPort() const { return m_httpsPort; }

    /// For its control path.
    TestClient& Control() { return m_control; }

    /// Ends it.
    /// @return all that it printed
    std::string End();

private:
    testing_support::RunningProgram m_program;
    const int m_httpPort;
    const int m_httpsPort;
    TestClient m_control;
};

}  // namespace e2e

#include "EmulatorProcess.h"

#include <csignal>

namespace e2e {

EmulatorProcess::EmulatorProcess(const QStringList& arguments)
    : m_program(QStringLiteral(EMULATOR_PROGRAM), arguments), m_httpPort(m_program.Port("http")),
      m_httpsPort(m_program.Port("https")), m_control(TestClient::Scheme::Http, m_httpPort, std::string())
{}

std::string EmulatorProcess::End()
{
    m_program.Signal(SIGTERM);
    m_program.ExitStatus();
    return m_program.Output();
}

}  // namespace e2e

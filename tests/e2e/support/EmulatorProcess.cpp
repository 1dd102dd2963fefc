#include "EmulatorProcess.h"

#include <stdexcept>

namespace e2e {

EmulatorProcess::EmulatorProcess(const QStringList& arguments)
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start(QStringLiteral(EMULATOR_PROGRAM), arguments);
    m_httpPort = ReadPort("http ");
    m_httpsPort = ReadPort("https ");
    m_control = std::make_unique<TestClient>(TestClient::Scheme::Http, m_httpPort, std::string());
}

EmulatorProcess::~EmulatorProcess()
{
    End();
}

std::string EmulatorProcess::End()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_control.reset();
        m_process.terminate();
        m_process.waitForFinished();
        m_printed += m_process.readAll();
    }
    return m_printed.toStdString();
}

int EmulatorProcess::ReadPort(const QByteArray& scheme)
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead()) {
            throw std::runtime_error("the emulator does not listen: " + m_process.errorString().toStdString());
        }
    }
    const QByteArray line = m_process.readLine();
    m_printed += line;
    if (!line.startsWith(scheme)) {
        throw std::runtime_error("the emulator says: " + line.toStdString());
    }
    return line.mid(line.lastIndexOf(':') + 1).trimmed().toInt();
}

}  // namespace e2e

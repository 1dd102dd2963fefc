#include "Program.h"

#include <gtest/gtest.h>

#include <csignal>

namespace testing_support {

namespace {

constexpr int kLongMilliseconds = 240'000;

QProcessEnvironment EnvironmentWith(const Variables& variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto variable = variables.begin(); variable != variables.end(); ++variable) {
        if (variable.value().isNull()) {
            environment.remove(variable.key());
        } else {
            environment.insert(variable.key(), variable.value());
        }
    }
    return environment;
}

}  // namespace

ProgramResult RunProgram(const QString& program, const QStringList& arguments, const Variables& variables,
                         const QByteArray& input)
{
    QProcess process;
    process.setProcessEnvironment(EnvironmentWith(variables));
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(kLongMilliseconds)) << process.errorString().toStdString();
    return {process.exitStatus() == QProcess::CrashExit, process.exitCode(),
            process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
}

RunningProgram::RunningProgram(const QString& program, const QStringList& arguments, const Variables& variables)
{
    m_process.setProcessEnvironment(EnvironmentWith(variables));
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start(program, arguments);
    EXPECT_TRUE(m_process.waitForStarted()) << m_process.errorString().toStdString();
}

RunningProgram::~RunningProgram()
{
    m_process.terminate();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished()) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool RunningProgram::ReadSome()
{
    const bool bRead = m_process.bytesAvailable() > 0 || m_process.waitForReadyRead(kLongMilliseconds);
    m_output += m_process.readAll().toStdString();
    return bRead;
}

bool RunningProgram::WaitFor(const std::string& text)
{
    while (m_output.find(text) == std::string::npos) {
        if (!ReadSome()) {
            return false;
        }
    }
    return true;
}

int RunningProgram::Port(const std::string& scheme)
{
    const std::string start = scheme + " 127.0.0.1:";
    EXPECT_TRUE(WaitFor(start)) << m_output;
    while (m_output.find('\n', m_output.find(start)) == std::string::npos && ReadSome()) {
    }
    const std::size_t at = m_output.find(start);
    return at == std::string::npos ? 0 : std::stoi(m_output.substr(at + start.size()));
}

void RunningProgram::Signal(int number) const
{
    ::kill(static_cast<pid_t>(m_process.processId()), number);
}

int RunningProgram::ExitStatus()
{
    const bool bEnded = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(kLongMilliseconds);
    m_output += m_process.readAll().toStdString();
    return bEnded && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

}  // namespace testing_support

#include "EmulatorProcess.h"

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRandomGenerator>

#include <csignal>
#include <sys/prctl.h>
#include <utility>

namespace explorer {
namespace {

constexpr int kPatience = 3000;  // milliseconds until an emulator that does not end is killed

/// Ends the child with this program, even after a crash.
class Child : public QProcess {
#if QT_VERSION_MAJOR == 5
protected:
    void setupChildProcess() override
    {
        EndWithParent();
    }
#else
public:
    Child()
    {
        setChildProcessModifier(EndWithParent);
    }
#endif

private:
    static void EndWithParent()
    {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
    }
};

QString FreshToken()
{
    auto& random = *QRandomGenerator::system();
    return QStringLiteral("explorer-%1%2")
        .arg(random.generate64(), 16, 16, QLatin1Char('0'))
        .arg(random.generate64(), 16, 16, QLatin1Char('0'));
}

}  // namespace

EmulatorProcess::EmulatorProcess(QString program, QObject* parent)
    : QObject(parent), m_program(std::move(program)), m_process(std::make_unique<Child>())
{
    m_process->setProcessChannelMode(QProcess::SeparateChannels);
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this, &EmulatorProcess::ReadAddresses);
    connect(m_process.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, &EmulatorProcess::Ended);
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            Ended();
        }
    });
}

EmulatorProcess::~EmulatorProcess()
{
    m_process->disconnect(this);
    m_process->terminate();
    if (m_process->state() != QProcess::NotRunning && !m_process->waitForFinished(kPatience)) {
        m_process->kill();
        m_process->waitForFinished(kPatience);
    }
}

QString EmulatorProcess::DefaultProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/platform-emulator");
}

void EmulatorProcess::Start()
{
    if (m_process->state() != QProcess::NotRunning) {
        return;
    }
    m_token = FreshToken();
    m_stopping = false;
    SetState(Starting);
    // Other users of the machine could read a token on the command line, and the requests on an open control path.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PLATFORM_EMULATOR_TOKEN"), m_token);
    environment.insert(QStringLiteral("PLATFORM_EMULATOR_CONTROL_TOKEN"), m_token);
    m_process->setProcessEnvironment(environment);
    QStringList arguments{QStringLiteral("--scale"), QString::number(m_options.scale)};
    if (!m_options.seedFolder.isEmpty()) {
        arguments << QStringLiteral("--seed") << m_options.seedFolder;
    }
    m_process->start(m_program, arguments, QIODevice::ReadOnly);
}

void EmulatorProcess::Restart()
{
    if (m_process->state() == QProcess::NotRunning) {
        Start();
    } else {
        Stop();
        m_restarting = true;
    }
}

void EmulatorProcess::Stop()
{
    m_restarting = false;
    m_stopping = true;
    m_process->terminate();
}

void EmulatorProcess::ReadAddresses()
{
    while (m_process->canReadLine()) {
        const QString line = QString::fromUtf8(m_process->readLine()).trimmed();
        const int port = line.section(QLatin1Char(':'), -1).toInt();
        if (line.startsWith(QLatin1String("http "))) {
            m_httpPort = port;
        } else if (line.startsWith(QLatin1String("https "))) {
            m_httpsPort = port;
            SetState(Running);
        }
    }
}

void EmulatorProcess::SetState(State state)
{
    if (m_state != state) {
        m_state = state;
        emit StateChanged();
    }
}

void EmulatorProcess::Ended()
{
    const QString lastWords = QString::fromUtf8(m_process->readAllStandardError()).trimmed();
    m_httpPort = 0;
    m_httpsPort = 0;
    SetState(Stopped);
    if (std::exchange(m_restarting, false)) {
        Start();
    } else if (!m_stopping) {
        emit Failed(lastWords.isEmpty() ? m_process->errorString() : lastWords);
    }
}

}  // namespace explorer

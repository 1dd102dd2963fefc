#include "core/Session.h"
#include "window/Appearance.h"
#include "window/MainWindow.h"
#include "window/Start.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QSettings>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

/// The texts of the command line.
class CommandLine {
    Q_DECLARE_TR_FUNCTIONS(explorer::CommandLine)
};

/// Reports when the window is first painted, and ends the program.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(const QElapsedTimer& sinceStart) : m_sinceStart(sinceStart) {}

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Paint) {
            pWatched->removeEventFilter(this);
            // After the paint event and those that it posts.
            QTimer::singleShot(0, this, [this] {
                QTextStream(stdout) << "first window after " << m_sinceStart.elapsed() << " ms\n";
                QApplication::quit();
            });
        }
        return false;
    }

private:
    const QElapsedTimer m_sinceStart;
};

/// Help and version need no display.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv)
{
    QCommandLineParser options;
    const QCommandLineOption help = options.addHelpOption();
    const QCommandLineOption version = options.addVersionOption();
    QStringList arguments;
    std::transform(argv, argv + argc, std::back_inserter(arguments),
                   [](const char* argument) { return QString::fromLocal8Bit(argument); });
    if (options.parse(arguments) && (options.isSet(help) || options.isSet(version))) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    return std::make_unique<QApplication>(argc, argv);
}

}  // namespace

int main(int argc, char** argv)
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    explorer::PrepareApplication();
    const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(EXPLORER_VERSION));

    QSettings settings;
    explorer::ApplyLanguage(explorer::StoredLanguage(settings));
    QCommandLineParser options;
    options.setApplicationDescription(CommandLine::tr("Makes any APIModule call from a graphical interface."));
    options.addHelpOption();
    options.addVersionOption();
    const QCommandLineOption emulator(QStringLiteral("emulator"), CommandLine::tr("Select and start the emulator."));
    const QCommandLineOption call(QStringLiteral("call"),
                                  CommandLine::tr("Show this call, such as BRMS.GetLocalSetting."),
                                  CommandLine::tr("name"));
    const QCommandLineOption measure(QStringLiteral("measure-start"),
                                     CommandLine::tr("Print the time until the window is first painted, then exit."));
    options.addOptions({emulator, call, measure});
    options.process(*application);

    explorer::SecretService secrets;
    explorer::Session session(settings, &secrets, explorer::EmulatorProcess::DefaultProgram());
    explorer::Windows windows(session);
    if (options.isSet(emulator)) {
        session.servers.SetCurrent(0);
        session.emulator.Start();
    }
    if (const auto* pCall = catalogue::FindCall(options.value(call).toStdString())) {
        windows.Current().SelectCall(*pCall);
    }
    FirstPaint firstPaint(sinceStart);
    if (options.isSet(measure)) {
        windows.Current().installEventFilter(&firstPaint);
    }
    return QApplication::exec();
}

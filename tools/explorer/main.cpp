#include "core/Session.h"
#include "window/Appearance.h"
#include "window/MainWindow.h"
#include "window/Start.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>

int main(int argc, char** argv)
{
    explorer::PrepareApplication();
    const QApplication application(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral(EXPLORER_VERSION));

    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Every call of the library from a window."));
    options.addHelpOption();
    options.addVersionOption();
    const QCommandLineOption emulator(QStringLiteral("emulator"), QStringLiteral("Choose and start the emulator."));
    const QCommandLineOption call(QStringLiteral("call"),
                                  QStringLiteral("Show this call, such as BRMS.GetLocalSetting."),
                                  QStringLiteral("name"));
    options.addOptions({emulator, call});
    options.process(application);

    QSettings settings;
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
    return QApplication::exec();
}

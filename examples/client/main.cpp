#include "MainWindow.h"

#include <libornl/TalPrintLog.h>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("apimodule-example"));
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    ornl::TalPrintLog::instance().SetFile((folder + QStringLiteral("/client.log")).toStdString());

    Session session;
    APIModule::CAPIModule::GetInstance().Init(&session);
    Speak(QLocale::system().name());
    MainWindow window(session);
    window.resize(640, 480);
    window.show();
    const int result = QApplication::exec();
    APIModule::CAPIModule::GetInstance().UnInit();  // before the session is destroyed
    return result;
}

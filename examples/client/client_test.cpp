// Tests the client with a server that fails in many ways. The optional argument is a file for a screenshot.
#include "MainWindow.h"

#include <emulator/PlatformEmulator.h>
#include <libornl/TalPrintLog.h>

namespace {

/// Waits until the user sees the expected state.
void Expect(const char* what, const std::function<bool()>& seen)
{
    for (const QDeadlineTimer deadline(30000); !seen();) {
        if (deadline.hasExpired()) {
            qFatal("not seen within 30 s: %s", what);
        }
        QCoreApplication::processEvents();
        QThread::msleep(5);
    }
}

void Test(const QString& picture)
{
    emulator::PlatformEmulator platform;
    platform.start();
    const QTemporaryDir folder;
    ornl::TalPrintLog::instance().SetFile(folder.filePath(QStringLiteral("client.log")).toStdString());
    Session session;
    APIModule::CAPIModule& api = APIModule::CAPIModule::GetInstance();
    api.Init(&session);
    Speak(QStringLiteral("en"));
    MainWindow window(session);
    auto& ui = window.ui;
    window.resize(640, 480);
    window.show();
    const auto fails = [&](const char* text) {
        Expect(text, [&] { return ui.message.isVisible() && ui.message.text().contains(QLatin1String(text)); });
    };
    const auto fault = [&](const emulator::Json& json) { platform.addFault(emulator::Fault::FromJson(json)); };

    ui.keyword.setText(QStringLiteral("door"));
    fails("You are not signed in.");
    ui.keyword.clear();
    ui.server.setText(QStringLiteral("127.0.0.1:%1").arg(platform.httpsPort()));
    ui.token.setText(QStringLiteral("wrong"));
    ui.signIn.click();
    fails("sign in again");
    ui.token.setText(QLatin1String(emulator::kDefaultToken));
    ui.signIn.click();
    Expect("the lots", [&] { return ui.lots.topLevelItemCount() > 0; });
    Expect("the plans", [&] { return ui.pageLabel.text() == QStringLiteral("Page 1 of 3"); });

    ui.next.click();
    Expect("the next page", [&] { return ui.plans.item(0)->text() == QStringLiteral("Intrusion yard"); });
    window.grab().save(picture);
    ui.keyword.setText(QStringLiteral("R&D"));
    Expect("no plan of that name", [&] { return ui.pageLabel.text() == QStringLiteral("Page 1 of 1"); });
    ui.interval.setValue(7);
    ui.save.click();
    Expect("the setting is written", [&] { return platform.state()["brms"]["timeSync"]["interval"] == 7; });
    fault({{"kind", "envelope"}, {"code", 2001}, {"desc", "busy"}});
    ui.save.click();
    fails("The server refused this: busy (code 2001)");
    api.SetCallTimeout(std::chrono::milliseconds(200));
    fault({{"kind", "silent"}});
    ui.save.click();
    fails("Check whether it was saved");
    api.SetCallTimeout(std::nullopt);

    ui.save.click();
    Expect("the failure goes", [&] { return !ui.message.isVisible(); });
    fault({{"kind", "status"}, {"status", 503}});
    window.Refresh();
    Expect("a quiet failure", [&] { return ui.refreshed.text().contains(QStringLiteral("503")); });
    Expect("the lots stay", [&] { return !ui.message.isVisible() && ui.lots.topLevelItemCount() > 0; });

    Speak(QStringLiteral("de"));
    Expect("German", [&] { return ui.save.text() == QStringLiteral("Speichern"); });
    fault({{"kind", "status"}, {"status", 401}});
    window.Refresh();
    fails("melden Sie sich erneut an");
    QFile log(folder.filePath(QStringLiteral("client.log")));
    Expect("the log", [&] { return log.open(QFile::ReadOnly) && log.readAll().contains("Request time out"); });
    api.UnInit();
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Test(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
}

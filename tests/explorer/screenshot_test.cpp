#include "support/ExplorerTest.h"

#include <explorer/views/ArgumentForm.h>
#include <explorer/window/Appearance.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTableView>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

namespace {

using namespace explorer_test;
using explorer::Appearance;
using testing_support::RawReply;
using testing_support::RawRequest;
using testing_support::RawServer;

constexpr QSize kSmall(1280, 800);
constexpr QSize kLarge(1920, 1080);

/// Saves screenshots of the window. The file name shows whether the pixel density is high.
class ScreenshotTest : public ExplorerTest {
protected:
    ScreenshotTest() { Window().resize(kSmall); }

    /// Starts the program again in a language and an appearance.
    void StartIn(const char* language, Appearance appearance)
    {
        explorer::StoreLanguage(*settings, QLatin1String(language));
        explorer::StoreAppearance(*settings, appearance);
        Close();
        Start();
        Window().resize(kSmall);
    }

    void SaveScreenshot(QWidget& widget, const char* name) const
    {
        QTest::qWait(100);  // until layouts and style animations are done
        const QPixmap picture = widget.grab();
        const QImage image = picture.toImage();
        QImage blank = image;
        blank.fill(image.pixelColor(5, 5));
        EXPECT_FALSE(image == blank) << "nothing is painted";
        EXPECT_EQ(picture.size(), widget.size() * widget.devicePixelRatioF());
        const QDir pictures(QStringLiteral(SCREENSHOT_FOLDER));
        ASSERT_TRUE(pictures.mkpath(QStringLiteral(".")));
        const QString density = widget.devicePixelRatioF() > 1 ? QStringLiteral("-high-dpi") : QString();
        ASSERT_TRUE(picture.save(pictures.filePath(QLatin1String(name) + density + QStringLiteral(".png"))));
    }

    void FillWithResults()
    {
        UseEmulator();
        Run("BRMS.GetTimeSyncConfig");
        Run("BRMS.GetDiskWarm");
        Run("OMMS.GetAlertTypes");
        EXPECT_TRUE(Activate());
        Press(Qt::Key_D, Qt::ControlModifier);
        Run("BRMS.GetQuickCommands");
    }
};

TEST_F(ScreenshotTest, PaintsTheEmptyWindow)
{
    SaveScreenshot(Window(), "empty");
}

class MainStateTest : public ScreenshotTest, public testing::WithParamInterface<std::tuple<QSize, Appearance>> {};

TEST_P(MainStateTest, PaintsResultRequestAndTiming)
{
    const auto [size, appearance] = GetParam();
    const std::string suffix =
        std::string(size == kSmall ? "-1280" : "-1920") + (appearance == Appearance::Dark ? "-dark" : "-light");
    explorer::ApplyAppearance(appearance);
    Window().resize(size);
    FillWithResults();
    auto& results = Find<QTabWidget>("results");
    SaveScreenshot(Window(), ("result" + suffix).c_str());
    results.setCurrentIndex(1);
    SaveScreenshot(Window(), ("request" + suffix).c_str());
    explorer::RunOrder order = OrderOf("BRMS.GetQuickCommands");
    order.arguments = {{QStringLiteral("keyword"), QString()}};
    session->runner.Repeat(order, 30);
    ASSERT_TRUE(AwaitRuns(34));
    results.setCurrentIndex(2);
    SaveScreenshot(Window(), ("timing" + suffix).c_str());
}

INSTANTIATE_TEST_SUITE_P(Sizes, MainStateTest,
                         testing::Combine(testing::Values(kSmall, kLarge),
                                          testing::Values(Appearance::Light, Appearance::Dark)),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param) == kSmall ? "Small" : "Large") +
                                    (std::get<1>(row.param) == Appearance::Dark ? "Dark" : "Light");
                         });

class LanguageTest : public ScreenshotTest, public testing::WithParamInterface<const char*> {};

TEST_P(LanguageTest, PaintsTheWindowAndTheServersDialog)
{
    StartIn(GetParam(), Appearance::System);
    FillWithResults();
    Choose("BRMS.SetTimeSyncConfig");
    SaveScreenshot(Window(), (std::string("language-") + GetParam()).c_str());
    Click("editServers");
    SaveScreenshot(Find<QDialog>("serversDialog"), (std::string("servers-") + GetParam()).c_str());
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageTest, testing::Values("en", "de", "zh"),
                         [](const auto& row) { return std::string(row.param); });

class OverwritingTest : public ScreenshotTest,
                        public testing::WithParamInterface<std::tuple<const char*, Appearance>> {};

TEST_P(OverwritingTest, PaintsTheQuestionAndTheForm)
{
    const auto [language, appearance] = GetParam();
    const std::string suffix = std::string("-") + language + (appearance == Appearance::Dark ? "-dark" : "-light");
    StartIn(language, appearance);
    UseEmulator();
    Choose("BRMS.SetTimeSyncConfig");
    Find<QLineEdit>("ntpIp").setText(QStringLiteral("10.0.0.9"));
    ClickRun();
    ASSERT_TRUE(Await([this] { return Window().findChild<QDialog*>(QStringLiteral("overwriteDialog")) != nullptr; }));
    auto& question = Find<QDialog>("overwriteDialog");
    SaveScreenshot(question, ("overwrite" + suffix).c_str());
    question.reject();
    Run("BRMS.GetImageConfig");
    Choose("OBMS.GetPageConfigDesfireFailInfo");
    ASSERT_TRUE(Await([this] { return !Find<QLabel>("page.limits").text().isEmpty(); }));
    Find<QAbstractSpinBox>("page").stepBy(-1);
    SaveScreenshot(Window(), ("refused" + suffix).c_str());
    Choose("BRMS.UpdateImageConfig");
    SaveScreenshot(Window(), ("fill" + suffix).c_str());
}

INSTANTIATE_TEST_SUITE_P(Appearances, OverwritingTest,
                         testing::Values(std::tuple("en", Appearance::Light), std::tuple("de", Appearance::Dark),
                                         std::tuple("zh", Appearance::Light)),
                         [](const auto& row) { return std::string(std::get<0>(row.param)); });

class EmulatorPanelTest : public ScreenshotTest,
                          public testing::WithParamInterface<std::tuple<const char*, Appearance>> {};

TEST_P(EmulatorPanelTest, PaintsEachPage)
{
    const auto [language, appearance] = GetParam();
    StartIn(language, appearance);
    UseEmulator();
    Find<QTabWidget>("results").setCurrentIndex(3);
    auto& tabs = Find<QTabWidget>("emulatorTabs");
    for (const char* call : {"BRMS.GetTimeSyncConfig", "BRMS.SetTimeSyncConfig", "OMMS.GetAlertTypes"}) {
        Run(call);
    }
    Find<QTabWidget>("feeds").setCurrentIndex(1);
    auto& requests = Find<QTableView>("emulatorRequests");
    ASSERT_TRUE(Await([&] { return requests.model()->rowCount() == 3; }));
    requests.selectRow(1);
    const std::string suffix = std::string("-") + language + (appearance == Appearance::Dark ? "-dark" : "");
    SaveScreenshot(Window(), ("emulator-requests" + suffix).c_str());
    tabs.setCurrentIndex(1);
    auto& kinds = Find<QComboBox>("faultKind");
    kinds.setCurrentIndex(kinds.findData(QStringLiteral("status")));
    for (int fault = 0; fault < 2; ++fault) {
        Click("addFault");
        ASSERT_TRUE(Await([&] { return Find<QTreeWidget>("faults").topLevelItemCount() == fault + 1; }));
        Find<QSpinBox>("faultTimes").setValue(0);
    }
    SaveScreenshot(Window(), ("emulator-faults" + suffix).c_str());
    tabs.setCurrentIndex(2);
    ASSERT_TRUE(Await([this] { return !Find<QPlainTextEdit>("stateText").toPlainText().isEmpty(); }));
    SaveScreenshot(Window(), ("emulator-state" + suffix).c_str());
    tabs.setCurrentIndex(3);
    Find<QSpinBox>("timeout").setValue(4000);
    SaveScreenshot(Window(), ("emulator-start" + suffix).c_str());
    Find<QSpinBox>("timeout").setValue(0);
}

INSTANTIATE_TEST_SUITE_P(Windows, EmulatorPanelTest,
                         testing::Values(std::tuple("en", Appearance::Light), std::tuple("en", Appearance::Dark),
                                         std::tuple("de", Appearance::Light), std::tuple("zh", Appearance::Light)),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param)) +
                                    (std::get<1>(row.param) == Appearance::Dark ? "Dark" : "Light");
                         });

TEST_F(ScreenshotTest, PaintsAFailure)
{
    Serve(testing_support::HttpReply(200, "{\"code\": 1002, \"desc\": \"/interval: expected integer, got string\"}"));
    Run("BRMS.SetTimeSyncConfig");
    SaveScreenshot(Window(), "failure");
}

TEST_F(ScreenshotTest, PaintsNestedArguments)
{
    Choose("BRMS.AddQuickCommand");
    Form().SetArguments({{QStringLiteral("command"),
                          QJsonObject{{QStringLiteral("quickCommandName"), QStringLiteral("Sound the horn")},
                                      {QStringLiteral("httpUrls"),
                                       QJsonArray{QJsonObject{
                                           {QStringLiteral("method"), 2},
                                           {QStringLiteral("url"), QStringLiteral("http://192.168.30.7/horn")}}}}}}});
    SaveScreenshot(Window(), "nested-arguments");
}

TEST_F(ScreenshotTest, PaintsTheWindowWhileACallWaits)
{
    Serve(RawReply{});
    Find<QSpinBox>("timeout").setValue(4);
    Choose("BRMS.GetTimeSyncConfig");
    ClickRun();
    const auto saving = When([] { return QApplication::activeModalWidget() != nullptr; },
                             [this] { SaveScreenshot(Window(), "waiting"); });
    ASSERT_TRUE(AwaitRuns(1));
    EXPECT_FALSE(saving->isActive());
}

class WithoutWaitingTest : public ScreenshotTest, public testing::WithParamInterface<Appearance> {};

TEST_P(WithoutWaitingTest, PaintsTheRunningCalls)
{
    RawServer server([](const RawRequest&) { return RawReply{}; });
    explorer::ApplyAppearance(GetParam());
    Use(server.Port());
    Use(explorer::WaitMode::WithoutWaiting);
    for (const char* call : {"BRMS.GetTimeSyncConfig", "BRMS.GetRemoteLogConfig", "IPMS.GetParkingOrganization"}) {
        Choose(call);
        ClickRun();
    }
    ASSERT_TRUE(Await([this] { return session->runner.WithoutWaiting().size() == 3; }));
    SaveScreenshot(Window(), GetParam() == Appearance::Dark ? "without-waiting-dark" : "without-waiting-light");
}

INSTANTIATE_TEST_SUITE_P(Appearances, WithoutWaitingTest, testing::Values(Appearance::Light, Appearance::Dark),
                         [](const auto& row) { return row.param == Appearance::Dark ? "Dark" : "Light"; });

TEST_F(ScreenshotTest, PaintsFilteredCalls)
{
    ASSERT_TRUE(Await([this] {
        Find<QLineEdit>("callFilter").setText(QStringLiteral("/config/time-sync"));
        return !Find<QLabel>("callCount").text().startsWith(QLatin1String("No"));
    }));
    SaveScreenshot(Window(), "filtered");
}

}  // namespace

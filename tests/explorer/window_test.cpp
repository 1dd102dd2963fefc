#include "support/ExplorerTest.h"

#include <explorer/views/ArgumentForm.h>
#include <explorer/views/CodeView.h>
#include <explorer/views/NumberBox.h>
#include <explorer/views/ResultView.h>
#include <explorer/window/Appearance.h>
#include <explorer/window/CallPanel.h>
#include <explorer/window/ResultHeader.h>

#include <OrnGui/OrnMessageNotify.h>

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeView>

#include <atomic>

namespace {

using namespace explorer_test;
using testing_support::HttpReply;
using testing_support::RawRequest;
using testing_support::RawServer;

constexpr const char* kCall = "BRMS.GetRemoteLogConfig";

class WindowTest : public ExplorerTest {
protected:
    void Filter(const char* text) const { Find<QLineEdit>("callFilter").setText(QString::fromUtf8(text)); }
    [[nodiscard]] QStringList Calls() const { return RowsOf(*Find<QTreeView>("callTree").model()); }
    [[nodiscard]] bool HasEndpoints() const
    {
        Filter("/brms/api/v1.1/config/time-sync");
        return Calls().contains(QStringLiteral("GetTimeSyncConfig"));
    }

    void TypeInFocus(const QString& text) const { QTest::keyClicks(QApplication::focusWidget(), text); }
};

TEST_F(WindowTest, CallCanBeChosenFilledInAndRunByKeyboardAlone)
{
    UseEmulator();
    ASSERT_TRUE(Activate());
    Press(Qt::Key_F, Qt::ControlModifier);
    TypeInFocus(QStringLiteral("localsetting get"));
    Press(Qt::Key_Return);
    EXPECT_EQ(TextOf("callName"), QStringLiteral("GetLocalSetting"));
    Press(Qt::Key_Return);
    ASSERT_TRUE(Form().isAncestorOf(QApplication::focusWidget()));
    Press(Qt::Key_A, Qt::ControlModifier);
    TypeInFocus(QStringLiteral("3"));
    Press(Qt::Key_F5);
    ASSERT_TRUE(AwaitRuns(1));

    EXPECT_EQ(TextOf("resultWords"), QStringLiteral("Success"));
    EXPECT_TRUE(outcomes.front().succeeded);
    EXPECT_EQ(outcomes.front().arguments.value(QLatin1String("settingType")).toInt(), 3);
    const auto trees = Window().findChild<explorer::ResultView*>()->findChildren<QTreeView*>();
    ASSERT_FALSE(trees.isEmpty());
    const QString shown = RowsOf(*trees.first()->model()).join(QLatin1Char('\n'));
    const std::string content = outcomes.front().record.at("settingContent").get<std::string>();
    EXPECT_FALSE(content.empty());
    EXPECT_TRUE(shown.contains(QStringLiteral("settingContent"))) << shown.toStdString();
}

TEST_F(WindowTest, DescribesTheCallAndItsArgumentsFromTheContract)
{
    ASSERT_TRUE(Activate());
    Press(Qt::Key_F, Qt::ControlModifier);
    TypeInFocus(QStringLiteral("localsetting get"));
    Press(Qt::Key_Return);
    const auto& summary = Find<QLabel>("callSummary");
    EXPECT_TRUE(Await([&] { return !summary.accessibleDescription().isEmpty(); }));
    const QString description =
        QStringLiteral("Returns the data that the server stores for the client under one setting type.");
    EXPECT_EQ(summary.accessibleDescription(), description);
    EXPECT_TRUE(summary.toolTip().contains(description)) << summary.toolTip().toStdString();
    const auto labels = Form().findChildren<QLabel*>();
    ASSERT_EQ(labels.first()->accessibleName(), QStringLiteral("settingType"));
    const QString tip = labels.first()->toolTip();
    EXPECT_TRUE(tip.startsWith(QLatin1String("<p>int. Kind of setting, a server-defined code such as 1.")))
        << tip.toStdString();
    EXPECT_TRUE(tip.contains(QLatin1String("Example: 1"))) << tip.toStdString();
}

TEST_F(WindowTest, CopiedPathHasNoInvisibleCharacters)
{
    Choose("BRMS.GetTimeSyncConfig");
    const auto& endpoint = Find<QLabel>("callEndpoint");
    ASSERT_TRUE(Await([&] { return endpoint.text().contains(QLatin1String("time-sync")); }));
    endpoint.actions().constFirst()->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("/brms/api/v1.1/config/time-sync"));
}

TEST_F(WindowTest, RequestTabFollowsTheForm)
{
    testing_support::RawServer& server = Serve(Success("{}"));
    Choose("BRMS.GetLocalSetting");
    auto& results = Find<QTabWidget>("results");
    results.setCurrentIndex(1);
    const auto target = [this] { return Find<QPlainTextEdit>("target").toPlainText(); };
    const auto text = [this](const char* page) { return Find<explorer::CodeView>(page).Text(); };
    EXPECT_TRUE(Await([&] { return target().endsWith(QStringLiteral("settingType=0")); })) << target().toStdString();
    EXPECT_TRUE(text("curl").contains(QStringLiteral("\"$TOKEN\"")));

    const int lines = session->log.rowCount();
    auto* const pNumber = Form().findChild<explorer::NumberBox*>();
    pNumber->selectAll();
    QTest::keyClicks(pNumber, QStringLiteral("7"));
    EXPECT_TRUE(Await([&] { return target().endsWith(QStringLiteral("settingType=7")); })) << target().toStdString();
    EXPECT_TRUE(text("curl").contains(QStringLiteral("settingType=7")));
    EXPECT_TRUE(text("cpp").contains(QStringLiteral("settingType = 7")));
    EXPECT_TRUE(text("apicall").contains(QStringLiteral("settingType=7")));

    Choose("BRMS.SetRemoteLogConfig");
    Find<QLineEdit>("ip").setText(QStringLiteral("10.0.0.9"));
    EXPECT_TRUE(Await([&] { return text("body").contains(QStringLiteral("10.0.0.9")); })) << text("body").toStdString();
    const QString shown = target();
    EXPECT_TRUE(server.TakeRequests().empty()) << "editing the form sent a request";
    EXPECT_EQ(session->log.rowCount(), lines);

    MarkAllKnown();
    ClickRun();
    ASSERT_TRUE(AwaitRuns(1));
    const CallOutcome& outcome = outcomes.front();
    EXPECT_EQ(shown, outcome.request.method + QLatin1Char(' ') + outcome.request.url);

    RawServer other([](const RawRequest&) { return Success("{}"); });
    Use(other.Port());
    const QString port = QString::number(other.Port());
    EXPECT_TRUE(Await([&] { return target().contains(port); })) << target().toStdString();
    EXPECT_TRUE(text("apicall").contains(port));
}

struct Failure {
    std::string name;
    int status;
    QByteArray body;
    int result;
    const char* words;
    const char* details;
};

class FailureTest : public WindowTest, public testing::WithParamInterface<Failure> {};

TEST_P(FailureTest, IsShownInWordsAndAsANotification)
{
    Serve(HttpReply(GetParam().status, GetParam().body));
    const CallOutcome outcome = Run(kCall);
    EXPECT_EQ(outcome.result, GetParam().result);
    EXPECT_FALSE(outcome.succeeded);
    EXPECT_TRUE(TextOf("resultWords").contains(QLatin1String(GetParam().words))) << TextOf("resultWords").toStdString();
    EXPECT_TRUE(TextOf("resultDetails").contains(QLatin1String(GetParam().details)))
        << TextOf("resultDetails").toStdString();
    // A notification shows the same text.
    const auto& notifications = session->notifications;
    ASSERT_EQ(notifications.rowCount(), 1);
    EXPECT_EQ(notifications.index(0, explorer::Feed::TextColumn).data().toString(), TextOf("resultWords"));
}

INSTANTIATE_TEST_SUITE_P(
    Servers, FailureTest,
    testing::Values(Failure{"InternalError", 500, "", 500, "GetRemoteLogConfig failed: ", "HTTP 500"},
                    Failure{"NotFound", 404, "", 404, "did not find", "Result 404"},
                    Failure{"SignedOut", 401, "", 7000, "sign in", "HTTP 401"},
                    Failure{"EnvelopeCode", 200, "{\"code\": 1002, \"desc\": \"/port: too large\", \"data\": {}}", 1002,
                            "GetRemoteLogConfig failed: ", "The server reports: /port: too large"},
                    Failure{"UnknownCode", 200, "{\"code\": 77123, \"desc\": \"?\"}", 77123,
                            "GetRemoteLogConfig failed", "Result 77123"},
                    Failure{"NoEnvelope", 200, "<html>", -1, "GetRemoteLogConfig failed", "HTTP 200"},
                    Failure{"KeyMissing", 200, "{\"code\": 1000, \"data\": {\"enable\": \"1\"}}", 3101,
                            "failed: ", "HTTP 200"}),
    [](const auto& row) { return row.param.name; });

TEST_F(WindowTest, NotificationsShowWhetherTheirCallSucceeded)
{
    std::atomic<bool> succeeds{true};
    RawServer server([&](const RawRequest&) { return succeeds ? Success("{}") : HttpReply(200, "{\"code\": 1002}"); });
    Use(server.Port());
    for (const explorer::WaitMode waitMode : kWaitModes) {
        Use(waitMode);
        succeeds = true;
        Run(kCall);
        succeeds = false;
        Run(kCall);
    }
    ORNGUI::OrnSingleton<ORNGUI::OrnMessageNotify>::Instance().AddTextNotification(QStringLiteral("of another part"),
                                                                                   false, {}, {}, false);
    Find<QTabWidget>("feeds").setCurrentIndex(1);
    const QTableView& table = Find<QTableView>("notificationTable");
    EXPECT_FALSE(table.isColumnHidden(explorer::Feed::LevelColumn));
    const QAbstractItemModel& lines = *table.model();
    ASSERT_EQ(lines.rowCount(), 7);
    const auto pictureOf = [&lines](int row) {
        const QVariant icon = lines.index(row, explorer::Feed::LevelColumn).data(Qt::DecorationRole);
        return icon.value<QIcon>().pixmap(16, 16).toImage();
    };
    for (int row = 0; row < 6; ++row) {
        const bool succeeded = row % 2 == 0;
        EXPECT_EQ(lines.index(row, explorer::Feed::LevelColumn).data().toString(),
                  succeeded ? QStringLiteral("Success") : QStringLiteral("Failure"));
        EXPECT_FALSE(pictureOf(row).isNull());
        EXPECT_EQ(pictureOf(row) == pictureOf(0), succeeded);
    }
    EXPECT_EQ(lines.index(6, explorer::Feed::LevelColumn).data().toString(), QString());
    EXPECT_TRUE(pictureOf(6).isNull());
}

TEST_F(WindowTest, OutcomeHoldsTheFieldsReadBeforeTheError)
{
    Serve(HttpReply(200, "{\"code\": 1000, \"data\": {\"enable\": \"1\"}}"));
    const CallOutcome outcome = Run(kCall);
    EXPECT_TRUE(outcome.record.at("enable").get<bool>());
    EXPECT_EQ(outcome.record.at("ip").get<std::string>(), "");
}

TEST_F(WindowTest, FilterFindsCallsByNamePathAndKeyInAnyCase)
{
    ASSERT_TRUE(Await([this] { return HasEndpoints(); }));
    const std::pair<const char*, const char*> finds[] = {
        {"gettimesyncCONFIG", "GetTimeSyncConfig"}, {"/BRMS/api/v1.1/config/time-sync", "SetTimeSyncConfig"},
        {"ntpsyncinterval", "GetTimeSyncConfig"},   {"PacketSetRemoteLogConfig", "SetRemoteLogConfig"},
        {"put time-sync", "SetTimeSyncConfig"},     {"parking totalCount", "GetParkingLots"}};
    for (const auto& [text, call] : finds) {
        Filter(text);
        if (QByteArray(call) != "GetParkingLots") {
            EXPECT_TRUE(Calls().contains(QLatin1String(call))) << text;
        }
        EXPECT_FALSE(Calls().contains(QStringLiteral("WashOpen"))) << text;
    }
    Filter("no such thing");
    EXPECT_TRUE(Calls().isEmpty());
    Filter("");
    int calls = 0;
    for (const catalogue::Call& call : catalogue::Calls()) {
        calls += Calls().contains(explorer::ShortName(call)) ? 1 : 0;
    }
    EXPECT_EQ(calls, static_cast<int>(catalogue::Calls().size()));
}

TEST_F(WindowTest, FilterKeepsTheChosenCallAndItsArguments)
{
    Choose("BRMS.GetLocalSetting");
    Form().SetArguments({{QStringLiteral("settingType"), 7}});
    const auto& tree = Find<QTreeView>("callTree");
    for (const char* text : {"wash", "no such thing", "localsetting", ""}) {
        Filter(text);
        EXPECT_EQ(TextOf("callName"), QStringLiteral("GetLocalSetting")) << text;
    }
    EXPECT_EQ(tree.currentIndex().data().toString(), QStringLiteral("GetLocalSetting"));
    EXPECT_EQ(Form().Arguments().value(QLatin1String("settingType")).toInt(), 7);
}

TEST_F(WindowTest, RestoresTheArgumentsWhenACallIsChosenAgain)
{
    Choose("BRMS.GetLocalSetting");
    Form().SetArguments({{QStringLiteral("settingType"), 7}});
    Choose(kCall);
    Choose("BRMS.GetLocalSetting");
    EXPECT_EQ(Form().Arguments().value(QLatin1String("settingType")).toInt(), 7);
}

TEST_F(WindowTest, KeepsFavouritesAndRecentlyUsedCallsAcrossRestarts)
{
    Serve(Success("{}"));
    Run("BRMS.GetTimeSyncConfig");
    Run(kCall);
    ASSERT_TRUE(Activate());
    Press(Qt::Key_D, Qt::ControlModifier);
    Close();
    Start();
    const QStringList rows = Calls();
    ASSERT_GE(rows.size(), 5);
    EXPECT_EQ(rows.mid(0, 5), QStringList({QStringLiteral("Favourites"), QStringLiteral("GetRemoteLogConfig"),
                                           QStringLiteral("Recently used"), QStringLiteral("GetRemoteLogConfig"),
                                           QStringLiteral("GetTimeSyncConfig")}));
    EXPECT_EQ(TextOf("callName"), QStringLiteral("GetRemoteLogConfig"));
}

TEST_F(WindowTest, RunningARecentlyUsedCallKeepsItChosen)
{
    Serve(Success("{}"));
    Run("BRMS.GetTimeSyncConfig");
    Run(kCall);
    auto& tree = Find<QTreeView>("callTree");
    const QModelIndex group = tree.model()->index(0, 0);
    ASSERT_EQ(group.data().toString(), QStringLiteral("Recently used"));
    tree.setCurrentIndex(tree.model()->index(1, 0, group));
    ASSERT_EQ(TextOf("callName"), QStringLiteral("GetTimeSyncConfig"));
    ClickRun();
    ASSERT_TRUE(AwaitRuns(3));
    EXPECT_EQ(TextOf("callName"), QStringLiteral("GetTimeSyncConfig"));
    EXPECT_EQ(tree.currentIndex().data().toString(), QStringLiteral("GetTimeSyncConfig"));
    EXPECT_EQ(tree.currentIndex().row(), 0);
}

TEST_F(WindowTest, RestoresTheLastArgumentsAfterARestart)
{
    Serve(Success("{}"));
    Choose("BRMS.GetLocalSetting");
    Form().SetArguments({{QStringLiteral("settingType"), 7}});
    ClickRun();
    ASSERT_TRUE(AwaitRuns(1));
    Close();
    Start();
    EXPECT_EQ(Form().Arguments().value(QLatin1String("settingType")).toInt(), 7);
}

TEST_F(WindowTest, ArgumentOfTheWrongTypeDisablesRun)
{
    Choose("BRMS.GetLocalSetting");
    auto* const pNumber = Form().findChild<explorer::NumberBox*>();
    ASSERT_NE(pNumber, nullptr);
    pNumber->setFocus();
    pNumber->selectAll();
    QTest::keyClicks(pNumber, QStringLiteral("many"));
    EXPECT_FALSE(Find<QPushButton>("run").isEnabled());
    pNumber->selectAll();
    QTest::keyClicks(pNumber, QStringLiteral("4"));
    EXPECT_TRUE(Find<QPushButton>("run").isEnabled());
}

TEST_F(WindowTest, RepetitionRunsTheGivenNumberOfTimesAndCanBeCancelled)
{
    Serve(Success("{}"));
    Choose(kCall);
    const explorer::RunOrder order = OrderOf(kCall);
    const QSignalSpy ends(&session->runner, &explorer::Runner::RepeatEnded);
    session->runner.Repeat(order, 20);
    ASSERT_TRUE(Await([&ends] { return ends.count() == 1; }));
    EXPECT_EQ(outcomes.size(), 20U);
    EXPECT_EQ(TextOf("resultWords"), QStringLiteral("Success"));

    QObject::connect(&session->runner, &explorer::Runner::RepeatProgress, session.get(), [this](int done) {
        if (done == 3) {
            session->runner.CancelRepeat();
        }
    });
    session->runner.Repeat(order, 20);
    ASSERT_TRUE(Await([&ends] { return ends.count() == 2; }));
    EXPECT_EQ(outcomes.size(), 23U);
    EXPECT_EQ(session->runner.Pending(), 0);
}

TEST_F(WindowTest, IgnoresANewRepetitionUntilACancelledOneHasEnded)
{
    Serve(Success("{}"));
    const explorer::RunOrder order = OrderOf(kCall);
    const QSignalSpy ends(&session->runner, &explorer::Runner::RepeatEnded);
    QObject::connect(&session->runner, &explorer::Runner::Started, session.get(), [this, order] {
        if (outcomes.size() == 2) {  // during the third run
            session->runner.CancelRepeat();
            session->runner.Repeat(order, 5);
        }
    });
    session->runner.Repeat(order, 20);
    ASSERT_TRUE(Await([this] { return session->runner.Pending() == 0; }));
    EXPECT_EQ(outcomes.size(), 3U);
    EXPECT_EQ(ends.count(), 1);
}

TEST_F(WindowTest, LogLinesCanBeSearchedAndFilteredByLevel)
{
    Serve(HttpReply(500, ""));
    Run(kCall);
    auto& table = Find<QTableView>("logTable");
    const auto texts = [&table] {
        QStringList lines;
        for (int row = 0; row < table.model()->rowCount(); ++row) {
            lines.append(table.model()->index(row, explorer::Feed::TextColumn).data().toString());
        }
        return lines;
    };
    ASSERT_TRUE(Await([&texts] { return texts().contains(QStringLiteral("PacketGetRemoteLogConfig success.")); }));
    ASSERT_TRUE(Await([&texts] { return !texts().filter(QStringLiteral("http status Code: 500")).isEmpty(); }));

    auto* const pPanel = table.parentWidget();
    auto* const pLevel = pPanel->findChild<QComboBox*>(QStringLiteral("level"));
    pLevel->setCurrentIndex(pLevel->findData(6));
    EXPECT_FALSE(texts().contains(QStringLiteral("PacketGetRemoteLogConfig success.")));
    EXPECT_FALSE(texts().isEmpty());
    pLevel->setCurrentIndex(0);
    QTest::keyClicks(pPanel->findChild<QLineEdit*>(QStringLiteral("search")), QStringLiteral("SUCCESS."));
    EXPECT_EQ(texts(), QStringList({QStringLiteral("PacketGetRemoteLogConfig success.")}));
}

TEST_F(WindowTest, TokenIsInNeitherTheRequestNorTheLog)
{
    Serve(Success("{}"));
    const CallOutcome outcome = Run(kCall);
    EXPECT_FALSE(outcome.request.url.contains(QLatin1String(kToken)));
    for (const explorer::Header& header : outcome.request.headers) {
        EXPECT_FALSE(header.value.contains(QLatin1String(kToken))) << header.name.toStdString();
    }
    for (int row = 0; row < session->log.rowCount(); ++row) {
        EXPECT_FALSE(
            session->log.index(row, explorer::Feed::TextColumn).data().toString().contains(QLatin1String(kToken)));
    }
}

TEST_F(WindowTest, HasATranslationForEachLanguageOfTheErrorTexts)
{
    Serve(HttpReply(404, ""));
    const std::pair<const char*, const char*> languages[] = {{"de", "Ausführen"}, {"zh", "运行"}, {"en", "Run"}};
    for (const auto& [language, run] : languages) {
        emit Window().LanguageChosen(QLatin1String(language));
        EXPECT_EQ(Find<QPushButton>("run").text(), QString::fromUtf8(run));
    }
    emit Window().LanguageChosen(QStringLiteral("de"));
    Run(kCall);
    EXPECT_EQ(
        TextOf("resultWords"),
        QString::fromUtf8("BRMS.GetRemoteLogConfig fehlgeschlagen: Der Server hat das Angeforderte nicht gefunden"));
    Close();
    Start();
    EXPECT_EQ(Find<QPushButton>("run").text(), QStringLiteral("Ausführen"));
}

TEST_F(WindowTest, ResultHeaderShowsEveryLine)
{
    const auto awaitLines = [this](const char* when) {
        for (const char* name : {"resultWords", "resultDetails"}) {
            EXPECT_TRUE(Await([&] {
                const auto& label = Find<QLabel>(name);
                return label.visibleRegion().boundingRect() == label.rect() &&
                       label.height() >= label.heightForWidth(label.width());
            })) << name
                << ' ' << when;
        }
    };
    awaitLines("at start");
    Serve(HttpReply(401, "{\"code\": 7000, \"desc\": \"token\"}"));
    Run(kCall);
    awaitLines("after a failure");
    emit Window().LanguageChosen(QStringLiteral("de"));
    awaitLines("in another language");
}

TEST_F(WindowTest, ChangingTheLanguageKeepsResultsArgumentsAndWaitMode)
{
    Serve(Success("{\"enable\": \"1\"}"));
    Run(kCall);
    const QString details = TextOf("resultDetails");
    Use(explorer::WaitMode::WithoutWaiting);
    Find<QSpinBox>("timeout").setValue(7);
    Choose("BRMS.GetLocalSetting");
    Form().SetArguments({{QStringLiteral("settingType"), 7}});

    emit Window().LanguageChosen(QStringLiteral("de"));
    emit Window().LanguageChosen(QStringLiteral("en"));
    EXPECT_EQ(Form().Arguments().value(QLatin1String("settingType")).toInt(), 7);
    EXPECT_EQ(Find<QComboBox>("wait").currentData().toInt(), int(explorer::WaitMode::WithoutWaiting));
    EXPECT_EQ(Find<QSpinBox>("timeout").value(), 7);
    Choose(kCall);
    EXPECT_EQ(TextOf("resultDetails"), details);
    EXPECT_EQ(TextOf("calls"), QStringLiteral("1"));
}

TEST_F(WindowTest, ShowsOnlyTheTimesOfTheChosenCall)
{
    Serve(Success("{}"));
    Run("BRMS.GetTimeSyncConfig");
    Run("BRMS.GetTimeSyncConfig");
    Run(kCall);
    EXPECT_EQ(TextOf("calls"), QStringLiteral("1"));
    EXPECT_EQ(TextOf("median"), TextOf("percentile"));
    Choose("BRMS.GetTimeSyncConfig");
    EXPECT_EQ(TextOf("calls"), QStringLiteral("2"));
    EXPECT_TRUE(TextOf("parts").startsWith(QStringLiteral("This run: "))) << TextOf("parts").toStdString();
    Choose("BRMS.GetDiskWarm");
    EXPECT_EQ(TextOf("calls"), QStringLiteral("0"));
    EXPECT_EQ(TextOf("parts"), QString());
}

TEST_F(WindowTest, RunningCallClearsTheOldResultAndKeepsTheRunButtonInPlace)
{
    int count = 0;
    RawServer server([&count](const RawRequest&) {
        return ++count == 1 ? Success("{\"enable\": \"1\"}") : testing_support::RawReply{};
    });
    Use(server.Port());
    Use(explorer::WaitMode::WithoutWaiting);
    Window().resize(1280, 800);
    Run(kCall);
    auto& results = *Window().findChild<explorer::ResultView*>();
    const auto texts = [&results] {
        QString all;
        const auto pages = results.findChildren<explorer::CodeView*>();
        for (const auto* pPage : pages) {
            all += pPage->Text();
        }
        return all + RowsOf(*results.findChild<QTreeView*>()->model()).join(QLatin1Char('\n'));
    };
    ASSERT_TRUE(texts().contains(QStringLiteral("enable")));
    auto& run = Find<QPushButton>("run");
    QTest::qWait(0);  // until the result is laid out
    const QPoint position = run.mapTo(&Window(), QPoint());
    ClickRun();
    ASSERT_TRUE(Await([this] { return TextOf("resultWords") == QStringLiteral("GetRemoteLogConfig is running"); }));
    EXPECT_EQ(texts(), QString());
    EXPECT_FALSE(TextOf("runState").isEmpty());
    EXPECT_TRUE(Await([&] {
        Find<QWidget>("runningCalls").hide();  // the row of the running call may move the button
        QTest::qWait(0);
        return run.mapTo(&Window(), QPoint()) == position;
    }));
}

TEST_F(WindowTest, LongServerTextScrolls)
{
    const QByteArray words = QByteArray(4000, 'w').replace('w', "so ");
    Serve(HttpReply(200, "{\"code\": 1002, \"desc\": \"" + words + "\"}"));
    Run(kCall);
    const auto& header = *Window().findChild<explorer::ResultHeader*>();
    EXPECT_LT(header.height(), Window().height() / 3);
    EXPECT_TRUE(Await([&header] { return header.verticalScrollBar()->maximum() > header.height(); }));
    EXPECT_GT(Find<QTabWidget>("results").height(), header.height());
}

TEST_F(WindowTest, SmallWindowShowsEveryPane)
{
    Choose("BRMS.AddQuickCommand");
    Window().resize(800, 600);
    QTest::qWait(0);
    EXPECT_GE(Find<QTreeView>("callTree").width(), 200);
    EXPECT_GE(Find<QTabWidget>("results").width(), 200);
    EXPECT_GE(Find<QSpinBox>("timeout").width(), Find<QSpinBox>("timeout").sizeHint().width());
}

TEST_F(WindowTest, LeavesRoomForTheWindowFrameOnTheScreen)
{
    constexpr int kFrame = 40;
    const int shortest = Window().minimumSizeHint().height();
    EXPECT_LT(shortest, 800 - kFrame);
    EXPECT_LE(Window().height(), qMax(shortest, Window().screen()->availableSize().height() - kFrame));
}

TEST_F(WindowTest, FallsBackToEnglishWithoutATranslation)
{
    const auto plural = [](int count) {
        return QCoreApplication::translate("explorer::CallPanel", "%n call(s)", nullptr, count);
    };
    explorer::ApplyLanguage(QStringLiteral("fr"));
    EXPECT_EQ(plural(1), QStringLiteral("1 call"));
    EXPECT_EQ(plural(2), QStringLiteral("2 calls"));

    settings->setValue(QStringLiteral("language"), QStringLiteral("fr_FR"));
    Close();
    Start();
    EXPECT_EQ(Find<QPushButton>("run").text(), QStringLiteral("Run"));
    EXPECT_EQ(TextOf("callCount"), QStringLiteral("%1 calls").arg(catalogue::Calls().size()));
}

TEST_F(WindowTest, ExplainsARefusedPasteInTheUsersLanguage)
{
    const std::pair<const char*, const char*> languages[] = {
        {"en", "Cannot paste the clipboard: /settingType: expected int, got text"},
        {"de", "Der Inhalt der Zwischenablage kann nicht eingefügt werden: /settingType: "},
        {"zh", "/settingType"}};
    QStringList problems;
    for (const auto& [language, problem] : languages) {
        emit Window().LanguageChosen(QLatin1String(language));
        Choose("BRMS.GetLocalSetting");
        QGuiApplication::clipboard()->setText(QStringLiteral("{\"settingType\": \"7\"}"));
        Form().Paste();
        const QString shown = TextOf("pasteProblem");
        EXPECT_TRUE(shown.contains(QString::fromUtf8(problem))) << shown.toStdString();
        EXPECT_EQ(shown.contains(QStringLiteral("expected")), QByteArray(language) == "en") << shown.toStdString();
        problems.append(shown);
    }
    EXPECT_EQ(problems.removeDuplicates(), 0);
}

}  // namespace

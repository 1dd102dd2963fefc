#include "support/ExplorerTest.h"

#include <explorer/core/EmulatorRequests.h>
#include <explorer/core/MergePatch.h>

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTabWidget>
#include <QTreeWidget>

namespace {

using namespace explorer_test;
using explorer::EmulatorProcess;
using explorer::EmulatorRequests;
using nlohmann::json;

constexpr const char* kRead = "BRMS.GetRemoteLogConfig";

enum Page {
    Requests,
    Faults,
    State,
    StartOptions
};

class EmulatorPanelTest : public ExplorerTest {
protected:
    void Show(Page page) const
    {
        Find<QTabWidget>("results").setCurrentIndex(3);
        Find<QTabWidget>("emulatorTabs").setCurrentIndex(page);
    }

    void Choose(const char* list, const char* value) const
    {
        auto& choice = Find<QComboBox>(list);
        choice.setCurrentIndex(choice.findData(QLatin1String(value)));
        EXPECT_EQ(choice.currentData().toString(), QLatin1String(value));
    }
    using ExplorerTest::Choose;

    [[nodiscard]] QStringList FaultRows() const { return RowsOf(*Find<QTreeWidget>("faults").model()); }
    void AwaitFaults(const QStringList& rows) const
    {
        EXPECT_TRUE(Await([&] { return FaultRows() == rows; })) << FaultRows().join(QLatin1Char('\n')).toStdString();
    }

    [[nodiscard]] const QAbstractItemModel& RequestRows() const
    {
        return *Find<QTableView>("emulatorRequests").model();
    }
    [[nodiscard]] QString Cell(int row, EmulatorRequests::Column column) const
    {
        return RequestRows().index(row, column).data().toString();
    }

    [[nodiscard]] QPlainTextEdit& StateText() const { return Find<QPlainTextEdit>("stateText"); }
    [[nodiscard]] json ShownState() const { return json::parse(StateText().toPlainText().toStdString()); }
    void ShowState(const char* part) const
    {
        Show(State);
        ASSERT_TRUE(Await([this] { return !StateText().toPlainText().isEmpty(); }));
        Choose("statePart", part);
    }
};

TEST_F(EmulatorPanelTest, FaultAffectsOnlyItsCallAndOnlyAsOftenAsChosen)
{
    UseEmulator();
    Show(Faults);
    Choose("faultKind", "status");
    Choose("faultCall", kRead);
    Choose("faultMethod", "GET");
    Find<QSpinBox>("faultFirst").setValue(2);
    Find<QSpinBox>("faultTimes").setValue(2);
    Find<QSpinBox>("faultStatus").setValue(502);
    Click("addFault");
    AwaitFaults({QStringLiteral("HTTP status · 502|BRMS.GetRemoteLogConfig · GET|1|2")});
    EXPECT_TRUE(Run("BRMS.GetTimeSyncConfig").succeeded);
    EXPECT_TRUE(Run(kRead).succeeded);
    EXPECT_EQ(Run(kRead).result, 502);
    AwaitFaults({QStringLiteral("HTTP status · 502|BRMS.GetRemoteLogConfig · GET|0|1")});
    EXPECT_EQ(Run(kRead).result, 502);
    EXPECT_TRUE(Run(kRead).succeeded);
    AwaitFaults({});
}

TEST_F(EmulatorPanelTest, EveryKindOfFaultIsAcceptedWithItsValues)
{
    UseEmulator();
    Show(Faults);
    auto& kinds = Find<QComboBox>("faultKind");
    for (int kind = 0; kind < kinds.count(); ++kind) {
        kinds.setCurrentIndex(kind);
        Click("addFault");
        ASSERT_TRUE(Await([&] { return FaultRows().size() == kind + 1; })) << TextOf("faultProblem").toStdString();
    }
    EXPECT_EQ(kinds.count(), 13);
    EXPECT_EQ(TextOf("faultProblem"), QString());

    Choose("faultKind", "envelope");
    Find<QSpinBox>("faultCode").setValue(4711);
    Find<QLineEdit>("faultDesc").setText(QStringLiteral("busy"));
    Find<QSpinBox>("faultTimes").setValue(0);
    Click("removeFaults");
    AwaitFaults({});
    Click("addFault");
    AwaitFaults({QStringLiteral("Envelope with a code · 4711|Every call|0|Until removed")});
    EXPECT_EQ(Run(kRead).result, 4711);
    EXPECT_TRUE(TextOf("resultDetails").contains(QLatin1String("busy")));
}

TEST_F(EmulatorPanelTest, StatusFaultSendsItsHeadersAndBody)
{
    UseEmulator();
    Show(Faults);
    Choose("faultKind", "status");
    Find<QLineEdit>("faultHeaders").setText(QStringLiteral("Retry-After: 9; Content-Type: text/html; charset=utf-8"));
    Find<QLineEdit>("faultBody").setText(QStringLiteral("<later>"));
    Click("addFault");
    ASSERT_TRUE(Await([this] { return FaultRows().size() == 1; }));
    const CallOutcome outcome = Run(kRead);
    ASSERT_TRUE(outcome.reply);
    EXPECT_EQ(outcome.reply->status, 503);
    EXPECT_EQ(outcome.reply->body, QByteArray("<later>"));
    QStringList headers;
    for (const explorer::Header& header : outcome.reply->headers) {
        headers.append(header.name + QLatin1Char('=') + header.value);
    }
    EXPECT_TRUE(headers.contains(QLatin1String("Retry-After=9"))) << headers.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(headers.contains(QLatin1String("Content-Type=text/html; charset=utf-8")));
}

TEST_F(EmulatorPanelTest, RemovesOnlyTheSelectedFault)
{
    UseEmulator();
    Show(Faults);
    EXPECT_FALSE(Find<QPushButton>("removeFault").isEnabled());
    int nAdded = 0;
    for (const char* kind : {"empty", "notJson", "reset"}) {
        Choose("faultKind", kind);
        Click("addFault");
        ++nAdded;
        ASSERT_TRUE(Await([&] { return FaultRows().size() == nAdded; }));
    }
    auto& list = Find<QTreeWidget>("faults");
    list.setCurrentItem(list.topLevelItem(1));
    Click("removeFault");
    AwaitFaults({QStringLiteral("Empty reply|Every call|0|1"), QStringLiteral("Connection reset|Every call|0|1")});
}

TEST_F(EmulatorPanelTest, ListsRequestsAsTheyArrive)
{
    UseEmulator();
    Show(Requests);
    Run(kRead);
    ASSERT_TRUE(Await([this] { return RequestRows().rowCount() == 1; }));
    EXPECT_EQ(Cell(0, EmulatorRequests::MethodColumn), QStringLiteral("GET"));
    EXPECT_EQ(Cell(0, EmulatorRequests::TargetColumn), QStringLiteral("/brms/api/v1.1/config/remote-log"));
    EXPECT_EQ(Cell(0, EmulatorRequests::StatusColumn), QStringLiteral("200"));
    EXPECT_EQ(Cell(0, EmulatorRequests::CodeColumn), QStringLiteral("1000"));
    const QTime time = QTime::fromString(Cell(0, EmulatorRequests::TimeColumn), QStringLiteral("HH:mm:ss.zzz"));
    EXPECT_LE(qAbs(outcomes.back().started.time().msecsTo(time)), kPatience);

    Run("BRMS.SetRemoteLogConfig");
    ASSERT_TRUE(Await([this] { return RequestRows().rowCount() == 2; }));
    Find<QTableView>("emulatorRequests").selectRow(1);
    const QString details = Find<QWidget>("emulatorRequest").findChild<QPlainTextEdit*>()->toPlainText();
    EXPECT_TRUE(details.startsWith(QLatin1String("PUT /brms/api/v1.1/config/remote-log\n"))) << details.toStdString();
    EXPECT_TRUE(details.contains(QLatin1String("\"port\"")));
    EXPECT_FALSE(details.contains(session->emulator.Token()));

    Click("clearRequests");
    EXPECT_EQ(RequestRows().rowCount(), 0);
    Run(kRead);
    ASSERT_TRUE(Await([this] { return RequestRows().rowCount() == 1; }));
}

TEST_F(EmulatorPanelTest, ListsARequestAsWaitingUntilItEnds)
{
    UseEmulator();
    Show(Faults);
    Choose("faultKind", "silent");
    Choose("faultCall", kRead);
    Click("addFault");
    ASSERT_TRUE(Await([this] { return FaultRows().size() == 1; }));
    Show(Requests);
    Use(explorer::WaitMode::WithoutWaiting);
    Choose(kRead);
    ClickRun();
    ASSERT_TRUE(Await([this] { return RequestRows().rowCount() == 1; }));
    EXPECT_EQ(Cell(0, EmulatorRequests::StatusColumn), QStringLiteral("Waiting"));
    Run("BRMS.GetTimeSyncConfig");
    ASSERT_TRUE(Await([this] { return RequestRows().rowCount() == 2; }));
    EXPECT_EQ(Cell(1, EmulatorRequests::StatusColumn), QStringLiteral("200"));
    session->runner.Cancel(session->runner.WithoutWaiting().begin()->first);
    EXPECT_TRUE(Await([this] { return Cell(0, EmulatorRequests::StatusColumn) == QLatin1String("No reply"); }));
    EXPECT_EQ(RequestRows().rowCount(), 2);
}

TEST_F(EmulatorPanelTest, OnePartOfTheStateCanBeEditedAndReset)
{
    UseEmulator();
    ShowState("/brms/remoteLog");
    EXPECT_FALSE(Find<QPushButton>("applyState").isEnabled());
    json part = ShownState();
    part["ip"] = "192.0.2.77";
    StateText().setPlainText(QString::fromStdString(part.dump()));
    ASSERT_TRUE(Find<QPushButton>("applyState").isEnabled());
    Click("applyState");
    ASSERT_TRUE(Await([this] { return Find<QLabel>("stateMessage").isVisible(); }))
        << TextOf("stateProblem").toStdString();
    EXPECT_EQ(Find<QComboBox>("statePart").currentData().toString(), QStringLiteral("/brms/remoteLog"));
    EXPECT_EQ(ShownState(), part);
    EXPECT_EQ(Run(kRead).record.at("ip"), "192.0.2.77");

    Show(State);
    Click("resetState");
    ASSERT_TRUE(Await([this] { return ShownState().at("ip") != "192.0.2.77"; }));
    EXPECT_NE(Run(kRead).record.at("ip"), "192.0.2.77");
}

TEST_F(EmulatorPanelTest, ExplainsAnInvalidStateAndKeepsTheEdit)
{
    UseEmulator();
    ShowState("");
    const auto expectProblem = [this](const char* text, const char* problem) {
        StateText().setPlainText(QLatin1String(text));
        Click("applyState");
        EXPECT_TRUE(Await([&] {
            return Find<QLabel>("stateProblem").isVisible() && TextOf("stateProblem").contains(QLatin1String(problem));
        })) << text
            << ": " << TextOf("stateProblem").toStdString();
        EXPECT_EQ(StateText().toPlainText(), QLatin1String(text)) << "the edit must be kept";
    };
    expectProblem("{\n  \"brms\": {,}\n}", "Line 2 is not JSON.");
    expectProblem("[]", "The emulator rejected the change: expected an object");
    expectProblem("{\"brms\": null}", "A merge patch cannot make a member null.");
    EXPECT_TRUE(Run(kRead).succeeded);
}

TEST_F(EmulatorPanelTest, ScaleAndSeedFolderTakeEffectAtARestart)
{
    const QDir seeds(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/apimodule/seed"));
    const QDir seedFolder(folder.path());
    const QStringList files = seeds.entryList({QStringLiteral("*.json")}, QDir::Files);
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        ASSERT_TRUE(QFile::copy(seeds.filePath(file), seedFolder.filePath(file)));
    }
    QFile brms(seedFolder.filePath(QStringLiteral("brms.json")));
    ASSERT_TRUE(brms.open(QIODevice::ReadOnly));
    json seed = json::parse(brms.readAll().toStdString());
    brms.close();
    seed["remoteLog"]["ip"] = "192.0.2.99";
    const auto write = [&brms](const json& text) {
        ASSERT_TRUE(brms.open(QIODevice::WriteOnly | QIODevice::Truncate));
        brms.write(QByteArray::fromStdString(text.dump()));
        brms.close();
    };
    write(seed);

    UseEmulator();
    const std::size_t disks = Run("BRMS.GetDiskWarm").record.size();
    Show(StartOptions);
    const QString address = TextOf("emulatorAddresses");
    EXPECT_TRUE(address.contains(QString::number(session->emulator.HttpsPort())));
    Find<QSpinBox>("emulatorScale").setValue(3);
    Find<QLineEdit>("emulatorSeed").setText(seedFolder.path());
    EXPECT_NE(Run(kRead).record.at("ip"), "192.0.2.99") << "the seed folder took effect before the restart";
    Click("restartEmulator");
    ASSERT_TRUE(Await([&] {
        return session->emulator.GetState() == EmulatorProcess::Running && TextOf("emulatorAddresses") != address;
    }));
    EXPECT_EQ(Run(kRead).record.at("ip"), "192.0.2.99");
    EXPECT_EQ(Run("BRMS.GetDiskWarm").record.size(), 3 * disks);

    Close();
    Start();
    EXPECT_EQ(session->emulator.Options().scale, 3);
    EXPECT_EQ(Find<QLineEdit>("emulatorSeed").text(), seedFolder.path());

    seed["remoteLog"]["ip"] = 5;
    write(seed);
    Show(StartOptions);
    Click("restartEmulator");
    ASSERT_TRUE(Await([this] { return !TextOf("emulatorProblem").isEmpty(); }));
    EXPECT_TRUE(TextOf("emulatorProblem").contains(QLatin1String("brms.json: /remoteLog/ip")))
        << TextOf("emulatorProblem").toStdString();
    Find<QLineEdit>("emulatorSeed").clear();
    Click("restartEmulator");
    ASSERT_TRUE(Await([this] { return session->emulator.GetState() == EmulatorProcess::Running; }));
    EXPECT_EQ(TextOf("emulatorProblem"), QString());
}

TEST_F(EmulatorPanelTest, ShowsThatTheEmulatorIsNotRunning)
{
    Show(Faults);
    EXPECT_TRUE(Find<QLabel>("emulatorStopped").isVisible());
    EXPECT_FALSE(Find<QPushButton>("addFault").isEnabled());
    UseEmulator();
    EXPECT_FALSE(Find<QLabel>("emulatorStopped").isVisible());
    EXPECT_TRUE(Find<QPushButton>("addFault").isEnabled());
    Click("addFault");
    ASSERT_TRUE(Await([this] { return FaultRows().size() == 1; }));
    session->emulator.Stop();
    ASSERT_TRUE(Await([this] { return session->emulator.GetState() == EmulatorProcess::Stopped; }));
    EXPECT_TRUE(Find<QLabel>("emulatorStopped").isVisible());
    UseEmulator();
    AwaitFaults({});
}

TEST_F(EmulatorPanelTest, RequestHasAPortPlaceholderWhileTheEmulatorIsStopped)
{
    session->servers.SetCurrent(0);
    Choose(kRead);
    Find<QTabWidget>("results").setCurrentIndex(1);
    const auto& target = Find<QPlainTextEdit>("target");
    EXPECT_TRUE(Await([&] {
        return target.toPlainText() == QLatin1String("GET https://127.0.0.1:$PORT/brms/api/v1.1/config/remote-log");
    })) << target.toPlainText().toStdString();
    const auto textOf = [this](const char* view) {
        return Find<QWidget>(view).findChild<QPlainTextEdit*>()->toPlainText();
    };
    EXPECT_TRUE(
        textOf("curl").contains(QLatin1String("'https://127.0.0.1:'\"$PORT\"'/brms/api/v1.1/config/remote-log'")))
        << textOf("curl").toStdString();
    EXPECT_TRUE(textOf("apicall").contains(QLatin1String("'--server' 'https://127.0.0.1:'\"$PORT\"")))
        << textOf("apicall").toStdString();
    UseEmulator();
    EXPECT_TRUE(Await(
        [&] { return target.toPlainText().contains(QStringLiteral(":%1/").arg(session->emulator.HttpsPort())); }));
}

TEST(MergePatch, TurnsTheFirstValueIntoTheSecond)
{
    const json from{{"kept", 1}, {"changed", {{"a", 1}, {"b", {1, 2}}}}, {"gone", true}};
    const json to{{"kept", 1}, {"changed", {{"a", 1}, {"b", {2}}}}, {"added", {{"x", 1}}}};
    const auto patch = explorer::MergePatch(from, to);
    ASSERT_TRUE(patch);
    EXPECT_EQ(*patch, (json{{"changed", {{"b", {2}}}}, {"added", {{"x", 1}}}, {"gone", nullptr}}));
    json patched = from;
    patched.merge_patch(*patch);
    EXPECT_EQ(patched, to);
    EXPECT_EQ(explorer::MergePatch(from, from), json::object());
    EXPECT_EQ(explorer::MergePatch(from, json(5)), json(5));
}

TEST(MergePatch, ReturnsNoPatchWhenAMemberWouldBecomeNull)
{
    EXPECT_FALSE(explorer::MergePatch({{"a", 1}}, {{"a", nullptr}}));
    EXPECT_FALSE(explorer::MergePatch({{"a", 1}}, {{"a", {{"b", nullptr}}}}));
    EXPECT_EQ(explorer::MergePatch({{"a", nullptr}}, {{"a", nullptr}, {"b", 1}}), (json{{"b", 1}}));
}

}  // namespace

// Writes that start with the server's current values, or ask before they replace them.
#include "support/ExplorerTest.h"

#include <explorer/views/ArgumentForm.h>
#include <explorer/views/Json.h>
#include <explorer/views/NumberBox.h>

#include <QAbstractItemView>

#include <QCompleter>
#include <QDialog>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTreeWidget>

namespace {

using namespace explorer_test;
using nlohmann::json;

class OverwritingTest : public ExplorerTest {
protected:
    void Fill()
    {
        const std::size_t runs = outcomes.size();
        Find<QPushButton>("fillFromServer").click();
        ASSERT_TRUE(AwaitRuns(int(runs) + 1));
    }

    /// Waits for the dialog that asks before a write.
    void AwaitQuestion() const
    {
        ASSERT_TRUE(Await([this] {
            const auto* const pDialog = Window().findChild<QDialog*>(QStringLiteral("overwriteDialog"));
            return pDialog != nullptr && pDialog->isVisible();
        }));
    }

    /// The rows of that dialog, "path|on the server|will be sent|entered".
    [[nodiscard]] QStringList Rows() const { return RowsOf(*Find<QTreeWidget>("overwritten").model()); }

    /// The number of runs of a call that have ended.
    [[nodiscard]] int RunsOf(const char* call) const
    {
        return int(std::count_if(outcomes.begin(), outcomes.end(),
                                 [call](const CallOutcome& outcome) { return outcome.call->name == call; }));
    }

    json RecordOf(const char* call)
    {
        const CallOutcome outcome = Run(call);
        EXPECT_TRUE(outcome.succeeded) << call;
        return outcome.record;
    }
};

TEST_F(OverwritingTest, FillsTheFormFromTheMatchingRead)
{
    UseEmulator();
    const json current = RecordOf("BRMS.GetTimeSyncConfig");
    Choose("BRMS.SetTimeSyncConfig");
    ASSERT_NE(explorer::FromQt(Form().Arguments()).at("config"), current);
    Fill();
    EXPECT_EQ(explorer::FromQt(Form().Arguments()).at("config"), current);
    EXPECT_EQ(TextOf("callName"), QStringLiteral("SetTimeSyncConfig"));
}

TEST_F(OverwritingTest, FillingKeepsTheArgumentsOfTheRead)
{
    UseEmulator();
    Choose("BRMS.UpdateImageConfig");
    Find<QLineEdit>("channelId").setText(QStringLiteral("1000001$1$0$0"));
    Fill();
    const json config = explorer::FromQt(Form().Arguments()).at("config");
    EXPECT_EQ(config.at("channelId"), "1000001$1$0$0");
    EXPECT_NE(config.at("brightness"), 0);
}

TEST_F(OverwritingTest, FillsFieldsByNameFromAnotherRecordType)
{
    UseEmulator();
    const json groups = RecordOf("BRMS.GetUserGroupList");
    Choose("BRMS.UpdateUserGroup");
    Find<QLineEdit>("groupId").setText(QString::fromStdString(groups.at(0).at("id").get<std::string>()));
    Fill();
    const json group = explorer::FromQt(Form().Arguments()).at("group");
    EXPECT_EQ(group, (json{{"groupName", groups.at(0).at("groupName")}, {"memo", groups.at(0).at("memo")}}));
}

TEST_F(OverwritingTest, DoesNotReadWithoutARequiredArgument)
{
    UseEmulator();
    Choose("BRMS.UpdateImageConfig");
    Find<QPushButton>("fillFromServer").click();
    EXPECT_EQ(Window().statusBar()->currentMessage(), QStringLiteral("BRMS.GetImageConfig needs \"channelId\""));
    EXPECT_TRUE(outcomes.empty());
}

TEST_F(OverwritingTest, OffersFillingOnlyForCallsWithAMatchingRead)
{
    Choose("BRMS.SetTimeSyncConfig");
    EXPECT_TRUE(Find<QPushButton>("fillFromServer").isVisible());
    Choose("BRMS.AddQuickCommand");
    EXPECT_FALSE(Find<QPushButton>("fillFromServer").isVisible());
}

TEST_F(OverwritingTest, AsksBeforeUntouchedFieldsReplaceOtherValues)
{
    UseEmulator();
    const json current = RecordOf("BRMS.GetTimeSyncConfig");
    ASSERT_EQ(current.at("interval"), 24);
    Choose("BRMS.SetTimeSyncConfig");
    Find<QLineEdit>("ntpIp").setText(QStringLiteral("10.0.0.9"));
    ClickRun();
    AwaitQuestion();
    const QStringList rows = Rows();
    EXPECT_TRUE(rows.contains(QStringLiteral("/config/interval|24|0|no"))) << rows.join(u'\n').toStdString();
    EXPECT_TRUE(rows.contains(
        QStringLiteral("/config/ntpIp|%1|\"10.0.0.9\"|yes").arg(QString::fromStdString(current.at("ntpIp").dump()))))
        << rows.join(u'\n').toStdString();

    Click("cancelOverwrite");
    EXPECT_EQ(RecordOf("BRMS.GetTimeSyncConfig"), current);
    EXPECT_EQ(RunsOf("BRMS.SetTimeSyncConfig"), 0);

    Choose("BRMS.SetTimeSyncConfig");
    ClickRun();
    AwaitQuestion();
    Click("overwrite");
    ASSERT_TRUE(Await([this] { return RunsOf("BRMS.SetTimeSyncConfig") == 1; }));
    EXPECT_EQ(RecordOf("BRMS.GetTimeSyncConfig").at("interval"), 0);
}

TEST_F(OverwritingTest, DoesNotAskWhenNoUnseenValueChanges)
{
    UseEmulator();
    Choose("BRMS.SetTimeSyncConfig");
    Fill();
    Find<explorer::NumberBox>("interval").SetValue(30);
    ClickRun();
    ASSERT_TRUE(Await([this] { return RunsOf("BRMS.SetTimeSyncConfig") == 1; }));
    EXPECT_EQ(outcomes.size(), 2U) << "the server's values were already known";
    EXPECT_EQ(RecordOf("BRMS.GetTimeSyncConfig").at("interval"), 30);

    // Once another call has been chosen, a write compares even unchanged values with those of the server.
    Choose("BRMS.SetTimeSyncConfig");
    ClickRun();
    ASSERT_TRUE(Await([this] { return RunsOf("BRMS.SetTimeSyncConfig") == 2; }));
    EXPECT_EQ(RunsOf("BRMS.GetTimeSyncConfig"), 3);
}

TEST_F(OverwritingTest, AsksBeforeReplacingAPlainValue)
{
    UseEmulator();
    ASSERT_NE(RecordOf("BRMS.GetDeviceLoginModel"), 0);
    Choose("BRMS.SetDeviceLoginModel");
    ClickRun();
    AwaitQuestion();
    EXPECT_EQ(Rows(), QStringList{QStringLiteral("/model|1|0|no")});
}

TEST_F(OverwritingTest, AsksBeforeAnUntouchedListReplacesTheServersList)
{
    UseEmulator();
    Choose("BRMS.UpdateEncodeConfig");
    Find<QLineEdit>("channelId").setText(QStringLiteral("1000001$1$0$0"));
    ClickRun();
    AwaitQuestion();
    EXPECT_TRUE(Rows().join(u'\n').startsWith(QLatin1String("/configs/")));
}

TEST_F(OverwritingTest, AsksAboutANewElementThatIsNotFilledIn)
{
    UseEmulator();
    Choose("BRMS.AddQuickCommand");
    Find<QLineEdit>("quickCommandName").setText(QStringLiteral("Open the gate"));
    Find<QPushButton>("httpUrls.add").click();
    ClickRun();
    AwaitQuestion();
    const QStringList rows = Rows();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_TRUE(rows.front().startsWith(QLatin1String("/command/httpUrls/0|unknown|"))) << rows.front().toStdString();
    Click("cancelOverwrite");
    EXPECT_TRUE(outcomes.empty());

    Find<QLineEdit>("url").setText(QStringLiteral("http://10.0.0.1/open"));
    ClickRun();
    ASSERT_TRUE(AwaitRuns(1));
    EXPECT_TRUE(outcomes.front().succeeded);
}

TEST_F(OverwritingTest, QuestionExplainsAFailedRead)
{
    Serve(testing_support::HttpReply(200, R"({"code": 1003, "desc": "busy"})"));
    Choose("BRMS.SetRemoteLogConfig");
    ClickRun();
    AwaitQuestion();
    EXPECT_TRUE(TextOf("overwriteReason").startsWith(QLatin1String("BRMS.GetRemoteLogConfig failed: ")));
    EXPECT_TRUE(Rows().contains(QStringLiteral("/config/port|unknown|0|no")));
    EXPECT_EQ(RunsOf("BRMS.SetRemoteLogConfig"), 0);
}

TEST_F(OverwritingTest, QuestionExplainsAReadWithoutData)
{
    Serve(Success("{}"));
    Choose("BRMS.SetRemoteLogConfig");
    ClickRun();
    AwaitQuestion();
    EXPECT_EQ(TextOf("overwriteReason"), QStringLiteral("BRMS.GetRemoteLogConfig returned no data"));
}

TEST_F(OverwritingTest, AsksBeforeWritingValuesReadFromAnotherServer)
{
    testing_support::RawServer other([](const testing_support::RawRequest&) {
        return Success(R"({"enable": true, "ip": "10.0.0.1", "port": 514, "platformId": "other"})");
    });
    UseEmulator();
    Choose("BRMS.SetRemoteLogConfig");
    Fill();
    Use(other.Port());
    ClickRun();
    AwaitQuestion();
    EXPECT_TRUE(Rows().join(u'\n').contains(QLatin1String("/config/platformId|\"other\"|")));
    EXPECT_EQ(RunsOf("BRMS.SetRemoteLogConfig"), 0);
}

TEST_F(OverwritingTest, RepeatedWriteAsksOnce)
{
    UseEmulator();
    Choose("BRMS.SetDeviceLoginModel");
    Find<QTabWidget>("results").setCurrentIndex(2);
    Find<QPushButton>("repeat").click();
    AwaitQuestion();
    EXPECT_EQ(RunsOf("BRMS.SetDeviceLoginModel"), 0);
    Click("overwrite");
    ASSERT_TRUE(Await([this] { return !session->runner.IsRepeating() && RunsOf("BRMS.SetDeviceLoginModel") > 1; }));
}

TEST_F(OverwritingTest, OffersIdentifiersThatAReadReturned)
{
    UseEmulator();
    const json groups = RecordOf("BRMS.GetUserGroupList");
    Choose("BRMS.UpdateUserGroup");
    ASSERT_TRUE(Activate());
    auto& field = Find<QLineEdit>("groupId");
    field.setFocus();
    QTest::keyClicks(&field, QString::fromStdString(groups.at(0).at("groupName").get<std::string>()).left(4));
    ASSERT_NE(field.completer(), nullptr);
    QAbstractItemView* const pList = field.completer()->popup();
    ASSERT_TRUE(Await([pList] { return pList->isVisible(); }));
    QTest::keyClick(pList, Qt::Key_Down);
    QTest::keyClick(pList, Qt::Key_Return);
    EXPECT_EQ(field.text().toStdString(), groups.at(0).at("id").get<std::string>());

    // An empty field offers all of them.
    field.clear();
    QTest::keyClick(&field, Qt::Key_Down);
    ASSERT_TRUE(Await([pList] { return pList->isVisible(); }));
    EXPECT_EQ(pList->model()->rowCount(), int(groups.size()));
    pList->hide();

    Choose("BRMS.AddUserGroup");
    EXPECT_EQ(Find<QLineEdit>("groupName").completer(), nullptr);
}

TEST_F(OverwritingTest, ValueOutsideTheContractsRangeDisablesRun)
{
    Choose("OBMS.GetPageConfigDesfireFailInfo");
    const auto& limits = Find<QLabel>("page.limits");
    ASSERT_TRUE(Await([&limits] { return !limits.text().isEmpty(); }));
    EXPECT_EQ(limits.text(), QString::fromUtf8("\xE2\x89\xA5 0"));
    auto& page = Find<explorer::NumberBox>("page");
    page.SetValue(-1);
    EXPECT_FALSE(Find<QPushButton>("run").isEnabled());
    EXPECT_EQ(TextOf("page.problem"), QStringLiteral("Must be 0 or more"));
    page.SetValue(0);
    EXPECT_TRUE(Find<QPushButton>("run").isEnabled());
}

}  // namespace

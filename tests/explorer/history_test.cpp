#include "support/ExplorerTest.h"

#include <explorer/core/Har.h>
#include <explorer/views/ArgumentForm.h>
#include <explorer/views/CppLines.h>

#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTreeWidget>

namespace {

using namespace explorer_test;
using explorer::History;
using nlohmann::json;
using testing_support::HttpReply;
using testing_support::RawRequest;
using testing_support::RawServer;

constexpr const char* kCall = "BRMS.GetLocalSetting";

class HistoryTest : public ExplorerTest {
protected:
    HistoryTest()
        : m_server([this](const RawRequest& request) {
              const bool isWrite = request.method == "PUT";
              return isWrite
                         ? HttpReply(200, "{\"code\": 1002, \"desc\": \"/port: too large\", \"data\": {}}")
                         : Success(
                               "{\"apply\": \"1\", \"settingType\": 1, \"settingVersion\": 7, \"settingContent\": \"" +
                               content + "\", \"token\": \"secret\"}");
          })
    {
        Use(m_server.Port());
    }

    CallOutcome RunWith(int settingType)
    {
        Choose(kCall);
        Form().SetArguments({{QStringLiteral("settingType"), settingType}});
        return Run(kCall);
    }

    [[nodiscard]] QTableView& Table() const { return Find<QTableView>("historyTable"); }

    void ChooseRuns(std::initializer_list<int> rows) const
    {
        auto* const pSelection = Table().selectionModel();
        pSelection->clear();
        for (const int row : rows) {
            pSelection->select(Table().model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }

    [[nodiscard]] std::vector<const explorer::RunSummary*> Summaries() const
    {
        std::vector<const explorer::RunSummary*> summaries;
        for (int row = 0; row < session->history.rowCount(); ++row) {
            summaries.push_back(&session->history.At(row)->Summary());
        }
        return summaries;
    }

    [[nodiscard]] QString HistoryFile() const { return folder.filePath(QStringLiteral("explorer-history.jsonl")); }

    QByteArray content = "first";

private:
    RawServer m_server;
};

TEST_F(HistoryTest, KeepsArgumentsRecordAndReplyOfEveryRun)
{
    const CallOutcome first = RunWith(3);
    content = "second";
    RunWith(4);
    ASSERT_EQ(session->history.rowCount(), 2);
    const CallOutcome kept = session->history.At(0)->Outcome();
    EXPECT_EQ(kept.record, first.record);
    EXPECT_EQ(kept.arguments, first.arguments);
    EXPECT_EQ(kept.reply->body, first.reply->body);
    EXPECT_EQ(session->history.index(0, History::ArgumentsColumn).data().toString(),
              QStringLiteral("{\"settingType\":3}"));
    ChooseRuns({0});
    EXPECT_TRUE(TextOf("resultDetails").contains(QLatin1String(kCall)));
    EXPECT_EQ(TextOf("calls"), QStringLiteral("2"));
}

TEST_F(HistoryTest, DropsTheOldestRunsAboveTheLimit)
{
    content = QByteArray(600000, 'x');
    session->history.SetLimitInMegabytes(2);
    for (int run = 0; run < 5; ++run) {
        RunWith(run);
    }
    EXPECT_LT(session->history.rowCount(), 4);
    EXPECT_LE(session->history.Bytes(), 2 << 20);
    EXPECT_EQ(session->history.At(session->history.rowCount() - 1)->Summary().arguments,
              QJsonObject({{QStringLiteral("settingType"), 4}}));
    content = QByteArray(3 << 20, 'x');
    RunWith(9);
    EXPECT_EQ(session->history.rowCount(), 1) << "the latest run must be kept";
    session->history.Clear();
    EXPECT_EQ(session->history.Bytes(), 0);
    Close();
    Start();
    EXPECT_EQ(session->history.LimitInMegabytes(), 2);
}

TEST_F(HistoryTest, LoadsARunIntoTheFormAndRunsItAgain)
{
    RunWith(3);
    Choose("BRMS.GetTimeSyncConfig");
    ChooseRuns({0});
    Find<QPushButton>("loadRun").click();
    EXPECT_EQ(TextOf("callName"), QStringLiteral("GetLocalSetting"));
    EXPECT_EQ(Form().Arguments().value(QLatin1String("settingType")).toInt(), 3);

    Form().SetArguments({{QStringLiteral("settingType"), 8}});
    Find<QPushButton>("runAgain").click();
    ASSERT_TRUE(AwaitRuns(2));
    EXPECT_EQ(outcomes.back().arguments, outcomes.front().arguments);
}

TEST_F(HistoryTest, ComparesTwoRuns)
{
    RunWith(3);
    content = "second";
    RunWith(4);
    EXPECT_FALSE(Find<QPushButton>("compareRuns").isEnabled());
    ChooseRuns({0, 1});
    EXPECT_EQ(TextOf("calls"), QStringLiteral("2"));
    Find<QPushButton>("compareRuns").click();
    const QStringList rows = RowsOf(*Find<QTreeWidget>("differences").model());
    const QString all = rows.join(QLatin1Char('\n'));
    EXPECT_TRUE(rows.contains(QStringLiteral("/settingType|3|4"))) << all.toStdString();
    EXPECT_TRUE(rows.contains(QStringLiteral("/settingContent|\"first\"|\"second\""))) << all.toStdString();
    EXPECT_TRUE(rows.contains(QStringLiteral("/body/data/settingContent|\"first\"|\"second\""))) << all.toStdString();
}

TEST_F(HistoryTest, SearchMatchesArgumentsResultAndCallName)
{
    RunWith(3);
    Run("BRMS.SetRemoteLogConfig");
    auto* const pSearch = Table().parentWidget()->findChild<QLineEdit*>(QStringLiteral("search"));
    for (const auto& [text, rows] : {std::pair("settingtype", 1), std::pair("1002", 1), std::pair("brms", 2)}) {
        pSearch->setText(QString::fromUtf8(text));
        EXPECT_EQ(Table().model()->rowCount(), rows) << text;
    }
}

TEST_F(HistoryTest, KeepsRunsInAPrivateFileWithoutTokens)
{
    const CallOutcome before = RunWith(3);
    EXPECT_FALSE(QFile::exists(HistoryFile()));
    Find<QCheckBox>("historyKept").click();
    Run("BRMS.GetDeriveToken");
    ASSERT_TRUE(session->history.At(1)->Summary().reply->body.contains("secret"));
    const CallOutcome incomplete = Run("BRMS.GetRemoteLogConfig");
    ASSERT_FALSE(incomplete.missing.empty());
    Close();

    QFile file(HistoryFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
    EXPECT_EQ(file.permissions() & others, QFile::Permissions());
    EXPECT_FALSE(file.readAll().contains(kToken));
    Start();
    ASSERT_EQ(session->history.rowCount(), 3);
    EXPECT_EQ(session->history.At(2)->Summary().missing, incomplete.missing);
    const CallOutcome after = session->history.At(0)->Outcome();
    EXPECT_EQ(after.call, before.call);
    EXPECT_EQ(after.arguments, before.arguments);
    EXPECT_EQ(after.record, before.record);
    EXPECT_EQ(after.reply->body, before.reply->body);
    EXPECT_EQ(after.request.url, before.request.url);
    EXPECT_EQ(after.request.headers.size(), before.request.headers.size());
    EXPECT_EQ(after.started.toMSecsSinceEpoch(), before.started.toMSecsSinceEpoch());
    EXPECT_EQ(after.times->firstByte.has_value(), before.times->firstByte.has_value());
    EXPECT_FALSE(session->history.At(1)->Summary().reply) << "the reply contained a token";
    EXPECT_TRUE(session->history.At(1)->Outcome().record.is_null());

    Find<QCheckBox>("historyKept").click();
    EXPECT_FALSE(QFile::exists(HistoryFile()));
}

TEST_F(HistoryTest, HarHoldsTheExchangesWithoutTokens)
{
    RunWith(3);
    Run("BRMS.SetRemoteLogConfig");
    Run("BRMS.GetDeriveToken");
    const json log = explorer::Har(Summaries()).at("log");
    EXPECT_EQ(log.at("version"), "1.2");
    const json& entries = log.at("entries");
    ASSERT_EQ(entries.size(), 3U);
    const json& read = entries.at(0);
    EXPECT_EQ(read.at("request").at("method"), "GET");
    EXPECT_EQ(read.at("request").at("queryString"), json({{{"name", "settingType"}, {"value", "3"}}}));
    EXPECT_EQ(read.at("response").at("status"), 200);
    EXPECT_EQ(read.at("response").at("content").at("text"), outcomes.at(0).reply->body.toStdString());
    const json& timings = read.at("timings");
    double all = 0;
    for (const json& part : timings) {
        all += part.get<double>();
    }
    EXPECT_NEAR(all, read.at("time").get<double>(), 0.001);
    EXPECT_EQ(entries.at(1).at("request").at("postData").at("text"), outcomes.at(1).request.body.toStdString());
    EXPECT_FALSE(entries.at(2).dump().find("secret") != std::string::npos);
    EXPECT_FALSE(log.dump().find(kToken) != std::string::npos);
}

TEST_F(HistoryTest, ExportedCppTestEqualsTheOneInTheSources)
{
    RunWith(3);
    Run("BRMS.SetRemoteLogConfig");
    Run("BRMS.GetDeriveToken");
    QFile expected(QStringLiteral(EXPORTED_TEST));
    ASSERT_TRUE(expected.open(QIODevice::ReadOnly));
    EXPECT_EQ(explorer::CppTest(Summaries()).toStdString(), expected.readAll().toStdString());
}

}  // namespace

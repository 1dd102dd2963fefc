#include "support/ExplorerTest.h"

#include <QLineEdit>
#include <QTcpServer>

#include <algorithm>

namespace {

using namespace explorer_test;
using testing_support::HttpReply;
using testing_support::RawRequest;
using testing_support::RawServer;

class ExchangeTest : public ExplorerTest {
protected:
    static QString ValueOf(const explorer::Headers& headers, const char* name)
    {
        const auto found = std::find_if(headers.cbegin(), headers.cend(), [name](const explorer::Header& header) {
            return header.name == QLatin1String(name);
        });
        return found == headers.cend() ? QString() : found->value;
    }
};

class ExchangeSchemeTest : public ExchangeTest, public testing::WithParamInterface<bool> {};

TEST_P(ExchangeSchemeTest, OutcomeHoldsRequestAndReplyAsTransferredExceptTheToken)
{
    const QByteArray reply = "{\"code\": 1000, \"desc\": \"Fine\", \"data\": {\"enable\": \"1\"}}";
    RawServer server([&reply](const RawRequest&) { return HttpReply(200, reply, "X-Of-The-Server: yes\r\n"); },
                     GetParam() ? RawServer::Https : RawServer::Http);
    Use(server.Port(), GetParam());
    const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");

    const std::vector<RawRequest> requests = server.TakeRequests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests.front().Value("X-Subject-Token"), kToken);
    EXPECT_EQ(outcome.request.method, QString::fromLatin1(requests.front().method));
    EXPECT_TRUE(outcome.request.url.endsWith(QString::fromLatin1(requests.front().target)));
    EXPECT_TRUE(outcome.times && outcome.times->firstByte);
    EXPECT_LE(outcome.times->sent, *outcome.times->firstByte);
    EXPECT_LE(*outcome.times->firstByte, outcome.times->finished);
    EXPECT_EQ(outcome.elapsedMilliseconds, outcome.times->finished);
    EXPECT_TRUE(outcome.request.url.startsWith(GetParam() ? QStringLiteral("https://") : QStringLiteral("http://")));
    ASSERT_EQ(outcome.request.headers.size(), requests.front().headers.size());
    for (int index = 0; index < outcome.request.headers.size(); ++index) {
        const auto& [name, value] = requests.front().headers.at(index);
        const bool isToken = name.toLower() == "x-subject-token";
        EXPECT_EQ(outcome.request.headers.at(index).name, QString::fromLatin1(name));
        EXPECT_EQ(outcome.request.headers.at(index).value,
                  QString::fromLatin1(isToken ? QByteArray(explorer::kTokenMask) : value));
    }

    ASSERT_TRUE(outcome.reply);
    EXPECT_EQ(outcome.reply->status, 200);
    EXPECT_EQ(outcome.reply->body, reply);
    EXPECT_EQ(ValueOf(outcome.reply->headers, "X-Of-The-Server"), QStringLiteral("yes"));
}

TEST_P(ExchangeSchemeTest, CallsShareAConnectionAndEachOutcomeHoldsItsReply)
{
    int count = 0;
    RawServer server(
        [&count](const RawRequest&) {
            return Success("{\"enable\": \"" + QByteArray::number(++count) +
                           "\", \"ip\": \"\", \"port\": \"\", \"platformId\": \"\"}");
        },
        GetParam() ? RawServer::Https : RawServer::Http);
    Use(server.Port(), GetParam());
    for (int run = 1; run <= 3; ++run) {
        const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");
        ASSERT_TRUE(outcome.reply);
        EXPECT_TRUE(outcome.reply->body.contains("\"enable\": \"" + QByteArray::number(run) + "\"")) << run;
    }
    EXPECT_EQ(server.ConnectionCount(), 1);
}

INSTANTIATE_TEST_SUITE_P(Schemes, ExchangeSchemeTest, testing::Bool(),
                         [](const auto& row) { return row.param ? "Https" : "Http"; });

TEST_F(ExchangeTest, OutcomeHoldsTheRequestBody)
{
    testing_support::RawServer& server = Serve(Success("{}"));
    const CallOutcome outcome = Run("BRMS.SetRemoteLogConfig");
    const auto requests = server.TakeRequests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_FALSE(requests.front().body.isEmpty());
    EXPECT_EQ(outcome.request.body, requests.front().body);
}

TEST_F(ExchangeTest, OutcomeHoldsAReplyThatIsNotAnEnvelope)
{
    Serve(HttpReply(200, "<html>proxy login</html>"));
    const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");
    EXPECT_FALSE(outcome.succeeded);
    ASSERT_TRUE(outcome.reply);
    EXPECT_EQ(outcome.reply->body, "<html>proxy login</html>");
}

TEST_F(ExchangeTest, TruncatedReplyIsReportedAsAConnectionError)
{
    RawServer server([](const RawRequest&) {
        testing_support::RawReply reply{"HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{\"code\""};
        reply.then = testing_support::RawReply::Close;
        return reply;
    });
    Use(server.Port());
    const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");
    EXPECT_EQ(outcome.result, -18);
    EXPECT_FALSE(outcome.reply);
    EXPECT_FALSE(outcome.connectionError.isEmpty());
    EXPECT_TRUE(TextOf("resultDetails").contains(outcome.connectionError)) << TextOf("resultDetails").toStdString();
}

TEST_F(ExchangeTest, OutcomeOfARefusedConnectionHasAUrlButNoHeadersAndNoReply)
{
    QTcpServer closedServer;
    ASSERT_TRUE(closedServer.listen(QHostAddress::LocalHost));
    const int port = closedServer.serverPort();
    closedServer.close();
    Use(port);
    const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");
    EXPECT_EQ(outcome.result, -18);
    EXPECT_EQ(outcome.request.method, QStringLiteral("GET"));
    EXPECT_TRUE(outcome.request.url.startsWith(QStringLiteral("http://127.0.0.1:%1/").arg(port)))
        << outcome.request.url.toStdString();
    EXPECT_TRUE(outcome.request.headers.isEmpty());
    EXPECT_FALSE(outcome.reply);
    ASSERT_TRUE(outcome.times);
    EXPECT_FALSE(outcome.times->firstByte);
}

TEST_F(ExchangeTest, MasksTheTokenInTheUrlAndInReplyHeaders)
{
    Serve(HttpReply(200, "{\"code\": 1000, \"data\": {}}", QByteArray("X-Echo: ") + kToken + "\r\n"));
    Choose("BRMS.GetUserGroupList");
    Find<QLineEdit>("keyword").setText(QStringLiteral("token=") + QLatin1String(kToken));
    ClickRun();
    ASSERT_TRUE(AwaitRuns(1));
    const CallOutcome& outcome = outcomes.front();
    EXPECT_TRUE(outcome.request.url.endsWith(QStringLiteral("token=") + QLatin1String(explorer::kTokenMask)))
        << outcome.request.url.toStdString();
    ASSERT_TRUE(outcome.reply);
    EXPECT_EQ(ValueOf(outcome.reply->headers, "X-Echo"), QLatin1String(explorer::kTokenMask));
}

}  // namespace

#include "support/ExplorerTest.h"

#include <explorer/core/HttpReader.h>

#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>

namespace {

using namespace explorer_test;
using testing_support::HttpAnswer;
using testing_support::RawRequest;
using testing_support::RawServer;

class TrafficTest : public ExplorerTest {
protected:
    static QString ValueOf(const explorer::Headers& headers, const char* name)
    {
        const auto found = std::find_if(headers.cbegin(), headers.cend(), [name](const explorer::Header& header) {
            return header.name == QLatin1String(name);
        });
        return found == headers.cend() ? QString() : found->value;
    }
};

class TrafficOfASchemeTest : public TrafficTest, public testing::WithParamInterface<bool> {};

TEST_P(TrafficOfASchemeTest, RequestAndReplyAreRecordedAsTheServerSawThem)
{
    const QByteArray reply = "{\"code\": 1000, \"desc\": \"Fine\", \"data\": {\"enable\": \"1\"}}";
    RawServer server([&reply](const RawRequest&) { return HttpAnswer(200, reply, "X-Of-The-Server: yes\r\n"); },
                     GetParam() ? RawServer::Https : RawServer::Http);
    Use(server.Port(), GetParam());
    const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");

    const std::vector<RawRequest> requests = server.TakeRequests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests.front().Value("X-Subject-Token"), kToken);
    EXPECT_TRUE(outcome.request.recorded);
    EXPECT_EQ(outcome.request.method, QString::fromLatin1(requests.front().method));
    EXPECT_TRUE(outcome.request.url.endsWith(QString::fromLatin1(requests.front().target)));
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
    EXPECT_TRUE(outcome.reply->complete);
    EXPECT_EQ(outcome.reply->body, reply);
    EXPECT_EQ(ValueOf(outcome.reply->headers, "X-Of-The-Server"), QStringLiteral("yes"));
}

TEST_P(TrafficOfASchemeTest, CallsShareAConnectionAndEachHasItsOwnReply)
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

INSTANTIATE_TEST_SUITE_P(Schemes, TrafficOfASchemeTest, testing::Bool(),
                         [](const auto& row) { return row.param ? "Https" : "Http"; });

TEST_F(TrafficTest, ABodyIsRecorded)
{
    RawServer server([](const RawRequest&) { return Success("{}"); });
    Use(server.Port());
    const CallOutcome outcome = Run("BRMS.SetRemoteLogConfig");
    const auto requests = server.TakeRequests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_FALSE(requests.front().body.isEmpty());
    EXPECT_EQ(outcome.request.body, requests.front().body);
}

TEST_F(TrafficTest, AnAnswerThatIsNoEnvelopeIsThereToBeRead)
{
    RawServer server([](const RawRequest&) { return HttpAnswer(200, "<html>proxy login</html>"); });
    Use(server.Port());
    const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");
    EXPECT_FALSE(outcome.succeeded);
    ASSERT_TRUE(outcome.reply);
    EXPECT_EQ(outcome.reply->body, "<html>proxy login</html>");
}

TEST_F(TrafficTest, AnAnswerThatIsCutShortIsIncomplete)
{
    RawServer server([](const RawRequest&) {
        testing_support::RawAnswer answer{"HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{\"code\""};
        answer.then = testing_support::RawAnswer::Close;
        return answer;
    });
    Use(server.Port());
    const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");
    EXPECT_EQ(outcome.result, -1);
    ASSERT_TRUE(outcome.reply);
    EXPECT_FALSE(outcome.reply->complete);
    EXPECT_EQ(outcome.reply->body, "{\"code\"");
}

TEST_F(TrafficTest, ARefusedConnectionFailsAsItDoesWithoutTheRecorder)
{
    const auto failure = [this](bool records) {
        session->tap.SetOn(records);
        session->log.Clear();
        const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");
        EXPECT_FALSE(outcome.reply);
        EXPECT_EQ(outcome.result, -1);
        QStringList lines;
        EXPECT_TRUE(Await([this, &lines] {
            lines.clear();
            for (int row = 0; row < session->log.rowCount(); ++row) {
                lines.append(session->log.index(row, explorer::Feed::TextColumn).data().toString());
            }
            lines = lines.filter(QStringLiteral("qt network error code"));
            return !lines.isEmpty();
        }));
        return lines.join(QLatin1Char('\n')).toStdString();
    };
    QTcpServer nobody;
    nobody.setProxy(QNetworkProxy::NoProxy);
    ASSERT_TRUE(nobody.listen(QHostAddress::LocalHost));
    const int port = nobody.serverPort();
    nobody.close();
    Use(port);

    const std::string direct = failure(false);
    EXPECT_EQ(failure(true), direct);
}

TEST_F(TrafficTest, WithoutTheRecorderTheRequestIsWhatThePackSays)
{
    RawServer server([](const RawRequest&) { return Success("{}"); });
    Use(server.Port());
    session->tap.SetOn(false);
    const CallOutcome outcome = Run("BRMS.SetRemoteLogConfig");
    const auto requests = server.TakeRequests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_FALSE(outcome.request.recorded);
    EXPECT_FALSE(outcome.reply);
    EXPECT_EQ(outcome.request.body, requests.front().body);
    for (const explorer::Header& header : outcome.request.headers) {
        const QByteArray sent = requests.front().Value(header.name.toLatin1());
        EXPECT_EQ(header.value, header.name == QLatin1String("X-Subject-Token") ? QLatin1String(explorer::kTokenMask)
                                                                                : QLatin1String(sent));
    }
}

TEST_F(TrafficTest, TheRecorderServesThisProgramAlone)
{
    ASSERT_TRUE(session->tap.IsOn());
    const QNetworkProxy proxy = QNetworkProxy::applicationProxy();
    QTcpSocket stranger;
    stranger.setProxy(QNetworkProxy::NoProxy);
    stranger.connectToHost(proxy.hostName(), proxy.port());
    ASSERT_TRUE(stranger.waitForConnected(kPatience));
    stranger.write(QByteArray("\x05\x01\x02", 3));
    ASSERT_TRUE(Await([&stranger] { return stranger.bytesAvailable() >= 2; }));
    stranger.readAll();
    stranger.write(QByteArray("\x01\x08") + "explorer" + "\x05" + "wrong");
    EXPECT_TRUE(Await([&stranger] { return stranger.state() == QAbstractSocket::UnconnectedState; }));
    EXPECT_EQ(stranger.readAll(), QByteArray());
}

}  // namespace

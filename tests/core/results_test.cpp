// What ExecuteFuncs makes of each kind of reply: result, log lines, notifications.
#include "support/Host.h"
#include "support/Rows.h"
#include "support/Waiting.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTcpServer>

#include <functional>
#include <memory>
#include <stdexcept>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

constexpr const char* kExecuteFuncs = "APIModule::CAPIModule::ExecuteFuncs";

/// Marks the rows in which the call succeeds; no code of a reply.
constexpr int kSuccess = 1000;

QString Notice(int code)
{
    return CAPIModule::GetErroCodeInfor(QStringLiteral("No settings"), code, true);
}

class Results : public Host {
protected:
    /// The line that comes before anything is sent.
    LogLine SendingLine(const QString& scheme = QStringLiteral("http")) const
    {
        return {kFacadeFile, kExecuteFuncs, 4, "ExecuteRequest url=" + Url(scheme)};
    }

    std::string Url(const QString& scheme = QStringLiteral("http")) const
    {
        return scheme.toStdString() + "://127.0.0.1:" + std::to_string(users.servers.at(1).port) + "/path";
    }

    HostCall Call(Waiting waiting, bool bNotifyOnFailure)
    {
        HostCall call;
        call.uiError = QStringLiteral("No settings");
        call.successTip = QStringLiteral("Done");
        call.notifyOnFailure = bNotifyOnFailure;
        call.parent = waiting == BehindDialog ? &m_parent : nullptr;
        call.parse = [this](const QJsonObject& data) {
            m_parsed.append(data);
            return m_parseResult;
        };
        return call;
    }

    QWidget m_parent;
    QJsonArray m_parsed;
    int m_parseResult = 0;
};

/// A complete HTTP answer and what the host gets.
struct Answer {
    const char* name;
    int status;
    const char* body;
    int resultNotNotified;  ///< result with bNotifyOnFailure false
    int notice;             ///< code that is notified with bNotifyOnFailure true, kSuccess for the success tip
    const char* parsed;     ///< what the Parse got, null when it was not called
};

class AnswerTest : public Results,
                   public testing::WithParamInterface<std::tuple<Answer, Waiting, RawServer::Scheme>> {};

TEST_P(AnswerTest, Judged)
{
    const auto& [row, waiting, scheme] = GetParam();
    const Answer answer = row;
    RawServer server(
        [answer](const RawRequest&) { return HttpAnswer(answer.status, answer.body, "Location: /elsewhere\r\n"); },
        scheme);
    Use(server, scheme);
    const QString schemeName = scheme == RawServer::Http ? QStringLiteral("http") : QStringLiteral("https");
    const char* const function = FunctionOf(waiting);
    const LogLine end = row.status == 200 ? LogLine{kFacadeFile, function, 4, "Request success."}
                                          : LogLine{kFacadeFile, function, 6,
                                                    "Request failed, http status Code: " + std::to_string(row.status) +
                                                        ", request url: " + Url(schemeName)};

    EXPECT_EQ(Execute(Call(waiting, false)), row.resultNotNotified);
    const bool bSuccess = row.notice == kSuccess;
    EXPECT_EQ(notifications.Take(), bSuccess ? QStringList{QStringLiteral("Done")} : QStringList());
    EXPECT_EQ(logs.Take(), (LogLines{SendingLine(schemeName), end}));

    EXPECT_EQ(Execute(Call(waiting, true)), bSuccess ? 0 : -1);
    const LogLines seen = logs.Take();
    const QString notice = bSuccess ? QStringLiteral("Done") : Notice(row.notice);
    EXPECT_EQ(notifications.Take(), QStringList{notice});
    LogLines lines{SendingLine(schemeName), end};
    if (!bSuccess && notice == QStringLiteral("No settings")) {
        lines.push_back({kFacadeFile, "APIModule::CAPIModule::GetErroCodeInfor", 6,
                         "Error code is not exist, strUIError=No settings, errorCode=" + std::to_string(row.notice)});
    }
    EXPECT_EQ(seen, lines);

    QJsonArray expected;
    if (row.parsed) {
        const QJsonObject data = QJsonDocument::fromJson(row.parsed).object();
        expected = {data, data};
    }
    EXPECT_EQ(m_parsed, expected);
}

const Answer kAnswers[] = {
    {"success_with_data", 200, R"({"code":1000,"desc":"ok","data":{"a":1}})", 0, kSuccess, R"({"a":1})"},
    {"success_with_empty_data", 200, R"({"code":1000,"desc":"ok","data":{}})", 0, kSuccess, nullptr},
    {"success_without_data", 200, R"({"code":1000})", 0, kSuccess, nullptr},
    {"data_null", 200, R"({"code":1000,"data":null})", 0, kSuccess, nullptr},
    {"data_a_text", 200, R"({"code":1000,"data":"a"})", 0, kSuccess, nullptr},
    {"data_an_array", 200, R"({"code":1000,"data":[{"a":1}]})", 0, kSuccess, nullptr},
    {"code_with_fraction_zero", 200, R"({"code":1000.0})", 0, kSuccess, nullptr},
    {"code_2001", 200, R"({"code":2001,"data":{"a":1}})", 2001, 2001, nullptr},
    {"code_negative", 200, R"({"code":-5})", -5, -5, nullptr},
    {"code_0", 200, R"({"code":0,"data":{"a":1}})", 0, 0, nullptr},
    {"code_missing", 200, R"({"data":{"a":1}})", 0, 0, nullptr},
    {"code_a_text", 200, R"({"code":"1000","data":{"a":1}})", 0, 0, nullptr},
    {"code_a_fraction", 200, R"({"code":1000.5})", 0, 0, nullptr},
    {"code_null", 200, R"({"code":null,"data":{"a":1}})", -1, -1, nullptr},
    {"array_envelope", 200, R"([{"code":1000}])", 0, 0, nullptr},
    {"empty_object", 200, "{}", 0, 0, nullptr},
    {"empty_body", 200, "", -1, -1, nullptr},
    {"not_json", 200, "<html>", -1, -1, nullptr},
    {"cut_json", 200, R"({"code":1000,"data":{)", -1, -1, nullptr},
    {"json_and_more", 200, R"({"code":1000} x)", -1, -1, nullptr},
    {"status_201", 201, R"({"code":1000})", 201, 201, nullptr},
    {"status_204", 204, "", 204, 204, nullptr},
    {"status_302", 302, R"({"code":1000})", 302, 302, nullptr},
    {"status_400", 400, R"({"code":1000})", 400, 400, nullptr},
    {"status_403", 403, "", 403, 403, nullptr},
    {"status_404", 404, "missing", 404, 404, nullptr},
    {"status_405", 405, "", 405, 405, nullptr},
    {"status_407", 407, "", 407, 407, nullptr},
    {"status_409", 409, "", 409, 409, nullptr},
    {"status_410", 410, "", 410, 410, nullptr},
    {"status_418", 418, "", 418, 418, nullptr},
    {"status_429", 429, "", 429, 429, nullptr},
    {"status_500", 500, R"({"code":1000})", 500, 500, nullptr},
    {"status_501", 501, "", 501, 501, nullptr},
    {"status_503", 503, "", 503, 503, nullptr},
    {"status_599", 599, "", 599, 599, nullptr},
};

INSTANTIATE_TEST_SUITE_P(Answers, AnswerTest,
                         testing::Combine(testing::ValuesIn(kAnswers), testing::Values(InLoop, BehindDialog),
                                          testing::Values(RawServer::Http, RawServer::Https)),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name) +
                                    (std::get<1>(row.param) == InLoop ? "_loop" : "_dialog") +
                                    (std::get<2>(row.param) == RawServer::Http ? "_http" : "_https");
                         });

/// An exchange without a complete HTTP answer, or one that asks for authentication.
struct Failure {
    const char* name;
    RawAnswer answer;
    int code;
    const char* errorCode;  ///< Qt's, as it stands in the line; null where Qt says the one or the other
};

class FailureTest : public Results, public testing::WithParamInterface<std::tuple<Failure, Waiting>> {};

TEST_P(FailureTest, IsNotifiedInAnyCase)
{
    const auto& [row, waiting] = GetParam();
    RawServer server([answer = row.answer](const RawRequest&) { return answer; });
    Use(server);
    for (const bool bNotifyOnFailure : {false, true}) {
        EXPECT_EQ(Execute(Call(waiting, bNotifyOnFailure)), -1);
        EXPECT_EQ(notifications.Take(), QStringList{Notice(row.code)});
        const LogLines lines = logs.Take();
        ASSERT_EQ(lines.size(), 2U);
        EXPECT_EQ(lines[0], SendingLine());
        EXPECT_EQ(lines[1].function, FunctionOf(waiting));
        EXPECT_EQ(lines[1].level, 6);
        std::string start = "Request failed, an internal network error occurred, qt network error code: ";
        if (row.errorCode) {
            start += row.errorCode + std::string(", network error info: ");
        }
        EXPECT_EQ(lines[1].message.substr(0, start.size()), start);
        EXPECT_GT(lines[1].message.size(), start.size());
    }
    EXPECT_TRUE(m_parsed.isEmpty());
}

/// An answer that ends within its body, at once or a little later.
RawAnswer Cut(int status, RawAnswer::Then then = RawAnswer::Close)
{
    return {"HTTP/1.1 " + QByteArray::number(status) + " Reason\r\nContent-Length: 1000\r\n\r\n{\"code\":1000}", 0,
            then};
}

const Failure kFailures[] = {
    {"closed_before_the_answer", {"", 0, RawAnswer::Close}, -18, "2"},
    {"reset_before_the_answer", {"", 0, RawAnswer::Reset}, -18, "2"},
    {"closed_in_the_headers", {"HTTP/1.1 200 OK\r\nContent-Le", 0, RawAnswer::Close}, -18, "2"},
    {"closed_in_the_body", Cut(200), -18, nullptr},
    {"closed_in_the_body_later", Cut(200, RawAnswer::CloseLater), -18, nullptr},
    {"closed_in_the_body_of_201", Cut(201), -18, nullptr},
    {"closed_in_the_body_of_302", Cut(302), -18, nullptr},
    {"closed_in_the_body_of_302_later", Cut(302, RawAnswer::CloseLater), -18, nullptr},
    {"closed_in_the_body_of_404_later", Cut(404, RawAnswer::CloseLater), -18, nullptr},
    {"closed_in_the_body_of_404", Cut(404), -18, nullptr},
    {"closed_in_the_body_of_500", Cut(500), -18, nullptr},
    {"no_http", {"220 mail ready\r\n\r\n", 0, RawAnswer::Close}, -18, "2"},
    {"401_without_challenge", HttpAnswer(401, "{}"), 7000, "204"},
    {"401_basic", HttpAnswer(401, "{}", "WWW-Authenticate: Basic realm=\"x\"\r\n"), 7000, "204"},
    {"401_digest", HttpAnswer(401, "{}", "WWW-Authenticate: Digest realm=\"x\", nonce=\"1\"\r\n"), 7000, "204"},
    {"401_bearer", HttpAnswer(401, "{}", "WWW-Authenticate: Bearer\r\n"), 7000, "204"},
};

INSTANTIATE_TEST_SUITE_P(Failures, FailureTest,
                         testing::Combine(testing::ValuesIn(kFailures), testing::Values(InLoop, BehindDialog)),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name) +
                                    (std::get<1>(row.param) == InLoop ? "_loop" : "_dialog");
                         });

TEST_F(Results, ProxyChallengeOfTheServerIsAStatus)
{
    RawServer server(
        [](const RawRequest&) { return HttpAnswer(407, "{}", "Proxy-Authenticate: Basic realm=\"x\"\r\n"); });
    Use(server);
    EXPECT_EQ(Execute(Call(InLoop, false)), 407);
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_F(Results, Refused)
{
    {
        QTcpServer nobody;
        ASSERT_TRUE(nobody.listen(QHostAddress::LocalHost));
        users.servers[1].port = nobody.serverPort();
    }
    CAPIModule::GetInstance().SetHttpsMode(0);
    EXPECT_EQ(Execute(Call(InLoop, false)), -1);
    EXPECT_EQ(notifications.Take(), QStringList{Notice(-18)});
    const LogLines lines = logs.Take();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_NE(lines[1].message.find("qt network error code: 1, network error info: "), std::string::npos);
}

TEST_F(Results, NameUnknown)
{
    users.servers[1].host = "no-such-host.invalid";
    CAPIModule::GetInstance().SetHttpsMode(0);
    HostCall call = Call(InLoop, false);
    call.timeout = 60;
    EXPECT_EQ(Execute(call), -1);
    EXPECT_EQ(notifications.Take(), QStringList{Notice(-18)});
    EXPECT_NE(logs.Take().at(1).message.find("qt network error code: 3, "), std::string::npos);
}

TEST_F(Results, HttpsToAnHttpPort)
{
    RawServer server([](const RawRequest&) { return HttpAnswer(400, "no TLS here"); });
    server.AnswerAnything();
    Use(server, RawServer::Https);
    EXPECT_EQ(Execute(Call(InLoop, false)), -1);
    EXPECT_EQ(notifications.Take(), QStringList{Notice(-18)});
    EXPECT_NE(logs.Take().at(1).message.find("qt network error code: 6, "), std::string::npos);
}

TEST_F(Results, HttpToAnHttpsPort)
{
    RawServer server([](const RawRequest&) { return HttpAnswer(200, "{}"); }, RawServer::Https);
    Use(server, RawServer::Http);
    EXPECT_EQ(Execute(Call(InLoop, false)), -1);
    EXPECT_EQ(notifications.Take(), QStringList{Notice(-18)});
}

/// Qt's text of an error may hold the URL.
TEST_F(Results, NetworkErrorTextIsMasked)
{
    RawServer server([](const RawRequest&) { return Cut(404); });
    Use(server);
    HostCall call = Call(InLoop, false);
    call.url = QStringLiteral("/path?token=0123456789secret");
    bool bUrlSeen = false;
    for (int i = 0; i < 100 && !bUrlSeen; ++i) {
        EXPECT_EQ(Execute(call), -1);
        for (const LogLine& line : logs.Take()) {
            EXPECT_EQ(line.message.find("0123456789"), std::string::npos) << line.message;
            bUrlSeen =
                bUrlSeen || line.message.find("network error info: Error transferring http") != std::string::npos;
        }
    }
    EXPECT_TRUE(bUrlSeen);
}

TEST_F(Results, FailingParseIsNotifiedAndItsResultReturned)
{
    RawServer server([](const RawRequest&) { return HttpAnswer(200, R"({"code":1000,"data":{"a":1}})"); });
    Use(server);
    m_parseResult = 42;
    for (const bool bNotifyOnFailure : {false, true}) {
        EXPECT_EQ(Execute(Call(InLoop, bNotifyOnFailure)), 42);
        EXPECT_EQ(notifications.Take(), QStringList{Notice(3101)});
    }
}

TEST_F(Results, WithoutParseDataGivesNoTip)
{
    RawServer server([](const RawRequest&) { return HttpAnswer(200, R"({"code":1000,"data":{"a":1}})"); });
    Use(server);
    HostCall call = Call(InLoop, true);
    call.parse.clear();
    EXPECT_EQ(Execute(call), 0);
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_F(Results, EmptyTipIsNotShown)
{
    RawServer server([](const RawRequest&) { return HttpAnswer(200, R"({"code":1000})"); });
    Use(server);
    HostCall call = Call(InLoop, true);
    call.successTip.clear();
    EXPECT_EQ(Execute(call), 0);
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_F(Results, EmptyPack)
{
    EXPECT_EQ(CAPIModule::GetInstance().ExecuteFuncs({}, {}, QStringLiteral("No settings"), nullptr, {}, true, true),
              -1);
    EXPECT_EQ(notifications.Take(), QStringList());
    EXPECT_EQ(logs.Take(),
              (LogLines{{kFacadeFile, kExecuteFuncs, 6, "Call packetFunc failed! packetFunc can not be null."}}));
}

TEST_F(Results, FailingPackIsNotNotified)
{
    RawServer server([](const RawRequest&) { return HttpAnswer(200, "{}"); });
    Use(server);
    HostCall call = Call(InLoop, true);
    call.url.clear();
    EXPECT_EQ(Execute(call), -1);
    EXPECT_EQ(notifications.Take(), QStringList());
    EXPECT_EQ(logs.Take(), (LogLines{{kFacadeFile, "APIModule::CAPIModule::GetRequestParam", 6,
                                      "GetRequestParam failed! strUrl can not be empty."}}));
    EXPECT_TRUE(server.TakeRequests().empty());

    EXPECT_EQ(CAPIModule::GetInstance().ExecuteFuncs([](void*) { return 17; }, {}, QStringLiteral("No settings"),
                                                     nullptr, {}, true, true),
              -1);
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_F(Results, ThrowingPackIsNotNotified)
{
    for (const bool bStandard : {true, false}) {
        const auto pack = [bStandard](void*) -> int {
            if (bStandard) {
                throw std::runtime_error("broken %s %1");
            }
            throw 7;
        };
        EXPECT_EQ(
            CAPIModule::GetInstance().ExecuteFuncs(pack, {}, QStringLiteral("No settings"), nullptr, {}, true, true),
            -1);
        EXPECT_EQ(notifications.Take(), QStringList());
        EXPECT_EQ(logs.Take(), (LogLines{{kFacadeFile, kExecuteFuncs, 6,
                                          bStandard ? "Call packetFunc failed! packetFunc threw an exception: "
                                                      "broken %s %1"
                                                    : "Call packetFunc failed! packetFunc threw an exception."}}));
    }
}

TEST_F(Results, ThrowingParseIsAFailedParse)
{
    RawServer server([](const RawRequest&) { return HttpAnswer(200, R"({"code":1000,"data":{"a":1}})"); });
    Use(server);
    for (const bool bStandard : {true, false}) {
        HostCall call = Call(InLoop, false);
        call.parse = [bStandard](const QJsonObject&) -> int {
            if (bStandard) {
                throw std::runtime_error("broken %s");
            }
            throw 7;
        };
        EXPECT_EQ(Execute(call), -1);
        EXPECT_EQ(notifications.Take(), QStringList{Notice(3101)});
        EXPECT_EQ(logs.Take().at(2),
                  (LogLine{kFacadeFile, kExecuteFuncs, 6,
                           bStandard ? "Call parseFunc failed! parseFunc threw an exception: broken %s"
                                     : "Call parseFunc failed! parseFunc threw an exception."}));
    }
}

/// A way through a call, with what the Pack and the Parse do on it.
struct Way {
    const char* name;
    const char* url;
    int timeout;
    std::function<int()> pack;
    std::function<int()> parse;
    int result;
};

/// The callables are released when the call returns, whichever way it goes.
class ReleaseTest : public Results, public testing::WithParamInterface<Way> {};

TEST_P(ReleaseTest, WhenTheCallReturns)
{
    const Way& way = GetParam();
    RawServer server([](const RawRequest& request) {
        if (request.target == "/silent") {
            return RawAnswer{};
        }
        return request.target == "/path" ? HttpAnswer(200, R"({"code":1000,"data":{"a":1}})") : HttpAnswer(404, "");
    });
    Use(server);
    const auto token = std::make_shared<int>();
    boost::function<int(void*)> pack = [token, way](void* pReqParamData) {
        const int nResult = way.pack();
        return nResult
                   ? nResult
                   : CAPIModule::GetInstance().GetRequestParam(pReqParamData, APIModule::Method_Get,
                                                               QLatin1String(way.url), -1, {}, {}, way.timeout, false);
    };
    boost::function<int(QJsonObject const&)> parse = [token, way](const QJsonObject&) { return way.parse(); };
    EXPECT_EQ(CAPIModule::GetInstance().ExecuteFuncs(std::move(pack), std::move(parse), {}, nullptr, {}, false, false),
              way.result);
    EXPECT_EQ(token.use_count(), 1);
}

int Succeed()
{
    return 0;
}

int Fail()
{
    return 3;
}

int Throw()
{
    throw std::runtime_error("broken");
}

const Way kWays[] = {
    {"success", "/path", 5, Succeed, Succeed, 0},       {"failing_pack", "/path", 5, Fail, Succeed, -1},
    {"throwing_pack", "/path", 5, Throw, Succeed, -1},  {"empty_url", "", 5, Succeed, Succeed, -1},
    {"failing_parse", "/path", 5, Succeed, Fail, 3},    {"throwing_parse", "/path", 5, Succeed, Throw, -1},
    {"status_404", "/other", 5, Succeed, Succeed, 404}, {"time_out", "/silent", 0, Succeed, Succeed, -1},
    {"invalid_url", "@x/", 5, Succeed, Succeed, -1},
};

INSTANTIATE_TEST_SUITE_P(Ways, ReleaseTest, testing::ValuesIn(kWays), RowName());

TEST_F(Results, ParseIsReleasedWithoutAPack)
{
    const auto token = std::make_shared<int>();
    boost::function<int(QJsonObject const&)> parse = [token](const QJsonObject&) { return 0; };
    EXPECT_EQ(CAPIModule::GetInstance().ExecuteFuncs({}, std::move(parse), {}, nullptr, {}, false, false), -1);
    EXPECT_EQ(token.use_count(), 1);
}

TEST_F(Results, TextsOfServerAndCallerAreNoFormats)
{
    RawServer server([](const RawRequest&) { return HttpAnswer(200, R"({"code":2001,"desc":"%s%n %1"})"); });
    Use(server);
    HostCall call = Call(InLoop, true);
    call.uiError = QStringLiteral("%s%n %1");
    call.url = QStringLiteral("/%s%n/%1");
    EXPECT_EQ(Execute(call), -1);
    EXPECT_EQ(notifications.Take(), QStringList{QStringLiteral("%s%n %1")});
    const LogLines lines = logs.Take();
    EXPECT_EQ(lines.at(0).message,
              "ExecuteRequest url=http://127.0.0.1:" + std::to_string(server.Port()) + "/%25s%25n/%251");
    EXPECT_EQ(lines.at(2).message, "Error code is not exist, strUIError=%s%n %1, errorCode=2001");
}

TEST_F(Results, ReplyOf20MegabytesComesWhole)
{
    const QByteArray text(20 * 1024 * 1024, 'x');
    RawServer server(
        [&](const RawRequest&) { return HttpAnswer(200, "{\"code\":1000,\"data\":{\"text\":\"" + text + "\"}}"); });
    Use(server);
    HostCall call = Call(InLoop, true);
    call.timeout = 60;
    EXPECT_EQ(Execute(call), 0);
    EXPECT_EQ(m_parsed.at(0).toObject().value(QStringLiteral("text")).toString().size(), text.size());
}

TEST_F(Results, NestingBeyondTheParserIsAnEnvelopeFailure)
{
    const QByteArray body = "{\"code\":1000,\"data\":{\"a\":" + QByteArray(5000, '[') + QByteArray(5000, ']') + "}}";
    RawServer server([&](const RawRequest&) { return HttpAnswer(200, body); });
    Use(server);
    EXPECT_EQ(Execute(Call(InLoop, false)), -1);
    EXPECT_EQ(notifications.Take(), QStringList());
    EXPECT_TRUE(m_parsed.isEmpty());
}

TEST_F(Results, NothingIsNotifiedAfterUnInitDuringTheCall)
{
    RawServer server([](const RawRequest&) { return HttpAnswer(200, R"({"code":2001})"); });
    Use(server);
    HostCall call = Call(InLoop, true);
    CAPIModule& facade = CAPIModule::GetInstance();
    const auto pack = [&](void* pReqParamData) {
        const int nResult =
            facade.GetRequestParam(pReqParamData, APIModule::Method_Get, call.url, -1, {}, {}, 5, false);
        facade.UnInit();
        return nResult;
    };
    EXPECT_EQ(facade.ExecuteFuncs(pack, call.parse, call.uiError, nullptr, call.successTip, true, true), -1);
    EXPECT_EQ(notifications.Take(), QStringList());
}

}  // namespace

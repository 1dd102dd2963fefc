// Result, log lines and notifications of ExecuteFuncs for each kind of reply.
#include "support/Host.h"
#include "support/Rows.h"
#include "support/Waiting.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <functional>
#include <memory>
#include <stdexcept>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

constexpr const char* kExecuteFuncs = "APIModule::CAPIModule::ExecuteFuncs";

/// Marks the rows in which the call succeeds.
constexpr int kSuccess = 1000;

QString Notice(int code)
{
    return CAPIModule::GetErroCodeInfor(QStringLiteral("No settings"), code, true);
}

class Results : public Host {
protected:
    /// The log line before anything is sent.
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

/// An envelope and the outcome for the host.
struct EnvelopeRow {
    const char* name;
    const char* body;
    int resultNotNotified;  ///< result with bNotifyOnFailure false
    int notice;             ///< notified code with bNotifyOnFailure true; kSuccess for the success tip
    const char* parsed;     ///< the data that the Parse received; null if it was not called
};

class EnvelopeTest : public Results,
                     public testing::WithParamInterface<std::tuple<EnvelopeRow, Waiting, RawServer::Scheme>> {};

TEST_P(EnvelopeTest, DeterminesTheOutcome)
{
    const auto& [row, waiting, scheme] = GetParam();
    Serve(HttpReply(200, row.body), scheme);
    const QString schemeName = scheme == RawServer::Http ? QStringLiteral("http") : QStringLiteral("https");
    const LogLine end{kFacadeFile, FunctionOf(waiting), 4, "Request success."};

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

const EnvelopeRow kEnvelopes[] = {
    {"success_with_data", R"({"code":1000,"desc":"ok","data":{"a":1}})", 0, kSuccess, R"({"a":1})"},
    {"success_with_empty_data", R"({"code":1000,"desc":"ok","data":{}})", 0, kSuccess, nullptr},
    {"success_without_data", R"({"code":1000})", 0, kSuccess, nullptr},
    {"data_null", R"({"code":1000,"data":null})", 0, kSuccess, nullptr},
    {"data_a_text", R"({"code":1000,"data":"a"})", 0, kSuccess, nullptr},
    {"data_an_array", R"({"code":1000,"data":[{"a":1}]})", 0, kSuccess, nullptr},
    {"code_with_fraction_zero", R"({"code":1000.0})", 0, kSuccess, nullptr},
    {"code_2001", R"({"code":2001,"data":{"a":1}})", 2001, 2001, nullptr},
    {"code_negative", R"({"code":-5})", -5, -5, nullptr},
    {"code_0", R"({"code":0,"data":{"a":1}})", 0, 0, nullptr},
    {"code_missing", R"({"data":{"a":1}})", 0, 0, nullptr},
    {"code_a_text", R"({"code":"1000","data":{"a":1}})", 0, 0, nullptr},
    {"code_a_fraction", R"({"code":1000.5})", 0, 0, nullptr},
    {"code_null", R"({"code":null,"data":{"a":1}})", -1, -1, nullptr},
    {"empty_object", "{}", 0, 0, nullptr},
};

INSTANTIATE_TEST_SUITE_P(Envelopes, EnvelopeTest,
                         testing::Combine(testing::ValuesIn(kEnvelopes), testing::Values(InLoop, BehindDialog),
                                          testing::Values(RawServer::Http, RawServer::Https)),
                         RowName());

/// Qt's error text may contain the URL, depending on when Qt notices the end of the connection.
TEST_F(Results, NetworkErrorLineHasNoUrl)
{
    Serve(RawReply{"HTTP/1.1 404 Reason\r\nContent-Length: 1000\r\n\r\n{", 0, RawReply::Close});
    HostCall call = Call(InLoop, false);
    call.url = QStringLiteral("/path?token=0123456789secret");
    EXPECT_EQ(Execute(call), -1);
    EXPECT_EQ(logs.Take().back().message,
              "Request failed, an internal network error occurred, qt network error code: 2, "
              "network error info: Connection closed");
}

TEST_F(Results, FailingParseIsNotifiedAndItsResultReturned)
{
    Serve(HttpReply(200, R"({"code":1000,"data":{"a":1}})"));
    m_parseResult = 42;
    for (const bool bNotifyOnFailure : {false, true}) {
        EXPECT_EQ(Execute(Call(InLoop, bNotifyOnFailure)), 42);
        EXPECT_EQ(notifications.Take(), QStringList{Notice(3101)});
    }
}

TEST_F(Results, SuccessTipIsNotShownWhenDataHaveNoParse)
{
    Serve(HttpReply(200, R"({"code":1000,"data":{"a":1}})"));
    HostCall call = Call(InLoop, true);
    call.parse.clear();
    EXPECT_EQ(Execute(call), 0);
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_F(Results, EmptyTipIsNotShown)
{
    Serve(HttpReply(200, R"({"code":1000})"));
    HostCall call = Call(InLoop, true);
    call.successTip.clear();
    EXPECT_EQ(Execute(call), 0);
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_F(Results, EmptyPackFails)
{
    EXPECT_EQ(CAPIModule::GetInstance().ExecuteFuncs({}, {}, QStringLiteral("No settings"), nullptr, {}, true, true),
              -1);
    EXPECT_EQ(notifications.Take(), QStringList());
    EXPECT_EQ(logs.Take(),
              (LogLines{{kFacadeFile, kExecuteFuncs, 6, "Call packetFunc failed! packetFunc can not be null."}}));
}

TEST_F(Results, FailingPackIsNotNotified)
{
    RawServer& server = Serve(HttpReply(200, "{}"));
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

TEST_F(Results, ThrowingParseFails)
{
    Serve(HttpReply(200, R"({"code":1000,"data":{"a":1}})"));
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

/// A path through a call, defined by its Pack, its Parse and the reply.
struct CallPath {
    const char* name;
    const char* url;
    int timeout;
    std::function<int()> pack;
    std::function<int()> parse;
    int result;
};

/// The callables are released when the call returns, on every path.
class ReleaseTest : public Results, public testing::WithParamInterface<CallPath> {};

TEST_P(ReleaseTest, CallablesAreReleasedWhenTheCallReturns)
{
    const CallPath& path = GetParam();
    Serve([](const RawRequest& request) {
        if (request.target == "/silent") {
            return RawReply{};
        }
        return request.target == "/path" ? HttpReply(200, R"({"code":1000,"data":{"a":1}})") : HttpReply(404, "");
    });
    const auto token = std::make_shared<int>();
    boost::function<int(void*)> pack = [token, path](void* pReqParamData) {
        const int nResult = path.pack();
        return nResult ? nResult
                       : CAPIModule::GetInstance().GetRequestParam(pReqParamData, APIModule::Method_Get,
                                                                   QLatin1String(path.url), -1, {}, {}, path.timeout,
                                                                   false);
    };
    boost::function<int(QJsonObject const&)> parse = [token, path](const QJsonObject&) { return path.parse(); };
    EXPECT_EQ(CAPIModule::GetInstance().ExecuteFuncs(std::move(pack), std::move(parse), {}, nullptr, {}, false, false),
              path.result);
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

const CallPath kCallPaths[] = {
    {"success", "/path", 5, Succeed, Succeed, 0},      {"failing_pack", "/path", 5, Fail, Succeed, -1},
    {"throwing_pack", "/path", 5, Throw, Succeed, -1}, {"empty_url", "", 5, Succeed, Succeed, -1},
    {"failing_parse", "/path", 5, Succeed, Fail, 3},   {"throwing_parse", "/path", 5, Succeed, Throw, -1},
    {"invalid_url", "@x/", 5, Succeed, Succeed, -1},   {"status_404", "/other", 5, Succeed, Succeed, 404},
    {"time_out", "/silent", 0, Succeed, Succeed, -1},
};

INSTANTIATE_TEST_SUITE_P(CallPaths, ReleaseTest, testing::ValuesIn(kCallPaths), RowName());

TEST_F(Results, ParseIsReleasedWithoutAPack)
{
    const auto token = std::make_shared<int>();
    boost::function<int(QJsonObject const&)> parse = [token](const QJsonObject&) { return 0; };
    EXPECT_EQ(CAPIModule::GetInstance().ExecuteFuncs({}, std::move(parse), {}, nullptr, {}, false, false), -1);
    EXPECT_EQ(token.use_count(), 1);
}

TEST_F(Results, TextsOfServerAndCallerAreNotUsedAsFormats)
{
    const RawServer& server = Serve(HttpReply(200, R"({"code":2001,"desc":"%s%n %1"})"));
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

TEST_F(Results, ReplyOf20MegabytesIsReadCompletely)
{
    const QByteArray text(20 * 1024 * 1024, 'x');
    Serve(HttpReply(200, "{\"code\":1000,\"data\":{\"text\":\"" + text + "\"}}"));
    HostCall call = Call(InLoop, true);
    call.timeout = 60;
    EXPECT_EQ(Execute(call), 0);
    EXPECT_EQ(m_parsed.at(0).toObject().value(QStringLiteral("text")).toString().size(), text.size());
}

TEST_F(Results, UnInitDuringACallSuppressesNotifications)
{
    Serve(HttpReply(200, R"({"code":2001})"));
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

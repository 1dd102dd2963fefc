// Hostile texts in every part of a request. None escapes from its part, and none becomes a second request.
#include "support/Host.h"
#include "support/Rows.h"

#include <BRMS/BRMSModule.h>
#include <DMS/DMSModule.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <string>

using namespace testing_support;
using APIModule::CAPIModule;
using APIModule::CBRMSModule;
using APIModule::CDMSModule;

namespace {

constexpr const char* kBuildRequest = "APIModule::CAPIModulePrivate::BuildRequest";
constexpr std::size_t kMegabyte = std::size_t(1) << 20U;

std::string Repeated(std::size_t nTimes, const std::string& text)
{
    std::string repeated;
    repeated.reserve(nTimes * text.size());
    for (std::size_t i = 0; i < nTimes; ++i) {
        repeated += text;
    }
    return repeated;
}

/// A text and its encoding in a URL.
struct Hostile {
    std::string name;
    std::string text;
    std::string inUrl;
};

using testing_support::operator<<;

const std::vector<Hostile> kTexts = {
    {"harmless", "a-b_c.1", "a-b_c.1"},
    {"tab", "a\tb", "a%09b"},
    {"carriage_return", "a\rb", "a%0Db"},
    {"line_feed", "a\nb", "a%0Ab"},
    {"header", "a\r\nX-Evil: 1", "a%0D%0AX-Evil:%201"},
    {"header_after_line_feed", "a\nX-Evil: 1", "a%0AX-Evil:%201"},
    {"request", "a HTTP/1.1\r\n\r\nGET /evil HTTP/1.1\r\n\r\n",
     "a%20HTTP/1.1%0D%0A%0D%0AGET%20/evil%20HTTP/1.1%0D%0A%0D%0A"},
    {"zero_byte", std::string("a\0b", 3), "a%00b"},
    {"control_characters", "\x01\x02\x08\x0B\x0C\x1B\x1F\x7F", "%01%02%08%0B%0C%1B%1F%7F"},
    {"control_characters_of_unicode", "\xC2\x85\xC2\x9F\xE2\x80\xA8\xE2\x80\xA9", "%C2%85%C2%9F%E2%80%A8%E2%80%A9"},
    {"percent", "%", "%25"},
    {"percent_without_number", "%zz%2", "%25zz%252"},
    {"percent_and_line_break", "%0d%0a", "%0D%0A"},
    {"percent_and_zero_byte", "%00", "%00"},
    {"percent_and_percent", "%25", "%25"},
    {"percent_and_path", "%2e%2e%2f", "..%2F"},
    {"format_marker", "%1%2", "%251%252"},
    {"format", "%s%n%d", "%25s%25n%25d"},
    {"quotes", "\"'`", "%22'%60"},
    {"backslash", "\\\\server\\..", "%5C%5Cserver%5C.."},
    {"slashes", "a/b//c", "a/b//c"},
    {"other_server", "//other.example/x", "//other.example/x"},
    {"other_url", "http://other.example:80/", "http://other.example:80/"},
    {"at", "@other.example", "@other.example"},
    {"query", "?a=1&b=2;c", "?a=1&b=2;c"},
    {"hash", "a#b", "a"},
    {"brackets", "<>{}|^[]", "%3C%3E%7B%7D%7C%5E[]"},
    {"blanks", " a  b ", "%20a%20%20b%20"},
    {"plus", "a+b", "a+b"},
    {"beyond_the_basic_plane", "\xF0\x9F\x98\x80", "%F0%9F%98%80"},
    {"invalid_utf8", "\xFF\xC0\xAF", "%EF%BF%BD%EF%BF%BD%EF%BF%BD"},
    {"json", "\",\"admin\":\"1", "%22,%22admin%22:%221"},
    {"megabyte", std::string(kMegabyte, 'a'), std::string(kMegabyte, 'a')},
    {"megabyte_of_line_breaks", std::string(kMegabyte, '\n'), Repeated(kMegabyte, "%0A")},
    {"megabyte_of_slashes", std::string(kMegabyte, '/'), std::string(kMegabyte, '/')},
};

class HostileInput : public Host {
protected:
    HostileInput() : m_server([](const RawRequest&) { return HttpReply(200, R"({"code":1000})"); }) { Use(m_server); }

    using Pack = boost::function<int(void*)>;

    /// Runs the call and returns its only request.
    RawRequest Send(const Pack& pack)
    {
        EXPECT_EQ(CAPIModule::GetInstance().ExecuteFuncs(pack, {}, {}, nullptr, {}, true, true), 0);
        const std::vector<RawRequest> requests = m_server.TakeRequests();
        EXPECT_EQ(requests.size(), 1U);
        EXPECT_EQ(m_server.ConnectionCount(), 1);
        return requests.empty() ? RawRequest() : requests.front();
    }

    RawServer m_server;
};

QByteArray Bytes(const std::string& text)
{
    return QByteArray::fromStdString(text);
}

/// The header names in alphabetical order, not in the order on the wire.
std::string HeaderNames(const RawRequest& request)
{
    QList<QByteArray> names;
    for (const auto& header : request.headers) {
        names.append(header.first);
    }
    std::sort(names.begin(), names.end());
    return names.join(' ').toStdString();
}

/// Checks the request line and the names of the headers.
void ExpectUsualHead(const RawRequest& request, const QByteArray& method, const QByteArray& target)
{
    const QByteArray firstLine = request.head.left(request.head.indexOf("\r\n"));
    EXPECT_TRUE(firstLine == method + ' ' + target + " HTTP/1.1") << firstLine.left(200).constData();
    const std::string length = method == "GET" ? "" : "Content-Length ";
    EXPECT_EQ(HeaderNames(request), "Accept-Encoding Accept-Language Connection " + length +
                                        "Content-Type Host Time-Zone User-Agent X-Subject-Token");
}

/// A part of a URL that a call fills with a text.
struct UrlPart {
    const char* name;
    const char* method;
    const char* before;
    const char* after;
    int (*pack)(void* pReqParamData, const std::string& text);
};

const std::vector<UrlPart> kUrlParts = {
    {"in_path", "GET", "/brms/api/v1.1/user/group/", "",
     [](void* p, const std::string& text) { return CBRMSModule::PacketGetUserGroup(p, text, -1); }},
    {"in_middle_of_path", "GET", "/brms/api/v1.1/device/", "/config/network",
     [](void* p, const std::string& text) { return CBRMSModule::PacketGetNetworkConfig(p, text, -1); }},
    {"in_query", "GET", "/brms/api/v1.1/user/group/list?keyword=", "",
     [](void* p, const std::string& text) { return CBRMSModule::PacketGetUserGroupList(p, text, -1); }},
    {"in_list_in_query", "DELETE", "/brms/api/v1.1/config/quick/command?ids=1,", ",2",
     [](void* p, const std::string& text) {
         return CBRMSModule::PacketDelQuickCommand(p, {"1", text, "2"}, -1);
     }},
};

class UrlTest : public HostileInput, public testing::WithParamInterface<std::tuple<Hostile, UrlPart>> {};

TEST_P(UrlTest, StaysInItsPartOfTheUrl)
{
    const Hostile& text = std::get<0>(GetParam());
    const UrlPart& part = std::get<1>(GetParam());
    const RawRequest request = Send([&](void* p) { return part.pack(p, text.text); });
    const bool bCut = text.text.find('#') != std::string::npos;  // nothing after it is sent
    ExpectUsualHead(request, part.method, part.before + Bytes(text.inUrl) + (bCut ? "" : part.after));
    EXPECT_EQ(request.body, "");
}

INSTANTIATE_TEST_SUITE_P(Urls, UrlTest, testing::Combine(testing::ValuesIn(kTexts), testing::ValuesIn(kUrlParts)),
                         RowName());

class TextTest : public HostileInput, public testing::WithParamInterface<Hostile> {};

INSTANTIATE_TEST_SUITE_P(Texts, TextTest, testing::ValuesIn(kTexts), RowName());

/// The only kind of path whose text ends at a zero byte and whose bytes are encoded as Latin-1 characters.
TEST_P(TextTest, IsSentBytewiseInAPath)
{
    const std::string& text = GetParam().text;
    const RawRequest request = Send([&](void* p) { return CDMSModule::PackeSetHomePosition(p, text, -1); });
    const QByteArray target = request.target;
    EXPECT_TRUE(target.startsWith("/brms/api/v1.1/ptz/channel/")) << target.left(200).constData();
    EXPECT_TRUE(std::all_of(target.begin(), target.end(), [](char c) { return c > ' ' && c < 0x7F; }));
    ExpectUsualHead(request, "POST", target);
}

TEST_P(TextTest, StaysInItsStringOfTheBody)
{
    APIModule::QuickCommand command;
    command.quickCommandName = GetParam().text;
    const RawRequest request = Send([&](void* p) { return CBRMSModule::PacketAddQuickCommand(p, command, -1); });
    ExpectUsualHead(request, "POST", "/brms/api/v1.1/config/quick/command");
    const QJsonObject body = QJsonDocument::fromJson(request.body).object();
    EXPECT_TRUE(body.value(QStringLiteral("quickCommandName")) == QString::fromStdString(GetParam().text));
    EXPECT_EQ(body.size(), 6);
    EXPECT_EQ(request.Value("Content-Length").toInt(), request.body.size());
    EXPECT_FALSE(request.body.contains('\n'));
}

TEST_P(TextTest, IsSentUnchangedAsABody)
{
    const QString text = QString::fromStdString(GetParam().text);
    const RawRequest request = Send([&](void* p) {
        return CAPIModule::GetInstance().GetRequestParam(p, APIModule::Method_Post, QStringLiteral("/path"), -1, text,
                                                         {}, 20, false);
    });
    ExpectUsualHead(request, "POST", "/path");
    EXPECT_TRUE(request.body == text.toUtf8());
}

/// The client resolves dot segments, so that the request reaches another path of the same server.
TEST_F(HostileInput, DotSegmentsInAUrlAreResolved)
{
    const std::string text = "../../../admin";
    EXPECT_EQ(Send([&](void* p) { return CBRMSModule::PacketGetUserGroup(p, text, -1); }).target, "/brms/api/admin");
    EXPECT_EQ(Send([&](void* p) { return CDMSModule::PackeSetHomePosition(p, text, -1); }).target,
              "/brms/api/admin/home-position/configure");
    EXPECT_EQ(Send([&](void* p) { return CBRMSModule::PacketGetUserGroupList(p, text, -1); }).target,
              "/brms/api/v1.1/user/group/list?keyword=../../../admin");
}

/// A header that a host or a user manager fills.
struct HeaderField {
    const char* name;
    const char* header;
    void (*fill)(UserManager& users, HostCall& call, const std::string& text);
    bool isText;  ///< passed as QString and therefore sent as valid UTF-8
};

const std::vector<HeaderField> kHeaderFields = {
    {"in_token", "X-Subject-Token",
     [](UserManager& users, HostCall&, const std::string& text) { users.servers[1].token = text; }, false},
    {"in_language", "Accept-Language",
     [](UserManager&, HostCall&, const std::string& text) { CAPIModule::GetInstance().SetLanguage(text); }, false},
    {"in_sequence", "X-Subject-Sequence",
     [](UserManager&, HostCall& call, const std::string& text) { call.sequence = QString::fromStdString(text); }, true},
};

class HeaderTest : public HostileInput, public testing::WithParamInterface<std::tuple<Hostile, HeaderField>> {};

TEST_P(HeaderTest, StaysInItsHeaderOrIsRejected)
{
    const auto& [text, part] = GetParam();
    HostCall call;
    call.uiError = QStringLiteral("No settings");
    call.notifyOnFailure = false;
    part.fill(users, call, text.text);
    const int nResult = Execute(call);
    const LogLines lines = logs.Take();
    const std::vector<RawRequest> requests = m_server.TakeRequests();

    if (text.text.find_first_of(std::string("\r\n\0", 3)) != std::string::npos) {
        EXPECT_EQ(nResult, -1);
        EXPECT_EQ(notifications.Take(), QStringList{CAPIModule::GetErroCodeInfor(call.uiError, -4, true)});
        EXPECT_EQ(lines, (LogLines{{kFacadeFile, kBuildRequest, 6,
                                    "Invalid request header, a value holds a line break or a zero byte."}}));
        EXPECT_TRUE(requests.empty());
        EXPECT_EQ(m_server.ConnectionCount(), 0);
        return;
    }
    EXPECT_EQ(nResult, 0);
    ASSERT_EQ(requests.size(), 1U);
    const QByteArray value = part.isText ? call.sequence.toUtf8() : Bytes(text.text);
    EXPECT_TRUE((requests[0].head + "\r\n").contains("\r\n" + QByteArray(part.header) + ": " + value + "\r\n"));
    EXPECT_EQ(requests[0].headers.size(), part.isText ? 9 : 8);
    EXPECT_EQ(requests[0].target, "/path");
}

INSTANTIATE_TEST_SUITE_P(Headers, HeaderTest,
                         testing::Combine(testing::ValuesIn(kTexts), testing::ValuesIn(kHeaderFields)), RowName());

/// A host name that would lead elsewhere. The log line of the rejected URL shows it.
class HostNameTest : public HostileInput, public testing::WithParamInterface<Hostile> {};

TEST_P(HostNameTest, IsRejected)
{
    users.servers[1].host = GetParam().text;
    EXPECT_EQ(Execute({}), -1);
    EXPECT_EQ(notifications.Take(), QStringList{CAPIModule::GetErroCodeInfor({}, -4, true)});
    EXPECT_EQ(logs.Take(), (LogLines{{kFacadeFile, kBuildRequest, 4,
                                      "Invalid url, request url: http://" + GetParam().text + ':' +
                                          std::to_string(m_server.Port()) + "/path"}}));
    EXPECT_EQ(m_server.ConnectionCount(), 0);
}

const std::vector<Hostile> kHosts = {
    {"line_break", "127.0.0.1\r\nX-Evil: 1", ""},
    {"blank", "127.0.0.1 x", ""},
    {"path", "127.0.0.1/x", ""},
    {"query", "127.0.0.1?x", ""},
    {"hash", "127.0.0.1#x", ""},
    {"port", "127.0.0.1:80", ""},
    {"user", "user:password@127.0.0.1", ""},
    {"percent", "127.0.0.1%0d%0a", ""},
    {"megabyte", std::string(kMegabyte, '/'), ""},
};

INSTANTIATE_TEST_SUITE_P(Hosts, HostNameTest, testing::ValuesIn(kHosts), RowName());

}  // namespace

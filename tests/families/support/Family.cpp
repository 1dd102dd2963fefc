#include "Family.h"

#include "support/UserManager.h"

#include <RequestParamFields.h>

#include <QJsonDocument>

#include <algorithm>
#include <ostream>
#include <stdexcept>

namespace family_testing {

using testing_support::LogLine;
using testing_support::LogLines;
using testing_support::LogRecorder;

namespace {

constexpr int kCallersServer = 5;
constexpr int kCurrentServer = 7;
constexpr int kUnknownServer = 9;

/// Has three servers and records which ones are requested.
class RecordingUserManager : public testing_support::UserManager {
public:
    RecordingUserManager()
    {
        currentServerId = kCurrentServer;
        servers = {{1, {"one.example", 8001, "token 1"}},
                   {kCallersServer, {"caller.example", 8005, "token 5"}},
                   {kCurrentServer, {"current.example", 8007, "token 7"}}};
    }

    std::shared_ptr<UserLogical::IServer> GetServer(int nServerId) override
    {
        asked.push_back(nServerId);
        return UserManager::GetServer(nServerId);
    }

    std::vector<int> asked;
};

/// A host that has initialised the library.
class Host {
public:
    explicit Host(RecordingUserManager& users) { APIModule::CAPIModule::GetInstance().Init(&users); }
    ~Host() { APIModule::CAPIModule::GetInstance().UnInit(); }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
};

std::string Names(const RecordRow::Fields& fields)
{
    std::string names;
    for (const auto& field : fields) {
        names += (names.empty() ? "" : " ") + field.second;
    }
    return names;
}

/// A request in which every field differs from the values that a Pack sets.
APIModule::RequestParam UsedRequest(const PackRow& row)
{
    APIModule::RequestParam param;
    param.nPort = 1;
    param.nTimeout = 99;
    param.bHttps = false;
    param.bCompress = true;
    param.eMethod = row.method == APIModule::Method_Delete ? APIModule::Method_Get : APIModule::Method_Delete;
    param.strIp = param.strUrl = param.strBody = param.strToken = param.strSequence = "before";
    param.bExcludeUserInput = false;
    return param;
}

int ExpectedServer(const PackRow& row, int nServerId)
{
    switch (row.server) {
    case Server::OfCaller:
        return nServerId == -1 ? kCurrentServer : nServerId;
    case Server::One:
        return 1;
    case Server::Current:
        return kCurrentServer;
    }
    throw std::logic_error("unknown rule for the server");
}

/// "src/UI/APIModule/BRMS/BRMSModule" for "CBRMSModule::...".
std::string SourcePath(const std::string& call)
{
    const std::string module = call.substr(1, call.find(':') - 1);
    return "src/UI/APIModule/" + module.substr(0, module.rfind("Module")) + "/" + module;
}

LogLines OutcomeLine(const PackRow& row, int level, const std::string& irregular, const std::string& outcome)
{
    const std::string text = irregular.empty() ? row.call.substr(row.call.rfind(':') + 1) + outcome : irregular;
    return {{SourcePath(row.call), "APIModule::" + row.call, level, text}};
}

/// The body as JSON. Expects it to be compact and without duplicate keys.
Json ParsedBody(const std::string& body)
{
    if (body.empty()) {
        return nullptr;
    }
    EXPECT_EQ(nlohmann::ordered_json::parse(body).dump(), body) << "is not compact";
    return Json::parse(body);
}

void ExpectPacked(const PackRow& row, int nServerId)
{
    RecordingUserManager users;
    const Host host(users);
    LogRecorder logs;
    APIModule::RequestParam param = UsedRequest(row);
    EXPECT_EQ(row.run(&param, nServerId), 0);
    EXPECT_EQ(logs.Take(), OutcomeLine(row, 4, row.success, " success."));

    const int nExpectedServer = ExpectedServer(row, nServerId);
    EXPECT_EQ(users.asked, std::vector<int>{nExpectedServer});
    EXPECT_EQ(ParsedBody(param.strBody), row.body.empty() ? Json() : Json::parse(row.body));

    const auto& server = users.servers.at(nExpectedServer);
    APIModule::RequestParam expected;
    expected.nPort = server.port;
    expected.nTimeout = 10;
    expected.bHttps = true;
    expected.bCompress = false;
    expected.eMethod = row.method;
    expected.strIp = server.host;
    expected.strUrl = row.url;
    expected.strBody = param.strBody;
    expected.strToken = server.token;
    expected.strSequence = "";
    expected.bExcludeUserInput = false;
    EXPECT_EQ(ToJson(param), ToJson(expected));
}

void ExpectRefused(const PackRow& row)
{
    RecordingUserManager users;
    users.servers.clear();
    const Host host(users);
    LogRecorder logs;
    APIModule::RequestParam param = UsedRequest(row);
    EXPECT_EQ(row.run(&param, kUnknownServer), -1);
    EXPECT_EQ(logs.Take(), OutcomeLine(row, 6, row.failed, " failed."));
    EXPECT_EQ(users.asked, std::vector<int>{ExpectedServer(row, kUnknownServer)});
    EXPECT_EQ(ToJson(param), ToJson(UsedRequest(row)));
}

}  // namespace

QJsonObject JsonObject(const std::string& text)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(text), &error);
    if (!document.isObject()) {
        throw std::logic_error(error.errorString().toStdString() + ": " + text);
    }
    return document.object();
}

std::ostream& operator<<(std::ostream& stream, const PackRow& row)
{
    return stream << row.call << " for " << row.url << ' ' << row.body;
}

std::ostream& operator<<(std::ostream& stream, const ParseRow& row)
{
    return stream << row.parse.call << " of " << QJsonDocument(row.reply).toJson(QJsonDocument::Compact).toStdString()
                  << " into " << row.start;
}

TEST_P(RecordTest, DescribesItsFieldsInTheOrderOfTheInterface)
{
    EXPECT_EQ(Names(GetParam().described), GetParam().fields);
}

TEST_P(RecordTest, DeclaresItsFieldsInTheOrderOfTheInterface)
{
    RecordRow::Fields inMemory = GetParam().described;
    std::sort(inMemory.begin(), inMemory.end());
    EXPECT_EQ(Names(inMemory), GetParam().fields);
}

TEST_P(RecordTest, IsInitiallyEmptyExceptForTheListedValues)
{
    for (const auto& [field, value] : GetParam().fresh.items()) {
        EXPECT_EQ(value, GetParam().initial.value(field, Json(value.type()))) << field;
    }
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RecordTest);

TEST_P(PackTest, DescribesTheRequest)
{
    ExpectPacked(GetParam(), kCallersServer);
}

TEST_P(PackTest, DescribesTheRequestForTheCurrentServer)
{
    ExpectPacked(GetParam(), -1);
}

TEST_P(PackTest, FailsForAnUnknownServer)
{
    ExpectRefused(GetParam());
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(PackTest);

ParseRow Row(const std::string& name, const Parse& parse, const std::string& reply, const std::string& start,
             const std::string& added, const std::optional<LogLine>& line)
{
    const Json before = parse.add(parse.fresh, Json::parse(start));
    const Json after = parse.add(before, Json::parse(added));
    return {name, parse, JsonObject(reply), before, line ? -1 : 0, after, line ? LogLines{*line} : LogLines()};
}

TEST_P(ParseTest, ReadsTheReply)
{
    const ParseRow& row = GetParam();
    LogRecorder logs;
    Json record = row.start;
    EXPECT_EQ(row.parse.run(row.reply, record), row.result);
    EXPECT_EQ(record, row.record);
    EXPECT_EQ(logs.Take(), row.lines);
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ParseTest);

}  // namespace family_testing

// Runs the program apicall against the emulator.
#include "support/Program.h"
#include "support/RawServer.h"
#include "support/Rows.h"

#include <apicall/Help.h>
#include <catalogue/Call.h>
#include <Contract.h>
#include <PlatformEmulator.h>

#include <APIModule.h>
#include <ErrorLexicon/ErrorLexicon.h>

#include <nlohmann/json.hpp>

#include <QCryptographicHash>
#include <QSslError>
#include <QTcpServer>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <memory>
#include <regex>
#include <sstream>

using nlohmann::json;
using testing_support::ProgramResult;
using testing_support::RowName;
using testing_support::RunProgram;

namespace {

constexpr const char* kToken = "token-that-must-not-be-printed";

using Words = std::vector<std::string>;

Words operator+(Words left, const Words& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

/// Runs apicall without a display.
ProgramResult Apicall(const Words& arguments, const QByteArray& input = {}, const char* tokenInEnvironment = nullptr)
{
    testing_support::Variables variables{{QStringLiteral("APICALL_TOKEN"), QString::fromLatin1(tokenInEnvironment)}};
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        variables[QString::fromLatin1(display)] = QString();
    }
    QStringList list;
    for (const std::string& argument : arguments) {
        list.append(QString::fromStdString(argument));
    }
    ProgramResult ended = RunProgram(QStringLiteral(APICALL_FILE), list, variables, input);
    EXPECT_FALSE(ended.crashed);
    return ended;
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

/// Runs apicall, expects success without any output on standard error, and returns the output.
std::string OutputOf(const Words& arguments)
{
    const ProgramResult ended = Apicall(arguments);
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.err, "");
    return ended.out;
}

/// Expects that a call failed with this line on standard error.
void ExpectFailed(const ProgramResult& ended, const std::string& line)
{
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.out, "");
    EXPECT_TRUE(Contains(ended.err, line + "\n")) << "expected: " << line << "\nin: " << ended.err;
}

std::string ErrorText(int code, const char* language = "en")
{
    std::string text;
    ErrorLexicon::SetLanguage(language);
    EXPECT_EQ(ErrorLexicon::ErrorLexiconQuery(code, text), 0) << code;
    return text;
}

// Wrong usage

struct UsageRow {
    const char* name;
    Words arguments;
    const char* text;
};

class WrongUsage : public testing::TestWithParam<UsageRow> {};

TEST_P(WrongUsage, IsReportedWithExitStatus2)
{
    const ProgramResult ended = Apicall(GetParam().arguments);
    EXPECT_EQ(ended.status, 2);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err.rfind("apicall: ", 0), 0U) << ended.err;
    EXPECT_TRUE(Contains(ended.err, GetParam().text)) << ended.err;
}

UsageRow Usage(const char* name, const Words& arguments, const char* text)
{
    return {name, arguments, text};
}

UsageRow Url(const char* name, const char* url, const char* text)
{
    return {name, {"--server", url, "BRMS.GetTimeSyncConfig"}, text};
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, WrongUsage,
    testing::Values(
        Usage("Nothing", {}, "no call given; run 'apicall --help' for usage"),
        Usage("UnknownOption", {"--serve", "http://127.0.0.1:1"}, "--serve"),
        Usage("UnknownCall", {"BRMS.GetNothing"},
              "unknown call \"BRMS.GetNothing\"; run 'apicall --list' for all calls"),
        Usage("MisspeltCall", {"brms.GetTimeSynkConfig"},
              "unknown call \"brms.GetTimeSynkConfig\"; did you mean \"BRMS.GetTimeSyncConfig\"?"),
        Usage("CallWithoutItsFamily", {"--help", "GetTimeSyncConfig"},
              "unknown call \"GetTimeSyncConfig\"; did you mean \"BRMS.GetTimeSyncConfig\"?"),
        Usage("MergeOfARead", {"--merge", "BRMS.GetTimeSyncConfig"},
              "--merge: BRMS.GetTimeSyncConfig has no matching read call"),
        Usage("MergeWithoutArgumentOfTheRead", {"--merge", "BRMS.UpdateNetworkConfig"},
              "BRMS.GetNetworkConfig, which runs first, requires \"config/deviceCode\" of BRMS.UpdateNetworkConfig"),
        Usage("NoServer", {"BRMS.GetTimeSyncConfig"}, "--server is missing"),
        Usage("ServerIdOutOfRange", {"--server-id", "2", "BRMS.GetTimeSyncConfig"}, "--server-id"),
        Usage("TimeoutOutOfRange", {"--timeout", "0", "BRMS.GetTimeSyncConfig"}, "--timeout"),
        Usage("TimeoutNotNumber", {"--timeout", "soon", "BRMS.GetTimeSyncConfig"}, "--timeout")),
    RowName());

INSTANTIATE_TEST_SUITE_P(Servers, WrongUsage,
                         testing::Values(Url("NotUrl", "http://[", "not a valid URL"),
                                         Url("NoScheme", "127.0.0.1:8443", "not a valid URL"),
                                         Url("HostOnly", "localhost", "must begin with https:// or http://"),
                                         Url("OtherScheme", "ftp://127.0.0.1", "must begin with https:// or http://"),
                                         Url("NoHost", "https://", "host is missing"),
                                         Url("Path", "https://127.0.0.1/brms", "only a host and a port"),
                                         Url("Query", "https://127.0.0.1?a=1", "only a host and a port"),
                                         Url("User", "https://ada@127.0.0.1", "only a host and a port"),
                                         Url("PortTooLarge", "https://127.0.0.1:65536", "not a valid URL")),
                         RowName());

UsageRow Trusting(const char* name, const char* option, const char* value, const char* text,
                  const char* server = "https://127.0.0.1:1")
{
    return {name, {"--server", server, option, value, "BRMS.GetTimeSyncConfig"}, text};
}

constexpr const char* kDigest = "00112233445566778899aabbccddeeff00112233445566778899AABBCCDDEEFF";

INSTANTIATE_TEST_SUITE_P(
    Trust, WrongUsage,
    testing::Values(
        Trusting("EmptyPin", "--pin", "", "--pin : a SHA-256 digest has 64 hexadecimal digits"),
        Trusting("ShortPin", "--pin", "00:11", "--pin 00:11: a SHA-256 digest has 64"),
        Trusting("PinWithInvalidDigit", "--pin", "g0112233445566778899aabbccddeeff00112233445566778899AABBCCDDEEFF",
                 "a SHA-256 digest"),
        Trusting("LongPin", "--pin", "0000112233445566778899aabbccddeeff00112233445566778899AABBCCDDEEFF",
                 "a SHA-256 digest"),
        Trusting("PinWithoutTls", "--pin", kDigest, "--pin and --ca require an https:// server", "http://127.0.0.1:1"),
        Trusting("NoSuchAuthorityFile", "--ca", "/no/such/file", "--ca /no/such/file: the file cannot be"),
        Trusting("FolderAsAuthorityFile", "--ca", "/", "--ca /: the file cannot be read"),
        Trusting("EmptyAuthorityFile", "--ca", "/dev/null", "--ca /dev/null: the file contains no PEM certificate"),
        Usage("PinWithoutValue", {"BRMS.GetTimeSyncConfig", "--pin"}, "--pin")),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Arguments, WrongUsage,
    testing::Values(
        Usage("Unknown", {"BRMS.GetTimeSyncConfig", "a=1"},
              "BRMS.GetTimeSyncConfig has no argument \"a\"; it takes no arguments"),
        Usage("Misspelt", {"BRMS.GetLocalSetting", "settingTyp=3"},
              "BRMS.GetLocalSetting has no argument \"settingTyp\"; did you mean \"settingType\"?"),
        Usage("UnknownPath", {"BRMS.SetTimeSyncConfig", "config/ntp=1"},
              "/config/ntp: no such field or element in TimeSyncConfig"),
        Usage("RecordAndItsField", {"BRMS.SetTimeSyncConfig", "config=5", "config/interval=3"},
              "\"config/interval\" is given twice"),
        Usage("FieldAndItsRecord", {"BRMS.SetTimeSyncConfig", "config/interval=3", "config={}"},
              "\"config\" is given twice"),
        Usage("PaddedIndex", {"BRMS.UpdateEncodeConfig", "configs/00/bitRate=1"},
              "/configs/00: no such field or element in list of EncodeConfig"),
        Usage("MergeOfAList", {"--merge", "BRMS.SetTimeSyncConfig", "@" LIST_FILE},
              "must be a JSON object with the argument names as keys"),
        Usage("NameAsIndex", {"BRMS.UpdateEncodeConfig", "configs/first/bitRate=1"},
              "/configs/first: no such field or element in list of EncodeConfig"),
        Usage("Missing", {"BRMS.UpdateLocalSetting", "apply=true"},
              "BRMS.UpdateLocalSetting requires the argument \"content\" (text)"),
        Usage("NoName", {"BRMS.GetLocalSetting", "3"}, "\"3\" is neither name=value nor a JSON object"),
        Usage("Twice", {"BRMS.GetLocalSetting", "settingType=3", "settingType=4"}, "\"settingType\" is given twice"),
        Usage("WrongType", {"BRMS.GetLocalSetting", "settingType=\"3\""}, "/settingType: expected int, got text"),
        Usage("NotJson", {"BRMS.GetLocalSetting", "settingType=three"},
              "argument \"settingType\" (int) is not valid JSON: syntax error at byte 2"),
        Usage("Empty", {"BRMS.GetLocalSetting", "settingType="}, "argument \"settingType\" (int) is not valid JSON"),
        Usage("UnknownField", {"BRMS.SetTimeSyncConfig", "config={\"ntp\": 1}"},
              "/config/ntp: TimeSyncConfig has no such field"),
        Usage("BrokenObject", {"BRMS.GetLocalSetting", "{\"settingType\": 3"}, "the argument is not valid JSON"),
        Usage("ObjectAndMore", {"BRMS.GetLocalSetting", "{\"settingType\": 3}", "settingType=3"},
              "a JSON object must be the only argument"),
        Usage("ListOnStandardInput", {"BRMS.GetLocalSetting", "-"}, "standard input is not valid JSON"),
        Usage("NoSuchFile", {"BRMS.GetLocalSetting", "@/no/such/file"}, "cannot open /no/such/file"),
        Usage("FolderAsFile", {"BRMS.GetLocalSetting", "@/"}, "cannot read /")),
    RowName());

// Help

TEST(Help, PrintsNothingButTheVersion)
{
    const std::string version = OutputOf({"--version"});
    EXPECT_TRUE(std::regex_match(version, std::regex("apicall [0-9]+\\.[0-9]+\\.[0-9]+\n"))) << version;
}

TEST(Help, ListStartsEachLineWithTheNameOfACall)
{
    std::istringstream lines(OutputOf({"--list"}));
    std::string line;
    std::size_t count = 0;
    static const std::regex form("([A-Z]+\\.[A-Za-z]+)  +[A-Z].*");
    while (std::getline(lines, line)) {
        std::smatch match;
        ASSERT_TRUE(std::regex_match(line, match, form)) << line;
        ASSERT_LT(count, catalogue::Calls().size()) << line;
        EXPECT_EQ(match[1], catalogue::Calls()[count].name);
        ++count;
    }
    EXPECT_EQ(count, catalogue::Calls().size());
}

TEST(Help, DescribesACallWithItsTypes)
{
    const std::string help = R"(BRMS.GetLocalSetting (System configuration)
Reads one client setting

Returns the data that the server stores for the client under one setting type.

GET /brms/api/v1.1/config/local/setting

Arguments:
  settingType: int. Kind of setting, a server-defined code such as 1.

Result: LocalSettingQueryResult
  apply: bool. The setting's apply flag.
  settingType: int. Kind of setting, as passed in the query.
  settingVersion: int64. Version of the stored content; increases by one with each update.
  settingContent: text. The setting itself, an opaque string that the server stores for the client.
)";
    EXPECT_EQ(Apicall({"--help", "BRMS.GetLocalSetting"}).out, help);
    EXPECT_EQ(Apicall({"BRMS.GetLocalSetting", "--help"}).out, help);
}

TEST(Help, DescribesTheSameKeyDifferentlyInEachObject)
{
    const ProgramResult ended = Apicall({"--help", "IPMS.GetSimpleParkingLots"});
    for (const char* line :
         {"\n  id: text. Identifier of the parking lot.\n", "\n    id: text. Identifier of the position.\n",
          "\n      id: text. Identifier of the point.\n"}) {
        EXPECT_TRUE(Contains(ended.out, line)) << ended.out;
    }
}

TEST(Help, DescribesTheFieldsOfAnArgument)
{
    const ProgramResult ended = Apicall({"--help", "BRMS.GetPageSummaryAlarmPlans"});
    EXPECT_TRUE(Contains(ended.out,
                         "\n    page: int. Page number, counted from 1; 0 also means the first page. [>= 0]\n"
                         "    pageSize: int. Number of plans per page.\n"
                         "    keyword: text. Part of the name, empty for all plans. The host percent-encodes it, "
                         "so R&D becomes R%26D.\n"))
        << ended.out;
}

TEST(Help, ListsNoAllowedValuesForBooleans)
{
    const ProgramResult ended = Apicall({"--help", "BRMS.UpdateAIPrivacyConfig"});
    EXPECT_TRUE(Contains(ended.out, "\nPUT /brms/api/v1.1/config/ai/privacy\n")) << ended.out;
    EXPECT_TRUE(Contains(ended.out, ": bool")) << ended.out;
    EXPECT_FALSE(Contains(ended.out, "[")) << ended.out;
}

TEST(Help, ReportsThatACallHasNoArgumentsAndNoResult)
{
    const std::string help = OutputOf({"--help", "BRMS.ImmediatelySyncTime"});
    EXPECT_TRUE(Contains(help, "Arguments: none\n")) << help;
    EXPECT_TRUE(Contains(help, "Result: none\n")) << help;
}

TEST(Help, DescribesEveryCall)
{
    const auto contract = emulator::Contract::Load(emulator::DefaultShareFolder() / "contract");
    for (const auto& call : catalogue::Calls()) {
        const emulator::Operation& operation = contract.operation(call.name);
        const std::string help = apicall::HelpFor(call, &operation);
        EXPECT_EQ(help.rfind(call.name, 0), 0U) << help;
        EXPECT_TRUE(Contains(help, "\n\n" + operation.method + " " + operation.path + "\n\nArguments:")) << help;
    }
}

TEST(Help, NamesListsCallsOrTheArgumentsOfACall)
{
    const std::string calls = Apicall({"--names"}).out;
    EXPECT_EQ(calls.rfind(catalogue::Calls().front().name + "\n", 0), 0U) << calls;
    EXPECT_EQ(std::size_t(std::count(calls.begin(), calls.end(), '\n')), catalogue::Calls().size());
    EXPECT_EQ(Apicall({"--names", "BRMS.UpdateEncodeConfig"}).out, "channelId\nconfigs\n");
    EXPECT_EQ(Apicall({"--names", "BRMS.GetTimeSyncConfig"}).out, "");
}

struct CompletionRow {
    const char* name;
    const char* words;  ///< after the program's name; the last word is completed
    const char* completions;
};

class Completion : public testing::TestWithParam<CompletionRow> {};

INSTANTIATE_TEST_SUITE_P(Bash, Completion,
                         testing::Values(CompletionRow{"Call", "BRMS.GetTimeS", "BRMS.GetTimeSyncConfig"},
                                         CompletionRow{"CallAfterAnOption", "--timeout 1.5 --quiet IAMS.",
                                                       "IAMS.SetAnalysisTaskUploadFailed"},
                                         CompletionRow{"Argument", "BRMS.UpdateEncodeConfig con", "configs="},
                                         CompletionRow{"SecondArgument", "BRMS.UpdateEncodeConfig configs=[] chan",
                                                       "channelId="},
                                         CompletionRow{"Option", "--mer", "--merge"},
                                         CompletionRow{"NothingForAnUnknownCall", "BRMS.GetNothing a", ""}),
                         RowName());

TEST_P(Completion, CompletesInBash)
{
    const QString script =
        QStringLiteral("source '" COMPLETIONS_FOLDER "/apicall.bash'; words='%1'; COMP_WORDS=('" APICALL_FILE
                       "' $words); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _apicall '" APICALL_FILE
                       "'; echo -n \"${COMPREPLY[@]}\"")
            .arg(QString::fromLatin1(GetParam().words));
    const ProgramResult ended = RunProgram(QStringLiteral("bash"), {QStringLiteral("-c"), script});
    EXPECT_EQ(ended.out, GetParam().completions) << ended.err;
}

TEST(Help, PrintsItsOptionsButNotTheToken)
{
    const ProgramResult ended = Apicall({"--help"}, {}, kToken);
    EXPECT_EQ(ended.status, 0);
    EXPECT_TRUE(Contains(ended.out, "--server")) << ended.out;
    EXPECT_FALSE(Contains(ended.out, kToken));
}

// Calls

struct SchemeRow {
    const char* name;
    bool https;
};

/// The tests of a scheme share an emulator, which is reset before each test.
class Calls : public testing::TestWithParam<SchemeRow> {
protected:
    static void SetUpTestSuite()
    {
        emulator::Options options;
        options.token = kToken;
        s_platform = std::make_unique<emulator::PlatformEmulator>(options);
        s_platform->start();
    }
    static void TearDownTestSuite() { s_platform.reset(); }

    Calls()
    {
        Platform().reset();
        Platform().clearRequests();
        Platform().clearFaults();
    }

    ProgramResult Run(const Words& arguments, const QByteArray& input = {})
    {
        ProgramResult ended = Apicall(Server() + Words{"--token", kToken} + arguments, input);
        EXPECT_FALSE(Contains(ended.out, kToken)) << ended.out;
        EXPECT_FALSE(Contains(ended.err, kToken)) << ended.err;
        return ended;
    }

    /// Runs a call, expects it to succeed and returns its result.
    json ResultOf(const Words& arguments, const QByteArray& input = {})
    {
        const ProgramResult ended = Run(arguments, input);
        EXPECT_EQ(ended.status, 0) << ended.err;
        return json::parse(ended.out, nullptr, false);
    }

    void ExpectFailure(const Words& arguments, int code, const std::string& text)
    {
        ExpectFailed(Run(arguments),
                     "apicall: " + arguments.back() + " failed with " + std::to_string(code) + ": " + text);
    }

    [[nodiscard]] Words Server() const
    {
        return {"--server", GetParam().https ? "https://127.0.0.1:" + std::to_string(Platform().httpsPort())
                                             : "http://127.0.0.1:" + std::to_string(Platform().httpPort())};
    }

    static emulator::PlatformEmulator& Platform() { return *s_platform; }

    void AddFault(json fault)
    {
        fault["path"] = "/brms";
        Platform().addFault(emulator::Fault::FromJson(fault));
    }

private:
    static inline std::unique_ptr<emulator::PlatformEmulator> s_platform;
};

INSTANTIATE_TEST_SUITE_P(Schemes, Calls, testing::Values(SchemeRow{"Http", false}, SchemeRow{"Https", true}),
                         RowName());

Words GetTimeSync()
{
    return {"BRMS.GetTimeSyncConfig"};
}

TEST_P(Calls, PrintsARecordAsIndentedJson)
{
    const ProgramResult ended = Run(GetTimeSync());
    EXPECT_EQ(ended.status, 0) << ended.err;
    EXPECT_EQ(ended.out, Platform().state().at("brms").at("timeSync").dump(4) + "\n");
}

TEST_P(Calls, ReadsBackWhatItWrote)
{
    const json config = {{"enable", false},
                         {"startTime", "03:15:00 \xc3\xbc"},
                         {"interval", -7},
                         {"enableNtp", true},
                         {"deviceOnlineTimeSync", true},
                         {"ntpIp", "10.0.0.1"},
                         {"ntpPort", 1},
                         {"ntpSyncInterval", 90}};
    EXPECT_EQ(ResultOf({"BRMS.SetTimeSyncConfig", "config=" + config.dump()}), json());
    EXPECT_EQ(ResultOf(GetTimeSync()), config);
}

TEST_P(Calls, PrintsSimpleValuesAndLists)
{
    EXPECT_EQ(ResultOf({"BRMS.GetDeviceLoginModel"}), json(1));
    EXPECT_EQ(ResultOf({"BRMS.GetPushAppMsgConfig"}), json(false));
    EXPECT_EQ(ResultOf({"BRMS.GetSupportDataBaseType"}), (json{1, 3, 4}));
}

TEST_P(Calls, PrintsNullForACallWithoutResult)
{
    const ProgramResult ended = Run({"BRMS.ImmediatelySyncTime"});
    EXPECT_EQ(ended.status, 0) << ended.err;
    EXPECT_EQ(ended.out, "null\n");
    ASSERT_EQ(Platform().requests().size(), 1U);
    EXPECT_EQ(Platform().requests().back().method, "POST");
}

TEST_P(Calls, AcceptsArgumentsInEveryForm)
{
    const json setting = ResultOf({"BRMS.GetLocalSetting", "settingType=1"});
    EXPECT_EQ(setting.at("settingType"), 1);
    EXPECT_EQ(ResultOf({"BRMS.GetLocalSetting", R"({"settingType": 1})"}), setting);
    EXPECT_EQ(ResultOf({"BRMS.GetLocalSetting", "-"}, R"({"settingType": 1})"), setting);

    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(R"({"settingType": 1})");
    file.close();
    EXPECT_EQ(ResultOf({"BRMS.GetLocalSetting", "@" + file.fileName().toStdString()}), setting);
}

TEST_P(Calls, PassesATextUnchanged)
{
    ResultOf({"BRMS.UpdateLocalSetting", "apply=true", "content={\"a\": [\"=\", 1]} \xc3\xa4"});
    EXPECT_EQ(json::parse(Platform().requests().back().body),
              (json{{"apply", "1"}, {"settingContent", "{\"a\": [\"=\", 1]} \xc3\xa4"}}));
}

TEST_P(Calls, EveryServerIdLeadsToTheSameServer)
{
    for (const char* serverId : {"-1", "0", "1"}) {
        EXPECT_TRUE(ResultOf({"--server-id", serverId, "BRMS.GetTimeSyncConfig"}).is_object()) << serverId;
    }
}

TEST_P(Calls, SendsTokenAndLanguageInTheirHeaders)
{
    ResultOf({"--language", "de", "BRMS.GetTimeSyncConfig"});
    ASSERT_EQ(Platform().requests().size(), 1U);
    EXPECT_EQ(Platform().requests().back().header("X-Subject-Token"), kToken);
    EXPECT_EQ(Platform().requests().back().header("Accept-Language"), "de");
}

TEST_P(Calls, ReadsTheTokenFromTheEnvironment)
{
    const ProgramResult ended = Apicall(Server() + GetTimeSync(), {}, kToken);
    EXPECT_EQ(ended.status, 0) << ended.err;
    EXPECT_FALSE(Contains(ended.err, kToken));
}

TEST_P(Calls, FailsWithAWrongToken)
{
    ExpectFailed(Apicall(Server() + Words{"--token", "wrong"} + GetTimeSync()),
                 "apicall: BRMS.GetTimeSyncConfig failed with 7000: " + ErrorText(7000));
}

TEST_P(Calls, ReportsHttpsToAPortOfPlainHttp)
{
    const int port = GetParam().https ? Platform().httpsPort() : Platform().httpPort();
    const std::string server = "https://127.0.0.1:" + std::to_string(port);
    const ProgramResult ended =
        Apicall(Words{"--server", server} + Words{"--token", kToken, "--quiet"} + GetTimeSync());
    EXPECT_EQ(ended.status, GetParam().https ? 0 : 1);
    const std::string lines = "apicall: BRMS.GetTimeSyncConfig failed with -18: " + ErrorText(-18) +
                              "\napicall: the server does not use TLS on this port; is it the port for http://?\n";
    EXPECT_EQ(Contains(ended.err, lines), !GetParam().https) << ended.err;
}

TEST_P(Calls, FailsWithTheTextOfAnEnvelopeCode)
{
    AddFault({{"kind", "envelope"}, {"code", 1003}});
    ExpectFailure(GetTimeSync(), 1003, ErrorText(1003));
}

TEST_P(Calls, QuotesTheServersTextWithoutTheToken)
{
    AddFault({{"kind", "envelope"}, {"code", 1003}, {"desc", std::string("Not \x1b[31mnow, ") + kToken}});
    ExpectFailure(GetTimeSync(), 1003, ErrorText(1003) + R"(
apicall: the server reports "Not \u001b[31mnow, ******")");
}

TEST_P(Calls, FailsWithAnUnknownEnvelopeCode)
{
    AddFault({{"kind", "envelope"}, {"code", 987654}});
    ExpectFailure(GetTimeSync(), 987654, "Operation failed (987654)");
}

TEST_P(Calls, FailsWithEnvelopeCode0)
{
    AddFault({{"kind", "envelope"}, {"code", 0}});
    ExpectFailure(GetTimeSync(), 0, "Operation failed (0)");
}

TEST_P(Calls, FailsWithTheTextOfAnHttpStatus)
{
    AddFault({{"kind", "status"}, {"status", 503}});
    ExpectFailure(GetTimeSync(), 503, ErrorText(503));
}

TEST_P(Calls, FailsWhenDataCannotBeRead)
{
    AddFault({{"kind", "text"}, {"body", R"({"code": 1000, "desc": "", "data": {"enable": true}})"}});
    ExpectFailure(GetTimeSync(), 3101, ErrorText(3101) + "\napicall: the reply has no valid value for \"startTime\"");
}

TEST_P(Calls, QuietWritesLogLinesOnlyWhenACallFails)
{
    const ProgramResult succeeded = Run({"--quiet", "BRMS.GetTimeSyncConfig"});
    EXPECT_EQ(succeeded.status, 0);
    EXPECT_EQ(succeeded.err, "");
    EXPECT_NE(succeeded.out, "");
    AddFault({{"kind", "status"}, {"status", 503}});
    const ProgramResult failed = Run({"--quiet", "BRMS.GetTimeSyncConfig"});
    EXPECT_EQ(failed.status, 1);
    EXPECT_TRUE(Contains(failed.err, "Request failed, http status Code: 503")) << failed.err;
    EXPECT_TRUE(Contains(failed.err, "apicall: BRMS.GetTimeSyncConfig failed with 503")) << failed.err;
}

TEST_P(Calls, VerboseWritesTheExchange)
{
    const ProgramResult ended = Run({"--verbose", "--quiet", "BRMS.GetTimeSyncConfig"});
    EXPECT_EQ(ended.status, 0);
    const std::string scheme = GetParam().https ? "https" : "http";
    EXPECT_EQ(ended.err.rfind("> GET " + scheme + "://127.0.0.1:", 0), 0U) << ended.err;
    for (const char* part :
         {"\n> X-Subject-Token: ******\n", "\n< 200\n", "\n<\n< {\"code\":1000", "\n* first byte after "}) {
        EXPECT_TRUE(Contains(ended.err, part)) << part << " in " << ended.err;
    }
}

TEST_P(Calls, VerboseWritesWhyNoReplyArrived)
{
    AddFault({{"kind", "closeBefore"}, {"times", 0}});
    const ProgramResult ended = Run({"--verbose", "--quiet", "BRMS.GetTimeSyncConfig"});
    EXPECT_EQ(ended.status, 1);
    EXPECT_TRUE(std::regex_search(ended.err, std::regex("\n\\* [A-Z]"))) << ended.err;
    EXPECT_FALSE(Contains(ended.err, "\n< ")) << ended.err;
}

TEST_P(Calls, DryRunPrintsTheRequestAndSendsNothing)
{
    const ProgramResult ended = Run({"--dry-run", "--quiet", "BRMS.SetDeviceLoginModel", "model=2"});
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.out.rfind("PUT http", 0), 0U) << ended.out;
    EXPECT_TRUE(Contains(ended.out, "\nX-Subject-Token: ******\n")) << ended.out;
    EXPECT_TRUE(Contains(ended.out, "\n\n{\"deviceLoginModel\":\"2\"}\n")) << ended.out;
    EXPECT_TRUE(Platform().requests().empty());
}

TEST_P(Calls, SetsFieldsOfARecordByPath)
{
    EXPECT_EQ(ResultOf({"BRMS.SetTimeSyncConfig", "config/interval=30", "config/ntpIp=a=b"}), json());
    const json config = ResultOf(GetTimeSync());
    EXPECT_EQ(config.at("interval"), 30);
    EXPECT_EQ(config.at("ntpIp"), "a=b");
    EXPECT_EQ(config.at("startTime"), "");
}

TEST_P(Calls, MergeKeepsFieldsThatAreNotNamed)
{
    json expected = ResultOf(GetTimeSync());
    ASSERT_NE(expected.at("interval"), 30);
    expected["interval"] = 30;
    EXPECT_EQ(ResultOf({"--merge", "BRMS.SetTimeSyncConfig", "config/interval=30"}), json());
    EXPECT_EQ(ResultOf(GetTimeSync()), expected);
    expected["ntpPort"] = 99;
    EXPECT_EQ(ResultOf({"--merge", "BRMS.SetTimeSyncConfig", R"({"config": {"ntpPort": 99}})"}), json());
    EXPECT_EQ(ResultOf(GetTimeSync()), expected);
}

TEST_P(Calls, MergeChangesOneElementOfAList)
{
    const Words read = {"BRMS.GetEncodeConfig", "channelId=1000021$1$0$0"};
    json expected = ResultOf(read);
    ASSERT_GE(expected.size(), 2U);
    expected[1]["bitRate"] = 777;
    EXPECT_EQ(ResultOf({"--merge", "BRMS.UpdateEncodeConfig", "channelId=1000021$1$0$0", "configs/1/bitRate=777"}),
              json());
    EXPECT_EQ(ResultOf(read), expected);
}

TEST_P(Calls, MergeTakesTheFieldsFromARecordOfAnotherType)
{
    const json group = ResultOf({"BRMS.GetUserGroupList", "keyword="}).at(0);
    const std::string id = "groupId=" + group.at("id").get<std::string>();
    EXPECT_EQ(ResultOf({"--merge", "BRMS.UpdateUserGroup", id, "group/memo=new"}), json());
    json expected = group;
    expected["memo"] = "new";
    EXPECT_EQ(ResultOf({"BRMS.GetUserGroup", id}), expected);
}

TEST_P(Calls, MergeWritesNothingWhenTheReadFails)
{
    AddFault({{"kind", "status"}, {"status", 404}});
    const ProgramResult ended = Run({"--merge", "BRMS.SetTimeSyncConfig", "config/interval=30"});
    EXPECT_EQ(ended.status, 1);
    EXPECT_TRUE(Contains(ended.err, "apicall: BRMS.GetTimeSyncConfig failed with 404")) << ended.err;
    EXPECT_EQ(Platform().requests().size(), 1U);
}

TEST_P(Calls, TimesOutWithoutReply)
{
    AddFault({{"kind", "silent"}});
    ExpectFailure({"--timeout", "1", "BRMS.GetTimeSyncConfig"}, -101, ErrorText(-101));
}

TEST_P(Calls, ReportsErrorsInTheChosenLanguage)
{
    AddFault({{"kind", "closeBefore"}, {"times", 0}});
    const std::string german = ErrorText(-18, "de");
    EXPECT_NE(german, ErrorText(-18));
    ExpectFailure({"--language", "de", "BRMS.GetTimeSyncConfig"}, -18, german);
}

TEST(Unreachable, FailsWithTheTextOfANetworkError)
{
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
    const std::string server = "127.0.0.1:" + std::to_string(closed.serverPort());
    closed.close();
    for (const char* scheme : {"http://", "https://"}) {
        ExpectFailed(Apicall({"--server", scheme + server, "BRMS.GetTimeSyncConfig"}),
                     "failed with -18: " + ErrorText(-18));
    }
}

// Which servers apicall trusts

class Trust : public testing::Test {
protected:
    Trust()
        : m_certificate(testing_support::MakeCertificate({"127.0.0.1"})),
          m_server([](const testing_support::RawRequest&) { return testing_support::HttpReply(200, kReply); },
                   testing_support::ServerConfiguration(m_certificate))
    {
        m_server.ReplyToAnything();
    }

    [[nodiscard]] QSslCertificate ServerCertificate() const { return m_certificate.certificate; }

    static QByteArray Digest(const QByteArray& bytes)
    {
        return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
    }

    [[nodiscard]] ProgramResult Run(const Words& options) const
    {
        return Apicall(Words{"--server", "https://127.0.0.1:" + std::to_string(m_server.Port())} + options +
                       Words{"--token", kToken, "BRMS.GetDeviceLoginModel"});
    }

    void ExpectTrusted(const Words& options)
    {
        const ProgramResult ended = Run(options);
        EXPECT_EQ(ended.status, 0) << ended.err;
        EXPECT_EQ(ended.out, "1\n");
        EXPECT_FALSE(m_server.TakeRequests().empty());
    }

    void ExpectNotTrusted(const Words& options, const QString& reason)
    {
        const ProgramResult ended = Run(options);
        ExpectFailed(ended, "BRMS.GetDeviceLoginModel failed with -18: " + ErrorText(-18));
        const QString line =
            QStringLiteral("the server is not known, host: 127.0.0.1, port: %1, reason: %2, SHA-256 of "
                           "its certificate: %3")
                .arg(QString::number(m_server.Port()), reason,
                     QString::fromLatin1(Digest(ServerCertificate().toDer()).toHex(':')));
        EXPECT_TRUE(Contains(ended.err, line.toStdString()))
            << "expected: " << line.toStdString() << " in: " << ended.err;
        EXPECT_FALSE(Contains(ended.err, kToken)) << ended.err;
        EXPECT_TRUE(m_server.TakeRequests().empty()) << "nothing is sent to a server that is not trusted";
    }

    /// Writes these certificates to a PEM file and returns its name.
    static std::string FileWith(QTemporaryFile& file, const QList<QSslCertificate>& certificates)
    {
        EXPECT_TRUE(file.open());
        for (const QSslCertificate& certificate : certificates) {
            file.write(certificate.toPem());
        }
        file.close();
        return file.fileName().toStdString();
    }

private:
    static constexpr const char* kReply = R"({"code": 1000, "desc": "", "data": {"deviceLoginModel": 1}})";

    const testing_support::Certificate m_certificate;
    testing_support::RawServer m_server;
};

Words Pin(const QByteArray& digest)
{
    return {"--pin", digest.toStdString()};
}

TEST_F(Trust, AcceptsThePinOfTheCertificateOrOfItsKey)
{
    const QByteArray certificate = Digest(ServerCertificate().toDer()).toHex();
    const QByteArray key = Digest(ServerCertificate().publicKey().toDer()).toHex(':');
    ExpectTrusted(Pin(certificate));
    ExpectTrusted(Pin(certificate.toUpper()));
    ExpectTrusted(Pin(key));
    ExpectTrusted(Pin(key.toUpper()));
}

TEST_F(Trust, AcceptsOneOfSeveralPins)
{
    ExpectTrusted(Pin(kDigest) + Pin(Digest(ServerCertificate().toDer()).toHex()));
}

TEST_F(Trust, RejectsAnotherPinAndPrintsTheDigest)
{
    ExpectNotTrusted(Pin(kDigest), QStringLiteral("another certificate is pinned"));
}

TEST_F(Trust, AcceptsTheAuthorityThatSigned)
{
    QTemporaryFile one;
    ExpectTrusted({"--ca", FileWith(one, {ServerCertificate()})});
    QTemporaryFile several;
    ExpectTrusted({"--ca", FileWith(several, {testing_support::MakeCertificate({"other.example"}).certificate,
                                              ServerCertificate()})});
    QTemporaryFile other;
    ExpectTrusted({"--ca", FileWith(other, {testing_support::MakeCertificate({"other.example"}).certificate}), "--ca",
                   one.fileName().toStdString()});
}

TEST_F(Trust, RejectsAnAuthorityThatDidNotSign)
{
    QTemporaryFile file;
    ExpectNotTrusted({"--ca", FileWith(file, {testing_support::MakeCertificate({"other.example"}).certificate})},
                     QSslError(QSslError::SelfSignedCertificate).errorString());
}

TEST_F(Trust, PinTakesPrecedenceOverAuthority)
{
    QTemporaryFile own;
    const Words signer{"--ca", FileWith(own, {ServerCertificate()})};
    ExpectNotTrusted(signer + Pin(kDigest), QStringLiteral("another certificate is pinned"));
    QTemporaryFile other;
    ExpectTrusted(Words{"--ca", FileWith(other, {testing_support::MakeCertificate({"other.example"}).certificate})} +
                  Pin(Digest(ServerCertificate().toDer()).toHex()));
}

TEST(Ipv6, AcceptsAnAddressInBrackets)
{
    emulator::Options options;
    options.address = "::1";
    emulator::PlatformEmulator platform(options);
    try {
        platform.start();
    } catch (const std::runtime_error& error) {
        GTEST_SKIP() << "this machine has no IPv6: " << error.what();
    }
    const ProgramResult ended = Apicall({"--server", "http://[::1]:" + std::to_string(platform.httpPort()), "--token",
                                         emulator::kDefaultToken, "BRMS.GetDeviceLoginModel"});
    EXPECT_EQ(ended.status, 0) << ended.err;
    EXPECT_EQ(ended.out, "1\n");
}

}  // namespace

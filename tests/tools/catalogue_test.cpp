// Types, values and calls of the catalogue, tested with this file's records and functions and with the library's.
#include "support/ErrorOf.h"
#include "support/Host.h"
#include "support/Rows.h"

#include <catalogue/detail/Entry.h>
#include <catalogue/Run.h>

#include <APIModule.h>

#include <nlohmann/json.hpp>

#include <QTest>

#include <set>

using namespace testing_support;
using APIModule::CallEnd;
using APIModule::CAPIModule;
using APIModule::int64;
using catalogue::Mismatch;
using catalogue::Value;
using catalogue::detail::Entry;
using catalogue::detail::TypeOf;
using nlohmann::json;

namespace APIModule {

struct Wheel {
    int inches = 26;
    std::vector<int> spokes;
};
BOOST_DESCRIBE_STRUCT(Wheel, (), (inches, spokes))

struct Bicycle {
    bool electric = true;
    int gears = 3;
    int64 serial = 0;
    double weight = 12.5;
    std::string colour;
    std::vector<Wheel> wheels;
    std::vector<std::string> owners;
};
BOOST_DESCRIBE_STRUCT(Bicycle, (), (electric, gears, serial, weight, colour, wheels, owners))

/// A family whose Packs take arguments in every form that occurs, and record what they receive.
class CTESTModule {
public:
    static int PacketByReference(void* pReqParamData, bool& flag, Bicycle& bicycle, int number, int nServerId)
    {
        received = {{"flag", flag}, {"colour", bicycle.colour}, {"number", number}, {"serverId", nServerId}};
        flag = !flag;
        return Send(pReqParamData, nServerId);
    }

    static int PackeByValue(void* pReqParamData, std::vector<std::string> names, int nServerId)
    {
        received = {{"names", names}, {"serverId", nServerId}};
        names.clear();
        return Send(pReqParamData, nServerId);
    }

    static int PackWithoutServer(void* pReqParamData, const std::vector<std::string>& names)
    {
        received = {{"names", names}};
        return Send(pReqParamData, 1);
    }

    static int PacketFails(void* /*pReqParamData*/, int /*nServerId*/) { return -1; }

    /// Reads the gears, then the colour; each may be missing.
    static int ParesBicycle(const QJsonObject& data, Bicycle& bicycle)
    {
        bicycle.gears = data.value(QStringLiteral("gears")).toInt();
        if (!data.contains(QStringLiteral("colour"))) {
            return -1;
        }
        bicycle.colour = data.value(QStringLiteral("colour")).toString().toStdString();
        return 0;
    }

    static inline json received;

private:
    static int Send(void* pReqParamData, int nServerId)
    {
        return CAPIModule::GetInstance().GetRequestParam(pReqParamData, Method_Get, QStringLiteral("/bicycle"),
                                                         nServerId, {}, {}, 5, false);
    }
};

namespace TEST {

inline constexpr Call<&CTESTModule::PacketByReference, &CTESTModule::ParesBicycle> TakeReferences;
inline constexpr Call<&CTESTModule::PackeByValue> TakeValues;
inline constexpr Call<&CTESTModule::PackWithoutServer> TakeNoServer;
inline constexpr Call<&CTESTModule::PackWithoutServer, &CTESTModule::ParesBicycle> ReadBicycle;
inline constexpr Call<&CTESTModule::PacketFails> Fail;

}  // namespace TEST

}  // namespace APIModule

namespace {

using APIModule::Bicycle;
using TestModule = APIModule::CTESTModule;
namespace TEST = APIModule::TEST;

json Parsed(const char* text)
{
    return json::parse(text);
}

TEST(Types, HaveReadableNames)
{
    EXPECT_EQ(NameOf(TypeOf<bool>()), "bool");
    EXPECT_EQ(NameOf(TypeOf<int>()), "int");
    EXPECT_EQ(NameOf(TypeOf<int64>()), "int64");
    EXPECT_EQ(NameOf(TypeOf<double>()), "double");
    EXPECT_EQ(NameOf(TypeOf<std::string>()), "text");
    EXPECT_EQ(NameOf(TypeOf<Bicycle>()), "Bicycle");
    EXPECT_EQ(NameOf(TypeOf<std::vector<Bicycle>>()), "list of Bicycle");
    EXPECT_EQ(NameOf(TypeOf<std::vector<std::vector<int>>>()), "list of list of int");
}

TEST(Types, HaveOneObjectEach)
{
    const auto& type = TypeOf<Bicycle>();
    EXPECT_EQ(type.FindField("wheels")->type->element, &TypeOf<APIModule::Wheel>());
    EXPECT_EQ(type.FindField("owners")->type, &TypeOf<std::vector<std::string>>());
    EXPECT_EQ(type.FindField("bell"), nullptr);
}

TEST(Types, ListFieldsInDeclarationOrder)
{
    std::vector<std::string_view> names;
    for (const auto& field : TypeOf<Bicycle>().fields) {
        names.push_back(field.name);
    }
    EXPECT_EQ(names,
              (std::vector<std::string_view>{"electric", "gears", "serial", "weight", "colour", "wheels", "owners"}));
}

TEST(Values, NewRecordHasItsDefaults)
{
    EXPECT_EQ(Value(TypeOf<Bicycle>()).ToJson(),
              Parsed(R"({"electric": true, "gears": 3, "serial": 0, "weight": 12.5, "colour": "", "wheels": [],
                         "owners": []})"));
}

TEST(Values, ConvertToTheTypedRecordAndBack)
{
    const json bicycle = Parsed(R"({"electric": false, "gears": -2147483648, "serial": 9223372036854775807,
                                    "weight": -0.25, "colour": "grün \u0000 \"x\"",
                                    "wheels": [{"inches": 28, "spokes": [36, 0]}, {"inches": 1, "spokes": []}],
                                    "owners": ["", "Ada"]})");
    Value value(TypeOf<Bicycle>());
    value.Assign(bicycle, "");

    const auto& typed = *static_cast<Bicycle*>(value.Data());
    EXPECT_FALSE(typed.electric);
    EXPECT_EQ(typed.gears, -2147483647 - 1);
    EXPECT_EQ(typed.serial, 9223372036854775807LL);
    EXPECT_EQ(typed.weight, -0.25);
    EXPECT_EQ(typed.colour, std::string("grün \0 \"x\"", 11));
    ASSERT_EQ(typed.wheels.size(), 2U);
    EXPECT_EQ(typed.wheels[0].spokes, (std::vector<int>{36, 0}));
    EXPECT_EQ(typed.owners, (std::vector<std::string>{"", "Ada"}));
    EXPECT_EQ(value.ToJson(), bicycle);
}

TEST(Values, OmittedFieldsGetTheirDefaults)
{
    Value value(TypeOf<Bicycle>());
    value.Assign(Parsed(R"({"gears": 7, "wheels": [{}], "owners": ["Ada"]})"), "");
    value.Assign(Parsed(R"({"colour": "red", "wheels": [{"spokes": [1]}]})"), "");
    EXPECT_EQ(value.ToJson(), Parsed(R"({"electric": true, "gears": 3, "serial": 0, "weight": 12.5, "colour": "red",
                         "wheels": [{"inches": 26, "spokes": [1]}], "owners": []})"));
}

TEST(Values, IntegerConvertsToDouble)
{
    Value value(TypeOf<double>());
    value.Assign(3, "");
    EXPECT_EQ(*static_cast<double*>(value.Data()), 3.0);
}

TEST(Values, TextWithInvalidUtf8CanBePrinted)
{
    Value value(TypeOf<std::string>());
    *static_cast<std::string*>(value.Data()) = "a\xff";
    EXPECT_EQ(value.ToJson().dump(-1, ' ', false, json::error_handler_t::replace), "\"a\xef\xbf\xbd\"");
}

TEST(Values, RejectedValueChangesNothing)
{
    Value value(TypeOf<Bicycle>());
    value.Assign(Parsed(R"({"gears": 7})"), "");
    EXPECT_THROW(value.Assign(Parsed(R"({"gears": 8, "colour": 1})"), ""), Mismatch);
    EXPECT_EQ(static_cast<Bicycle*>(value.Data())->gears, 7);
}

struct MismatchRow {
    const char* name;
    const char* json;
    const char* text;
};

class Mismatches : public testing::TestWithParam<MismatchRow> {};

TEST_P(Mismatches, ReportProblemAndPath)
{
    Value value(TypeOf<Bicycle>());
    EXPECT_EQ(ErrorOf<Mismatch>([&] { value.Assign(Parsed(GetParam().json), "/bicycle"); }), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Mismatches,
    testing::Values(
        MismatchRow{"RecordFromList", "[]", "/bicycle: expected Bicycle, got list"},
        MismatchRow{"RecordFromNull", "null", "/bicycle: expected Bicycle, got null"},
        MismatchRow{"BoolFromInteger", R"({"electric": 1})", "/bicycle/electric: expected bool, got integer"},
        MismatchRow{"BoolFromText", R"({"electric": "true"})", "/bicycle/electric: expected bool, got text"},
        MismatchRow{"IntFromText", R"({"gears": "7"})", "/bicycle/gears: expected int, got text"},
        MismatchRow{"IntFromFraction", R"({"gears": 7.0})",
                    "/bicycle/gears: expected int, got number that is not a 64-bit integer"},
        MismatchRow{"IntFromBool", R"({"gears": true})", "/bicycle/gears: expected int, got bool"},
        MismatchRow{"IntTooLarge", R"({"gears": 2147483648})", "/bicycle/gears: 2147483648 is out of range for int"},
        MismatchRow{"IntTooSmall", R"({"gears": -2147483649})", "/bicycle/gears: -2147483649 is out of range for int"},
        MismatchRow{"Int64TooLarge", R"({"serial": 9223372036854775808})",
                    "/bicycle/serial: 9223372036854775808 is out of range for int64"},
        MismatchRow{"Int64FarTooLarge", R"({"serial": 99999999999999999999})",
                    "/bicycle/serial: expected int64, got number that is not a 64-bit integer"},
        MismatchRow{"DoubleFromText", R"({"weight": "1.5"})", "/bicycle/weight: expected double, got text"},
        MismatchRow{"TextFromNumber", R"({"colour": 5})", "/bicycle/colour: expected text, got integer"},
        MismatchRow{"TextFromNull", R"({"colour": null})", "/bicycle/colour: expected text, got null"},
        MismatchRow{"ListFromObject", R"({"wheels": {}})", "/bicycle/wheels: expected list of Wheel, got object"},
        MismatchRow{"ElementOfList", R"({"owners": ["Ada", 2]})", "/bicycle/owners/1: expected text, got integer"},
        MismatchRow{"FieldOfAnElement", R"({"wheels": [{}, {"spokes": [1, "2"]}]})",
                    "/bicycle/wheels/1/spokes/1: expected int, got text"},
        MismatchRow{"UnknownField", R"({"bell": 1})", "/bicycle/bell: Bicycle has no such field"},
        MismatchRow{"UnknownFieldOfAnElement", R"({"wheels": [{"a/b": 1}]})",
                    "/bicycle/wheels/0/a~1b: Wheel has no such field"}),
    RowName());

class Arguments : public testing::TestWithParam<MismatchRow> {};

TEST_P(Arguments, AreRejectedWithAReason)
{
    const auto call = Entry<TEST::TakeReferences>("Takes references", "flag", "bicycle", "number");
    EXPECT_EQ(ErrorOf<Mismatch>([&] { catalogue::ReadArguments(call, Parsed(GetParam().json)); }), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Arguments,
    testing::Values(
        MismatchRow{"NotObject", "[true]",
                    "the arguments of TEST.TakeReferences must be a JSON object with the argument names as "
                    "keys"},
        MismatchRow{"Unknown", R"({"flag": true, "colour": "red"})",
                    "TEST.TakeReferences has no argument \"colour\"; its arguments are: flag, bicycle, number"},
        MismatchRow{"Missing", R"({"flag": true, "number": 1})",
                    "TEST.TakeReferences requires the argument \"bicycle\" (Bicycle)"},
        MismatchRow{"WrongType", R"({"flag": 1, "bicycle": {}, "number": 1})", "/flag: expected bool, got integer"},
        MismatchRow{"WrongTypeWithin", R"({"flag": true, "bicycle": {"gears": ""}, "number": 1})",
                    "/bicycle/gears: expected int, got text"}),
    RowName());

TEST(Entries, CallWithoutArgumentsRejectsAnArgument)
{
    EXPECT_EQ(ErrorOf<Mismatch>([] {
                  catalogue::ReadArguments(Entry<TEST::Fail>("Fails"), {{"flag", true}});
              }),
              "TEST.Fail has no argument \"flag\"; it takes no arguments");
}

TEST(Entries, DeriveNamesFromTheConstant)
{
    const auto call = Entry<TEST::ReadBicycle>("Reads a bicycle", "names");
    EXPECT_EQ(call.name, "TEST.ReadBicycle");
    EXPECT_EQ(call.family, "TEST");
    EXPECT_EQ(call.packName, "APIModule::CTESTModule::PackWithoutServer");
    EXPECT_EQ(call.parseName, "APIModule::CTESTModule::ParesBicycle");
    EXPECT_EQ(Entry<TEST::Fail>("Fails").parseName, "");
}

TEST(Entries, DeriveTypesFromTheSignatures)
{
    const auto call = Entry<TEST::TakeReferences>("Takes references", "flag", "bicycle", "number");
    ASSERT_EQ(call.arguments.size(), 3U);
    EXPECT_EQ(call.arguments[0].type, &TypeOf<bool>());
    EXPECT_EQ(call.arguments[1].type, &TypeOf<Bicycle>());
    EXPECT_EQ(call.arguments[2].type, &TypeOf<int>());
    EXPECT_EQ(call.result, &TypeOf<Bicycle>());
    EXPECT_EQ(Entry<TEST::Fail>("Fails").result, nullptr);
    EXPECT_TRUE(call.takesServerId);
    EXPECT_FALSE((Entry<TEST::TakeNoServer>("Takes no server", "names").takesServerId));
}

TEST(Calls, UnknownNameIsNotFound)
{
    EXPECT_EQ(catalogue::FindCall("BRMS.GetNothing"), nullptr);
    EXPECT_EQ(catalogue::FindCall("GetTimeSyncConfig"), nullptr);
}

TEST(Calls, NewRecordsOfTheLibraryConvertToJsonAndBack)
{
    std::set<const catalogue::Type*> types;
    for (const auto& call : catalogue::Calls()) {
        for (const auto& argument : call.arguments) {
            types.insert(argument.type);
        }
        if (call.result != nullptr) {
            types.insert(call.result);
        }
    }
    for (const catalogue::Type* type : types) {
        const json fresh = Value(*type).ToJson();
        Value copy(*type);
        copy.Assign(fresh, "");
        EXPECT_EQ(copy.ToJson(), fresh) << NameOf(*type);
    }
}

/// Runs calls against a server in this process.
class Runs : public Host {
protected:
    catalogue::Outcome Run(const catalogue::Call& call, const json& arguments, const RawReply& reply,
                           const catalogue::RunSettings& settings = {})
    {
        RawServer server([reply](const RawRequest&) { return reply; });
        Use(server);
        users.servers[-1] = users.servers[0] = users.servers[1];
        return catalogue::Run(call, catalogue::ReadArguments(call, arguments), settings);
    }

    static RawReply Envelope(const QByteArray& data)
    {
        return HttpReply(200, R"({"code": 1000, "desc": "", "data": )" + data + "}");
    }

    const json m_noNames = {{"names", json::array()}};
};

TEST_F(Runs, PassArgumentsToThePack)
{
    const auto byReference = Entry<TEST::TakeReferences>("Takes references", "flag", "bicycle", "number");
    const json arguments = {{"flag", true}, {"bicycle", {{"colour", "red"}}}, {"number", 5}};
    catalogue::RunSettings settings;
    settings.serverId = 0;
    EXPECT_TRUE(Run(byReference, arguments, Envelope("{}"), settings));
    EXPECT_EQ(TestModule::received, (json{{"flag", true}, {"colour", "red"}, {"number", 5}, {"serverId", 0}}));

    const json names = {{"names", {"a", "b"}}};
    EXPECT_TRUE(Run(Entry<TEST::TakeValues>("Takes values", "names"), names, Envelope("{}")));
    EXPECT_EQ(TestModule::received, (json{{"names", {"a", "b"}}, {"serverId", -1}}));

    EXPECT_TRUE(Run(Entry<TEST::TakeNoServer>("Takes no server", "names"), names, Envelope("{}")));
    EXPECT_EQ(TestModule::received, names);
}

TEST_F(Runs, PackCanBeCalledWithoutRunning)
{
    users.servers[7] = users.servers[1];
    const auto call = Entry<TEST::TakeValues>("Takes values", "names");
    const std::vector<Value> arguments = catalogue::ReadArguments(call, {{"names", {"a"}}});
    void* const data[] = {arguments.front().Data()};
    APIModule::RequestParam request;
    EXPECT_EQ(call.pack(&request, data, 7), 0);
    EXPECT_EQ(request.strUrl, "/bicycle");
    EXPECT_EQ(TestModule::received, (json{{"names", {"a"}}, {"serverId", 7}}));
}

TEST_F(Runs, ReturnTheRecord)
{
    const auto call = Entry<TEST::ReadBicycle>("Reads a bicycle", "names");
    const auto outcome = Run(call, m_noNames, Envelope(R"({"gears": 21, "colour": "blue", "bell": true})"));
    EXPECT_TRUE(outcome);
    EXPECT_EQ(outcome.Code(), 0);
    EXPECT_EQ(outcome.record.at("gears"), 21);
    EXPECT_EQ(outcome.record.at("colour"), "blue");
    EXPECT_TRUE(outcome.Data().value(QStringLiteral("bell")).toBool());
}

TEST_F(Runs, FailedParseKeepsWhatItHasRead)
{
    const auto call = Entry<TEST::ReadBicycle>("Reads a bicycle", "names");
    const auto outcome = Run(call, m_noNames, Envelope(R"({"gears": 21})"));
    EXPECT_FALSE(outcome);
    EXPECT_EQ(outcome.End(), CallEnd::UnreadableReply);
    EXPECT_EQ(outcome.Code(), 3101);
    EXPECT_EQ(outcome.record.at("gears"), 21);
}

TEST_F(Runs, CallWithoutParseIgnoresData)
{
    const auto call = Entry<TEST::TakeNoServer>("Reads nothing", "names");
    const auto outcome = Run(call, m_noNames, Envelope(R"({"gears": 21})"));
    EXPECT_TRUE(outcome);
    EXPECT_TRUE(outcome.record.is_null());
}

TEST_F(Runs, FailingPackEndsAsNotPacked)
{
    const auto outcome = catalogue::Run(Entry<TEST::Fail>("Fails"), {});
    EXPECT_EQ(outcome.End(), CallEnd::NotPacked);
    EXPECT_EQ(outcome.Code(), -1);
}

TEST_F(Runs, ReturnStatusesAndCodesWithoutNotification)
{
    const auto call = Entry<TEST::TakeNoServer>("Reads nothing", "names");
    EXPECT_EQ(Run(call, m_noNames, HttpReply(503, "")).Code(), 503);
    const auto outcome = Run(call, m_noNames, HttpReply(200, R"({"code": 0, "desc": "No", "data": {}})"));
    EXPECT_EQ(outcome.End(), CallEnd::Refused);
    EXPECT_EQ(outcome.Code(), 0);
    EXPECT_EQ(outcome.ServerText(), QStringLiteral("No"));
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_F(Runs, UseTheGivenTimeout)
{
    catalogue::RunSettings settings;
    settings.timeout = std::chrono::milliseconds(50);
    const auto outcome = Run(Entry<TEST::TakeNoServer>("Reads nothing", "names"), m_noNames, RawReply{}, settings);
    EXPECT_EQ(outcome.End(), CallEnd::TimedOut);
}

TEST_F(Runs, CallerCanChangeTheRequestAndObserveTheExchange)
{
    catalogue::RunSettings settings;
    settings.onPacked = [](APIModule::RequestParam& request) { request.strUrl += "?more"; };
    std::vector<APIModule::ObservedExchange> exchanges;
    settings.observer = [&exchanges](const APIModule::ObservedExchange& exchange) { exchanges.push_back(exchange); };
    EXPECT_TRUE(Run(Entry<TEST::TakeNoServer>("Reads nothing", "names"), m_noNames, Envelope("{}"), settings));
    ASSERT_EQ(exchanges.size(), 1U);
    EXPECT_TRUE(exchanges.front().url.endsWith(QStringLiteral("/bicycle?more"))) << exchanges.front().url.toStdString();
    EXPECT_EQ(exchanges.front().nStatus, 200);
}

TEST_F(Runs, StartedCallsReportToTheirFunctionUnlessCancelled)
{
    RawServer server([](const RawRequest&) { return Envelope(R"({"gears": 21, "colour": "blue"})"); });
    Use(server);
    const auto call = Entry<TEST::ReadBicycle>("Reads a bicycle", "names");
    const std::vector<Value> arguments = catalogue::ReadArguments(call, m_noNames);
    QObject context;
    std::vector<json> records;
    const auto finished = [&records](const catalogue::Outcome& outcome) {
        EXPECT_TRUE(outcome);
        records.push_back(outcome.record);
    };
    APIModule::CallHandle cancelled = catalogue::Start(call, arguments, {}, &context, finished);
    const APIModule::CallHandle kept = catalogue::Start(call, arguments, {}, &context, finished);
    EXPECT_TRUE(kept.IsRunning());
    EXPECT_TRUE(records.empty());
    cancelled.Cancel();
    EXPECT_TRUE(QTest::qWaitFor([&kept] { return !kept.IsRunning(); }));
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records.front().at("gears"), 21);
}

}  // namespace

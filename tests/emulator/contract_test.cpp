#include "Contract.h"
#include "EmulatorTest.h"
#include "Handlers.h"
#include "SeedCheck.h"
#include "State.h"

#include <algorithm>
#include <set>

using emulator::Contract;
using emulator::ContractError;
using emulator::Operation;

namespace {

const Contract& RealContract()
{
    static const Contract contract = Contract::Load(emulator::Options().contract);
    return contract;
}

std::string FileWith(const std::string& value, const std::string& id = "T.Get", const std::string& path = "/t")
{
    return "paths:\n  " + path + ":\n    get:\n      operationId: " + id +
           "\n      responses:\n        '200':\n          content:\n            application/json:\n"
           "              schema:\n                oneOf:\n                  - type: object\n"
           "                    properties:\n                      code: {const: 1000}\n"
           "                      data: {type: object, properties: {value: " +
           value + "}}\ncomponents: {schemas: {Text: {type: string}, Loop: {$ref: '#/components/schemas/Loop'}}}\n";
}

struct RefusedContract {
    const char* name;
    std::string file;
    std::string secondFile;
    const char* message;
};
class RefusedContractTest : public testing::TestWithParam<RefusedContract> {};

/// A string without quotes, any other value as JSON.
std::string AsText(const Json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

/// The request target, filled with the contract's example parameters, which exist in the seeds.
std::string TargetOf(const Operation& operation)
{
    std::string target = operation.path;
    for (std::size_t begin = target.find('{'); begin != std::string::npos; begin = target.find('{')) {
        const std::size_t end = target.find('}', begin);
        target.replace(begin, end - begin + 1,
                       AsText(operation.parameterExamples.at(target.substr(begin + 1, end - begin - 1))));
    }
    char separator = '?';
    for (const emulator::QueryParameter& parameter : operation.query) {
        target += separator + parameter.name + "=" + AsText(operation.parameterExamples.at(parameter.name));
        separator = '&';
    }
    return target;
}

}  // namespace

TEST_P(RefusedContractTest, IsRejectedWithReason)
{
    const Folder folder;
    folder.write("a.yaml", GetParam().file);
    if (!GetParam().secondFile.empty()) {
        folder.write("b.yaml", GetParam().secondFile);
    }
    const std::string error = ErrorOf<ContractError>([&] { Contract::Load(folder.path()); });
    EXPECT_NE(error.find(GetParam().message), std::string::npos) << error;
}

INSTANTIATE_TEST_SUITE_P(
    Contracts, RefusedContractTest,
    testing::Values(
        RefusedContract{"NotYaml", "a: [", "", "a.yaml"},
        RefusedContract{"NoOperation", "paths: {}", "", "no operation"},
        RefusedContract{"KeyTwice", "paths: {}\npaths: {}", "", "duplicate key 'paths'"},
        RefusedContract{"UnknownKeyword", FileWith("{type: string, nullable: true}"), "", "nullable"},
        RefusedContract{"KeywordOf2020", FileWith("{type: array, prefixItems: []}"), "", "prefixItems"},
        RefusedContract{"KeywordOfDraft7", FileWith("{type: array, additionalItems: false}"), "", "additionalItems"},
        RefusedContract{"KeywordDeepInside", FileWith("{type: array, items: {oneOf: [{$id: x}]}}"), "", "$id"},
        RefusedContract{"ItemsAsList", FileWith("{type: array, items: [{type: string}]}"), "", "items"},
        RefusedContract{"ReferenceWithSibling", FileWith("{$ref: '#/components/schemas/Text', title: x}"), "",
                        "must be a string and the only key"},
        RefusedContract{"ReferenceToNowhere", FileWith("{$ref: '#/components/schemas/Missing'}"), "",
                        "the target of '#/components/schemas/Missing' does not exist"},
        RefusedContract{"ReferenceToNoFile", FileWith("{$ref: 'c.yaml#/components/schemas/Text'}"), "",
                        "does not refer to a file of the contract"},
        RefusedContract{"ReferenceToItself", FileWith("{$ref: '#/components/schemas/Loop'}"), "", "circular reference"},
        RefusedContract{"OperationTwice", FileWith("{}"), FileWith("{}", "T.Get", "/other"), "is defined twice"},
        RefusedContract{"NoSuccess",
                        "paths: {/t: {get: {operationId: T, responses: {'200': {content: "
                        "{application/json: {schema: {oneOf: [{type: object}]}}}}}}}}",
                        "", "code 1000"},
        RefusedContract{"NoReply", "paths: {/t: {get: {operationId: T}}}", "", "a.yaml: /t/get"}),
    RowName());

TEST(ContractTest, ReferencesBetweenFilesAreResolved)
{
    const Folder folder;
    folder.write("a.yaml", FileWith("{$ref: 'b.yaml#/components/schemas/Text'}"));
    folder.write("b.yaml",
                 "components: {schemas: {Text: {$ref: '#/components/schemas/Inner'}, Inner: {type: string}}}");
    const Contract contract = Contract::Load(folder.path());
    EXPECT_EQ(contract.operation("T.Get").dataSchema.at("properties").at("value"), (Json{{"type", "string"}}));
}

TEST(ContractTest, WrappedReferenceKeepsItsDescription)
{
    const Folder folder;
    folder.write("a.yaml", FileWith("{description: own, allOf: [{$ref: '#/components/schemas/Text'}]}"));
    const Contract contract = Contract::Load(folder.path());
    EXPECT_EQ(contract.operation("T.Get").dataSchema.at("properties").at("value"),
              (Json{{"type", "string"}, {"description", "own"}}));
}

TEST(ContractTest, QuotedScalarsAreTexts)
{
    const Folder folder;
    folder.write("a.yaml", FileWith("{enum: ['1', 1, true, 'true', word, 1.5]}"));
    const Contract contract = Contract::Load(folder.path());
    EXPECT_EQ(contract.operation("T.Get").dataSchema.at("properties").at("value").at("enum"),
              (Json{"1", 1, true, "true", "word", 1.5}));
}

TEST(ContractTest, LiteralPathWinsOverPlaceholder)
{
    const Contract::Match list = RealContract().find("GET", "/brms/api/v1.1/user/group/list");
    ASSERT_NE(list.operation, nullptr);
    EXPECT_EQ(list.operation->id, "BRMS.GetUserGroupList");
    const Contract::Match group = RealContract().find("GET", "/brms/api/v1.1/user/group/lis%74s");
    ASSERT_NE(group.operation, nullptr);
    EXPECT_EQ(group.operation->id, "BRMS.GetUserGroup");
    EXPECT_EQ(group.values.at("groupId"), "lists");
}

TEST(ContractTest, EncodedSlashStaysInsideItsSegment)
{
    const Contract::Match match = RealContract().find("GET", "/brms/api/v1.1/user/group/a%2Fb+c%zz");
    ASSERT_NE(match.operation, nullptr);
    EXPECT_EQ(match.values.at("groupId"), "a/b+c%zz");
}

TEST(RealContractTest, EveryHandlerHasAnOperation)
{
    for (const auto& handler : emulator::AllHandlers()) {
        EXPECT_EQ(RealContract().operation(handler.first).id, handler.first);
    }
}

TEST(UnhandledTest, RepliesWithTheExampleAndRecordsWrites)
{
    const Folder folder;
    folder.write("a.yaml", R"(
paths:
  /door/{id}:
    get:
      operationId: T.GetDoor
      responses: &responses
        '200':
          content:
            application/json:
              schema: {oneOf: [{type: object, properties: {code: {const: 1000}, data: {type: object}}}]}
              examples:
                refused: {value: {code: 1005, desc: no such door}}
                open: {value: {code: 1000, desc: Success, data: {name: Gate, open: true}}}
    delete:
      operationId: T.RemoveDoor
      responses: *responses
)");
    const RunningEmulator platform(With(&emulator::Options::contract, folder.path()));
    const auto client = ClientOf(platform);
    const Json door = {{"name", "Gate"}, {"open", true}};
    EXPECT_EQ(client->get("/door/7").data(), door);
    EXPECT_FALSE(platform.state().contains("accepted"));
    EXPECT_EQ(client->remove("/door/8").data(), door);
    EXPECT_EQ(platform.state().at("accepted"),
              (Json{{"T.RemoveDoor", {{{"path", {{"id", "8"}}}, {"query", Json::object()}, {"body", nullptr}}}}}));
}

TEST(RealContractTest, ExamplesAreValid)
{
    for (const Operation& operation : RealContract().operations()) {
        EXPECT_TRUE(std::any_of(operation.replyExamples.begin(), operation.replyExamples.end(),
                                [](const Json& example) { return example.at("code") == 1000; }))
            << operation.id;
        for (const Json& example : operation.replyExamples) {
            EXPECT_EQ(operation.reply.breach(example), "") << operation.id;
        }
        EXPECT_EQ(operation.body.has_value(), !operation.bodyExamples.empty()) << operation.id;
        for (const Json& example : operation.bodyExamples) {
            EXPECT_EQ(operation.body->breach(example), "") << operation.id;
        }
    }
}

TEST(RealContractTest, EveryParameterHasAnExample)
{
    for (const Operation& operation : RealContract().operations()) {
        for (const auto& placeholder : RealContract().find(operation.method, operation.path).values) {
            EXPECT_TRUE(operation.parameterExamples.contains(placeholder.first)) << operation.id << placeholder.first;
        }
        for (const emulator::QueryParameter& parameter : operation.query) {
            EXPECT_TRUE(operation.parameterExamples.contains(parameter.name)) << operation.id << parameter.name;
        }
    }
}

TEST(RealContractTest, DescribesAllowedValues)
{
    const auto allowed = [](const char* operation, const char* key) {
        return emulator::DescriptionOf(RealContract().operation(operation).allowed, {}, key);
    };
    EXPECT_EQ(allowed("BRMS.GetPageSummaryAlarmPlans", "page"), ">= 0");
    EXPECT_EQ(allowed("BRMS.GetPageSummaryAlarmPlans", "keyword"), "");
    EXPECT_EQ(allowed("BRMS.UpdateAIPrivacyConfig", "enable"), "0, 1");
    EXPECT_EQ(allowed("OBMS.DeleteAddressBooks", "mode"), R"("1", "2")");
}

TEST(RealContractTest, EveryReplyWithDataHasAnExample)
{
    for (const Operation& operation : RealContract().operations()) {
        const bool bData = !operation.dataSchema.value("properties", Json::object()).empty();
        EXPECT_EQ(operation.dataExample().empty(), !bData) << operation.id;
    }
}

TEST(RealContractTest, BodiesAndSuccessRepliesForbidOtherKeys)
{
    for (const Operation& operation : RealContract().operations()) {
        if (operation.body) {
            EXPECT_EQ(operation.body->document().value("additionalProperties", Json()), Json(false)) << operation.id;
        }
        EXPECT_EQ(operation.success.document().value("additionalProperties", Json()), Json(false)) << operation.id;
    }
}

class ExampleTest : public EmulatorTest, public testing::WithParamInterface<TestClient::Scheme> {};

TEST_P(ExampleTest, EveryExampleRequestSucceeds)
{
    const auto client = ClientOf(m_platform, GetParam());
    for (const Operation& operation : RealContract().operations()) {
        m_platform.reset();
        const std::string body = operation.bodyExamples.empty() ? "" : operation.bodyExamples.front().dump();
        const Reply reply = client->request(operation.method, TargetOf(operation), body);
        EXPECT_EQ(reply.status, 200) << operation.id;
        EXPECT_EQ(operation.success.breach(reply.json()), "") << operation.id << ": " << reply.body;
    }
    EXPECT_EQ(m_platform.connections(), 1U) << "the connection was not kept";
}

INSTANTIATE_TEST_SUITE_P(Schemes, ExampleTest, testing::Values(TestClient::Scheme::Http, TestClient::Scheme::Https),
                         SchemeName);

Json ScaledSeeds(int scale)
{
    return emulator::State(emulator::LoadSeeds(emulator::Options().seed), scale).families();
}

TEST(SeedTest, ScaleMultipliesListsAndKeepsIdentifiersUnique)
{
    const Json seeds = ScaledSeeds(1);
    const Json scaled = ScaledSeeds(3);
    for (const auto& [list, identifier] : std::map<std::string, std::string>{{"/inventory/devices", "deviceCode"},
                                                                             {"/inventory/channels", "channelId"},
                                                                             {"/brms/userGroups", "id"},
                                                                             {"/brms/users", "id"},
                                                                             {"/brms/quickCommands", "id"},
                                                                             {"/brms/alarmPlans", "id"},
                                                                             {"/brms/alarmRecords", "id"},
                                                                             {"/brms/generalEvents", "id"},
                                                                             {"/iams/tasks", "id"},
                                                                             {"/ipms/parkingLots", "id"},
                                                                             {"/ipms/captureRecords", "id"},
                                                                             {"/obms/persons", "personId"},
                                                                             {"/obms/points", "pointId"},
                                                                             {"/obms/desfireFailures", "id"}}) {
        const Json::json_pointer pointer(list);
        EXPECT_EQ(scaled.at(pointer).size(), 3 * seeds.at(pointer).size()) << list;
        std::set<std::string> identifiers;
        for (const Json& element : scaled.at(pointer)) {
            identifiers.insert(element.at(identifier).get<std::string>());
        }
        EXPECT_EQ(identifiers.size(), scaled.at(pointer).size()) << list;
    }
}

TEST(SeedTest, CopiesReferToEachOther)
{
    const Json scaled = ScaledSeeds(2);
    std::set<std::string> devices;
    for (const Json& device : scaled.at("inventory").at("devices")) {
        devices.insert(device.at("deviceCode").get<std::string>());
    }
    for (const Json& channel : scaled.at("inventory").at("channels")) {
        EXPECT_EQ(devices.count(channel.at("deviceCode").get<std::string>()), 1U) << channel.at("channelId");
    }
    EXPECT_EQ(scaled.at("brms").at("alarmPlans").at(7).at("quickCommandIds"), (Json{"5-2", "6-2"}));
}

TEST(SeedTest, ListsDoNotDependOnReadingOrder)
{
    const emulator::StatePath device("/inventory/devices/20/deviceCode");
    emulator::State state(emulator::LoadSeeds(emulator::Options().seed), 3);
    EXPECT_EQ(state.at("/brms/users").size(), 24U);
    EXPECT_EQ(state.at(device), "1000003-2");
    state.at("/inventory/devices").erase(0);
    EXPECT_EQ(state[device], "1000004-2") << "must be multiplied only once";
    state["/brms/warnDisks"] = Json::array();
    EXPECT_EQ(state.families().at("brms").at("warnDisks"), Json::array());
    EXPECT_EQ(state.families().at("inventory").at("channels").size(), 78U);
    state.reset();
    EXPECT_EQ(state.families(), ScaledSeeds(3));
}

struct RefusedSeed {
    const char* name;
    const char* file;
    const char* message;
};
class RefusedSeedTest : public testing::TestWithParam<RefusedSeed> {};

TEST_P(RefusedSeedTest, IsRejectedWithReason)
{
    const Folder folder;
    folder.write("family.json", GetParam().file);
    const auto load = [&] { const emulator::State state(emulator::LoadSeeds(folder.path()), 2); };
    const std::string error = ErrorOf<emulator::SeedError>(load);
    EXPECT_NE(error.find(GetParam().message), std::string::npos) << error;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RefusedSeedTest,
                         testing::Values(RefusedSeed{"NotJson", "{", "family.json: "},
                                         RefusedSeed{"NotObject", "[]", "family.json: "},
                                         RefusedSeed{"ScalesMissingList",
                                                     R"({"scale": {"lists": ["missing"], "identifiers": []}})",
                                                     "missing"}),
                         RowName());

/// Appends pointers to a value and everything in it; of lists and objects of objects, only to the first element.
void AddPointers(const Json& value, const Json::json_pointer& pointer, std::vector<Json::json_pointer>& pointers)
{
    pointers.push_back(pointer);
    if (value.is_array() && !value.empty()) {
        AddPointers(value.front(), pointer / 0, pointers);
    } else if (value.is_object()) {
        for (const auto& member : value.items()) {
            AddPointers(member.value(), pointer / member.key(), pointers);
        }
    }
}

TEST(SeedTest, WrongTypeIsReportedWithFileAndPointer)
{
    // No call reads these: they only appear in the state.
    const std::set<std::string> unread = {"/brms/users/0/userName", "/iams/tasks/0/fileName",
                                          "/iams/tasks/0/uploadFailed", "/ipms/captureRecords/0/plateNo",
                                          "/obms/zones/0/zoneName"};
    const Json seeds = ScaledSeeds(1);
    std::vector<Json::json_pointer> pointers;
    for (const auto& family : seeds.items()) {
        for (const auto& member : family.value().items()) {
            AddPointers(member.value(), Json::json_pointer() / family.key() / member.key(), pointers);
        }
    }
    for (const Json::json_pointer& pointer : pointers) {
        Json wrong = seeds;
        wrong[pointer] = seeds.at(pointer).is_structured() ? Json("a text") : Json::array();
        const std::string message = ErrorOf<emulator::SeedError>([&] { emulator::CheckSeeds(wrong, RealContract()); });
        std::string expected = pointer.to_string().substr(1);
        expected.replace(expected.find('/'), 1, ".json: /").append(": expected ");
        const bool isUnread = unread.count(pointer.to_string()) > 0;
        EXPECT_EQ(message.substr(0, expected.size()), isUnread ? "" : expected) << pointer;
    }
}

TEST(SeedTest, SeedsMayLackFamiliesAndLists)
{
    Json seeds = ScaledSeeds(1);
    seeds.erase("brms");
    seeds["inventory"].erase("devices");
    EXPECT_NO_THROW(emulator::CheckSeeds(seeds, RealContract()));
}

TEST(SeedTest, FolderWithoutSeedsIsRefused)
{
    const Folder folder;
    EXPECT_THROW(emulator::LoadSeeds(folder.path()), emulator::SeedError);
}

#include "Contract.h"

#include "Text.h"
#include "Texts.h"

#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>
#include <set>
#include <utility>

namespace emulator {
namespace {

constexpr std::array kMethods = {"get", "put", "post", "delete"};

/// What draft 7 and 2020-12 have in common; the validator passes over any other keyword in silence.
const std::set<std::string>& SharedKeywords()
{
    static const std::set<std::string> keywords = {
        "type",          "enum",        "const",       "multipleOf",    "maximum",  "exclusiveMaximum",
        "minimum",       "pattern",     "maxLength",   "minLength",     "items",    "exclusiveMinimum",
        "maxItems",      "minItems",    "uniqueItems", "contains",      "required", "maxProperties",
        "minProperties", "properties",  "allOf",       "propertyNames", "anyOf",    "patternProperties",
        "oneOf",         "not",         "if",          "then",          "else",     "additionalProperties",
        "title",         "description", "default",     "examples",      "$ref",     "readOnly",
        "writeOnly",     "format"};
    return keywords;
}

/// Plain scalars by YAML's core schema; quoted ones are texts.
Json ScalarOf(const YAML::Node& node)
{
    const std::string& text = node.Scalar();
    if (node.Tag() == "!") {
        return text;
    }
    if (text == "true" || text == "false") {
        return text == "true";
    }
    const Json number = Json::parse(text, nullptr, false);
    return number.is_number() ? number : Json(text);
}

Json JsonOf(const YAML::Node& node)
{
    Json json;
    switch (node.Type()) {
    case YAML::NodeType::Scalar:
        return ScalarOf(node);
    case YAML::NodeType::Sequence:
        json = Json::array();
        for (const YAML::Node& element : node) {
            json.push_back(JsonOf(element));
        }
        return json;
    case YAML::NodeType::Map:
        json = Json::object();
        for (const auto& member : node) {
            if (!json.emplace(member.first.Scalar(), JsonOf(member.second)).second) {
                throw ContractError(Filled(Texts::tr("key '%1' is there twice"), member.first.Scalar()));
            }
        }
        return json;
    default:
        return json;
    }
}

/// The files of a folder with their references to each other.
class Files {
public:
    void read(const std::filesystem::path& file)
    {
        try {
            m_documents[file.filename().string()] = JsonOf(YAML::LoadFile(file.string()));
        } catch (const std::exception& error) {
            throw ContractError(file.filename().string() + ": " + error.what());
        }
    }

    [[nodiscard]] const std::map<std::string, Json>& documents() const { return m_documents; }

    /// The node of the file with what its references lead to in their place.
    [[nodiscard]] Json resolved(const Json& node, const std::string& file, const std::string& place,
                                std::set<std::string> passed = {}) const
    {
        if (node.is_array()) {
            Json result = Json::array();
            for (std::size_t i = 0; i < node.size(); ++i) {
                result.push_back(resolved(node[i], file, place + "/" + std::to_string(i), passed));
            }
            return result;
        }
        if (!node.is_object()) {
            return node;
        }
        if (node.contains("$ref")) {
            return target(node, file, place, std::move(passed));
        }
        Json result = Json::object();
        for (const auto& member : node.items()) {
            result[member.key()] = resolved(member.value(), file, place + "/" + member.key(), passed);
        }
        return withoutWrapper(std::move(result));
    }

private:
    /// A reference that carries a description of its own is wrapped: {description: ..., allOf: [{$ref: ...}]}.
    static Json withoutWrapper(Json node)
    {
        const bool wrapped = node.contains("allOf") && node.at("allOf").is_array() && node.at("allOf").size() == 1;
        if (wrapped && node.at("allOf").at(0).is_object()) {
            Json inner = node.at("allOf").at(0);
            node.erase("allOf");
            inner.update(node);
            return inner;
        }
        return node;
    }

    [[nodiscard]] Json target(const Json& node, const std::string& file, const std::string& place,
                              std::set<std::string> passed) const
    {
        const std::string where = file + ": " + place;
        if (node.size() != 1 || !node.at("$ref").is_string()) {
            throw ContractError(Filled(Texts::tr("%1: $ref is a text and stands alone"), where));
        }
        const std::string reference = node.at("$ref");
        const std::size_t mark = reference.find('#');
        const std::string targetFile = mark == 0 ? file : reference.substr(0, mark);
        if (mark == std::string::npos || m_documents.count(targetFile) == 0) {
            throw ContractError(Filled(Texts::tr("%1: '%2' names no file of the contract"), where, reference));
        }
        const std::string pointer = reference.substr(mark + 1);
        if (!passed.insert(targetFile + "#" + pointer).second) {
            throw ContractError(Filled(Texts::tr("%1: '%2' leads back to itself"), where, reference));
        }
        const Json& document = m_documents.at(targetFile);
        try {
            return resolved(document.at(Json::json_pointer(pointer)), targetFile, pointer, std::move(passed));
        } catch (const Json::exception&) {
            throw ContractError(Filled(Texts::tr("%1: '%2' leads nowhere"), where, reference));
        }
    }

    std::map<std::string, Json> m_documents;
};

void RefuseOtherKeywords(const Json& schema, const std::string& where);

void RefuseInEach(const Json& schemas, const std::string& where)
{
    for (const auto& member : schemas.items()) {
        RefuseOtherKeywords(member.value(), where + "/" + member.key());
    }
}

void RefuseOtherKeywords(const Json& schema, const std::string& where)
{
    if (schema.is_boolean()) {
        return;
    }
    if (!schema.is_object()) {
        throw ContractError(Filled(Texts::tr("%1: a schema is an object"), where));
    }
    for (const auto& member : schema.items()) {
        const std::string& keyword = member.key();
        std::string place = where;
        place.append("/").append(keyword);
        if (SharedKeywords().count(keyword) == 0) {
            throw ContractError(Filled(Texts::tr("%1: draft 7 and 2020-12 do not share this keyword"), place));
        }
        if (keyword == "properties" || keyword == "patternProperties" || keyword == "allOf" || keyword == "anyOf" ||
            keyword == "oneOf") {
            RefuseInEach(member.value(), place);
        } else if (keyword == "items" || keyword == "additionalProperties" || keyword == "not" || keyword == "if" ||
                   keyword == "then" || keyword == "else" || keyword == "contains" || keyword == "propertyNames") {
            RefuseOtherKeywords(member.value(), place);
        }
    }
}

Schema SchemaOf(const Json& document, const std::string& where)
{
    RefuseOtherKeywords(document, where);
    try {
        return Schema(document);
    } catch (const std::exception& error) {
        throw ContractError(where + ": " + error.what());
    }
}

std::vector<Json> ExamplesOf(const Json& content)
{
    std::vector<Json> examples;
    if (content.contains("example")) {
        examples.push_back(content.at("example"));
    }
    const Json several = content.value("examples", Json::object());
    for (const auto& named : several.items()) {
        examples.push_back(named.value().at("value"));
    }
    return examples;
}

/// The envelope with code 1000 among the replies.
const Json& SuccessOf(const Json& reply, const std::string& where)
{
    static const Json::json_pointer code("/properties/code/const");
    for (const Json& envelope : reply.at("oneOf")) {
        if (envelope.contains(code) && envelope.at(code) == 1000) {
            return envelope;
        }
    }
    throw ContractError(Filled(Texts::tr("%1: no reply has the code 1000"), where));
}

/// The values of path and query.
std::vector<Json> ParametersOf(const Json& path, const Json& operation)
{
    std::vector<Json> parameters;
    for (const Json* holder : {&path, &operation}) {
        const Json all = holder->value("parameters", Json::array());
        std::copy_if(all.begin(), all.end(), std::back_inserter(parameters),
                     [](const Json& parameter) { return parameter.at("in") != "header"; });
    }
    return parameters;
}

std::vector<QueryParameter> DescribedQuery(const std::vector<Json>& parameters, const std::string& where)
{
    std::vector<QueryParameter> query;
    for (const Json& parameter : parameters) {
        if (parameter.at("in") == "query") {
            query.push_back(QueryParameter{parameter.at("name"), parameter.value("required", false),
                                           SchemaOf(parameter.at("schema"), where + "/parameters")});
        }
    }
    return query;
}

Json ParameterExamples(const std::vector<Json>& parameters)
{
    Json examples = Json::object();
    for (const Json& parameter : parameters) {
        if (parameter.contains("example")) {
            examples[parameter.at("name").get<std::string>()] = parameter.at("example");
        }
    }
    return examples;
}

/// What the node of a value in the contract says about it.
using Saying = std::function<std::string(const Json&)>;

std::string DescriptionIn(const Json& node)
{
    return node.value("description", "");
}

/// A list of values or a range.
std::string AllowedIn(const Json& node)
{
    const Json& schema = node.contains("schema") ? node.at("schema") : node;
    std::string allowed;
    const auto add = [&allowed](const std::string& sign, const Json& value) {
        allowed.append(allowed.empty() ? "" : ", ").append(sign).append(value.dump());
    };
    const Json values = schema.value("enum", Json::array());
    for (const Json& value : values) {
        add("", value);
    }
    for (const auto& [keyword, sign] : {std::pair("minimum", ">= "), std::pair("maximum", "<= ")}) {
        if (schema.contains(keyword)) {
            add(sign, schema.at(keyword));
        }
    }
    return allowed;
}

Descriptions SaidOfParameters(const std::vector<Json>& parameters, const Saying& saying)
{
    Descriptions descriptions;
    for (const Json& parameter : parameters) {
        descriptions[parameter.at("name")] = saying(parameter);
    }
    return descriptions;
}

/// The keys of a schema before those of the objects in it: of two keys alike the outer one keeps the bare name.
void AddSaid(const Json& schema, const Saying& saying, const std::string& around, Descriptions& descriptions)
{
    const Json properties = schema.value("properties", Json::object());
    for (const auto& [key, property] : properties.items()) {
        const std::string text = saying(property);
        descriptions.emplace(key, text);
        if (!around.empty()) {
            descriptions.emplace(std::string(around).append("/").append(key), text);
        }
    }
    for (const auto& [key, property] : properties.items()) {
        AddSaid(property.value("items", property), saying, key, descriptions);
    }
    const Json choices = schema.value("oneOf", Json::array());
    for (const Json& choice : choices) {
        AddSaid(choice, saying, around, descriptions);
    }
}

Operation OperationOf(const std::string& template_, const std::string& method, const Json& path,
                      const std::string& where)
{
    static const Json::json_pointer jsonContent("/content/application~1json");
    const Json& described = path.at(method);
    std::optional<Schema> body;
    std::vector<Json> bodyExamples;
    const std::vector<Json> parameters = ParametersOf(path, described);
    Descriptions allowed = SaidOfParameters(parameters, AllowedIn);
    Descriptions sent = SaidOfParameters(parameters, DescriptionIn);
    if (described.contains("requestBody")) {
        const Json& content = described.at("requestBody").at(jsonContent);
        body = SchemaOf(content.at("schema"), where + "/requestBody");
        bodyExamples = ExamplesOf(content);
        AddSaid(content.at("schema"), AllowedIn, {}, allowed);
        AddSaid(content.at("schema"), DescriptionIn, {}, sent);
    }
    const Json& content = described.at("responses").at("200").at(jsonContent);
    const Json& reply = content.at("schema");
    const Json& success = SuccessOf(reply, where);
    Schema replySchema = SchemaOf(reply, where + "/responses/200");
    Schema successSchema = SchemaOf(success, where + "/responses/200");
    Json data = success.at("properties").value("data", Json::object());
    Descriptions received;
    AddSaid(data, DescriptionIn, {}, received);
    std::string upper = method;
    std::transform(upper.begin(), upper.end(), upper.begin(), [](unsigned char c) { return std::toupper(c); });
    return Operation{described.at("operationId"),
                     upper,
                     template_,
                     DescribedQuery(parameters, where),
                     std::move(body),
                     std::move(replySchema),
                     std::move(successSchema),
                     std::move(data),
                     ParameterExamples(parameters),
                     std::move(bodyExamples),
                     ExamplesOf(content),
                     described.value("description", ""),
                     std::move(allowed),
                     std::move(sent),
                     std::move(received)};
}

bool IsPlaceholder(const std::string& segment)
{
    return segment.size() > 2 && segment.front() == '{' && segment.back() == '}';
}

/// The values of the placeholders when the path fits the template.
std::optional<PathValues> ValuesOf(const std::string& template_, const std::vector<std::string>& segments)
{
    const std::vector<std::string> wanted = Split(template_, '/');
    if (wanted.size() != segments.size()) {
        return std::nullopt;
    }
    PathValues values;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (IsPlaceholder(wanted[i])) {
            values[wanted[i].substr(1, wanted[i].size() - 2)] = PercentDecode(segments[i], false);
        } else if (wanted[i] != PercentDecode(segments[i], false)) {
            return std::nullopt;
        }
    }
    return values;
}

}  // namespace

std::string DescriptionOf(const Descriptions& descriptions, const std::string& around, const std::string& key)
{
    for (const std::string& place : {std::string(around).append("/").append(key), key}) {
        const auto found = descriptions.find(place);
        if (found != descriptions.end()) {
            return found->second;
        }
    }
    return {};
}

Json Operation::dataExample() const
{
    const auto found = std::find_if(replyExamples.begin(), replyExamples.end(),
                                    [this](const Json& example) { return success.breach(example).empty(); });
    return found == replyExamples.end() ? Json::object() : found->value("data", Json::object());
}

Contract Contract::Load(const std::filesystem::path& folder)
{
    Files files;
    std::error_code fault;
    for (const auto& entry : std::filesystem::directory_iterator(folder, fault)) {
        if (entry.path().extension() == ".yaml") {
            files.read(entry.path());
        }
    }
    Contract contract;
    std::set<std::string> known;
    for (const auto& [file, document] : files.documents()) {
        const Json paths = files.resolved(document.value("paths", Json::object()), file, "/paths");
        for (const auto& path : paths.items()) {
            for (const char* method : kMethods) {
                if (!path.value().contains(method)) {
                    continue;
                }
                const std::string where = file + ": " + path.key() + "/" + method;
                try {
                    contract.m_operations.push_back(OperationOf(path.key(), method, path.value(), where));
                } catch (const Json::exception& error) {
                    throw ContractError(where + ": " + error.what());
                }
                if (!known.insert(contract.m_operations.back().id).second) {
                    throw ContractError(
                        Filled(Texts::tr("%1: operation '%2' is told twice"), where, contract.m_operations.back().id));
                }
            }
        }
    }
    if (contract.m_operations.empty()) {
        throw ContractError(Filled(Texts::tr("no operation in the contract folder %1"), folder.string()));
    }
    return contract;
}

const Operation& Contract::operation(const std::string& id) const
{
    const auto found = std::find_if(m_operations.begin(), m_operations.end(),
                                    [&](const Operation& operation) { return operation.id == id; });
    if (found == m_operations.end()) {
        throw ContractError("the contract has no operation " + id);
    }
    return *found;
}

Contract::Match Contract::find(const std::string& method, const std::string& path) const
{
    const std::vector<std::string> segments = Split(path, '/');
    Match best;
    std::string bestPath;
    for (const Operation& operation : m_operations) {
        std::optional<PathValues> values = ValuesOf(operation.path, segments);
        if (!values) {
            continue;
        }
        // '{' sorts behind every letter, so of two templates that fit the more literal one is the smaller.
        if (!best.pathKnown || operation.path < bestPath) {
            best = Match{true, nullptr, *values};
            bestPath = operation.path;
        }
        if (operation.path == bestPath && operation.method == method) {
            best.operation = &operation;
        }
    }
    return best;
}

const Operation* Contract::readerOf(const Operation& writer) const
{
    const auto found = std::find_if(m_operations.begin(), m_operations.end(), [&](const Operation& operation) {
        return operation.method == "GET" && operation.path == writer.path;
    });
    return found == m_operations.end() ? nullptr : &*found;
}

}  // namespace emulator

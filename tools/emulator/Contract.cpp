#include "Contract.h"

#include "Text.h"
#include "Texts.h"

#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <set>
#include <utility>

namespace emulator {
namespace {

constexpr std::array kMethods = {"get", "put", "post", "delete"};

/// The keywords common to draft 7 and 2020-12; the validator silently ignores any other keyword.
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

/// Converts plain scalars by YAML's core schema; quoted scalars are strings.
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
                throw ContractError(Filled(Texts::tr("duplicate key '%1'"), member.first.Scalar()));
            }
        }
        return json;
    default:
        return json;
    }
}

/// The files of a folder, with references between them.
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

    /// The node with all references replaced by their targets.
    [[nodiscard]] Json resolved(const Json& node, const std::string& file, const std::string& path,
                                std::set<std::string> visited = {}) const
    {
        if (node.is_array()) {
            Json result = Json::array();
            for (std::size_t i = 0; i < node.size(); ++i) {
                result.push_back(resolved(node[i], file, path + "/" + std::to_string(i), visited));
            }
            return result;
        }
        if (!node.is_object()) {
            return node;
        }
        if (node.contains("$ref")) {
            return target(node, file, path, std::move(visited));
        }
        Json result = Json::object();
        for (const auto& member : node.items()) {
            result[member.key()] = resolved(member.value(), file, path + "/" + member.key(), visited);
        }
        return withoutWrapper(std::move(result));
    }

private:
    /// Unwraps a reference with a description beside it: {description: ..., allOf: [{$ref: ...}]}.
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

    [[nodiscard]] Json target(const Json& node, const std::string& file, const std::string& path,
                              std::set<std::string> visited) const
    {
        const std::string where = file + ": " + path;
        if (node.size() != 1 || !node.at("$ref").is_string()) {
            throw ContractError(Filled(Texts::tr("%1: $ref must be a string and the only key"), where));
        }
        const std::string reference = node.at("$ref");
        const std::size_t mark = reference.find('#');
        const std::string targetFile = mark == 0 ? file : reference.substr(0, mark);
        if (mark == std::string::npos || m_documents.count(targetFile) == 0) {
            throw ContractError(
                Filled(Texts::tr("%1: '%2' does not refer to a file of the contract"), where, reference));
        }
        const std::string pointer = reference.substr(mark + 1);
        if (!visited.insert(targetFile + "#" + pointer).second) {
            throw ContractError(Filled(Texts::tr("%1: circular reference '%2'"), where, reference));
        }
        const Json& document = m_documents.at(targetFile);
        try {
            return resolved(document.at(Json::json_pointer(pointer)), targetFile, pointer, std::move(visited));
        } catch (const Json::exception&) {
            throw ContractError(Filled(Texts::tr("%1: the target of '%2' does not exist"), where, reference));
        }
    }

    std::map<std::string, Json> m_documents;
};

void RequireSharedKeywords(const Json& schema, const std::string& where);

void RequireSharedKeywordsInEach(const Json& schemas, const std::string& where)
{
    for (const auto& member : schemas.items()) {
        RequireSharedKeywords(member.value(), where + "/" + member.key());
    }
}

void RequireSharedKeywords(const Json& schema, const std::string& where)
{
    if (schema.is_boolean()) {
        return;
    }
    if (!schema.is_object()) {
        throw ContractError(Filled(Texts::tr("%1: a schema must be an object or a boolean"), where));
    }
    for (const auto& member : schema.items()) {
        const std::string& keyword = member.key();
        std::string path = where;
        path.append("/").append(keyword);
        if (SharedKeywords().count(keyword) == 0) {
            throw ContractError(
                Filled(Texts::tr("%1: JSON Schema draft 7 and 2020-12 do not both support this keyword"), path));
        }
        if (keyword == "properties" || keyword == "patternProperties" || keyword == "allOf" || keyword == "anyOf" ||
            keyword == "oneOf") {
            RequireSharedKeywordsInEach(member.value(), path);
        } else if (keyword == "items" || keyword == "additionalProperties" || keyword == "not" || keyword == "if" ||
                   keyword == "then" || keyword == "else" || keyword == "contains" || keyword == "propertyNames") {
            RequireSharedKeywords(member.value(), path);
        }
    }
}

Schema SchemaOf(const Json& document, const std::string& where)
{
    RequireSharedKeywords(document, where);
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

/// The schema of the reply with code 1000.
const Json& SuccessOf(const Json& reply, const std::string& where)
{
    static const Json::json_pointer code("/properties/code/const");
    for (const Json& envelope : reply.at("oneOf")) {
        if (envelope.contains(code) && envelope.at(code) == 1000) {
            return envelope;
        }
    }
    throw ContractError(Filled(Texts::tr("%1: no reply with code 1000"), where));
}

/// The path and query parameters.
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

/// The contract's nodes that describe values, with the keys of Descriptions.
using Nodes = std::map<std::string, const Json*>;

std::string DescriptionIn(const Json& node)
{
    return node.value("description", "");
}

Json LimitsIn(const Json& node)
{
    const Json& schema = node.contains("schema") ? node.at("schema") : node;
    Json limits = Json::object();
    for (const char* const keyword : {"enum", "minimum", "maximum"}) {
        if (schema.contains(keyword)) {
            limits[keyword] = schema.at(keyword);
        }
    }
    return limits;
}

/// A list of values or a range.
std::string AllowedIn(const Json& node)
{
    const Json limits = LimitsIn(node);
    std::string allowed;
    const auto add = [&allowed](const std::string& prefix, const Json& value) {
        allowed.append(allowed.empty() ? "" : ", ").append(prefix).append(value.dump());
    };
    const Json values = limits.value("enum", Json::array());
    for (const Json& value : values) {
        add("", value);
    }
    for (const auto& [keyword, prefix] : {std::pair("minimum", ">= "), std::pair("maximum", "<= ")}) {
        if (limits.contains(keyword)) {
            add(prefix, limits.at(keyword));
        }
    }
    return allowed;
}

/// Adds outer keys before nested ones, so that the plain name of a duplicate key refers to the outer key.
void AddNodes(const Json& schema, const std::string& parent, Nodes& nodes)
{
    static const Json none = Json::object();
    const Json& properties = schema.contains("properties") ? schema.at("properties") : none;
    for (const auto& [key, property] : properties.items()) {
        nodes.emplace(key, &property);
        if (!parent.empty()) {
            nodes.emplace(std::string(parent).append("/").append(key), &property);
        }
    }
    for (const auto& [key, property] : properties.items()) {
        AddNodes(property.contains("items") ? property.at("items") : property, key, nodes);
    }
    if (schema.contains("oneOf")) {
        for (const Json& choice : schema.at("oneOf")) {
            AddNodes(choice, parent, nodes);
        }
    }
}

/// What the contract says about each value.
template <typename Said>
std::map<std::string, Said> Described(const Nodes& nodes, Said (*describe)(const Json& node))
{
    std::map<std::string, Said> said;
    for (const auto& [key, node] : nodes) {
        said.emplace(key, describe(*node));
    }
    return said;
}

/// Adds outer keys before nested ones, like AddNodes().
void AddExamples(const Json& example, const std::string& parent, Descriptions& examples)
{
    for (const auto& [key, value] : example.items()) {
        if (!value.is_structured()) {
            const std::string text = value.is_string() ? value.get<std::string>() : value.dump();
            examples.emplace(key, text);
            if (!parent.empty()) {
                examples.emplace(std::string(parent).append("/").append(key), text);
            }
        }
    }
    for (const auto& [key, value] : example.items()) {
        const Json& inner = value.is_array() && !value.empty() ? value.front() : value;
        if (inner.is_object()) {
            AddExamples(inner, key, examples);
        }
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
    Nodes sent;
    for (const Json& parameter : parameters) {
        sent[parameter.at("name")] = &parameter;
    }
    const Json parameterExamples = ParameterExamples(parameters);
    Descriptions examples;
    AddExamples(parameterExamples, {}, examples);
    if (described.contains("requestBody")) {
        const Json& content = described.at("requestBody").at(jsonContent);
        body = SchemaOf(content.at("schema"), where + "/requestBody");
        bodyExamples = ExamplesOf(content);
        AddNodes(content.at("schema"), {}, sent);
        for (const Json& example : bodyExamples) {
            AddExamples(example, {}, examples);
        }
    }
    const Json& content = described.at("responses").at("200").at(jsonContent);
    const Json& reply = content.at("schema");
    const Json& success = SuccessOf(reply, where);
    Schema replySchema = SchemaOf(reply, where + "/responses/200");
    Schema successSchema = SchemaOf(success, where + "/responses/200");
    const Json data = success.at("properties").value("data", Json::object());
    Nodes received;
    AddNodes(data, {}, received);
    std::string upper = method;
    std::transform(upper.begin(), upper.end(), upper.begin(), [](unsigned char c) { return std::toupper(c); });
    return Operation{described.at("operationId"),
                     upper,
                     template_,
                     DescribedQuery(parameters, where),
                     std::move(body),
                     std::move(replySchema),
                     std::move(successSchema),
                     data,
                     parameterExamples,
                     std::move(bodyExamples),
                     ExamplesOf(content),
                     described.value("description", ""),
                     Described(sent, AllowedIn),
                     Described(sent, DescriptionIn),
                     Described(sent, LimitsIn),
                     std::move(examples),
                     Described(received, DescriptionIn)};
}

bool IsPlaceholder(const std::string& segment)
{
    return segment.size() > 2 && segment.front() == '{' && segment.back() == '}';
}

/// The values of the placeholders, if the path matches the template.
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

std::string DescriptionOf(const Descriptions& descriptions, const std::string& parent, const std::string& key)
{
    for (const std::string& path : {std::string(parent).append("/").append(key), key}) {
        const auto found = descriptions.find(path);
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
                    throw ContractError(Filled(Texts::tr("%1: operation '%2' is defined twice"), where,
                                               contract.m_operations.back().id));
                }
            }
        }
    }
    if (contract.m_operations.empty()) {
        throw ContractError(Filled(Texts::tr("the contract folder %1 contains no operation"), folder.string()));
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
        // '{' sorts after every letter, so the more literal of two matching templates is the smaller one.
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

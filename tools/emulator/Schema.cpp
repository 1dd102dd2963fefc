#include "Schema.h"

#include <charconv>
#include <optional>
#include <utility>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

namespace emulator {
namespace {

using Adapter = valijson::adapters::NlohmannJsonAdapter;
using Error = valijson::ValidationResults::Error;

/// Converts the validator's form of a path: "<root>", "[streams]", "[0]".
Json::json_pointer PathOf(const Error& error)
{
    Json::json_pointer path;
    for (std::size_t i = 1; i < error.context.size(); ++i) {
        const std::string& step = error.context[i];
        path /= step.substr(1, step.size() - 2);
    }
    return path;
}

const Json* SchemaAt(const Json& schema, Json::json_pointer path)
{
    std::vector<std::string> steps;
    for (; !path.empty(); path.pop_back()) {
        steps.push_back(path.back());
    }
    const Json* node = &schema;
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        if (node->contains("properties") && node->at("properties").contains(*step)) {
            node = &node->at("properties").at(*step);
        } else if (node->contains("items")) {
            node = &node->at("items");
        } else if (node->contains("additionalProperties")) {
            node = &node->at("additionalProperties");
        } else {
            return nullptr;
        }
    }
    return node;
}

bool HasType(const Json& value, const std::string& type)
{
    if (type == "integer") {
        return value.is_number_integer();
    }
    return type == value.type_name();
}

/// Describes common violations in the emulator's words, and all others in the validator's words.
std::string Describe(const Json& schema, const Json& root, const Error& error)
{
    const Json::json_pointer path = PathOf(error);
    const Json* wanted = SchemaAt(schema, path);
    const Json& value = root.at(path);
    if (wanted != nullptr && wanted->contains("type") && wanted->at("type").is_string()) {
        const std::string type = wanted->at("type");
        if (!HasType(value, type)) {
            return path.to_string() + ": expected " + type + ", got " + value.type_name();
        }
    }
    if (wanted != nullptr && wanted->contains("enum") && value.is_primitive()) {
        return path.to_string() + ": expected one of " + wanted->at("enum").dump() + ", got " + value.dump();
    }
    if (wanted != nullptr && wanted->contains("minimum") && value.is_number() && value < wanted->at("minimum")) {
        return path.to_string() + ": expected at least " + wanted->at("minimum").dump() + ", got " + value.dump();
    }
    if (wanted != nullptr && value.is_object()) {
        for (const Json& key : wanted->value("required", Json::array())) {
            if (!value.contains(key.get<std::string>())) {
                return (path / key.get<std::string>()).to_string() + ": missing";
            }
        }
        const Json properties = wanted->value("properties", Json::object());
        for (const auto& member : value.items()) {
            if (wanted->value("additionalProperties", Json(true)) == Json(false) &&
                !properties.contains(member.key())) {
                return (path / member.key()).to_string() + ": not expected";
            }
        }
    }
    return path.to_string() + ": " + error.description;
}

std::optional<std::int64_t> IntegerOf(const std::string& text)
{
    std::int64_t number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    return fault == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

Json ConvertScalar(const std::string& type, const Json& value)
{
    if (type == "boolean" && (value == "1" || value == 1 || value == "true")) {
        return true;
    }
    if (type == "boolean" && (value == "0" || value == 0 || value == "false")) {
        return false;
    }
    if (type == "integer" && value.is_boolean()) {
        return value.get<bool>() ? 1 : 0;
    }
    if ((type == "integer" || type == "number") && value.is_string()) {
        const std::optional<std::int64_t> number = IntegerOf(value);
        return number ? Json(*number) : value;
    }
    if (type == "string" && value.is_number()) {
        return value.dump();
    }
    return value;
}

}  // namespace

struct Schema::Compiled {
    valijson::Schema schema;
};

Schema::Schema(Json document) : m_document(std::move(document)), m_compiled(std::make_unique<Compiled>())
{
    valijson::SchemaParser(valijson::SchemaParser::kDraft7).populateSchema(Adapter(m_document), m_compiled->schema);
}

Schema::~Schema() = default;
Schema::Schema(Schema&&) noexcept = default;
Schema& Schema::operator=(Schema&&) noexcept = default;

std::string Schema::breach(const Json& value) const
{
    valijson::Validator validator(valijson::Validator::kStrongTypes);
    valijson::ValidationResults results;
    if (validator.validate(m_compiled->schema, Adapter(value), &results)) {
        return {};
    }
    const Error* deepest = nullptr;
    for (const Error& error : results) {
        if (deepest == nullptr || error.context.size() > deepest->context.size()) {
            deepest = &error;
        }
    }
    return deepest != nullptr ? Describe(m_document, value, *deepest) : ": not valid";
}

Json ConvertTo(const Json& schema, const Json& value)
{
    if (value.is_object() && schema.contains("properties")) {
        Json converted = value;
        for (const auto& member : schema.at("properties").items()) {
            if (converted.contains(member.key())) {
                converted[member.key()] = ConvertTo(member.value(), converted[member.key()]);
            }
        }
        return converted;
    }
    if (value.is_array() && schema.contains("items")) {
        Json converted = Json::array();
        for (const Json& element : value) {
            converted.push_back(ConvertTo(schema.at("items"), element));
        }
        return converted;
    }
    const Json type = schema.value("type", Json());
    return type.is_string() ? ConvertScalar(type, value) : value;
}

Json ProjectOn(const Json& schema, const Json& value)
{
    static const Json kNone = Json::object();
    if (value.is_object()) {
        const bool isClosed = schema.value("additionalProperties", Json(true)) == Json(false);
        const Json& properties = schema.contains("properties") ? schema.at("properties") : kNone;
        Json kept = Json::object();
        for (const auto& member : value.items()) {
            if (properties.contains(member.key())) {
                kept[member.key()] = ProjectOn(properties.at(member.key()), member.value());
            } else if (!isClosed) {
                kept[member.key()] = member.value();
            }
        }
        return kept;
    }
    if (value.is_array() && schema.contains("items")) {
        Json kept = Json::array();
        for (const Json& element : value) {
            kept.push_back(ProjectOn(schema.at("items"), element));
        }
        return kept;
    }
    return value;
}

}  // namespace emulator

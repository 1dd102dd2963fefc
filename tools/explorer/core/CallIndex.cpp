#include "CallIndex.h"

#include <catalogue/Identity.h>

#include <Contract.h>
#include <PlatformEmulator.h>

namespace explorer {
namespace {

QString ToText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

void AddKeys(const emulator::Json& schema, QStringList& keys)
{
    if (!schema.is_structured()) {
        return;
    }
    for (const auto& [name, value] : schema.items()) {
        if (schema.is_object() && name == "properties" && value.is_object()) {
            for (const auto& property : value.items()) {
                keys.append(QString::fromStdString(property.key()));
            }
        }
        AddKeys(value, keys);
    }
}

void Limit(FieldFacts& facts, const emulator::Json& limits)
{
    const emulator::Json values = limits.value("enum", emulator::Json::array());
    for (const emulator::Json& value : values) {
        facts.values.append(QString::fromStdString(catalogue::PlainText(value)));
    }
    const auto number = [&limits](const char* keyword) {
        return limits.contains(keyword) ? std::optional<double>(limits.at(keyword).get<double>()) : std::nullopt;
    };
    facts.minimum = number("minimum");
    facts.maximum = number("maximum");
}

Endpoint Describe(const emulator::Operation& operation)
{
    Endpoint endpoint{QString::fromStdString(operation.method),
                      QString::fromStdString(operation.path),
                      {},
                      QString::fromStdString(operation.description),
                      {}};
    for (const auto& [key, description] : operation.sent) {
        FieldFacts& facts = endpoint.sent[QString::fromStdString(key)];
        facts.description = QString::fromStdString(description);
        Limit(facts, operation.limits.at(key));
        const auto example = operation.examples.find(key);
        if (example != operation.examples.end()) {
            facts.example = QString::fromStdString(example->second);
        }
    }
    for (const emulator::QueryParameter& parameter : operation.query) {
        endpoint.keys.append(QString::fromStdString(parameter.name));
    }
    if (operation.body) {
        AddKeys(operation.body->document(), endpoint.keys);
    }
    AddKeys(operation.dataSchema, endpoint.keys);
    endpoint.keys.removeDuplicates();
    return endpoint;
}

void AddFields(const catalogue::Type& type, QStringList& words)
{
    if (type.element != nullptr) {
        AddFields(*type.element, words);
    }
    for (const catalogue::Field& field : type.fields) {
        words.append(ToText(field.name));
        AddFields(*field.type, words);
    }
}

}  // namespace

std::filesystem::path DefaultContract()
{
    return emulator::DefaultShareFolder() / "contract";
}

Endpoints ReadEndpoints(const std::filesystem::path& contract)
{
    Endpoints endpoints;
    try {
        const emulator::Contract read = emulator::Contract::Load(contract);
        for (const emulator::Operation& operation : read.operations()) {
            endpoints.insert(QString::fromStdString(operation.id), Describe(operation));
        }
    } catch (const std::exception&) {
        return {};  // calls are still found by name and field
    }
    return endpoints;
}

QString SearchText(const catalogue::Call& call)
{
    QStringList words{QString::fromStdString(call.name),
                      ToText(call.summary),
                      ToText(call.subject),
                      ToText(call.packName),
                      ToText(call.parseName),
                      QString::fromStdString(catalogue::Translated(call.summary)),
                      QString::fromStdString(catalogue::Translated(call.subject))};
    for (const catalogue::Argument& argument : call.arguments) {
        words.append(ToText(argument.name));
        AddFields(*argument.type, words);
    }
    if (call.result != nullptr) {
        AddFields(*call.result, words);
    }
    words.removeDuplicates();
    return words.join(QLatin1Char('\n'));
}

QString ShortName(const catalogue::Call& call)
{
    return QString::fromStdString(call.name).section(QLatin1Char('.'), 1);
}

}  // namespace explorer

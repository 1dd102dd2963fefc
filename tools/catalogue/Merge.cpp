#include "Merge.h"

#include "detail/Texts.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string_view>

namespace catalogue {
namespace {

/// "EncodeConfig" of "BRMS.UpdateEncodeConfig"; empty for a call that neither sets nor updates.
std::string SubjectOf(const Call& write)
{
    const std::string name = write.name.substr(write.family.size() + 1);
    for (const std::string_view verb : {std::string_view("Set"), std::string_view("Update")}) {
        if (name.rfind(verb, 0) == 0) {
            return name.substr(verb.size());
        }
    }
    return {};
}

/// Whether a value of the wanted type can be taken from the record.
bool Provides(const Type& record, const Type& wanted)
{
    return &record == &wanted ||
           (record.kind == Kind::Record && wanted.kind == Kind::Record &&
            std::all_of(wanted.fields.begin(), wanted.fields.end(), [&record](const Field& field) {
                const Field* const found = record.FindField(field.name);
                return found != nullptr && found->type == field.type;
            }));
}

bool IsIndex(const std::string& word)
{
    constexpr std::size_t kMostDigits = 6;
    const bool isPadded = word.size() > 1 && word.front() == '0';
    return !word.empty() && word.size() <= kMostDigits && !isPadded &&
           std::all_of(word.begin(), word.end(), [](char letter) { return letter >= '0' && letter <= '9'; });
}

/// The type of one step of a path: a field of a record or an element of a list; null when there is none.
const Type* TypeOfStep(const Type& type, const std::string& step)
{
    if (type.kind == Kind::List) {
        return IsIndex(step) ? type.element : nullptr;
    }
    const Field* const field = type.FindField(step);
    return field == nullptr ? nullptr : field->type;
}

}  // namespace

std::optional<MatchingRead> FindMatchingRead(const Call& write)
{
    const std::string subject = SubjectOf(write);
    const Call* const read = subject.empty() ? nullptr : FindCall(write.family + ".Get" + subject);
    if (read == nullptr || read->result == nullptr) {
        return std::nullopt;
    }
    for (const Argument& argument : write.arguments) {
        if (Provides(*read->result, *argument.type)) {
            return MatchingRead{read, &argument};
        }
    }
    return std::nullopt;
}

nlohmann::json ArgumentsOfRead(const MatchingRead& read, const Call& write, const nlohmann::json& given)
{
    const std::string record(read.argument->name);
    nlohmann::json arguments = nlohmann::json::object();
    for (const Argument& argument : read.call->arguments) {
        const std::string name(argument.name);
        if (given.contains(name)) {
            arguments[name] = given[name];
        } else if (given.contains(record) && given[record].is_object() && given[record].contains(name)) {
            arguments[name] = given[record][name];
        } else {
            std::string path = name;
            if (write.FindArgument(name) == nullptr) {
                path.insert(0, record + '/');
            }
            //: %1 is the call that reads the record, %2 an argument, %3 the call that the user runs
            throw Mismatch(
                Filled(Texts::tr("%1, which runs first, requires \"%2\" of %3"), read.call->name, path, write.name));
        }
    }
    return arguments;
}

nlohmann::json PresentValue(const MatchingRead& read, const nlohmann::json& asked, const nlohmann::json& record)
{
    if (read.argument->type->kind != Kind::Record) {
        return record;
    }
    nlohmann::json present = nlohmann::json::object();
    for (const Field& field : read.argument->type->fields) {
        const std::string name(field.name);
        present[name] = asked.contains(name) ? asked[name] : record.at(name);
    }
    return present;
}

const Type& TypeAt(const Call& call, const std::string& path)
{
    std::size_t end = path.find('/');
    const std::string name = path.substr(0, end);
    const Argument* const argument = call.FindArgument(name);
    if (argument == nullptr) {
        RefuseArgument(call, name);
    }
    const Type* type = argument->type;
    while (end != std::string::npos) {
        const std::size_t begin = end + 1;
        end = path.find('/', begin);
        const Type* const next = TypeOfStep(*type, path.substr(begin, end == std::string::npos ? end : end - begin));
        if (next == nullptr) {
            //: %1 is a path such as /config/interval, %2 a type
            throw Mismatch(
                Filled(Texts::tr("/%1: no such field or element in %2"), path.substr(0, end), NameOf(*type)));
        }
        type = next;
    }
    return *type;
}

}  // namespace catalogue

#include "Identity.h"

#include <nlohmann/json.hpp>

namespace catalogue {
namespace {

bool EndsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

}  // namespace

Identity IdentityOf(const Type& type, const nlohmann::json& record)
{
    Identity identity;
    for (const Field& field : type.fields) {
        if (field.type->kind == Kind::Record || field.type->kind == Kind::List) {
            continue;
        }
        const bool isName = field.name == "name" || EndsWith(field.name, "Name");
        std::string& wanted = isName ? identity.name : identity.identifier;
        if (wanted.empty() && (isName || IsIdentifier(field.name))) {
            wanted = PlainText(record.at(std::string(field.name)));
        }
    }
    return identity;
}

bool IsIdentifier(std::string_view name)
{
    return name == "id" || EndsWith(name, "Id") || EndsWith(name, "Code");
}

std::string PlainText(const nlohmann::json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

}  // namespace catalogue

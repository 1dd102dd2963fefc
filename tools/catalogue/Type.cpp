#include "Type.h"

#include <algorithm>

namespace catalogue {

const Field* Type::FindField(std::string_view fieldName) const
{
    const auto found =
        std::find_if(fields.begin(), fields.end(), [fieldName](const Field& field) { return field.name == fieldName; });
    return found == fields.end() ? nullptr : &*found;
}

std::string NameOf(const Type& type)
{
    switch (type.kind) {
    case Kind::Bool:
        return "bool";
    case Kind::Int:
        return "int";
    case Kind::Int64:
        return "int64";
    case Kind::Double:
        return "double";
    case Kind::Text:
        return "text";
    case Kind::Record:
        return std::string(type.name);
    case Kind::List:
        return "list of " + NameOf(*type.element);
    }
    return {};
}

}  // namespace catalogue

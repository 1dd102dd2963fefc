#include "Type.h"

#include "detail/Texts.h"

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
        //: A type beside bool, int, int64 and double
        return Filled(Texts::tr("text"));
    case Kind::Record:
        return std::string(type.name);
    case Kind::List:
        //: %1 is the type of its elements
        return Filled(Texts::tr("list of %1"), NameOf(*type.element));
    }
    return {};
}

}  // namespace catalogue

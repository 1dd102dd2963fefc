#include "Same.h"

#include <APIModuleGlobal.h>

#include <algorithm>

namespace bench {
namespace {

template <typename T>
bool Equal(const void* left, const void* right)
{
    return *static_cast<const T*>(left) == *static_cast<const T*>(right);
}

bool SameElements(const catalogue::Type& type, void* left, void* right)
{
    const std::size_t size = type.list.size(left);
    if (type.list.size(right) != size) {
        return false;
    }
    for (std::size_t index = 0; index < size; ++index) {
        if (!Same(*type.element, type.list.at(left, index), type.list.at(right, index))) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool Same(const catalogue::Type& type, void* left, void* right)
{
    using catalogue::Kind;
    switch (type.kind) {
    case Kind::Bool:
        return Equal<bool>(left, right);
    case Kind::Int:
        return Equal<int>(left, right);
    case Kind::Int64:
        return Equal<APIModule::int64>(left, right);
    case Kind::Double:
        return Equal<double>(left, right);
    case Kind::Text:
        return Equal<std::string>(left, right);
    case Kind::Record:
        return std::all_of(type.fields.begin(), type.fields.end(), [=](const catalogue::Field& field) {
            return Same(*field.type, field.access(left), field.access(right));
        });
    case Kind::List:
        return SameElements(type, left, right);
    }
    return false;
}

}  // namespace bench

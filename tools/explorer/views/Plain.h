#pragma once

#include <catalogue/Type.h>

namespace explorer {

/// Whether a value of the type is edited in one field.
inline bool IsPlain(const catalogue::Type& type)
{
    return type.kind != catalogue::Kind::Record && type.kind != catalogue::Kind::List;
}

}  // namespace explorer

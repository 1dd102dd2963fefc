#pragma once

#include <catalogue/Type.h>

namespace bench {

/// Whether two values of a type are the same, field by field and element by element.
bool Same(const catalogue::Type& type, void* left, void* right);

}  // namespace bench

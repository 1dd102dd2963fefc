#pragma once

#include <cstddef>

namespace bench {

/// What this thread has allocated so far, by malloc and all that stands on it: operator new, the containers of Qt.
std::size_t Allocations();

}  // namespace bench

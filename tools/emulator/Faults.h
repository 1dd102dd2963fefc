#pragma once

#include "Fault.h"

#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace emulator {

/// The active faults; thread-safe.
class Faults {
public:
    void add(Fault fault);
    [[nodiscard]] std::vector<Fault> list() const;
    void clear();

    /// Returns the first fault that matches the request and decrements its remaining times.
    std::optional<Fault> take(const std::string& method, std::string_view target);

private:
    mutable std::mutex m_mutex;
    std::vector<Fault> m_faults;
};

}  // namespace emulator

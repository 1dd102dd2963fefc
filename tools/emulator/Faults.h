#pragma once

#include "Fault.h"

#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace emulator {

/// The faults that are switched on; safe to use from several threads.
class Faults {
public:
    void add(Fault fault);
    [[nodiscard]] std::vector<Fault> list() const;
    void clear();

    /// The first fault that fits a request, counted down.
    std::optional<Fault> take(const std::string& method, std::string_view target);

private:
    mutable std::mutex m_mutex;
    std::vector<Fault> m_faults;
};

}  // namespace emulator

#pragma once

#include "Fault.h"

#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace emulator {

/// The active faults; thread-safe.
class Faults {
public:
    /// @return the number under which it is listed and removed
    std::size_t add(Fault fault);
    /// By their numbers.
    [[nodiscard]] std::map<std::size_t, Fault> list() const;
    /// @return false when there is no fault of this number
    bool remove(std::size_t number);
    void clear();

    /// Returns the first fault that matches the request and decrements its remaining times.
    /// @param operation names the operation of the request; called when a fault depends on it
    std::optional<Fault> take(const std::string& method, std::string_view target,
                              const std::function<std::string()>& operation);

private:
    mutable std::mutex m_mutex;
    std::map<std::size_t, Fault> m_faults;
    std::size_t m_lastNumber = 0;
};

}  // namespace emulator

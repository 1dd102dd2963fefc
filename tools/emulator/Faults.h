#pragma once

#include "Schema.h"

#include <chrono>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace emulator {

/// Something that goes wrong with the next requests whose target begins with a prefix.
struct Fault {
    /// Delay, Cut, CloseMiddle and Large carry the call out and spoil its answer. All others stand in its place: the
    /// state does not change, and neither token nor path is looked at.
    enum class Kind {
        Delay,        ///< the true answer, late
        Status,       ///< an HTTP status, with the headers and the body given
        Envelope,     ///< an envelope with the code and text given
        Empty,        ///< status 200 and no body
        Cut,          ///< the first half of the true body, as a complete HTTP answer
        NotJson,      ///< status 200 and a body that is no JSON
        Text,         ///< status 200 and the body given
        Large,        ///< the true answer, its "desc" made so long that the body has the size given
        CloseBefore,  ///< the connection is closed without an answer
        CloseMiddle,  ///< the connection is closed after half of the true body
        Silent        ///< no answer and no end, until the client goes away or the emulator stops
    };

    std::string path;  ///< start of the target, query included; an empty text fits all
    Kind kind = Kind::Delay;
    int times = 1;                       ///< how many requests it hits; 0: all until it is cleared
    std::chrono::milliseconds delay{0};  ///< before anything else; goes with every kind
    int status = 200;
    std::vector<std::pair<std::string, std::string>> headers;
    int code = 0;
    std::string desc;
    std::string body;
    std::size_t size = 0;

    /// @throws std::invalid_argument with a text for the user.
    static Fault FromJson(const Json& json);
    [[nodiscard]] Json toJson() const;
};

/// The faults that are switched on; safe to use from several threads.
class Faults {
public:
    void add(Fault fault);
    [[nodiscard]] std::vector<Fault> list() const;
    void clear();

    /// The first fault that fits the target, counted down.
    std::optional<Fault> take(const std::string& target);

private:
    mutable std::mutex m_mutex;
    std::vector<Fault> m_faults;
};

}  // namespace emulator

#pragma once

#include "Json.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace emulator {

/// Something that goes wrong with the next requests whose target begins with a prefix.
struct Fault {
    /// Delay, Cut, CloseMiddle, Large and Slow carry the call out and spoil its answer. All others stand in its place:
    /// the state does not change, and neither token nor path is looked at.
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
        Silent,       ///< no answer and no end, until the client goes away or the emulator stops
        Reset,        ///< the connection is reset without an answer
        Slow          ///< the true answer, its body sent at the speed given
    };

    std::string path;                    ///< start of the target, query included; empty fits all
    Kind kind = Kind::Delay;             ///< what goes wrong
    std::string method;                  ///< of the request, such as "PUT"; empty fits all
    int times = 1;                       ///< how many requests it hits; 0: all until it is cleared
    std::chrono::milliseconds delay{0};  ///< before anything else; goes with every kind
    int status = 200;                    ///< of Kind::Status
    std::vector<std::pair<std::string, std::string>> headers;  ///< of Kind::Status
    int code = 0;                                              ///< of Kind::Envelope
    std::string desc;                                          ///< of Kind::Envelope
    std::string body;                                          ///< of Kind::Status and Kind::Text
    std::size_t size = 0;                                      ///< of Kind::Large, in bytes
    std::size_t bytesPerSecond = 1024;                         ///< of Kind::Slow

    /// Reads a fault as the control path takes it.
    /// @param json an object with "kind" and what goes with it
    /// @return the fault
    /// @throws std::invalid_argument with a text for the user.
    static Fault FromJson(const Json& json);
    /// @return the fault as the control path lists it
    [[nodiscard]] Json toJson() const;
};

}  // namespace emulator

#pragma once

#include "Json.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace emulator {

/// A fault to inject into the next matching requests.
struct Fault {
    /// Delay, Cut, CloseMiddle, Large and Slow execute the call and modify its reply. All others replace the reply
    /// without executing the call: the state does not change, and neither token nor path is checked.
    enum class Kind {
        Delay,        ///< the real reply, delayed
        Status,       ///< a reply with the given status, headers and body
        Envelope,     ///< an envelope with the given code and text
        Empty,        ///< status 200 and no body
        Cut,          ///< the first half of the real body, as a complete HTTP reply
        NotJson,      ///< status 200 and a body that is not JSON
        Text,         ///< status 200 and the given body
        Large,        ///< the real reply, with "desc" extended until the body has the given size
        CloseBefore,  ///< the connection is closed without a reply
        CloseMiddle,  ///< the connection is closed after half of the real body
        Silent,       ///< no reply, until the client disconnects or the emulator stops
        Reset,        ///< the connection is reset without a reply
        Slow          ///< the real reply, with its body sent at the given speed
    };

    std::string path;                    ///< prefix of the target, including the query; empty matches all
    Kind kind = Kind::Delay;             ///< the kind of fault
    std::string method;                  ///< of the request, such as "PUT"; empty matches all
    int times = 1;                       ///< number of requests that it applies to; 0: all, until it is removed
    std::chrono::milliseconds delay{0};  ///< delay before anything else, for every kind
    int status = 200;                    ///< of Kind::Status
    std::vector<std::pair<std::string, std::string>> headers;  ///< of Kind::Status
    int code = 0;                                              ///< of Kind::Envelope
    std::string desc;                                          ///< of Kind::Envelope
    std::string body;                                          ///< of Kind::Status and Kind::Text
    std::size_t size = 0;                                      ///< of Kind::Large, in bytes
    std::size_t bytesPerSecond = 1024;                         ///< of Kind::Slow
    std::string operation;  ///< of the contract, such as "BRMS.GetTimeSyncConfig"; empty matches all
    int skip = 0;           ///< number of matching requests that pass before the fault applies

    /// Reads a fault in the control path's format.
    /// @param json an object with "kind" and the members for that kind
    /// @return the fault
    /// @throws std::invalid_argument with the reason, for an invalid object.
    static Fault FromJson(const Json& json);
    /// @return the fault in the control path's format
    [[nodiscard]] Json toJson() const;
};

}  // namespace emulator

#pragma once

#include "Contract.h"
#include "HttpMessage.h"
#include "State.h"

#include <mutex>
#include <string>

namespace emulator {

constexpr const char* kWrongToken = "X-Subject-Token is missing or wrong";

/// Whether the request carries this token.
bool HasToken(const HttpRequest& request, const std::string& token);

/// Checks calls against the contract, executes them on the state and replies with envelopes.
class Platform {
public:
    /// @throws SeedError when the seeds do not match the contract.
    Platform(Contract contract, State state, std::string token);

    /// Thread-safe; executes one call at a time.
    HttpResponse answer(const HttpRequest& request);

    /// The identifier of the operation that a request asks for; empty for none.
    [[nodiscard]] std::string operationOf(const HttpRequest& request) const;
    /// Whether the contract has an operation of this identifier.
    [[nodiscard]] bool knows(const std::string& operation) const;

    [[nodiscard]] Json state();
    void setState(Json state);
    /// @throws std::invalid_argument when the patch is not an object.
    void mergeState(const Json& patch);
    void reset();

private:
    Json envelopeFor(const HttpRequest& request);
    Json execute(const Operation& operation, const PathValues& path, const Json& query, const Json& body);

    const Contract m_contract;
    const std::string m_token;
    std::mutex m_mutex;
    State m_state;
};

}  // namespace emulator

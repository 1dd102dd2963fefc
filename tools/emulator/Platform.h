#pragma once

#include "Contract.h"
#include "HttpMessage.h"
#include "State.h"

#include <mutex>
#include <string>

namespace emulator {

constexpr const char* kWrongToken = "X-Subject-Token is missing or wrong";

/// Whether the request carries the token.
bool HasToken(const HttpRequest& request, const std::string& token);

/// Judges calls by the contract, carries them out on the state and answers with envelopes.
class Platform {
public:
    /// @throws SeedError when the seeds do not fit the contract.
    Platform(Contract contract, State state, std::string token);

    /// Safe from several threads; calls take turns.
    HttpResponse answer(const HttpRequest& request);

    [[nodiscard]] Json state();
    void setState(Json state);
    /// @throws std::invalid_argument when the patch is no object.
    void mergeState(const Json& patch);
    void reset();

private:
    Json envelopeFor(const HttpRequest& request);
    Json carryOut(const Operation& operation, const PathValues& path, const Json& query, const Json& body);

    const Contract m_contract;
    const std::string m_token;
    std::mutex m_mutex;
    State m_state;
};

}  // namespace emulator

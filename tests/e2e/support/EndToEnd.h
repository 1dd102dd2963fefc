#pragma once

#include "support/Host.h"

#include <catalogue/Run.h>
#include <PlatformEmulator.h>

#include <nlohmann/json.hpp>

#include <memory>
#include <ostream>
#include <string>

namespace e2e {

using Json = nlohmann::json;

enum class Scheme {
    Http,
    Https
};

/// A host connected to an emulator. The tests of a suite share the emulator, which is reset before each test.
class EndToEnd : public testing_support::Host {
protected:
    EndToEnd();

    static void SetUpTestSuite() { Start({}); }
    static void TearDownTestSuite();
    static void Start(const emulator::Options& options);

    void Use(Scheme scheme);

    static emulator::PlatformEmulator& Platform() { return *s_platform; }

    /// Runs a call of the catalogue; the arguments are an object, or null for none.
    static catalogue::Outcome Run(const std::string& call, const Json& arguments = {},
                                  const catalogue::RunSettings& settings = {});

private:
    static std::unique_ptr<emulator::PlatformEmulator> s_platform;
};

/// The record of a call before anything is read into it.
Json DefaultRecord(const std::string& call);

/// Prints the call of a row when a test fails.
template <typename Row>
auto operator<<(std::ostream& stream, const Row& row) -> decltype((stream << row.call))
{
    return stream << row.call;
}

}  // namespace e2e

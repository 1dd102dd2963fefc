#pragma once

#include <nlohmann/json_fwd.hpp>

#include <QString>

#include <vector>

namespace catalogue {
struct Call;
}

namespace explorer {

struct RunSummary;

/// A call as a client engineer writes it: a function, with its includes, that makes the call with these arguments.
/// @p arguments holds them under their names and fits the call; what it leaves out is written as a fresh value.
QString CppLines(const catalogue::Call& call, const nlohmann::json& arguments, int serverId);

/// A test program of a client that uses APIModule::Testing: the emulator gives each call the reply of its run, and the
/// test holds result and request against it. Runs without a reply, and those whose reply brings a token, are left out.
QString CppTest(const std::vector<const RunSummary*>& runs);

/// A text as a C++ literal. A plain literal ends at its first zero byte, so a text with one is a std::string.
QString CppText(const std::string& text);

}  // namespace explorer

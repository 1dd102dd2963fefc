#pragma once

#include <nlohmann/json_fwd.hpp>

#include <QString>

#include <vector>

namespace catalogue {
struct Call;
}

namespace explorer {

struct RunSummary;

/// A function in C++, with its includes, that makes the call with these arguments.
/// @param arguments by name; they fit the call, and those left out get default values
QString CppLines(const catalogue::Call& call, const nlohmann::json& arguments, int serverId);

/// A test program that uses APIModule::Testing: the emulator replies to each call as in its run, and the test compares
/// result and request with that run. Leaves out runs without a reply and runs whose reply contains a token.
QString CppTest(const std::vector<const RunSummary*>& runs);

/// A text as a C++ literal. A plain literal ends at its first zero byte, so a text with one is a std::string.
QString CppText(const std::string& text);

}  // namespace explorer

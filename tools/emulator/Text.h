#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace emulator {

/// "a,,b" split at ',' gives "a", "", "b"; an empty text gives one empty part.
std::vector<std::string> Split(std::string_view text, char separator);

bool StartsWith(std::string_view text, std::string_view start);

/// "%41" becomes "A"; a '%' not followed by two hexadecimal digits remains. '+' becomes a space if @p plusIsSpace.
std::string PercentDecode(std::string_view text, bool plusIsSpace);

}  // namespace emulator

#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace translation {

/// Translates the fixed texts of CLI11's help. Call it before adding options.
void TranslateHelp(CLI::App& app);

/// The reason for a parse error in the user's language.
std::string Explain(const CLI::App& app, const CLI::ParseError& error);

/// Accepts an integer in the range.
CLI::Validator InRange(int least, int most);

/// Accepts the path of an existing folder.
CLI::Validator ExistingFolder();

}  // namespace translation

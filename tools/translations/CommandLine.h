#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace translation {

/// The words of CLI11's own help in the user's language. Comes before the options.
void TranslateHelp(CLI::App& app);

/// Why the command line was refused, in the user's language.
std::string Explain(const CLI::App& app, const CLI::ParseError& error);

/// Takes a whole number of the range.
CLI::Validator InRange(int least, int most);

/// Takes the name of a folder that is there.
CLI::Validator ExistingFolder();

}  // namespace translation

#include "CommandLine.h"

#include "Filled.h"

#include <QCoreApplication>

#include <cstring>

namespace translation {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Texts)
};

constexpr const char* kSeparator = ": ";

/// The option's name, which is the first part of CLI11's message "<name>: <reason>".
std::string NameOfOption(const std::string& text)
{
    return text.substr(0, text.find(kSeparator));
}

/// The option and its value, which are the last part of CLI11's message "<reason>: <option> = <value>".
std::string OptionAndValue(const std::string& text)
{
    const std::size_t at = text.find(kSeparator);
    return at == std::string::npos ? text : text.substr(at + std::strlen(kSeparator));
}

}  // namespace

void TranslateHelp(CLI::App& app)
{
    const auto formatter = app.get_formatter();
    formatter->label("Usage", Filled(Texts::tr("Usage")));
    //: In "Usage: apicall [OPTIONS]"
    formatter->label("OPTIONS", Filled(Texts::tr("OPTIONS")));
    //: Heading over the arguments other than options
    formatter->label("Positionals", Filled(Texts::tr("Positionals")));
    //: Before the name of an environment variable, short for "environment"
    formatter->label("Env", Filled(Texts::tr("Env")));
    //: Stands for the value of an option
    formatter->label("TEXT", Filled(Texts::tr("TEXT")));
    //: Heading over the options
    app.option_defaults()->group(Filled(Texts::tr("Options")));
}

std::string Explain(const CLI::App& app, const CLI::ParseError& error)
{
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        return Filled(Texts::tr("unexpected argument: %1"), CLI::detail::join(app.remaining(), " "));
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        return Filled(Texts::tr("%1 requires exactly one value"), NameOfOption(error.what()));
    }
    if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr) {
        //: %1 is an option with its value
        return Filled(Texts::tr("invalid value: %1"), OptionAndValue(error.what()));
    }
    return error.what();
}

CLI::Validator InRange(int least, int most)
{
    const CLI::Range range(least, most);
    const std::string from = std::to_string(least);
    const std::string to = std::to_string(most);
    const auto check = [range, from, to](std::string& value) {
        return range(value).empty() ? std::string()
                                    : Filled(Texts::tr("%1 is not an integer from %2 to %3"), value, from, to);
    };
    return {check, from + ".." + to};
}

CLI::Validator ExistingFolder()
{
    const auto check = [](std::string& value) {
        return CLI::ExistingDirectory(value).empty() ? std::string()
                                                     : Filled(Texts::tr("folder %1 does not exist"), value);
    };
    return {check, std::string()};
}

}  // namespace translation

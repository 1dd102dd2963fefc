#include "Options.h"

#include <QUrl>

#include <CLI/CLI.hpp>

#include <limits>

namespace apicall {
namespace {

constexpr const char* kDescription =
    "Runs one call of the library against a platform server and prints its record as JSON.";

constexpr const char* kFooter = R"(Arguments of a call:
  name=value       a text as it stands, anything else as JSON
  {"name": value}  all of them in one JSON object; @FILE or - reads it from a file or from standard input

Examples:
  apicall --list
  apicall --help BRMS.GetLocalSetting
  apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3

Standard output carries the result alone, null for a call without one; log lines and errors go to standard error.
Exit status: 0 success, 1 failed call, 2 wrong usage.)";

}  // namespace

Options ReadOptions(int argc, char** argv)
{
    Options options;
    CLI::App app(kDescription, "apicall");
    app.footer(kFooter);
    app.set_help_flag();
    app.add_flag("-h,--help", options.help, "Print this help, or the arguments and the result of CALL");
    app.add_flag("-V,--version", options.version, "Print the version");
    app.add_flag("-l,--list", options.list, "List the calls");
    app.add_option("-s,--server", options.server, "Platform server: https://host[:port] or http://host[:port]");
    app.add_option("-t,--token", options.token, "Session token; the environment keeps it out of the process list")
        ->envname("APICALL_TOKEN");
    app.add_option("--language", options.language, "Language of the server's and of the error texts")
        ->capture_default_str();
    app.add_option("--server-id", options.settings.serverId, "Server identifier that the call is made with")
        ->check(CLI::Range(-1, 1))
        ->capture_default_str();
    app.add_option("--timeout", options.settings.timeoutSeconds, "Longest wait, instead of the call's own 10 s")
        ->check(CLI::Range(1, std::numeric_limits<int>::max()))
        ->type_name("SECONDS");
    app.add_option("CALL", options.call, "Name of the call");
    app.add_option("ARGUMENT", options.arguments, "Arguments of the call");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        throw WrongUsage(error.what());
    }
    options.usage = app.help();
    return options;
}

Server ServerOf(const std::string& url)
{
    const auto refuse = [&url](const char* why) { throw WrongUsage("--server " + url + ": " + why); };

    const QUrl parsed(QString::fromStdString(url), QUrl::StrictMode);
    if (!parsed.isValid()) {
        refuse("this is no URL");
    }
    const bool https = parsed.scheme() == QLatin1String("https");
    if (!https && parsed.scheme() != QLatin1String("http")) {
        refuse("it must begin with https:// or http://");
    }
    const QString host = parsed.host(QUrl::FullyEncoded);
    if (host.isEmpty()) {
        refuse("it names no host");
    }
    if (!parsed.userInfo().isEmpty() || parsed.path().size() > 1 || parsed.hasQuery() || parsed.hasFragment()) {
        refuse("only a host and a port may follow the scheme");
    }

    constexpr int kHttpsPort = 443;
    constexpr int kHttpPort = 80;
    const bool isIpv6 = host.contains(QLatin1Char(':')) && !host.startsWith(QLatin1Char('['));
    return {isIpv6 ? "[" + host.toStdString() + "]" : host.toStdString(), parsed.port(https ? kHttpsPort : kHttpPort),
            https};
}

}  // namespace apicall

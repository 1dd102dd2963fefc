#include "Options.h"

#include "Texts.h"

#include <translations/CommandLine.h>

#include <QUrl>

#include <limits>

namespace apicall {
namespace {

std::string Footer()
{
    return Filled(Texts::tr(R"(Arguments of a call:
  name=value        a text as it stands, anything else as JSON
  name/field=value  a field of a record; name/0 is the first element of a list
  {"name": value}   all of them in one JSON object; @FILE or - reads it from a file or from standard input

Examples:
  $ apicall --list
  $ apicall --help BRMS.GetLocalSetting
  $ apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3
  $ apicall --server https://127.0.0.1:8443 --merge BRMS.SetTimeSyncConfig config/interval=30

Standard output carries the result alone, null for a call without one; log lines and errors go to standard error.
Exit status: 0 success, 1 failed call, 2 wrong usage.)"));
}

}  // namespace

Options ReadOptions(int argc, char** argv)
{
    Options options;
    CLI::App app(
        Filled(Texts::tr("Runs one call of the library against a platform server and prints its record as JSON.")),
        "apicall");
    translation::TranslateHelp(app);
    app.footer(Footer());
    app.set_help_flag();
    app.add_flag("-h,--help", options.help,
                 Filled(Texts::tr("Print this help, or the arguments and the result of CALL")));
    app.add_flag("-V,--version", options.version, Filled(Texts::tr("Print the version")));
    app.add_flag("-l,--list", options.list, Filled(Texts::tr("List the calls")));
    app.add_flag("--names", options.names,
                 Filled(Texts::tr("Print names alone: of the calls, or of the arguments of CALL")));
    app.add_flag("-q,--quiet", options.quiet, Filled(Texts::tr("Write log lines only when the call fails")));
    app.add_flag("-v,--verbose", options.verbose,
                 Filled(Texts::tr("Write request and reply to standard error, without the token")));
    app.add_flag("-n,--dry-run", options.dryRun,
                 Filled(Texts::tr("Print the request, without the token, and send nothing")));
    app.add_flag("-m,--merge", options.merge,
                 Filled(Texts::tr("For a call that writes: read what it replaces, change what ARGUMENT names, and "
                                  "write that")));
    app.add_option("-s,--server", options.server,
                   Filled(Texts::tr("Platform server: https://host[:port] or http://host[:port]")));
    app.add_option("-t,--token", options.token,
                   Filled(Texts::tr("Session token; the environment keeps it out of the process list")))
        ->envname("APICALL_TOKEN");
    app.add_option("--pin", options.pins,
                   Filled(Texts::tr("Trust only servers with this SHA-256 digest of their certificate or public key; "
                                    "repeatable")))
        ->allow_extra_args(false)
        //: Stands for the value of --pin
        ->type_name(Filled(Texts::tr("DIGEST")));
    app.add_option("--ca", options.authorityFiles,
                   Filled(Texts::tr("Trust only servers whose certificate an authority of this PEM file signed; "
                                    "repeatable")))
        ->allow_extra_args(false)
        //: Stands for the value of --ca
        ->type_name(Filled(Texts::tr("FILE")));
    app.add_option("--language", options.language,
                   Filled(Texts::tr("Language of the server's texts, otherwise English, and of the error texts")));
    app.add_option("--server-id", options.serverId, Filled(Texts::tr("Server identifier that the call is made with")))
        ->check(translation::InRange(-1, 1))
        ->capture_default_str();
    app.add_option("--timeout", options.timeoutSeconds,
                   Filled(Texts::tr("Longest wait, instead of the call's own 10 s")))
        ->check(translation::InRange(1, std::numeric_limits<int>::max()))
        //: Stands for the value of --timeout
        ->type_name(Filled(Texts::tr("SECONDS")));
    app.add_option("CALL", options.call, Filled(Texts::tr("Name of the call")));
    app.add_option("ARGUMENT", options.arguments, Filled(Texts::tr("Arguments of the call")));
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        throw WrongUsage(translation::Explain(app, error));
    }
    options.usage = app.help();
    return options;
}

Server ServerOf(const std::string& url)
{
    const auto refuse = [&url](const QString& why) { throw WrongUsage("--server " + url + ": " + Filled(why)); };

    const QUrl parsed(QString::fromStdString(url), QUrl::StrictMode);
    if (!parsed.isValid()) {
        refuse(Texts::tr("this is no URL"));
    }
    const bool https = parsed.scheme() == QLatin1String("https");
    if (!https && parsed.scheme() != QLatin1String("http")) {
        refuse(Texts::tr("it must begin with https:// or http://"));
    }
    const QString host = parsed.host(QUrl::FullyEncoded);
    if (host.isEmpty()) {
        refuse(Texts::tr("it names no host"));
    }
    if (!parsed.userInfo().isEmpty() || parsed.path().size() > 1 || parsed.hasQuery() || parsed.hasFragment()) {
        refuse(Texts::tr("only a host and a port may follow the scheme"));
    }

    constexpr int kHttpsPort = 443;
    constexpr int kHttpPort = 80;
    const bool isIpv6 = host.contains(QLatin1Char(':')) && !host.startsWith(QLatin1Char('['));
    return {isIpv6 ? "[" + host.toStdString() + "]" : host.toStdString(), parsed.port(https ? kHttpsPort : kHttpPort),
            https};
}

}  // namespace apicall

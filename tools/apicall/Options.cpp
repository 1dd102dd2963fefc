#include "Options.h"

#include "Texts.h"

#include <translations/CommandLine.h>

#include <QFile>
#include <QSslCertificate>
#include <QUrl>

#include <limits>

namespace apicall {
namespace {

std::string Footer()
{
    return Filled(Texts::tr(R"(Arguments of a call:
  name=value        one argument; text is taken literally, all other types are JSON
  name/field=value  one field of a record; name/0 is the first element of a list
  {"name": value}   all arguments as one JSON object; @FILE reads it from a file, - from standard input

Examples:
  $ apicall --list
  $ apicall --help BRMS.GetLocalSetting
  $ apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3
  $ apicall --server https://127.0.0.1:8443 --merge BRMS.SetTimeSyncConfig config/interval=30

Standard output contains only the result, null for a call without one. Log lines and errors go to standard error.
Exit status: 0 success, 1 failed call, 2 usage error.)"));
}

APIModule::ServerPin PinOf(const std::string& text)
{
    const QByteArray digest = APIModule::ServerPin::DigestFromText(QString::fromStdString(text));
    if (digest.isEmpty()) {
        throw WrongUsage("--pin " + text + ": " +
                         Filled(Texts::tr("a SHA-256 digest has 64 hexadecimal digits, with or without colons")));
    }
    return {digest, QString(), 0};
}

QList<QSslCertificate> CertificatesOf(const std::string& name)
{
    const auto refuse = [&name](const QString& why) { throw WrongUsage("--ca " + name + ": " + Filled(why)); };

    QFile file(QString::fromStdString(name));
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(Texts::tr("the file cannot be read"));
    }
    const QList<QSslCertificate> certificates = QSslCertificate::fromDevice(&file, QSsl::Pem);
    if (certificates.isEmpty()) {
        refuse(Texts::tr("the file contains no PEM certificate"));
    }
    return certificates;
}

}  // namespace

Options ReadOptions(int argc, char** argv)
{
    Options options;
    CLI::App app(Filled(Texts::tr("Makes one call to a platform server and prints the result as JSON.")), "apicall");
    translation::TranslateHelp(app);
    app.footer(Footer());
    app.set_help_flag();
    app.add_flag("-h,--help", options.help,
                 Filled(Texts::tr("Print this help, or describe the arguments and result of CALL")));
    app.add_flag("-V,--version", options.version, Filled(Texts::tr("Print the version")));
    app.add_flag("-l,--list", options.list, Filled(Texts::tr("List the calls")));
    app.add_flag("--names", options.names,
                 Filled(Texts::tr("Print only names: those of the calls, or of the arguments of CALL")));
    app.add_flag("-q,--quiet", options.quiet, Filled(Texts::tr("Write log lines only if the call fails")));
    app.add_flag("-v,--verbose", options.verbose,
                 Filled(Texts::tr("Write request and reply to standard error, with the token masked")));
    app.add_flag("-n,--dry-run", options.dryRun,
                 Filled(Texts::tr("Print the request, with the token masked, without sending it")));
    app.add_flag(
        "-m,--merge", options.merge,
        Filled(Texts::tr("For a call that writes a record: read the current record, apply each ARGUMENT, and write "
                         "the result back")));
    app.add_option("-s,--server", options.server,
                   Filled(Texts::tr("Platform server: https://host[:port] or http://host[:port]")));
    app.add_option("-t,--token", options.token,
                   Filled(Texts::tr("Session token; pass it in the environment to keep it out of the process list")))
        ->envname("APICALL_TOKEN");
    app.add_option("--pin", options.pins,
                   Filled(Texts::tr("Trust only servers with this SHA-256 digest of their certificate or public key; "
                                    "repeatable")))
        ->allow_extra_args(false)
        //: Stands for the value of --pin
        ->type_name(Filled(Texts::tr("DIGEST")));
    app.add_option("--ca", options.authorityFiles,
                   Filled(Texts::tr("Trust only servers whose certificate was signed by an authority in this PEM file; "
                                    "repeatable")))
        ->allow_extra_args(false)
        //: Stands for the value of --ca
        ->type_name(Filled(Texts::tr("FILE")));
    app.add_option(
        "--language", options.language,
        Filled(Texts::tr("Language of error texts and of the server's texts, which are English by default")));
    app.add_option("--server-id", options.serverId, Filled(Texts::tr("Server identifier passed to the call")))
        ->check(translation::InRange(-1, 1))
        ->capture_default_str();
    app.add_option("--timeout", options.timeoutSeconds, Filled(Texts::tr("Time-out of the call, 10 s by default")))
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
        refuse(Texts::tr("not a valid URL"));
    }
    const bool https = parsed.scheme() == QLatin1String("https");
    if (!https && parsed.scheme() != QLatin1String("http")) {
        refuse(Texts::tr("must begin with https:// or http://"));
    }
    const QString host = parsed.host(QUrl::FullyEncoded);
    if (host.isEmpty()) {
        refuse(Texts::tr("host is missing"));
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

APIModule::ServerTrust TrustOf(const Options& options)
{
    APIModule::ServerTrust trust;
    for (const std::string& pin : options.pins) {
        trust.pins.append(PinOf(pin));
    }
    for (const std::string& file : options.authorityFiles) {
        trust.authorities += CertificatesOf(file);
    }
    return trust;
}

}  // namespace apicall

#pragma once

#include <ServerTrust.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace apicall {

/// An invalid command line; the text says why.
class WrongUsage : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

struct Server {
    std::string host;
    int port = 0;
    bool https = true;
};

struct Options {
    std::string server;
    std::string token;
    std::vector<std::string> pins;            ///< digests, not yet parsed
    std::vector<std::string> authorityFiles;  ///< PEM files
    std::string language;                     ///< empty: English server texts, error texts in the program's language
    int serverId = -1;
    std::optional<int> timeoutSeconds;   ///< overrides the call's default
    std::string call;                    ///< name of the call, empty for none
    std::vector<std::string> arguments;  ///< not yet parsed
    bool list = false;
    bool names = false;
    bool quiet = false;
    bool verbose = false;
    bool dryRun = false;
    bool merge = false;
    bool help = false;
    bool version = false;
    std::string usage;  ///< the text for --help
};

/// Throws WrongUsage.
Options ReadOptions(int argc, char** argv);

/// The server of a URL such as "https://127.0.0.1:8443". Throws WrongUsage.
Server ServerOf(const std::string& url);

/// The trust that the options ask for; without --pin and --ca, every server is trusted. Throws WrongUsage.
APIModule::ServerTrust TrustOf(const Options& options);

}  // namespace apicall

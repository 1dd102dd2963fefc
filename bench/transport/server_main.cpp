// The server for benchmarks of calls. Sends replies of any size over HTTP and HTTPS on loopback.
//
// "/small" returns a few settings, "/lots/<n>" n detailed parking lots, "/after/<ms>" the settings after that time, and
// "/connections" the number of connections so far. It prints its two ports and exits when its standard input closes.
#include "../reading/ParkingLots.h"

#include <HttpServer.h>

#include <iostream>
#include <map>
#include <mutex>
#include <string>

namespace bench {
namespace {

using emulator::HttpReply;
using emulator::HttpRequest;
using emulator::HttpResponse;

constexpr const char* kSettings =
    R"({"code":1000,"desc":"Success","data":{"enable":"1","ip":"192.168.10.2","port":"514","platformId":"1"}})";

HttpResponse ResponseWith(const std::string& body)
{
    return {200, {}, body};
}

const std::string& Lots(int nCount)
{
    static std::mutex mutex;
    static std::map<int, std::string> replies;
    const std::lock_guard<std::mutex> lock(mutex);
    std::string& reply = replies[nCount];
    if (reply.empty()) {
        ParkingLots lots = MakeParkingLots(nCount);
        reply = ReplyOf(lots).toStdString();
    }
    return reply;
}

HttpReply ReplyTo(const HttpRequest& request, const emulator::HttpServer& server)
{
    const std::size_t slash = request.target.rfind('/');
    const std::string what = request.target.substr(0, slash);
    if (what == "/lots") {
        return ResponseWith(Lots(std::stoi(request.target.substr(slash + 1))));
    }
    if (what == "/after") {
        const std::chrono::milliseconds time(std::stoi(request.target.substr(slash + 1)));
        return emulator::HttpWait{time, [](bool /*isGone*/) { return ResponseWith(kSettings); }};
    }
    if (request.target == "/connections") {
        return ResponseWith(R"({"code":1000,"desc":"Success","data":{"count":)" + std::to_string(server.connections()) +
                            "}}");
    }
    return ResponseWith(kSettings);
}

}  // namespace
}  // namespace bench

int main()
{
    constexpr std::chrono::hours kIdleTime(1);
    emulator::HttpServer server([&server](const auto& request) { return bench::ReplyTo(request, server); }, kIdleTime);
    const int nHttpPort = server.listen("127.0.0.1", 0);
    std::cout << nHttpPort << ' ' << server.listen("127.0.0.1", 0, emulator::MakeServerTls()) << std::endl;
    while (std::cin.get() != std::char_traits<char>::eof()) {
    }
}

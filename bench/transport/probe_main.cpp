// Measures values that need a separate process, such as the first call and memory. Prints one number.
//
// usage: transport_probe <what> <contender> <port>
#include "../Bench.h"
#include "Clients.h"
#include "Probe.h"

#include <Call.h>
#include <IPMS/IPMSModule.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>

#include <cstdlib>
#include <iostream>
#include <vector>

namespace bench {
namespace {

constexpr APIModule::Call<&PackExchange, &APIModule::CIPMSModule::ParseGetDetailParkingLots> ReadLots;

std::unique_ptr<Client> Make(const std::string& contender)
{
    if (contender == kQt) {
        return MakeQt();
    }
    return contender == kQtWithJson ? MakeQtWithJson() : MakeLibrary();
}

/// A memory size of this process in kilobytes, as reported by the kernel.
double Kilobytes(const char* name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    Require(status.open(QFile::ReadOnly), "the status of the process");
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(name)) {
            return line.simplified().split(' ').value(1).toDouble();
        }
    }
    return 0;
}

double FirstCall(const std::string& contender, int nPort)
{
    const std::unique_ptr<Client> pClient = Make(contender);
    QElapsedTimer clock;
    clock.start();
    pClient->Run(Get(true, nPort));
    constexpr double kPerSecond = 1e9;
    return double(clock.nsecsElapsed()) / kPerSecond;
}

constexpr const char* kTwentyMegabytes = "/lots/5200";

double PeakMegabytes()
{
    constexpr double kPerMegabyte = 1024;
    return Kilobytes("VmHWM:") / kPerMegabyte;
}

double PeakMemory(const std::string& contender, int nPort)
{
    const std::unique_ptr<Client> pClient = Make(contender);
    std::vector<APIModule::DatailParkingLotInfoRsp> lots;
    const auto read = [&](const QJsonObject& data) {
        return APIModule::CIPMSModule::ParseGetDetailParkingLots(data, lots);
    };
    Require(pClient->Read(Get(false, nPort, kTwentyMegabytes), read) == 0, "a parse succeeds");
    return PeakMegabytes();
}

double TypedPeakMemory(int nPort)
{
    const std::unique_ptr<Client> pClient = MakeLibrary();
    const Exchange exchange = Get(false, nPort, kTwentyMegabytes);
    UseServerOf(exchange);
    const auto lots = APIModule::Run(ReadLots(exchange));
    Require(bool(lots), "a typed call succeeds");
    return PeakMegabytes();
}

double Growth(const std::string& contender, int nPort)
{
    const std::unique_ptr<Client> pClient = Make(contender);
    const auto call = [&](int nTimes) {
        for (int i = 0; i < nTimes; ++i) {
            pClient->Run(Get(false, nPort));
        }
        return Kilobytes("VmRSS:");
    };
    constexpr int kSome = 1000;
    constexpr int kMany = 10000;
    const double some = call(kSome);
    return call(kMany) - some;
}

double Measure(const std::string& what, const std::string& contender, int nPort)
{
    if (what == kFirstCall) {
        return FirstCall(contender, nPort);
    }
    if (what == kTypedPeakMemory) {
        return TypedPeakMemory(nPort);
    }
    return what == kGrowth ? Growth(contender, nPort) : PeakMemory(contender, nPort);
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    bench::Require(arguments.size() == 3, "three arguments");
    std::cout << bench::Measure(arguments[0], arguments[1], std::stoi(arguments[2])) << std::endl;
    return EXIT_SUCCESS;
}

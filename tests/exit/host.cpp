// A small host that makes a call over HTTPS and exits as its second argument specifies.
#include "support/UserManager.h"

#include <APIModule.h>
#include <BRMS/BRMSModule.h>

#include <QCoreApplication>
#include <QTimer>

#include <cstdlib>
#include <memory>
#include <string>

using APIModule::CAPIModule;
using APIModule::CBRMSModule;

namespace {

int CallOnce()
{
    APIModule::TimeSyncConfig config;
    return CAPIModule::GetInstance().ExecuteFuncs(
        [](void* pRequest) { return CBRMSModule::PacketGetTimeSyncConfig(pRequest, -1); },
        [&config](const QJsonObject& data) { return CBRMSModule::ParseGetTimeSyncConfig(data, config); }, QString(),
        nullptr, QString(), false, false);
}

}  // namespace

int main(int argc, char** argv)
{
    auto application = std::make_unique<QCoreApplication>(argc, argv);
    testing_support::UserManager users;
    users.servers[1].port = std::atoi(argv[1]);
    const std::string end = argv[2];
    CAPIModule::GetInstance().Init(&users);
    int nResult = CallOnce();
    if (end == "quit") {
        QTimer::singleShot(0, application.get(), &QCoreApplication::quit);
        QCoreApplication::exec();
    } else if (end == "call_after_exec") {
        QTimer::singleShot(0, application.get(), &QCoreApplication::quit);
        QCoreApplication::exec();
        nResult |= CallOnce();
    } else if (end == "application_left_alive") {
        (void)application.release();
    } else if (end == "exit_in_a_slot") {
        QTimer::singleShot(0, application.get(), [nResult] { std::exit(nResult); });
        QCoreApplication::exec();
    }
    CAPIModule::GetInstance().UnInit();
    return nResult;
}

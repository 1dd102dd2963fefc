// Makes the first calls of the manual to a platform emulator in this process.
#include "typed_calls.h"

#include <APIModule.h>
#include <BRMS/BRMSModule.h>
#include <emulator/PlatformEmulator.h>

#include <QApplication>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <string>

/// Defined in first_call.cpp, the second sample of the manual; typed_calls.h is the first.
int ReadTimeSettings(QWidget* parent, APIModule::TimeSyncConfig& config);

namespace {

class EmulatedServer : public UserLogical::IServer {
public:
    explicit EmulatedServer(int port) : m_port(port) {}

    void GetConnection(UserLogical::ServerConnection& connection) override
    {
        connection.strHost = "127.0.0.1";
        connection.nPort = m_port;
    }
    std::string GetToken() override { return emulator::kDefaultToken; }

private:
    int m_port;
};

class OneServer : public UserLogical::IUserManager {
public:
    explicit OneServer(int port) : m_server(std::make_shared<EmulatedServer>(port)) {}

    int GetCurrentServerId() override { return 1; }
    std::shared_ptr<UserLogical::IServer> GetServer(int /*nServerId*/) override { return m_server; }

private:
    std::shared_ptr<UserLogical::IServer> m_server;
};

int Run()
{
    emulator::PlatformEmulator platform;
    platform.start();
    OneServer userManager(platform.httpsPort());
    CAPIModule::GetInstance().Init(&userManager);

    TimeSyncConfig config;
    const int result = ReadTimeSettings(nullptr, config);
    const Outcome<TimeSyncConfig> settings = APIModule::Run(BRMS::GetTimeSyncConfig(), nullptr);
    Overview overview;
    overview.Load();
    const bool bShown = overview.windowTitle() == QString::number(config.interval);
    CAPIModule::GetInstance().UnInit();
    std::cout << "result " << result << ", time synchronisation every " << config.interval << '\n';
    const bool bAlike = settings && settings->interval == config.interval && bShown;
    return result == 0 && config.interval > 0 && bAlike ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv)
{
    try {
        const QApplication application(argc, argv);
        return Run();
    } catch (const std::exception& error) {
        std::cerr << "consumer: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}

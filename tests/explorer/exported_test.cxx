#include <APIModule.h>
#include <BRMS/BRMSCalls.h>
#include <emulator/PlatformEmulator.h>

#include <QApplication>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

/// The user manager of the test, with the emulator as its only server.
class EmulatedServer : public UserLogical::IServer, public UserLogical::IUserManager {
public:
    explicit EmulatedServer(int port) : m_port(port) {}

    void GetConnection(UserLogical::ServerConnection& connection) override
    {
        connection.strHost = "127.0.0.1";
        connection.nPort = m_port;
    }
    std::string GetToken() override { return emulator::kDefaultToken; }
    int GetCurrentServerId() override { return 1; }
    std::shared_ptr<UserLogical::IServer> GetServer(int /*id*/) override
    {
        return std::shared_ptr<UserLogical::IServer>(std::shared_ptr<void>(), this);  // does not own it
    }

private:
    int m_port;
};

void Check(bool holds, const char* what)
{
    if (!holds) {
        throw std::runtime_error(what);
    }
}

void AnswerNext(emulator::PlatformEmulator& platform, int status, const std::string& body)
{
    emulator::Fault answer;
    answer.kind = emulator::Fault::Kind::Status;
    answer.status = status;
    answer.body = body;
    platform.addFault(answer);
}

void CheckRequest(const emulator::PlatformEmulator& platform, const std::string& method, const std::string& target,
                  const std::string& body)
{
    const auto request = platform.requests().back();
    Check(request.method == method && request.target == target && request.body == body, target.c_str());
}

namespace run1 {

APIModule::Outcome<APIModule::LocalSettingQueryResult> GetLocalSetting(QWidget* pParent)
{
    int settingType = 3;

    return APIModule::Run(APIModule::BRMS::GetLocalSetting(settingType), pParent);
}

}  // namespace run1

namespace run2 {

APIModule::Outcome<APIModule::NoRecord> SetRemoteLogConfig(QWidget* pParent)
{
    APIModule::RemoteLogConfigInfo config;
    config.enable = false;
    config.ip = "";
    config.port = 0;
    config.platformId = "";

    return APIModule::Run(APIModule::BRMS::SetRemoteLogConfig(config), pParent);
}

}  // namespace run2

void Test(emulator::PlatformEmulator& platform)
{
    AnswerNext(platform, 200, "{\"code\": 1000, \"desc\": \"Success\", \"data\": {\"apply\": \"1\", \"settingType\": 1, \"settingVersion\": 7, \"settingContent\": \"first\", \"token\": \"secret\"}}");
    Check(run1::GetLocalSetting(nullptr).Code() == 0, "run1::GetLocalSetting");
    CheckRequest(platform, "GET", "/brms/api/v1.1/config/local/setting\?settingType=3", "");
    AnswerNext(platform, 200, "{\"code\": 1002, \"desc\": \"/port: too large\", \"data\": {}}");
    Check(run2::SetRemoteLogConfig(nullptr).Code() == 1002, "run2::SetRemoteLogConfig");
    CheckRequest(platform, "PUT", "/brms/api/v1.1/config/remote-log", "{\"enable\":\"0\",\"ip\":\"\",\"platformId\":\"\",\"port\":\"0\"}");
}

}  // namespace

int main(int argc, char** argv)
{
    try {
        qputenv("QT_QPA_PLATFORM", "offscreen");  // before the application object
        const QApplication application(argc, argv);
        emulator::PlatformEmulator platform;
        platform.start();
        EmulatedServer server(platform.httpsPort());
        APIModule::CAPIModule::GetInstance().Init(&server);
        Test(platform);
        APIModule::CAPIModule::GetInstance().UnInit();
    } catch (const std::exception& failure) {
        std::cerr << "failed: " << failure.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

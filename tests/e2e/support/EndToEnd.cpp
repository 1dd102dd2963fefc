#include "EndToEnd.h"

#include <catalogue/Call.h>

#include <stdexcept>

namespace e2e {
namespace {

const catalogue::Call& Find(const std::string& name)
{
    const catalogue::Call* pCall = catalogue::FindCall(name);
    if (pCall == nullptr) {
        throw std::invalid_argument("there is no call " + name);
    }
    return *pCall;
}

}  // namespace

std::unique_ptr<emulator::PlatformEmulator> EndToEnd::s_platform;

EndToEnd::EndToEnd()
{
    users.servers[1].token = emulator::kDefaultToken;
    Use(Scheme::Https);
    Platform().reset();
    Platform().clearRequests();
}

void EndToEnd::TearDownTestSuite()
{
    s_platform.reset();
}

void EndToEnd::Start(const emulator::Options& options)
{
    s_platform = std::make_unique<emulator::PlatformEmulator>(options);
    s_platform->start();
}

void EndToEnd::Use(Scheme scheme)
{
    const bool https = scheme == Scheme::Https;
    users.servers[1].port = https ? Platform().httpsPort() : Platform().httpPort();
    APIModule::CAPIModule::GetInstance().SetHttpsMode(https ? 1 : 0);
}

catalogue::Outcome EndToEnd::Run(const std::string& call, const Json& arguments, const catalogue::RunSettings& settings)
{
    const catalogue::Call& found = Find(call);
    const Json named = arguments.is_null() ? Json::object() : arguments;
    return catalogue::Run(found, catalogue::ReadArguments(found, named), settings);
}

Json DefaultRecord(const std::string& call)
{
    const catalogue::Type* pResult = Find(call).result;
    return pResult == nullptr ? Json() : catalogue::Value(*pResult).ToJson();
}

}  // namespace e2e

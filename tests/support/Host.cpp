#include "Host.h"

namespace testing_support {

int Execute(const HostCall& call)
{
    const auto pack = [call](void* pReqParamData) {
        static_cast<APIModule::RequestParam*>(pReqParamData)->bExcludeUserInput = call.excludeUserInput;
        return APIModule::CAPIModule::GetInstance().GetRequestParam(pReqParamData, call.method, call.url, -1, call.body,
                                                                    call.sequence, call.timeout, call.compress);
    };
    return APIModule::CAPIModule::GetInstance().ExecuteFuncs(pack, call.parse, call.uiError, call.parent,
                                                             call.successTip, call.showErrorCode, call.notifyOnFailure);
}

Host::Host()
{
    users.servers[1] = {};
    APIModule::CAPIModule::GetInstance().Init(&users);
    logs.Take();
}

Host::~Host()
{
    APIModule::CAPIModule::GetInstance().UnInit();
    APIModule::CAPIModule::GetInstance().SetHttpsMode(1);
    APIModule::CAPIModule::GetInstance().SetLanguage("en");
}

void Host::Use(const RawServer& server, RawServer::Scheme scheme)
{
    users.servers[1].port = server.Port();
    APIModule::CAPIModule::GetInstance().SetHttpsMode(scheme == RawServer::Https ? 1 : 0);
}

}  // namespace testing_support

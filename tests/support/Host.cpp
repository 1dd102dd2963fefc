#include "Host.h"

#include <QTest>

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

RawServer& Host::Serve(const RawServer::Responder& responder, RawServer::Scheme scheme)
{
    m_pServer = std::make_unique<RawServer>(responder, scheme);
    Use(*m_pServer, scheme);
    return *m_pServer;
}

RawServer& Host::Serve(const RawReply& reply, RawServer::Scheme scheme)
{
    return Serve([reply](const RawRequest&) { return reply; }, scheme);
}

bool Await(const std::function<bool()>& condition)
{
    constexpr int kLongestMs = 20000;
    return QTest::qWaitFor(condition, kLongestMs);
}

}  // namespace testing_support

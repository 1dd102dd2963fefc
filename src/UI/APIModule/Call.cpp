#include "Call.h"

#include "APIModule_p.h"
#include "StartedCall_p.h"

#include <QWidget>

namespace APIModule {

namespace {

/// The steps of a typed call.
CallSteps StepsOf(const char* pEntry, const detail::RequestParts& parts, const detail::ReadData& read)
{
    CallSteps steps;
    steps.pEntry = pEntry;
    steps.pack = [pack = parts.pack, nServerId = parts.nServerId](void* pReqParamData) {
        return pack(pReqParamData, nServerId);
    };
    steps.read = read;
    steps.bTyped = true;
    steps.timeout = parts.timeout;
    steps.observer = parts.observer;
    return steps;
}

}  // namespace

void CallHandle::Cancel()
{
    if (auto* const pCall = qobject_cast<StartedCall*>(m_pCall.data())) {
        pCall->Drop();
    }
}

bool CallHandle::IsRunning() const
{
    const auto* const pCall = qobject_cast<StartedCall*>(m_pCall.data());
    return pCall && pCall->GetState() != StartedCall::State::Finished;
}

namespace detail {

std::shared_ptr<const CallResult> RunCall(const RequestParts& parts, const ReadData& read, QWidget* pParent)
{
    return Shared(CAPIModulePrivate::Get().Perform(StepsOf("Run", parts, read), QPointer<QWidget>(pParent)));
}

CallHandle StartCall(const RequestParts& parts, const ReadData& read, QObject* pContext, const Finished& finished)
{
    return CAPIModulePrivate::Get().Start(StepsOf("Start", parts, read), pContext, finished);
}

std::optional<ObservedExchange> PreviewCall(const RequestParts& parts)
{
    return CAPIModulePrivate::Get().Preview(StepsOf("Preview", parts, {}));
}

}  // namespace detail

}  // namespace APIModule

#include "Run.h"

#include "detail/Entry.h"

namespace catalogue {
namespace {

std::vector<void*> DataOf(const std::vector<Value>& arguments)
{
    std::vector<void*> data;
    data.reserve(arguments.size());
    for (const Value& argument : arguments) {
        data.push_back(argument.Data());
    }
    return data;
}

}  // namespace

APIModule::detail::RequestParts detail::Adapted(const APIModule::detail::RequestParts& parts,
                                                const RunSettings& settings)
{
    APIModule::detail::RequestParts adapted = parts;
    adapted.nServerId = settings.serverId;
    adapted.timeout = settings.timeout;
    adapted.observer = settings.observer;
    if (settings.onPacked) {
        adapted.pack = [pack = parts.pack, onPacked = settings.onPacked](void* pReqParamData, int nServerId) {
            const int result = pack(pReqParamData, nServerId);
            if (result == 0) {
                onPacked(*static_cast<APIModule::RequestParam*>(pReqParamData));
            }
            return result;
        };
    }
    return adapted;
}

Outcome Run(const Call& call, const std::vector<Value>& arguments, const RunSettings& settings, QWidget* parent)
{
    return call.run(DataOf(arguments).data(), settings, parent);
}

APIModule::CallHandle Start(const Call& call, const std::vector<Value>& arguments, const RunSettings& settings,
                            QObject* context, const std::function<void(const Outcome&)>& finished)
{
    return call.start(DataOf(arguments).data(), settings, context, finished);
}

std::optional<APIModule::ObservedExchange> Preview(const Call& call, const std::vector<Value>& arguments,
                                                   const RunSettings& settings)
{
    return call.preview(DataOf(arguments).data(), settings);
}

}  // namespace catalogue

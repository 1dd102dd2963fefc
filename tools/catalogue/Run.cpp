#include "Run.h"

#include "detail/Texts.h"

#include <APIModule.h>
#include <OrnGui/OrnMessageNotify.h>

#include <QObject>

namespace catalogue {
namespace {

boost::function<int(void*)> Bind(const Call& call, const std::vector<Value>& arguments, const RunSettings& settings)
{
    std::vector<void*> values;
    values.reserve(arguments.size());
    for (const Value& argument : arguments) {
        values.push_back(argument.Data());
    }
    return [&call, values, settings](void* pReqParamData) {
        const int result = call.pack(pReqParamData, values.data(), settings.serverId);
        auto& request = *static_cast<APIModule::RequestParam*>(pReqParamData);
        request.bExcludeUserInput = settings.excludeUserInput;
        if (settings.timeoutSeconds) {
            request.nTimeout = *settings.timeoutSeconds;
        }
        if (result == 0 && settings.onPacked) {
            settings.onPacked(request);
        }
        return result;
    };
}

boost::function<int(const QJsonObject&)> Bind(const Call& call, const std::optional<Value>& record,
                                              const RunSettings& settings)
{
    void* const pRecord = record ? record->Data() : nullptr;
    return [&call, pRecord, onData = settings.onData](const QJsonObject& data) {
        if (onData) {
            onData(data);
        }
        // ExecuteFuncs shows no tip when data comes and there is no Parse.
        return pRecord == nullptr ? 0 : call.parse(data, pRecord);
    };
}

}  // namespace

Outcome Run(const Call& call, const std::vector<Value>& arguments, const RunSettings& settings)
{
    std::optional<Value> record;
    if (call.result != nullptr) {
        record.emplace(*call.result);
    }

    Outcome outcome;
    const QString tip =
        //: %1 is a call
        settings.successTip.isEmpty() ? Texts::tr("%1 succeeded").arg(QString::fromStdString(call.name))
                                      : settings.successTip;
    const QObject listener;
    QObject::connect(&ORNGUI::OrnSingleton<ORNGUI::OrnMessageNotify>::Instance(),
                     &ORNGUI::OrnMessageNotify::TextNotificationAdded, &listener,
                     [&outcome, &tip](const QString& text) {
                         if (text == tip) {
                             outcome.confirmed = true;
                         } else {
                             outcome.notification = text.toStdString();
                         }
                     });

    constexpr bool kShowErrorCode = true;
    constexpr bool kNotifyOnFailure = false;
    outcome.result = APIModule::CAPIModule::GetInstance().ExecuteFuncs(
        Bind(call, arguments, settings), Bind(call, record, settings), settings.caption, settings.parent, tip,
        kShowErrorCode, kNotifyOnFailure);
    if (record) {
        outcome.record = record->ToJson();
    }
    return outcome;
}

}  // namespace catalogue

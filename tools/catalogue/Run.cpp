#include "Run.h"

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
        if (settings.timeoutSeconds) {
            static_cast<APIModule::RequestParam*>(pReqParamData)->nTimeout = *settings.timeoutSeconds;
        }
        return result;
    };
}

boost::function<int(const QJsonObject&)> Bind(const Call& call, const std::optional<Value>& record)
{
    // ExecuteFuncs shows no tip when data comes and there is no Parse.
    if (!record) {
        return [](const QJsonObject& /*data*/) { return 0; };
    }
    return [&call, pRecord = record->Data()](const QJsonObject& data) { return call.parse(data, pRecord); };
}

}  // namespace

Outcome Run(const Call& call, const std::vector<Value>& arguments, const RunSettings& settings)
{
    std::optional<Value> record;
    if (call.result != nullptr) {
        record.emplace(*call.result);
    }

    Outcome outcome;
    const QString tip = QString::fromStdString(call.name + " succeeded");
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
        Bind(call, arguments, settings), Bind(call, record), QString(), nullptr, tip, kShowErrorCode, kNotifyOnFailure);
    if (record) {
        outcome.record = record->ToJson();
    }
    return outcome;
}

}  // namespace catalogue

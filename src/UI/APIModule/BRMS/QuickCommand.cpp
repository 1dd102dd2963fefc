#include "BRMSModule_p.h"
#include "QuickCommandFields.h"

namespace APIModule {

static QString QuickCommandBody(const QuickCommand& command)
{
    return Body({{"quickCommandName", Text(command.quickCommandName)},
                 {"enableShortcutKeys", FlagText(command.enableShortcutKeys)},
                 {"shortcutKeys", Text(command.shortcutKeys)},
                 {"executeMode", NumberText(command.executeMode)},
                 {"remark", Text(command.remark)},
                 {"httpUrls", List(command.httpUrls, [](const QuickCommandHttpUrl& request) {
                      return Object({{"method", NumberText(request.method)},
                                     {"url", Text(request.url)},
                                     {"body", Text(request.body)},
                                     {"seq", Text(request.seq)}});
                  })}});
}

int CBRMSModule::PacketAddQuickCommand(void* pReqParamData, const QuickCommand& command, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Post, QStringLiteral("/brms/api/v1.1/config/quick/command"), nServerId,
                QuickCommandBody(command));
}

int CBRMSModule::PacketUpdateQuickCommand(void* pReqParamData, const QuickCommand& command, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Put,
                Url(QStringLiteral("/brms/api/v1.1/config/quick/command/%1"), Text(command.id)), nServerId,
                QuickCommandBody(command));
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): required by the signature
int CBRMSModule::PacketDelQuickCommand(void* pReqParamData, std::vector<std::string> ids, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Delete,
                Url(QStringLiteral("/brms/api/v1.1/config/quick/command?ids=%1"), JoinedTexts(ids)), nServerId);
}

int CBRMSModule::PacketGetQuickCommand(void* pReqParamData, const std::string& id, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/config/quick/command/%1"), Text(id)), nServerId);
}

int CBRMSModule::ParseGetQuickCommand(const QJsonObject& data, QuickCommand& command)
{
    return ReadFields(data, {
                                {"id", command.id},
                                {"quickCommandName", command.quickCommandName},
                                {"shortcutKeys", command.shortcutKeys},
                                {"remark", command.remark},
                                {"enableShortcutKeys", command.enableShortcutKeys},
                                {"executeMode", command.executeMode},
                                {"httpUrls", command.httpUrls},
                            });
}

int CBRMSModule::PacketGetQuickCommands(void* pReqParamData, const std::string& keyword, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/config/quick/command/list?keyword=%1"), Text(keyword)), nServerId);
}

int CBRMSModule::ParseGetQuickCommands(const QJsonObject& data, std::vector<QuickCommand>& commands)
{
    return ReadList(data, QLatin1String("results"), commands, [](const JsonObject& element, QuickCommand& command) {
        return ReadFields(element, {
                                       {"quickCommandName", command.quickCommandName},
                                       {"id", command.id},
                                       {"shortcutKeys", command.shortcutKeys},
                                       {"enableShortcutKeys", command.enableShortcutKeys},
                                       {"remark", command.remark},
                                   });
    });
}

int CBRMSModule::PacketGetAlarmPlanQuickCommands(void* pReqParamData, const std::string& planId, int nServerId)
{
    return Pack(pReqParamData, kBrms, Method_Get,
                Url(QStringLiteral("/brms/api/v1.1/alarm/plan/%1/quick/command/list"), Text(planId)), nServerId);
}

static int ReadPlanRequest(const JsonObject& element, QuickCommandHttpUrl& request)
{
    return ReadFields(element, {
                                   {"method", request.method},
                                   {"url", request.url},
                                   {"seq", request.seq},
                               });
}

int CBRMSModule::ParseGetAlarmPlanQuickCommands(const QJsonObject& data, std::vector<QuickCommand>& commands)
{
    return ReadList(data, QLatin1String("results"), commands, [](const JsonObject& element, QuickCommand& command) {
        return ReadFields(element, {{"quickCommandName", command.quickCommandName}}) == 0
                   ? ReadList(element, QLatin1String("httpUrls"), command.httpUrls, ReadPlanRequest)
                   : -1;
    });
}

}  // namespace APIModule

// The calls insert the arguments of a URL one after another. clazy:excludeall=qstring-arg
#include "ByHand.h"

#include <APIModule.h>
#include <BRMS/BRMSModule.h>
#include <libornl/TalPrintLog.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <string>

namespace bench {
namespace {

using namespace APIModule;

/// Fills the request and logs it, as every Pack must.
int Describe(void* pRequest, Method method, const QString& url, int nServerId, const QJsonObject& body = {})
{
    constexpr int kTimeoutSeconds = 10;
    constexpr int kInformation = 4;
    const QString text =
        body.isEmpty() ? QString() : QString::fromUtf8(QJsonDocument(body).toJson(QJsonDocument::Compact));
    const int nResult = CAPIModule::GetInstance().GetRequestParam(pRequest, method, url, nServerId, text, QString(),
                                                                  kTimeoutSeconds, false);
    ornl::TalPrintLog::instance().Log("ByHand", __LINE__, "bench::Describe", "", kInformation, "%s", "success.");
    return nResult;
}

QString Flag(bool flag)
{
    return flag ? QStringLiteral("1") : QStringLiteral("0");
}

template <typename T>
const T& As(const void* pArgument)
{
    return *static_cast<const T*>(pArgument);
}

int GetTimeSyncConfig(void* pRequest, void* const* /*arguments*/, int nServerId)
{
    return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/config/time-sync"), nServerId);
}

int GetDetailParkingLots(void* pRequest, void* const* arguments, int nServerId)
{
    return Describe(pRequest, Method_Get,
                    QStringLiteral("/ipms/api/v1.1/parking-lot/detail/list?parkingLotIds=%1&mode=%2&orgCode=%3")
                        .arg(QString::fromStdString(As<std::string>(arguments[0])))
                        .arg(As<int>(arguments[2]))
                        .arg(QString::fromStdString(As<std::string>(arguments[1]))),
                    nServerId);
}

int SetTimeSyncConfig(void* pRequest, void* const* arguments, int nServerId)
{
    const auto& config = As<TimeSyncConfig>(arguments[0]);
    QJsonObject body;
    body.insert(QStringLiteral("enable"), Flag(config.enable));
    body.insert(QStringLiteral("startTime"), QString::fromUtf8(config.startTime.c_str()));
    body.insert(QStringLiteral("interval"), QString::number(config.interval));
    body.insert(QStringLiteral("deviceOnlineTimeSync"), Flag(config.deviceOnlineTimeSync));
    body.insert(QStringLiteral("enableNtp"), Flag(config.enableNtp));
    body.insert(QStringLiteral("ntpIp"), QString::fromUtf8(config.ntpIp.c_str()));
    body.insert(QStringLiteral("ntpPort"), QString::number(config.ntpPort));
    body.insert(QStringLiteral("ntpSyncInterval"), QString::number(config.ntpSyncInterval));
    return Describe(pRequest, Method_Put, QStringLiteral("/brms/api/v1.1/config/time-sync"), nServerId, body);
}

int SetMultiCastConfig(void* pRequest, void* const* arguments, int nServerId)
{
    const auto& info = As<MultiCastConfigInfo>(arguments[0]);
    QJsonArray streams;
    for (const MultiCastStream& stream : info.streams) {
        QJsonObject element;
        element.insert(QStringLiteral("status"), Flag(stream.status));
        element.insert(QStringLiteral("multicastIp"), QString::fromUtf8(stream.multicastIp.c_str()));
        element.insert(QStringLiteral("multicastPort"), QString::fromUtf8(stream.multicastPort.c_str()));
        element.insert(QStringLiteral("streamType"), QString::number(stream.streamType));
        streams.append(element);
    }
    QJsonObject body;
    body.insert(QStringLiteral("status"), Flag(info.status));
    body.insert(QStringLiteral("streams"), streams);
    return Describe(
        pRequest, Method_Put,
        QStringLiteral("/brms/api/v1.1/device/channel/%1/config/multicast").arg(QString::fromStdString(info.channelId)),
        nServerId, body);
}

int MoveUserGroup(void* pRequest, void* const* arguments, int nServerId)
{
    const auto& move = As<MoveUserGroupsParam>(arguments[0]);
    QJsonArray userIds;
    for (const std::string& userId : move.userIds) {
        userIds.append(QString::fromStdString(userId));
    }
    QJsonObject body;
    body.insert(QStringLiteral("userIds"), userIds);
    body.insert(QStringLiteral("groupId"), QString::fromStdString(move.groupId));
    return Describe(pRequest, Method_Post, QStringLiteral("/brms/api/v1.1/user/group/move/batch"), nServerId, body);
}

int UpdateQuickCommand(void* pRequest, void* const* arguments, int nServerId)
{
    const auto& command = As<QuickCommand>(arguments[0]);
    QJsonArray requests;
    for (const QuickCommandHttpUrl& request : command.httpUrls) {
        QJsonObject element;
        element.insert(QStringLiteral("method"), QString::number(request.method));
        element.insert(QStringLiteral("url"), QString::fromStdString(request.url));
        element.insert(QStringLiteral("body"), QString::fromStdString(request.body));
        element.insert(QStringLiteral("seq"), QString::fromStdString(request.seq));
        requests.append(element);
    }
    QJsonObject body;
    body.insert(QStringLiteral("quickCommandName"), QString::fromStdString(command.quickCommandName));
    body.insert(QStringLiteral("enableShortcutKeys"), Flag(command.enableShortcutKeys));
    body.insert(QStringLiteral("shortcutKeys"), QString::fromStdString(command.shortcutKeys));
    body.insert(QStringLiteral("executeMode"), QString::number(command.executeMode));
    body.insert(QStringLiteral("remark"), QString::fromStdString(command.remark));
    body.insert(QStringLiteral("httpUrls"), requests);
    return Describe(pRequest, Method_Put,
                    QStringLiteral("/brms/api/v1.1/config/quick/command/%1").arg(QString::fromStdString(command.id)),
                    nServerId, body);
}

}  // namespace

const std::vector<HandWritten>& PackedByHand()
{
    static const std::vector<HandWritten> calls = {
        {"BRMS.GetTimeSyncConfig", GetTimeSyncConfig},        // no argument
        {"IPMS.GetDetailParkingLots", GetDetailParkingLots},  // only a URL
        {"BRMS.SetTimeSyncConfig", SetTimeSyncConfig},        // a flat body
        {"BRMS.SetMultiCastConfig", SetMultiCastConfig},      // a nested body
        {"BRMS.MoveUserGroup", MoveUserGroup},                // a list
        {"BRMS.UpdateQuickCommand", UpdateQuickCommand},      // the largest
    };
    return calls;
}

}  // namespace bench

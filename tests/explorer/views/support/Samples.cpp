#include "Samples.h"

#include <QJsonDocument>

namespace view_test {

using explorer::CallOutcome;
using nlohmann::json;

CallOutcome Succeeded(const char* call, const char* arguments, const char* record)
{
    CallOutcome outcome;
    outcome.call = catalogue::FindCall(call);
    outcome.arguments = QJsonDocument::fromJson(arguments).object();
    outcome.server = QStringLiteral("Emulator");
    outcome.started = QDateTime::currentDateTime();
    outcome.elapsedMilliseconds = 12.4;
    outcome.times = explorer::ExchangeTimes{0.1, 11.9, 12.4};
    outcome.result = 0;
    outcome.succeeded = true;
    outcome.resultText = QStringLiteral("Success");
    outcome.timeoutSeconds = 10;
    outcome.record = json::parse(record);

    outcome.request.method = QStringLiteral("GET");
    outcome.request.url = QStringLiteral("https://127.0.0.1:8443/brms/api/v1.1/config/time-sync");
    outcome.request.headers = {{QStringLiteral("Host"), QStringLiteral("127.0.0.1:8443")},
                               {QStringLiteral("Accept-Language"), QStringLiteral("en")},
                               {QStringLiteral("Time-Zone"), QStringLiteral("Europe/Berlin")},
                               {QStringLiteral("Content-Type"), QStringLiteral("application/json;charset=UTF-8")},
                               {QStringLiteral("X-Subject-Token"), QString::fromLatin1(explorer::kTokenMask)},
                               {QStringLiteral("Connection"), QStringLiteral("Keep-Alive")}};

    explorer::RawReply reply;
    reply.status = 200;
    reply.body = QByteArray(R"({"code":1000,"desc":"Success","data":)") + record + "}";
    reply.headers = {{QStringLiteral("Content-Type"), QStringLiteral("application/json")},
                     {QStringLiteral("Content-Length"), QString::number(reply.body.size())}};
    outcome.reply = reply;
    return outcome;
}

CallOutcome DeviceCategories()
{
    return Succeeded("BRMS.GetDeviceCategoryCount", "{}",
                     R"([{"deviceCategory": 1, "deviceCount": 412}, {"deviceCategory": 5, "deviceCount": 36},
                         {"deviceCategory": 8, "deviceCount": 7}, {"deviceCategory": 34, "deviceCount": 1250}])");
}

CallOutcome ParkingLots()
{
    return Succeeded("IPMS.GetDetailParkingLots", R"({"parkingLotIds": "", "orgCode": "001", "mode": 0})", R"([
        {"id": "1", "parkingLotName": "Headquarters", "orgCode": "001", "orgName": "Headquarters, \"north\" gate",
         "parentParkingLotId": "", "parentParkingLotName": "", "parkingLotMode": 1, "enableParkingSpaceStatistics": 1,
         "parkingSpaceStatisticsType": 0, "issueVehicles": 1, "issueStatus": 0, "totalParkingSpaceCount": 240,
         "idleParkingSpaceCount": 57, "positions": [
            {"id": "11", "positionName": "Main gate", "remark": "North side", "points": [
                {"id": "111", "pointName": "Main gate in", "remark": "", "refPointId": "112",
                 "refPointName": "Main gate out", "direction": 1, "mode": 1,
                 "channels": [{"channelId": "1000021$1$0$0", "channelType": 1}], "refChannels": []}]},
            {"id": "12", "positionName": "Back gate", "remark": "", "points": []}]},
        {"id": "2", "parkingLotName": "Underground car park", "orgCode": "001", "orgName": "Headquarters",
         "parentParkingLotId": "1", "parentParkingLotName": "Headquarters", "parkingLotMode": 2,
         "enableParkingSpaceStatistics": 1, "parkingSpaceStatisticsType": 0, "issueVehicles": 1, "issueStatus": 0,
         "totalParkingSpaceCount": 80, "idleParkingSpaceCount": 0, "positions": []},
        {"id": "3", "parkingLotName": "Visitors", "orgCode": "002", "orgName": "Besucher T\u00fcr", "parentParkingLotId": "",
         "parentParkingLotName": "", "parkingLotMode": 1, "enableParkingSpaceStatistics": 0,
         "parkingSpaceStatisticsType": 0, "issueVehicles": 0, "issueStatus": 0, "totalParkingSpaceCount": 9,
         "idleParkingSpaceCount": 9, "positions": [{"id": "31", "positionName": "Ramp", "remark": "", "points": []}]}])");
}

CallOutcome AlarmLinkage()
{
    return Succeeded("BRMS.GetAlarmLinkControlList", R"({"sourceCode": "1000021", "alarmType": 3})", R"({
        "linkAlarmOutputChannels": [{"channelId": "1$3$0$0", "channelName": "Siren"}],
        "linkAudioLightChannels": [],
        "linkAudioChannels": [{"channelId": "1$4$0$0", "channelName": "Speaker", "fileIds": "a,b"},
                              {"channelId": "1$4$0$1", "channelName": "Horn", "fileIds": "c"}]})");
}

CallOutcome EncodeUpdate()
{
    const char* arguments = R"({"channelId": "1000021$1$0$0", "configs": [
        {"channelId": "", "streamType": 1, "bitRate": 2048, "bitRateControl": 0, "compression": 7, "enable": 1,
         "frameRate": 25, "iFrameInterval": 50, "height": 1080, "width": 1920}]})";
    CallOutcome outcome = Succeeded("BRMS.UpdateEncodeConfig", arguments, "null");
    outcome.request.method = QStringLiteral("PUT");
    outcome.request.url =
        QStringLiteral("https://127.0.0.1:8443/brms/api/v1.1/device/channel/1000021$1$0$0/encode?token=") +
        QLatin1String(explorer::kTokenMask);
    outcome.request.body = R"({"data":[{"streamType":1,"bitRate":2048,"on":true,"note":null,"name":"it's"}]})";
    return outcome;
}

CallOutcome CutShort()
{
    CallOutcome outcome = AlarmLinkage();
    outcome.result = -18;
    outcome.succeeded = false;
    outcome.resultText = QStringLiteral("Network error");
    outcome.record = catalogue::Value(*outcome.call->result).ToJson();
    outcome.reply.reset();
    outcome.connectionError = QStringLiteral("Connection closed");
    return outcome;
}

}  // namespace view_test

#include "TransportHost.h"

#include <QJsonObject>
#include <QThread>

#include <algorithm>

namespace testing_support {

using APIModule::CAPIModule;

std::shared_ptr<void> CountedIn(std::atomic<int>& counter)
{
    return std::shared_ptr<void>(nullptr, [&counter](void*) { ++counter; });
}

CallResult TransportHost::Run(APIModule::Method method, const QString& url, const QString& body, int nTimeout)
{
    HostCall call;
    call.method = method;
    call.url = url;
    call.body = body;
    call.timeout = nTimeout;
    call.uiError = QStringLiteral("No settings");
    call.notifyOnFailure = false;
    CallResult ended;
    call.parse = [&ended](const QJsonObject& data) {
        ended.parsed = true;
        ended.tag = data.value(QStringLiteral("n")).toInt(-1);
        return 0;
    };
    notifications.Take();
    ended.code = Execute(call);
    const QStringList notices = notifications.Take();
    for (const int nCode : {-4, -18, kTimedOut, 7000}) {
        if (notices == QStringList{CAPIModule::GetErroCodeInfor(call.uiError, nCode, true)}) {
            ended.code = nCode;
        }
    }
    return ended;
}

void TransportHost::AwaitCount(const std::atomic<int>& counter, int nCount, Pause pause)
{
    if (pause == Pause::Loop) {
        EXPECT_TRUE(Await([&] { return counter >= nCount; }));
    }
    while (counter < nCount) {
        QThread::usleep(100);
    }
}

int Times()
{
    return std::max(qEnvironmentVariableIntValue("APIMODULE_TIMES"), 1);
}

RawReply TaggedReply(int nTag)
{
    return HttpReply(200, "{\"code\":1000,\"data\":{\"n\":" + QByteArray::number(nTag) + "}}");
}

int TagOf(const QByteArray& target)
{
    return target.mid(target.lastIndexOf('/') + 1).toInt();
}

}  // namespace testing_support

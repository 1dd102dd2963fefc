#include "ByHand.h"

#include <libornl/TalPrintLog.h>

#include <QJsonDocument>

namespace bench {

int Describe(void* pRequest, APIModule::Method method, const QString& url, int nServerId, const QString& body)
{
    constexpr int kTimeoutSeconds = 10;
    constexpr int kInformation = 4;
    const int nResult = APIModule::CAPIModule::GetInstance().GetRequestParam(pRequest, method, url, nServerId, body,
                                                                             QString(), kTimeoutSeconds, false);
    ornl::TalPrintLog::instance().Log("ByHand", __LINE__, "bench::Describe", "", kInformation, "%s", "success.");
    return nResult;
}

QString Compact(const QJsonObject& body)
{
    return QString::fromUtf8(QJsonDocument(body).toJson(QJsonDocument::Compact));
}

QJsonArray Texts(const std::vector<std::string>& texts)
{
    QJsonArray array;
    for (const std::string& text : texts) {
        array.append(QString::fromStdString(text));
    }
    return array;
}

QString Joined(const std::vector<std::string>& texts)
{
    QString joined;
    for (const std::string& text : texts) {
        joined += (joined.isEmpty() ? QString() : QStringLiteral(",")) + QString::fromStdString(text);
    }
    return joined;
}

QString Flag(bool flag)
{
    return flag ? QStringLiteral("1") : QStringLiteral("0");
}

}  // namespace bench

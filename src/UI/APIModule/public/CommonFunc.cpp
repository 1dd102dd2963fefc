#include "CommonFunc.h"

#include "../JsonAccess_p.h"

namespace APIModule {

int CCommonFunc::GetJsonValue(const QJsonObject& jsonObject, const QString& key, int& value)
{
    return detail::ReadConverted(jsonObject, key, value);
}

int CCommonFunc::GetJsonValue(const QJsonObject& jsonObject, const QString& key, double& value)
{
    return detail::ReadConverted(jsonObject, key, value);
}

int CCommonFunc::GetJsonValue(const QJsonObject& jsonObject, const QString& key, QJsonObject& value)
{
    return detail::ReadConverted(jsonObject, key, value);
}

int CCommonFunc::GetJsonValue(const QJsonObject& jsonObject, const QString& key, std::string& value)
{
    return detail::ReadConverted(jsonObject, key, value);
}

int CCommonFunc::GetJsonValue(const QJsonObject& jsonObject, const QString& key, QJsonArray& value)
{
    return detail::ReadConverted(jsonObject, key, value);
}

int CCommonFunc::GetJsonValue(const QJsonObject& jsonObject, const QString& key, int64& value)
{
    return detail::ReadConverted(jsonObject, key, value);
}

int CCommonFunc::GetJsonValue(const QJsonObject& jsonObject, const QString& key, bool& value)
{
    return detail::ReadConverted(jsonObject, key, value);
}

bool CCommonFunc::IsEmpty(const QJsonObject& jsonObject)
{
    if (!jsonObject.isEmpty()) {
        return false;
    }
    detail::LogEmptyObject();
    return true;
}

bool CCommonFunc::IsKeyValid(const QJsonObject& jsonObject, const QString& key)
{
    if (jsonObject.contains(key)) {
        return true;
    }
    detail::LogMissingKey(key);
    return false;
}

std::string CCommonFunc::TransformToEscaped(const std::string& text)
{
    std::string escaped;
    escaped.reserve(text.size());
    for (const char character : text) {
        if (character == '"') {
            escaped += '\\';
        }
        escaped += character;
    }
    return escaped;
}

}  // namespace APIModule

#pragma once

#include "Log.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVariant>

#include <string>

/// Access to JSON values by a key of either text type, so that a constant key needs no QString. Results and log lines
/// are those of CCommonFunc.
namespace APIModule::detail {

inline constexpr const char* kCommonFuncFile = "src/UI/APIModule/public/CommonFunc";

inline void Convert(const QJsonValue& value, int& result)
{
    result = value.toVariant().toInt();
}

inline void Convert(const QJsonValue& value, double& result)
{
    result = value.toVariant().toDouble();
}

inline void Convert(const QJsonValue& value, long long& result)
{
    result = value.toVariant().toLongLong();
}

inline void Convert(const QJsonValue& value, bool& result)
{
    result = value.isBool() ? value.toBool() : value.toVariant().toBool();
}

inline void Convert(const QJsonValue& value, std::string& result)
{
    result = (value.isString() ? value.toString() : value.toVariant().toString()).toStdString();
}

// A variant knows a way to objects from maps and to arrays from lists alone, which gives the value itself again.

inline void Convert(const QJsonValue& value, QJsonObject& result)
{
    result = value.toObject();
}

inline void Convert(const QJsonValue& value, QJsonArray& result)
{
    result = value.toArray();
}

/// True, with a log line, when the object has no keys.
inline bool IsEmpty(const QJsonObject& object)
{
    if (!object.isEmpty()) {
        return false;
    }
    LogFailure({kCommonFuncFile, "APIModule::CCommonFunc::IsEmpty"}, "Invalid parameter, jsonObject is empty.");
    return true;
}

void LogMissingKey(const QString& key);
void LogUndefinedValue(const QString& key);

template <typename Key, typename Result>
int ReadConverted(const QJsonObject& object, const Key& key, Result& result)
{
    if (IsEmpty(object)) {
        return -1;
    }
    const auto found = object.constFind(key);
    if (found == object.constEnd()) {
        LogMissingKey(key);
        return -1;
    }
    const QJsonValue value = *found;
    if (value.isUndefined()) {
        LogUndefinedValue(key);
        return -1;
    }
    Convert(value, result);
    return 0;
}

}  // namespace APIModule::detail

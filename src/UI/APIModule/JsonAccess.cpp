#include "JsonAccess_p.h"

#include "Log_p.h"

#include <QtNumeric>

#include <algorithm>

namespace APIModule::detail {

namespace {

constexpr const char* kFile = "src/UI/APIModule/public/CommonFunc";

}  // namespace

void StoreUtf8(const QString& text, std::string& result)
{
    constexpr unsigned kLastAscii = 0x7F;
    const ushort* from = text.utf16();
    unsigned used = 0;
    result.resize(std::size_t(text.size()));
    for (char& to : result) {
        used |= *from;
        to = char(*from++);
    }
    if (used > kLastAscii) {
        result = text.toStdString();
    }
}

bool IsKeptByVariant(const QCborValue& value)
{
    constexpr qint64 kExact = qint64(1) << 53;
    if (value.isInteger()) {
        return value.toInteger() >= -kExact && value.toInteger() <= kExact;
    }
    if (value.isDouble()) {
        return qIsFinite(value.toDouble());
    }
    if (value.isArray()) {
        const QCborArray array = value.toArray();
        return std::all_of(array.begin(), array.end(), IsKeptByVariant);
    }
    const QCborMap map = value.toMap();
    return std::all_of(map.begin(), map.end(), [](const auto& member) { return IsKeptByVariant(member.second); });
}

void Convert(const QJsonValue& value, QJsonObject& result)
{
    const QJsonObject object = value.toObject();
    result = IsKeptByVariant(QCborMap::fromJsonObject(object)) ? object : value.toVariant().toJsonObject();
}

void Convert(const QJsonValue& value, QJsonArray& result)
{
    const QJsonArray array = value.toArray();
    result = IsKeptByVariant(QCborArray::fromJsonArray(array)) ? array : value.toVariant().toJsonArray();
}

void LogEmptyObject()
{
    LogFailure({kFile, "APIModule::CCommonFunc::IsEmpty"}, "Invalid parameter, jsonObject is empty.");
}

void LogMissingKey(const QString& key)
{
    LogFailure({kFile, "APIModule::CCommonFunc::IsKeyValid"},
               QStringLiteral("Invalid key: [%1], jsonObject does not contain the key.").arg(key));
}

void LogUndefinedValue(const QString& key)
{
    LogFailure({kFile, "APIModule::CCommonFunc::GetJsonValue"},
               QStringLiteral("[%1]: type mismatch. jsonValue's type is undefined.").arg(key));
}

}  // namespace APIModule::detail

#include "JsonAccess_p.h"

#include "Log_p.h"

#include <QtNumeric>

#include <algorithm>
#include <utility>

namespace APIModule::detail {

namespace {

constexpr const char* kFile = "src/UI/APIModule/public/CommonFunc";

thread_local QString* pUnreadableKey = nullptr;

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

QCborValue NumberFromVariant(const QCborValue& number)
{
    const double rounded = number.toDouble();
    if (!qIsFinite(rounded)) {
        return {nullptr};
    }
    const std::optional<long long> integer = IntegerIn(rounded);
    return integer ? QCborValue(qint64(*integer)) : QCborValue(rounded);
}

namespace {

/// Whether a variant returns the value unchanged.
bool IsKeptByVariant(const QCborValue& value)
{
    if (value.isInteger() || value.isDouble()) {
        return NumberFromVariant(value) == value;
    }
    if (value.isArray()) {
        const QCborArray array = value.toArray();
        return std::all_of(array.begin(), array.end(), IsKeptByVariant);
    }
    const QCborMap map = value.toMap();
    return std::all_of(map.begin(), map.end(), [](const auto& member) { return IsKeptByVariant(member.second); });
}

/// A value as returned by a variant, including nested values.
QCborValue FromVariant(const QCborValue& value)
{
    if (value.isArray()) {
        QCborArray back;
        for (const auto& element : value.toArray()) {
            back.append(FromVariant(element));
        }
        return back;
    }
    if (value.isMap()) {
        QCborMap back;
        for (const auto& member : value.toMap()) {
            back.insert(member.first, FromVariant(member.second));
        }
        return back;
    }
    return value.isInteger() || value.isDouble() ? NumberFromVariant(value) : value;
}

}  // namespace

void Convert(const QJsonValue& value, QJsonObject& result)
{
    const QJsonObject object = value.toObject();
    const QCborMap map = QCborMap::fromJsonObject(object);
    if (IsKeptByVariant(map)) {
        result = object;
    } else {
        result = FromVariant(map).toMap().toJsonObject();
    }
}

void Convert(const QJsonValue& value, QJsonArray& result)
{
    const QJsonArray array = value.toArray();
    const QCborArray list = QCborArray::fromJsonArray(array);
    if (IsKeptByVariant(list)) {
        result = array;
    } else {
        result = FromVariant(list).toArray().toJsonArray();
    }
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

UnreadableKey::UnreadableKey(QString& key) : m_pOuter(std::exchange(pUnreadableKey, &key)) {}

UnreadableKey::~UnreadableKey()
{
    pUnreadableKey = m_pOuter;
}

void UnreadableKey::Note(const QString& key)
{
    if (pUnreadableKey) {
        *pUnreadableKey = key;
    }
}

}  // namespace APIModule::detail

#include "JsonAccess.h"

#include "Log.h"

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

#include "JsonAccess.h"

namespace APIModule::detail {

void LogMissingKey(const QString& key)
{
    LogFailure({kCommonFuncFile, "APIModule::CCommonFunc::IsKeyValid"},
               QStringLiteral("Invalid key: [%1], jsonObject does not contain the key.").arg(key));
}

void LogUndefinedValue(const QString& key)
{
    LogFailure({kCommonFuncFile, "APIModule::CCommonFunc::GetJsonValue"},
               QStringLiteral("[%1]: type mismatch. jsonValue's type is undefined.").arg(key));
}

}  // namespace APIModule::detail

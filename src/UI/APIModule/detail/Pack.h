#pragma once

#include "../APIModule.h"
#include "Values.h"

#include <QString>

namespace APIModule::detail {

/// Source file and class that the log lines of a call family name.
struct Family {
    const char* file;       ///< source path of the family
    const char* className;  ///< full name of its class, with the colons that follow
};

/// The log texts of a Pack, where they differ from its name followed by " failed." and " success.".
struct LogTexts {
    const char* failed = nullptr;
    const char* success = nullptr;
};

/// The body of every Pack: passes the request to CAPIModule::GetRequestParam() and logs the result under the name of
/// the calling function.
/// @return the result of GetRequestParam()
int Pack(void* pReqParamData, const Family& family, Method method, const QString& url, int nServerId,
         const QString& body = QString(), const LogTexts& texts = {}, const char* function = __builtin_FUNCTION(),
         int line = __builtin_LINE());

}  // namespace APIModule::detail

#pragma once

#include "../APIModule.h"
#include "Values.h"

#include <QString>

namespace APIModule::detail {

/// What the log lines of one call family name.
struct Family {
    const char* file;       ///< source path of the family
    const char* className;  ///< full name of its class, with the colons that follow
};

/// The texts that a Pack logs where they are not its own name followed by " failed." and " success.".
struct LogTexts {
    const char* failed = nullptr;
    const char* success = nullptr;
};

/// The body of every Pack: hands the request to CAPIModule::GetRequestParam and logs the outcome under the name of
/// the calling function.
/// @return what GetRequestParam returned
int Pack(void* pReqParamData, const Family& family, Method method, const QString& url, int nServerId,
         const QString& body = QString(), const LogTexts& texts = {}, const char* function = __builtin_FUNCTION(),
         int line = __builtin_LINE());

}  // namespace APIModule::detail

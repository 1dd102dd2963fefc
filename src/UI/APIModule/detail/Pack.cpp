#include "Pack.h"

#include "Log.h"

#include <array>
#include <cstdio>

namespace APIModule::detail {

namespace {

constexpr int kTimeoutSeconds = 10;

using Buffer = std::array<char, 160>;

/// Two constant texts as one, without an allocation. The longest name of the library fills less than half of it.
Buffer Joined(const char* first, const char* second)
{
    Buffer text{};
    std::snprintf(text.data(), text.size(), "%s%s", first, second);
    return text;
}

}  // namespace

int Pack(void* pReqParamData, const Family& family, Method method, const QString& url, int nServerId,
         const QString& body, const LogTexts& texts, const char* function, int line)
{
    const int nResult = CAPIModule::GetInstance().GetRequestParam(pReqParamData, method, url, nServerId, body,
                                                                  QString(), kTimeoutSeconds, false);
    const Buffer fullName = Joined(family.className, function);
    const LogSite site{family.file, fullName.data(), line};
    if (nResult != 0) {
        LogFailure(site, texts.failed ? texts.failed : Joined(function, " failed.").data());
    } else {
        LogInfo(site, texts.success ? texts.success : Joined(function, " success.").data());
    }
    return nResult;
}

}  // namespace APIModule::detail

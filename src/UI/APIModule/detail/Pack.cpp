#include "Pack.h"

#include "../Log_p.h"

#include <array>
#include <string_view>

namespace APIModule::detail {

namespace {

constexpr int kTimeoutSeconds = 10;

/// Concatenates two constant texts without an allocation. The longest name of the library fills less than half of it.
class Joined {
public:
    Joined(std::string_view first, std::string_view second)
    {
        const std::size_t length = first.copy(m_text.data(), m_text.size() - 1);
        m_text[length + second.copy(m_text.data() + length, m_text.size() - 1 - length)] = '\0';
    }

    [[nodiscard]] const char* Text() const { return m_text.data(); }

private:
    std::array<char, 160> m_text;  // only the part up to the zero byte is initialised
};

}  // namespace

int Pack(void* pReqParamData, const Family& family, Method method, const QString& url, int nServerId,
         const QString& body, const LogTexts& texts, const char* function, int line)
{
    const int nResult = CAPIModule::GetInstance().GetRequestParam(pReqParamData, method, url, nServerId, body,
                                                                  QString(), kTimeoutSeconds, false);
    const Joined fullName(family.className, function);
    const LogSite site{family.file, fullName.Text(), line};
    if (nResult != 0) {
        LogFailure(site, texts.failed ? texts.failed : Joined(function, " failed.").Text());
    } else {
        LogInfo(site, texts.success ? texts.success : Joined(function, " success.").Text());
    }
    return nResult;
}

}  // namespace APIModule::detail

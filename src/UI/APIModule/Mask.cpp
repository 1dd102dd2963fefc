#include "Mask_p.h"

namespace APIModule::detail {

QString MaskToken(QString text)
{
    constexpr int kMaskedLength = 10;
    const QLatin1String name("token=");
    const int nName = text.indexOf(name);
    const int nValue = nName + name.size();
    if (nName >= 0 && nValue < text.size()) {
        text.replace(nValue, kMaskedLength, QString(kMaskedLength, QLatin1Char('*')));
    }
    return text;
}

}  // namespace APIModule::detail

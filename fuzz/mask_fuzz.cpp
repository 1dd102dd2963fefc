// Masking of the token in logged texts.
#include "Fuzz.h"

#include <Mask_p.h>

#include <QString>

#include <algorithm>
#include <string>

namespace {

constexpr int kStars = 10;

/// The reference, character by character: ten asterisks replace the ten characters after the first "token=".
QString MaskedByCharacters(const QString& text)
{
    const QString name = QStringLiteral("token=");
    int nValue = name.size();
    while (nValue <= text.size() && text.mid(nValue - name.size(), name.size()) != name) {
        ++nValue;
    }
    QString masked;
    for (int i = 0; i < text.size(); ++i) {
        if (i == nValue) {
            masked += QString(kStars, QLatin1Char('*'));
        }
        if (i < nValue || i >= nValue + kStars) {
            masked += text.at(i);
        }
    }
    return masked;
}

void ExpectSameAsReference(const QString& text)
{
    const QString masked = APIModule::detail::MaskToken(text);
    fuzz::Require(masked == MaskedByCharacters(text), text.toStdString() + "\nis masked as\n" + masked.toStdString());
}

/// A token of capital letters, which occur nowhere else in the URL.
std::string Token(FuzzedDataProvider& data)
{
    std::string token(data.ConsumeIntegralInRange<std::size_t>(1, 64), 'A');
    for (char& letter : token) {
        letter = data.ConsumeIntegralInRange('A', 'Z');
    }
    return token;
}

std::string WithoutCapitals(std::string text)
{
    for (char& letter : text) {
        letter = letter >= 'A' && letter <= 'Z' ? '_' : letter;
    }
    return text;
}

/// Checks that masking leaves at most the characters after the tenth of a token.
void ExpectTokenHidden(FuzzedDataProvider& data)
{
    const std::string token = Token(data);
    std::string before = WithoutCapitals(data.ConsumeRandomLengthString());
    before.erase(std::min(before.find("token="), before.size()));
    const std::string trailing = WithoutCapitals(data.ConsumeRandomLengthString());
    const QString text = QString::fromStdString(before + "token=" + token + trailing);
    ExpectSameAsReference(text);
    const QString masked = APIModule::detail::MaskToken(text);
    fuzz::Require(!masked.contains(QString::fromStdString(token)), "shows the token: " + masked.toStdString());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    if (data.ConsumeBool()) {
        ExpectTokenHidden(data);
    } else {
        ExpectSameAsReference(QString::fromStdString(data.ConsumeRemainingBytesAsString()));
    }
    return 0;
}

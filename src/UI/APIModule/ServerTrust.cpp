#include "ServerTrust.h"

#include <QRegularExpression>

namespace APIModule {

QByteArray ServerPin::DigestFromText(const QString& text)
{
    static const QRegularExpression kDigest(QStringLiteral("^[0-9A-Fa-f]{64}$"));
    QString digits = text;
    digits.remove(QLatin1Char(':'));
    return kDigest.match(digits).hasMatch() ? QByteArray::fromHex(digits.toLatin1()) : QByteArray();
}

}  // namespace APIModule

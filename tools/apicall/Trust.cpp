#include "Trust.h"

#include "Texts.h"

#include <QFile>

namespace apicall {
namespace {

APIModule::ServerPin PinOf(const std::string& text)
{
    const QByteArray digest = APIModule::ServerPin::DigestFromText(QString::fromStdString(text));
    if (digest.isEmpty()) {
        throw WrongUsage("--pin " + text + ": " +
                         Filled(Texts::tr("a SHA-256 digest has 64 hexadecimal digits, with or without colons")));
    }
    return {digest, QString(), 0};
}

QList<QSslCertificate> CertificatesOf(const std::string& name)
{
    const auto refuse = [&name](const QString& why) { throw WrongUsage("--ca " + name + ": " + Filled(why)); };

    QFile file(QString::fromStdString(name));
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(Texts::tr("the file cannot be read"));
    }
    const QList<QSslCertificate> certificates = QSslCertificate::fromDevice(&file, QSsl::Pem);
    if (certificates.isEmpty()) {
        refuse(Texts::tr("the file contains no PEM certificate"));
    }
    return certificates;
}

}  // namespace

APIModule::ServerTrust TrustOf(const Options& options)
{
    APIModule::ServerTrust trust;
    for (const std::string& pin : options.pins) {
        trust.pins.append(PinOf(pin));
    }
    for (const std::string& file : options.authorityFiles) {
        trust.authorities += CertificatesOf(file);
    }
    return trust;
}

}  // namespace apicall

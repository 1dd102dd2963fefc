#pragma once

#include <QByteArray>
#include <QSslCertificate>
#include <QSslKey>

namespace testing_support {

struct Certificate {
    QSslCertificate certificate;
    QSslKey key;
};

/// The name in a certificate and its period of validity, in days from now.
struct CertificateSubject {
    QByteArray name = "localhost";
    int fromDay = -1;
    int toDay = 1;
};

/// A self-signed certificate.
Certificate MakeCertificate(const CertificateSubject& subject = {});

}  // namespace testing_support

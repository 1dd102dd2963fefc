#pragma once

#include <QSslCertificate>
#include <QSslKey>

namespace testing_support {

struct Certificate {
    QSslCertificate certificate;
    QSslKey key;
};

/// A self-signed certificate of this moment.
Certificate MakeCertificate();

}  // namespace testing_support

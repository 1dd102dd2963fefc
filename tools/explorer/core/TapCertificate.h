#pragma once

#include <QSslCertificate>
#include <QSslKey>

namespace explorer {

struct TapCertificate {
    QSslCertificate certificate;
    QSslKey key;

    /// Signed by itself, of this moment.
    static TapCertificate Make();
};

}  // namespace explorer

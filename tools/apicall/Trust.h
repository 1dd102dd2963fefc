#pragma once

#include "Options.h"

#include <ServerTrust.h>

#include <QSslCertificate>

namespace apicall {

/// The trust that the options ask for; without --pin and --ca, every server is trusted. Throws WrongUsage.
APIModule::ServerTrust TrustOf(const Options& options);

}  // namespace apicall

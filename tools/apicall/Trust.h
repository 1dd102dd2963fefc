#pragma once

#include "Options.h"

#include <ServerTrust.h>

#include <QSslCertificate>

namespace apicall {

/// The servers that the options trust: every one without --pin and --ca. Throws WrongUsage.
APIModule::ServerTrust TrustOf(const Options& options);

}  // namespace apicall

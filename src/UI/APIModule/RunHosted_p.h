#pragma once

#include "Log_p.h"

#include <QString>

#include <exception>

namespace APIModule::detail {

/// Runs code of the host and catches its exceptions.
/// @return its result, or -1 with a log line when it throws
template <typename Call>
int RunHosted(const LogSite& site, const QString& name, Call call)
{
    try {
        return call();
    } catch (const std::exception& exception) {
        LogFailure(
            site,
            QStringLiteral("Call %1 failed! %1 threw an exception: %2").arg(name, QString::fromUtf8(exception.what())));
    } catch (...) {
        LogFailure(site, QStringLiteral("Call %1 failed! %1 threw an exception.").arg(name));
    }
    return -1;
}

}  // namespace APIModule::detail

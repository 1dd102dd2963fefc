#pragma once

#include <explorer/CallOutcome.h>

namespace explorer {

/// A command line for a POSIX shell that sends the same request. The session token stands in it as $TOKEN.
QString CurlLine(const SentRequest& request);

/// A command line for a POSIX shell with which apicall makes the same call. The session token stands in it as $TOKEN.
QString ApicallLine(const RequestDraft& draft);

}  // namespace explorer

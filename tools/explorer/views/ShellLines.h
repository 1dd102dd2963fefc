#pragma once

#include <explorer/CallOutcome.h>

namespace explorer {

/// A command line for a POSIX shell that sends the same request. It contains the session token as $TOKEN.
QString CurlLine(const SentRequest& request);

/// A command line for a POSIX shell that makes the same call with apicall. It contains the session token as $TOKEN.
QString ApicallLine(const RequestDraft& draft);

}  // namespace explorer

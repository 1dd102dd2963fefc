#pragma once

#include <explorer/CallOutcome.h>

namespace explorer {

/// A command line for a POSIX shell that sends the same request. The session token stands in it as $TOKEN.
QString CurlLine(const SentRequest& request);

}  // namespace explorer

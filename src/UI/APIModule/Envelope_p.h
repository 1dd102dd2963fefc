#pragma once

#include "ReplyInfo_p.h"

namespace APIModule::detail {

/// Reads the envelope in the body. The code stays -1 for a body that is empty or not JSON.
void Unpack(ReplyInfo& reply);

}  // namespace APIModule::detail

#pragma once

#include "ReplyInfo_p.h"

namespace APIModule::detail {

/// Unpacks the envelope that the body holds; a body that is empty or not JSON leaves the code at -1.
void Unpack(ReplyInfo& reply);

}  // namespace APIModule::detail

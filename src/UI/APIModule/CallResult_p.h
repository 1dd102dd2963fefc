#pragma once

#include "ReplyInfo_p.h"

#include <memory>

namespace APIModule::detail {

/// How a call ended, with its reply.
struct CallResult {
    CallEnd eEnd = CallEnd::NotPacked;
    int nCode = -1;  ///< OutcomeBase::Code()
    ReplyInfo reply;
};

/// The result shared by outcomes. A large one is destroyed on a thread of Qt's pool.
std::shared_ptr<const CallResult> Shared(CallResult&& result);

/// The code of an end that does not depend on the reply.
int CodeOf(CallEnd eEnd);

}  // namespace APIModule::detail

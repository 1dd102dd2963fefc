#pragma once

#include "ReplyInfo_p.h"

#include <memory>

namespace APIModule::detail {

/// How a call ended, with what came back.
struct CallResult {
    CallEnd eEnd = CallEnd::NotPacked;
    int nCode = -1;  ///< OutcomeBase::Code()
    ReplyInfo reply;
};

/// The result as outcomes share it. A large one is released on a thread of Qt's pool.
std::shared_ptr<const CallResult> Shared(CallResult&& result);

/// The code of an end that the reply does not name itself.
int CodeOf(CallEnd eEnd);

}  // namespace APIModule::detail

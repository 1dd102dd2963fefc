#pragma once

#include "support/RawServer.h"

#include <vector>

namespace testing_support {

/// The bytes of a reply, valid or not.
struct SampleReply {
    const char* name;
    RawReply reply;
};

/// Replies of every kind that a server may send.
std::vector<SampleReply> SampleReplies();

}  // namespace testing_support

#pragma once

#include "support/RawServer.h"

#include <vector>

namespace testing_support {

/// The bytes of a reply, valid or not.
struct Answer {
    const char* name;
    RawAnswer answer;
};

/// Replies of every kind that a server may send.
std::vector<Answer> Answers();

}  // namespace testing_support

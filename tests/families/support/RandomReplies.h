#pragma once

#include "Family.h"

#include "support/RandomJson.h"

#include <string>
#include <vector>

/// Compares the Parses of a program with the reference, using random replies.
namespace family_testing {

/// A Parse and its reading steps.
struct KnownParse {
    Parse parse;
    Readings readings;
};

/// The Parses with rows in this program.
std::vector<KnownParse>& KnownParses();

/// A reply for these steps, with lists of any length. It is usually complete; sometimes a key is missing or a value has
/// another type than the step expects.
QJsonObject RandomReply(const Readings& readings, testing_support::RandomJson& random);

/// Reads the reply with the Parse and the reference. @return the differences of result, record and log lines, or empty
std::string Difference(const KnownParse& known, const QJsonObject& reply, const Json& start);

}  // namespace family_testing

#pragma once

#include "Family.h"

#include "support/RandomJson.h"

#include <string>
#include <vector>

/// Random replies to the Parses of a program, held against the reference.
namespace family_testing {

/// A Parse and its reading steps.
struct KnownParse {
    Parse parse;
    Readings readings;
};

/// Those that rows were made for.
std::vector<KnownParse>& KnownParses();

/// A reply with what the steps look for: usually all of it, with lists of any length; now and then a key too few or a
/// value of another type than the step expects.
QJsonObject RandomReply(const Readings& readings, testing_support::RandomJson& random);

/// Reads the reply in both ways. @return how result, record or log lines differ; empty where they do not
std::string Difference(const KnownParse& known, const QJsonObject& reply, const Json& start);

}  // namespace family_testing

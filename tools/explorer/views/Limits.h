#pragma once

#include <explorer/FieldFacts.h>

namespace explorer {

/// The values that the server takes, such as "1, 2" or "\u2265 0"; empty for any.
QString LimitsText(const FieldFacts& facts);

/// Why the server refuses a text; empty when it does not.
QString LimitProblem(const FieldFacts& facts, const QString& text);

}  // namespace explorer

#pragma once

#include <explorer/FieldFacts.h>

namespace explorer {

/// The values that the server accepts, such as "1, 2" or "\u2265 0"; empty for any.
QString LimitsText(const FieldFacts& facts);

/// Why the server would refuse a text; empty if it would not.
QString LimitProblem(const FieldFacts& facts, const QString& text);

}  // namespace explorer

#pragma once

#include <QString>

namespace APIModule::detail {

/// Replaces the ten characters after the first "token=", or fewer at the end of the text, by ten asterisks.
QString MaskToken(QString text);

}  // namespace APIModule::detail

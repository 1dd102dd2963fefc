#pragma once

#include <QString>

namespace APIModule::detail {

/// Puts ten asterisks in the place of the ten characters, or all that there are, behind the first "token=".
QString MaskToken(QString text);

}  // namespace APIModule::detail

#pragma once

#include <QIcon>

namespace explorer {

/// An icon of the program in the palette's text colour, whatever that is when it is painted. @p name is a file of
/// resources/icons without its ending.
QIcon Icon(const char* name);

}  // namespace explorer

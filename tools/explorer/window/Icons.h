#pragma once

#include <QIcon>

namespace explorer {

/// An icon of the program, painted in the current text colour of the palette. @param name a file of resources/icons
/// without its extension
QIcon Icon(const char* name);

}  // namespace explorer

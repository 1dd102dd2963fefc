#pragma once

#include <translations/Filled.h>

#include <QCoreApplication>

namespace apicall {

/// What the program says, in the user's language.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Texts)
};

using translation::Filled;

}  // namespace apicall

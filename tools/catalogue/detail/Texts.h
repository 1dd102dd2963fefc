#pragma once

#include <translations/Filled.h>

#include <QCoreApplication>

namespace catalogue {

/// What the catalogue says, in the user's language.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Texts)
};

using translation::Filled;

}  // namespace catalogue

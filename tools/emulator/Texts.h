#pragma once

#include <translations/Filled.h>

#include <QCoreApplication>

namespace emulator {

/// The texts of start errors in the user's language.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Texts)
};

using translation::Filled;

}  // namespace emulator

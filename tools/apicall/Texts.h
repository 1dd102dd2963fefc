#pragma once

#include <translations/Filled.h>

#include <QCoreApplication>

namespace apicall {

/// The program's texts in the user's language.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Texts)
};

using translation::Filled;

}  // namespace apicall

#pragma once

#include <translations/Filled.h>

#include <QCoreApplication>

namespace catalogue {

/// The catalogue's texts in the user's language.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Texts)
};

using translation::Filled;

}  // namespace catalogue

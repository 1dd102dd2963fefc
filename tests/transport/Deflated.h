#pragma once

#include <QByteArray>

namespace testing_support {

enum class Wrapper {
    Gzip,
    Zlib,
    None
};

QByteArray Deflated(const QByteArray& bytes, Wrapper wrapper = Wrapper::Gzip);

/// A gzip body of some thousandth of the size that it has inflated, a number of megabytes.
QByteArray GzipOfMegabytes(int nMegabytes);

}  // namespace testing_support

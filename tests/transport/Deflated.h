#pragma once

#include <QByteArray>

namespace testing_support {

enum class Wrapper {
    Gzip,
    Zlib,
    None
};

QByteArray Deflated(const QByteArray& bytes, Wrapper wrapper = Wrapper::Gzip);

/// A gzip body that inflates to this many megabytes, about a thousand times its size.
QByteArray GzipOfMegabytes(int nMegabytes);

}  // namespace testing_support

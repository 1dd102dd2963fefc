#pragma once

#include <QString>

#include <string>

namespace translation {

/// A translated text as UTF-8, with %1, %2 and so on replaced by the parts.
template <typename... Parts>
std::string Filled(const QString& text, const Parts&... parts)
{
    if constexpr (sizeof...(Parts) == 0) {
        return text.toStdString();
    } else {
        return text.arg(QString::fromStdString(parts)...).toStdString();
    }
}

}  // namespace translation

#include "Text.h"

#include <charconv>

namespace emulator {

std::vector<std::string> Split(std::string_view text, char separator)
{
    std::vector<std::string> parts;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.emplace_back(text);
    return parts;
}

bool StartsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

std::string PercentDecode(std::string_view text, bool plusIsSpace)
{
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size()) {
            unsigned char byte = 0;
            const char* digits = text.data() + i + 1;
            const auto [end, fault] = std::from_chars(digits, digits + 2, byte, 16);
            if (fault == std::errc() && end == digits + 2) {
                decoded += static_cast<char>(byte);
                i += 2;
                continue;
            }
        }
        decoded += plusIsSpace && text[i] == '+' ? ' ' : text[i];
    }
    return decoded;
}

}  // namespace emulator

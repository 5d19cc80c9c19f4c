#ifndef _WIN32

// The POSIX side's own UTF-8 conversion; Windows asks the system for it.
#include "platform/platform.h"

namespace ItUnitechnik::Platform {
namespace {

void AppendCodePoint(std::string& out, unsigned long cp)
{
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

bool IsHighSurrogate(unsigned long u)
{
    return u >= 0xD800 && u <= 0xDBFF;
}
bool IsLowSurrogate(unsigned long u)
{
    return u >= 0xDC00 && u <= 0xDFFF;
}

} // namespace

std::string ToUtf8(const std::wstring& text)
{
    const unsigned long replacement = 0xFFFD;
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const unsigned long unit = static_cast<unsigned long>(text[i]) & 0xFFFFFFFFul;
        if (IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(static_cast<unsigned long>(text[i + 1]))) {
            const unsigned long low = static_cast<unsigned long>(text[i + 1]) & 0xFFFFFFFFul;
            AppendCodePoint(out, 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
            ++i;
        } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit) || unit > 0x10FFFF) {
            AppendCodePoint(out, replacement);
        } else {
            AppendCodePoint(out, unit);
        }
    }
    return out;
}

} // namespace ItUnitechnik::Platform

#endif

#include "unicode.h"

#include <cstdint>

namespace ItUnitechnik::Tool {
namespace {

void AppendUtf8(std::string& out, std::uint32_t c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

bool IsHighSurrogate(std::uint32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(std::uint32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

} // namespace

std::optional<HostText> Utf8ToHost(std::string_view utf8)
{
    HostText out;
    out.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        const std::uint32_t lead = static_cast<unsigned char>(utf8[i]);
        std::size_t length = 0;
        std::uint32_t c = 0;
        std::uint32_t least = 0;
        if (lead < 0x80) {
            length = 1;
            c = lead;
        } else if ((lead & 0xE0) == 0xC0) {
            length = 2;
            c = lead & 0x1F;
            least = 0x80;
        } else if ((lead & 0xF0) == 0xE0) {
            length = 3;
            c = lead & 0x0F;
            least = 0x800;
        } else if ((lead & 0xF8) == 0xF0) {
            length = 4;
            c = lead & 0x07;
            least = 0x10000;
        } else {
            return std::nullopt;
        }
        if (i + length > utf8.size()) {
            return std::nullopt;
        }
        for (std::size_t k = 1; k < length; ++k) {
            const std::uint32_t next = static_cast<unsigned char>(utf8[i + k]);
            if ((next & 0xC0) != 0x80) {
                return std::nullopt;
            }
            c = (c << 6) | (next & 0x3F);
        }
        // Overlong forms, surrogates and values beyond U+10FFFF are no UTF-8.
        if (c < least || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
            return std::nullopt;
        }
        if (c >= 0x10000) {
            c -= 0x10000;
            out += static_cast<it_char16>(0xD800 + (c >> 10));
            out += static_cast<it_char16>(0xDC00 + (c & 0x3FF));
        } else {
            out += static_cast<it_char16>(c);
        }
        i += length;
    }
    return out;
}

std::string HostToUtf8(const HostText& text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::uint32_t unit = static_cast<std::uint16_t>(text[i]);
        if (IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(static_cast<std::uint16_t>(text[i + 1]))) {
            const std::uint32_t low = static_cast<std::uint16_t>(text[i + 1]);
            AppendUtf8(out, 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
            ++i;
        } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
            AppendUtf8(out, 0xFFFD);
        } else {
            AppendUtf8(out, unit);
        }
    }
    return out;
}

} // namespace ItUnitechnik::Tool

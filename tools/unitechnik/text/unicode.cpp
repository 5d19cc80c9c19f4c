#include "text/unicode.h"

#include "platform/platform.h"

#include <cstdint>

namespace ItUnitechnik::Tool {

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
    return Platform::ToUtf8(Wide(text));
}

std::wstring Wide(const HostText& text)
{
    return {text.begin(), text.end()};
}

std::wstring WideFromUtf8(const std::string& text)
{
    const std::optional<HostText> units = Utf8ToHost(text);
    return units ? Wide(*units) : std::wstring();
}

} // namespace ItUnitechnik::Tool

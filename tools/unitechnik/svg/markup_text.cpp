#include "svg/markup_text.h"

#include "framework/float_chars.h"

#include <charconv>
#include <cmath>

namespace ItUnitechnik::Drawing {

std::string Number(double value)
{
    double rounded = std::round(value * 100.0) / 100.0;
    if (rounded == 0.0 || !std::isfinite(rounded)) {
        rounded = 0.0;
    }
    char buffer[64];
    const auto result = FloatChars(buffer, buffer + sizeof buffer, rounded, std::chars_format::fixed);
    return std::string(buffer, result.ptr);
}

std::string Escaped(const std::string& text)
{
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        case '\'':
            out += "&#39;";
            break;
        case '\t':
        case '\n':
        case '\r':
            out += c;
            break;
        default:
            // A control character has no place in XML: it shows as U+FFFD.
            if (static_cast<unsigned char>(c) < 0x20) {
                out += "\xEF\xBF\xBD";
            } else {
                out += c;
            }
        }
    }
    return out;
}

} // namespace ItUnitechnik::Drawing

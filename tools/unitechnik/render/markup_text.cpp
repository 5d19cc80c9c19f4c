#include "render/markup_text.h"

#include "framework/float_chars.h"

#include <charconv>
#include <cmath>
#include <string>

namespace ItUnitechnik::Drawing {

std::string Number(double value)
{
    const double hundredths = std::round(value * 100.0);
    // Below 2^46 hundredths a double lies nearer to its hundredths than a
    // hundredth of a hundredth, so the shortest digits that read back to it
    // are those of its whole number of hundredths: written here as an
    // integer's, the same characters as std::to_chars writes, without
    // formatting a double (slow in the browser's build, and a drawing has
    // millions of numbers).
    if (std::fabs(hundredths) < 0x1p46) {
        const auto whole = static_cast<long long>(hundredths);
        std::string digits = std::to_string(whole < 0 ? -whole : whole);
        if (digits.size() < 3) {
            digits.insert(0, 3 - digits.size(), '0');
        }
        digits.insert(digits.size() - 2, 1, '.');
        while (digits.back() == '0') {
            digits.pop_back();
        }
        if (digits.back() == '.') {
            digits.pop_back();
        }
        return (whole < 0 ? "-" : "") + digits;
    }
    double rounded = hundredths / 100.0;
    if (rounded == 0.0 || !std::isfinite(rounded)) {
        rounded = 0.0;
    }
    char buffer[64];
    const auto result = FloatChars(buffer, buffer + sizeof buffer, rounded, std::chars_format::fixed);
    return {buffer, result.ptr};
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

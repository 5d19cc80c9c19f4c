#pragma once

// Floating-point std::to_chars and std::from_chars, in the forms the code
// uses. A native
// build calls std::to_chars itself. The WebAssembly build of the viewer
// (emscripten's libc++, which has no floating-point std::to_chars) writes
// the same characters through snprintf, whose conversions are correctly
// rounded there: the forms with a precision are printf's own, and the
// shortest forms take the fewest digits that read back to the same double.
#include <charconv>

#ifdef __EMSCRIPTEN__
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <system_error>
#endif

namespace ItUnitechnik {

#ifndef __EMSCRIPTEN__

inline std::to_chars_result FloatChars(char* first, char* last, double value)
{
    return std::to_chars(first, last, value);
}

inline std::to_chars_result FloatChars(char* first, char* last, double value, std::chars_format format)
{
    return std::to_chars(first, last, value, format);
}

inline std::to_chars_result FloatChars(char* first, char* last, double value, std::chars_format format, int precision)
{
    return std::to_chars(first, last, value, format, precision);
}

inline std::from_chars_result FloatFromChars(const char* first, const char* last, double& value,
                                             std::chars_format format)
{
    return std::from_chars(first, last, value, format);
}

#else

namespace FloatCharsDetail {

inline std::to_chars_result Copied(char* first, char* last, const std::string& text)
{
    if (text.size() > static_cast<std::size_t>(last - first)) {
        return {last, std::errc::value_too_large};
    }
    std::memcpy(first, text.data(), text.size());
    return {first + text.size(), std::errc()};
}

inline std::string Printed(const char* format, int precision, double value)
{
    char buffer[400];
    const int length = std::snprintf(buffer, sizeof buffer, format, precision, value);
    if (length < 0) {
        return std::string();
    }
    if (static_cast<std::size_t>(length) < sizeof buffer) {
        return std::string(buffer, static_cast<std::size_t>(length));
    }
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    std::snprintf(text.data(), text.size(), format, precision, value);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

// The shortest decimal digits that read back to VALUE (finite, above zero)
// and the decimal exponent of the first of them. Any decimal of 15 digits
// reads back to the double nearest it, so when 15 digits read back to VALUE
// the shortest digits are those 15 without their trailing zeros; otherwise
// 16 or 17. Subnormal values, with fewer bits, are tried from 1 digit up.
inline void ShortestDigits(double value, std::string& digits, int& exponent)
{
    std::string text;
    for (int precision = value < 2.2250738585072014e-308 ? 0 : 14; precision < 17; ++precision) {
        text = Printed("%.*e", precision, value);
        if (std::strtod(text.c_str(), nullptr) == value) {
            break;
        }
    }
    const std::size_t e = text.find('e');
    exponent = std::atoi(text.c_str() + e + 1);
    digits.clear();
    for (std::size_t i = 0; i < e; ++i) {
        if (text[i] != '.') {
            digits += text[i];
        }
    }
    while (digits.size() > 1 && digits.back() == '0') {
        digits.pop_back();
    }
}

// An integer that the shortest digits would end in zeros is written with
// its exact digits, as std::to_chars writes it.
inline std::string FixedOf(const std::string& digits, int exponent, double magnitude)
{
    const int count = static_cast<int>(digits.size());
    if (exponent < 0) {
        return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    }
    if (exponent + 1 > count) {
        return Printed("%.*f", 0, magnitude);
    }
    if (exponent + 1 == count) {
        return digits;
    }
    return digits.substr(0, static_cast<std::size_t>(exponent + 1)) + "." +
           digits.substr(static_cast<std::size_t>(exponent + 1));
}

inline std::string ScientificOf(const std::string& digits, int exponent)
{
    std::string text = digits.substr(0, 1);
    if (digits.size() > 1) {
        text += "." + digits.substr(1);
    }
    char tail[16];
    std::snprintf(tail, sizeof tail, "e%c%02d", exponent < 0 ? '-' : '+', exponent < 0 ? -exponent : exponent);
    return text + tail;
}

inline std::string Shortest(double value, std::chars_format format)
{
    if (value != value) {
        return std::signbit(value) ? "-nan" : "nan";
    }
    const std::string sign = std::signbit(value) ? "-" : "";
    const double magnitude = std::fabs(value);
    if (magnitude == HUGE_VAL) {
        return sign + "inf";
    }
    if (magnitude == 0.0) {
        return sign + (format == std::chars_format::scientific ? "0e+00" : "0");
    }
    std::string digits;
    int exponent = 0;
    ShortestDigits(magnitude, digits, exponent);
    if (format == std::chars_format::fixed) {
        return sign + FixedOf(digits, exponent, magnitude);
    }
    if (format == std::chars_format::scientific) {
        return sign + ScientificOf(digits, exponent);
    }
    const std::string fixed = FixedOf(digits, exponent, magnitude);
    const std::string scientific = ScientificOf(digits, exponent);
    return sign + (scientific.size() < fixed.size() ? scientific : fixed);
}

} // namespace FloatCharsDetail

inline std::to_chars_result FloatChars(char* first, char* last, double value)
{
    return FloatCharsDetail::Copied(first, last, FloatCharsDetail::Shortest(value, std::chars_format::general));
}

inline std::to_chars_result FloatChars(char* first, char* last, double value, std::chars_format format)
{
    if (format == std::chars_format::hex) {
        std::string text = FloatCharsDetail::Printed("%.*a", -1, value);
        const std::size_t prefix = text.find("0x");
        if (prefix != std::string::npos) {
            text.erase(prefix, 2);
        }
        return FloatCharsDetail::Copied(first, last, text);
    }
    return FloatCharsDetail::Copied(first, last, FloatCharsDetail::Shortest(value, format));
}

inline std::to_chars_result FloatChars(char* first, char* last, double value, std::chars_format format, int precision)
{
    const char* form = format == std::chars_format::fixed        ? "%.*f"
                       : format == std::chars_format::scientific ? "%.*e"
                       : format == std::chars_format::hex        ? "%.*a"
                                                                 : "%.*g";
    std::string text = FloatCharsDetail::Printed(form, precision, value);
    if (format == std::chars_format::hex) {
        const std::size_t prefix = text.find("0x");
        if (prefix != std::string::npos) {
            text.erase(prefix, 2);
        }
    }
    return FloatCharsDetail::Copied(first, last, text);
}

// Reads the digits of a double, as std::from_chars does for the plain
// decimal forms (digits, an optional point and decimals, no sign) the reading
// gives it.
inline std::from_chars_result FloatFromChars(const char* first, const char* last, double& value, std::chars_format)
{
    const std::string text(first, last);
    char* end = nullptr;
    const double parsed = std::strtod(text.c_str(), &end);
    if (end == text.c_str()) {
        return {first, std::errc::invalid_argument};
    }
    value = parsed;
    return {first + (end - text.c_str()), std::errc()};
}

#endif

} // namespace ItUnitechnik

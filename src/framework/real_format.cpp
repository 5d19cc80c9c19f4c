#include "framework/real_format.h"

#include "framework/float_chars.h"
#include <algorithm>

#include <charconv>
#include <cmath>
#include <string>

namespace ItUnitechnik {
namespace {

bool NeedsPoint(bool showpoint, const char* first, const char* last)
{
    return showpoint && std::find(first, last, '.') == last && std::find(first, last, 'e') == last;
}

int PrecisionOf(const std::ios_base& str)
{
    const int precision = static_cast<int>(str.precision());
    return precision < 0 ? 6 : precision;
}

std::string Digits(double value, const std::ios_base& str)
{
    const std::ios_base::fmtflags floatfield = str.flags() & std::ios_base::floatfield;
    const int precision = PrecisionOf(str);
    if (std::isnan(value)) {
        return std::signbit(value) ? "-nan" : "nan";
    }
    if (std::isinf(value)) {
        return value < 0 ? "-inf" : "inf";
    }
    std::string text(64, '\0');
    for (;;) {
        std::to_chars_result result{};
        char* first = text.data();
        char* last = text.data() + text.size();
        if (floatfield == std::ios_base::fixed) {
            result = FloatChars(first, last, value, std::chars_format::fixed, precision);
        } else if (floatfield == std::ios_base::scientific) {
            result = FloatChars(first, last, value, std::chars_format::scientific, precision);
        } else if (floatfield == (std::ios_base::fixed | std::ios_base::scientific)) {
            result = FloatChars(first, last, value, std::chars_format::hex);
        } else {
            result = FloatChars(first, last, value, std::chars_format::general, precision == 0 ? 1 : precision);
        }
        if (result.ec == std::errc()) {
            text.resize(static_cast<std::size_t>(result.ptr - first));
            break;
        }
        text.resize(text.size() * 4);
    }
    if (NeedsPoint((str.flags() & std::ios_base::showpoint) != 0, text.data(), text.data() + text.size())) {
        text += '.';
    }
    if (str.flags() & std::ios_base::uppercase) {
        for (char& c : text) {
            if (c >= 'a' && c <= 'z') {
                c = static_cast<char>(c - 'a' + 'A');
            }
        }
    }
    return text;
}

} // namespace

RealFormat::iter_type RealFormat::do_put(iter_type out, std::ios_base& str, wchar_t fill, double value) const
{
    std::string text = Digits(value, str);
    std::size_t signLength = 0;
    if (!text.empty() && text[0] == '-') {
        signLength = 1;
    } else if (str.flags() & std::ios_base::showpos) {
        text.insert(text.begin(), '+');
        signLength = 1;
    }

    const std::streamsize width = str.width();
    str.width(0);
    const std::size_t padding =
        width > static_cast<std::streamsize>(text.size()) ? static_cast<std::size_t>(width) - text.size() : 0;
    const std::ios_base::fmtflags adjust = str.flags() & std::ios_base::adjustfield;

    auto emit = [&out](char c) { *out++ = static_cast<wchar_t>(static_cast<unsigned char>(c)); };
    auto pad = [&out, fill, padding]() {
        for (std::size_t i = 0; i < padding; ++i) {
            *out++ = fill;
        }
    };

    if (adjust == std::ios_base::left) {
        for (char c : text)
            emit(c);
        pad();
    } else if (adjust == std::ios_base::internal) {
        for (std::size_t i = 0; i < signLength; ++i)
            emit(text[i]);
        pad();
        for (std::size_t i = signLength; i < text.size(); ++i)
            emit(text[i]);
    } else {
        pad();
        for (char c : text)
            emit(c);
    }
    return out;
}

RealFormat::iter_type RealFormat::do_put(iter_type out, std::ios_base& str, wchar_t fill, long double value) const
{
    return do_put(out, str, fill, static_cast<double>(value));
}

std::size_t FixedCharacters(double value, int precision, bool showpoint, char* out, std::size_t capacity)
{
    if (!std::isfinite(value)) {
        return 0;
    }
    const std::to_chars_result result =
        FloatChars(out, out + capacity, value, std::chars_format::fixed, precision < 0 ? 6 : precision);
    if (result.ec != std::errc()) {
        return 0;
    }
    std::size_t length = static_cast<std::size_t>(result.ptr - out);
    if (NeedsPoint(showpoint, out, result.ptr)) {
        if (length == capacity) {
            return 0;
        }
        out[length++] = '.';
    }
    return length;
}

std::locale ClassicNumberLocale()
{
    return {std::locale::classic(), new RealFormat};
}

} // namespace ItUnitechnik

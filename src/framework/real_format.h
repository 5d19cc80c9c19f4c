#pragma once

#include <cstddef>
#include <locale>
#include <ostream>

namespace ItUnitechnik {

// Formats floating point numbers with std::to_chars and pads them by the
// stream's width, fill and adjustment, so that the digits of a Real are the
// same on every platform (C runtimes have disagreed on exact ties).
class RealFormat : public std::num_put<wchar_t> {
public:
    using iter_type = std::num_put<wchar_t>::iter_type;
    explicit RealFormat(std::size_t refs = 0) : std::num_put<wchar_t>(refs) {}

protected:
    iter_type do_put(iter_type out, std::ios_base& str, wchar_t fill, double value) const override;
    iter_type do_put(iter_type out, std::ios_base& str, wchar_t fill, long double value) const override;
};

// The classic locale with RealFormat in place of its wide number formatter.
std::locale ClassicNumberLocale();

// The characters that RealFormat makes of a finite double in fixed notation
// before any padding: sign, digits, and the point that `showpoint` asks for;
// at most `capacity` of them. Their count, or 0 when they do not fit or the
// value is not finite.
std::size_t FixedCharacters(double value, int precision, bool showpoint, char* out, std::size_t capacity);

} // namespace ItUnitechnik

#pragma once

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

} // namespace ItUnitechnik

#pragma once

#include "framework/field_buffer.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <ostream>

// How a field's characters reach the stream: straight into the put area of
// the library's own buffers where they fit, else through the stream buffer as
// the ordinary inserters would put them. The field forms (field_forms.h) are
// written on these.
namespace ItUnitechnik {
namespace Fields {

// Marks a stream that has just taken the classic number formats; any locale
// imbued later takes the mark away again. When its buffer is a FieldBuffer,
// the forms fill that buffer's put area themselves for as long as it stays
// the stream's buffer.
void KeepPlainDigits(std::wostream& stream);
// Whether the stream keeps the classic number formats that an Archive gives
// it, so that a form may make its own digits.
bool PlainDigits(std::ios_base& stream);

// An integer as the inserter sees it: for a decimal field its sign and
// magnitude, and whether its type is signed (only a signed type shows a plus
// sign); for a hexadecimal field its bit pattern in the width of its type.
struct IntegerValue {
    bool negative;
    bool signedType;
    unsigned long long magnitude;
};

// Puts the integer with the stream's width, fill, adjustment, plus sign and
// case, as the inserter would; false when the form must leave it to the
// inserter (another number format in force).
bool PutInteger(std::wostream& os, const IntegerValue& value, bool hexadecimal);

// The put area a field may go into directly: that of the FieldBuffer the
// stream was marked with, while it is still the stream's buffer, the stream
// is good, and nothing asks for a flush around the field (no tied stream, no
// `unitbuf`). Null otherwise.
FieldBuffer* DirectBuffer(std::wostream& os);

// Whether the stream's base flags leave the digits of an integer to the form:
// a decimal field under `oct` or `hex`, or a hexadecimal one under
// `showbase`, goes to the inserter.
inline bool OwnDigits(std::ios_base::fmtflags flags, bool hexadecimal)
{
    const std::ios_base::fmtflags base = flags & std::ios_base::basefield;
    if (hexadecimal) {
        return (flags & std::ios_base::showbase) == 0;
    }
    return base != std::ios_base::oct && base != std::ios_base::hex;
}

// Stores `count` fill characters at `out` and gives the place behind them.
inline wchar_t* StoreFill(wchar_t* out, wchar_t fill, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        *out++ = fill;
    }
    return out;
}

inline wchar_t* StoreText(wchar_t* out, const wchar_t* text, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        *out++ = text[i];
    }
    return out;
}

// The characters of one field straight into the put area, padded to
// `width` as the inserters pad them (see PutPadded); false, with nothing
// put, when the area has no room.
inline bool StorePadded(FieldBuffer& direct, const wchar_t* text, std::size_t length, std::size_t prefix,
                        std::streamsize width, wchar_t fill, std::ios_base::fmtflags adjust)
{
    const std::size_t padding =
        width > static_cast<std::streamsize>(length) ? static_cast<std::size_t>(width) - length : 0;
    wchar_t* out = direct.Room(length + padding);
    if (out == nullptr) {
        return false;
    }
    std::size_t before = 0; // characters of the text in front of the fill
    if (padding > 0) {
        before = adjust == std::ios_base::left ? length : adjust == std::ios_base::internal ? prefix : 0;
        out = StoreText(out, text, before);
        out = StoreFill(out, fill, padding);
    }
    StoreText(out, text + before, length - before);
    direct.Advance(length + padding);
    return true;
}

// The number of decimal digits of `magnitude`, at least one.
inline std::size_t DecimalDigitCount(unsigned long long magnitude)
{
    std::size_t count = 1;
    for (; magnitude >= 10000; magnitude /= 10000) {
        count += 4;
    }
    return count + (magnitude >= 10 ? 1 : 0) + (magnitude >= 100 ? 1 : 0) + (magnitude >= 1000 ? 1 : 0);
}

// The digits 00 to 99, two characters each.
inline constexpr char digitPairs[] = "00010203040506070809"
                                     "10111213141516171819"
                                     "20212223242526272829"
                                     "30313233343536373839"
                                     "40414243444546474849"
                                     "50515253545556575859"
                                     "60616263646566676869"
                                     "70717273747576777879"
                                     "80818283848586878889"
                                     "90919293949596979899";

// The two digits of `pair` (below 100) stored right before `end`.
inline wchar_t* StoreDigitPair(wchar_t* end, std::size_t pair)
{
    *--end = static_cast<wchar_t>(digitPairs[2 * pair + 1]);
    *--end = static_cast<wchar_t>(digitPairs[2 * pair]);
    return end;
}

// The decimal digits of `magnitude`, the last one stored right before `end`,
// two at a time; in 32 bits where the number fits, which is the common case
// and the quicker division.
template <class Unsigned>
void StoreDecimalDigits(wchar_t* end, Unsigned magnitude)
{
    while (magnitude >= 100) {
        end = StoreDigitPair(end, static_cast<std::size_t>(magnitude % 100));
        magnitude /= 100;
    }
    if (magnitude >= 10) {
        StoreDigitPair(end, static_cast<std::size_t>(magnitude));
    } else {
        *--end = static_cast<wchar_t>(L'0' + static_cast<int>(magnitude));
    }
}

// Exactly `places` digits of `magnitude`, which has no more, zeros in front,
// the last one stored right before `end`: the zero fill comes with the
// digits.
inline void StoreFixedDigits(wchar_t* end, std::uint32_t magnitude, int places)
{
    for (; places >= 2; places -= 2) {
        end = StoreDigitPair(end, magnitude % 100);
        magnitude /= 100;
    }
    if (places == 1) {
        *--end = static_cast<wchar_t>(L'0' + static_cast<int>(magnitude));
    }
}

// 10 to the power of the index, up to the most places StoreFixedDigits takes.
inline constexpr std::uint32_t powersOfTen[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};

// A decimal integer straight into the put area, zero-filled to `width`:
// [zeros][sign][digits], or [sign][zeros][digits] when `internal`. No sign
// when `sign` is 0. False, with nothing put, when the area has no room.
inline bool StoreZeroFilledDecimal(FieldBuffer& direct, unsigned long long magnitude, wchar_t sign, int width,
                                   bool internal)
{
    // The common case: the digits of a number of the width's size, the sign
    // (if any) in front of them.
    const int places = width - (sign != 0 ? 1 : 0);
    if ((sign == 0 || internal) && places > 0 && places < static_cast<int>(std::size(powersOfTen)) &&
        magnitude < powersOfTen[places]) {
        wchar_t* out = direct.Room(static_cast<std::size_t>(width));
        if (out == nullptr) {
            return false;
        }
        if (sign != 0) {
            *out++ = sign;
        }
        StoreFixedDigits(out + places, static_cast<std::uint32_t>(magnitude), places);
        direct.Advance(static_cast<std::size_t>(width));
        return true;
    }
    const std::size_t digitCount = DecimalDigitCount(magnitude);
    const std::size_t length = digitCount + (sign != 0 ? 1 : 0);
    const std::size_t padding = width > static_cast<int>(length) ? static_cast<std::size_t>(width) - length : 0;
    wchar_t* out = direct.Room(length + padding);
    if (out == nullptr) {
        return false;
    }
    if (sign != 0 && internal) {
        *out++ = sign;
    }
    out = StoreFill(out, L'0', padding);
    if (sign != 0 && !internal) {
        *out++ = sign;
    }
    if (magnitude <= 0xFFFFFFFFULL) {
        StoreDecimalDigits(out + digitCount, static_cast<std::uint32_t>(magnitude));
    } else {
        StoreDecimalDigits(out + digitCount, magnitude);
    }
    direct.Advance(length + padding);
    return true;
}

// The sign and digits of the integer as the inserter makes them, the last
// one stored right before `end` (32 places are enough); gives the first, and
// in `prefix` the characters of the sign (0 or 1). Only a decimal field of a
// signed type shows a plus sign, under `showpos`.
inline wchar_t* StoreSignedDigits(wchar_t* end, const IntegerValue& value, bool hexadecimal,
                                  std::ios_base::fmtflags flags, std::size_t& prefix)
{
    wchar_t* first = end;
    unsigned long long magnitude = value.magnitude;
    prefix = 0;
    if (hexadecimal) {
        const wchar_t* const names =
            (flags & std::ios_base::uppercase) != 0 ? L"0123456789ABCDEF" : L"0123456789abcdef";
        do {
            *--first = names[magnitude & 0xF];
            magnitude >>= 4;
        } while (magnitude != 0);
        return first;
    }
    const std::size_t digitCount = DecimalDigitCount(magnitude);
    StoreDecimalDigits(end, magnitude);
    first = end - digitCount;
    if (value.negative) {
        *--first = L'-';
        prefix = 1;
    } else if (value.signedType && (flags & std::ios_base::showpos) != 0) {
        *--first = L'+';
        prefix = 1;
    }
    return first;
}

// A hexadecimal field of the forms straight into the put area: the
// upper-case bit pattern of the value's magnitude, zero-filled in front to
// `width`. False, with nothing put, when the area has no room.
bool StoreZeroFilledHex(FieldBuffer& direct, const IntegerValue& value, int width);

// Puts the characters of one field with the stream's width, fill and
// adjustment, as the inserters pad them: behind the text for `left`; between
// the first `prefix` characters (a sign) and the rest for `internal`; in
// front of the text for any other adjustment. The width is used up. A stream
// that is not good takes nothing, as behind a sentry.
void PutPadded(std::wostream& os, const wchar_t* text, std::size_t length, std::size_t prefix);

// A narrow ASCII literal, widened one character each, as PutPadded puts it.
void PutLiteral(std::wostream& os, const char* text);

} // namespace Fields

} // namespace ItUnitechnik

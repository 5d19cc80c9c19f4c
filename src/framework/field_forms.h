#pragma once

#include "framework/field_output.h"
#include "framework/layout.h"

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

// The field forms of the write side. Each form sets the stream state it names
// and inserts its value as the stream's ordinary inserter would; format flags,
// fill and precision stay on the stream for the next field, the width is used
// up by the next insertion. A record's Write is one form per field, in file
// order.
//
// On a stream that keeps the classic number formats (an Archive, unless
// someone imbued another locale into it) the forms make their characters
// themselves, digits, sign and padding, and hand them to the buffer in one
// piece: the same characters as the inserter's, without its general
// formatting. On any other stream they go through the inserter.
namespace ItUnitechnik {

// Every form that carries a value may name the member it writes, as the
// record names it ("designation", "position.x"); an Archive with a field sink
// tells that name with what the field did (framework/field_trace.h).

// Holds a view of the value: use a form in the expression that makes it.
struct TextForm {
    int width;
    std::wstring_view value; // already cut to the width where the form cuts
    wchar_t fill;
    Adjust adjust;
    const std::wstring* whole = nullptr; // the value as the record holds it
    const char* member = nullptr;
};

// The value's first w characters, left-aligned, blank-filled.
TextForm Text(int width, const std::wstring& value, const char* member = nullptr);
// The value's first w characters, blank-filled; pads in front unless a `left`
// is in force. Most such fields rely on the adjustment the field before left.
TextForm RText(int width, const std::wstring& value, Adjust adjust = Adjust::keep, const char* member = nullptr);
TextForm RText(int width, const std::wstring& value, const char* member);
// As RText, filled with '0'.
TextForm ZText(int width, const std::wstring& value, Adjust adjust = Adjust::keep, const char* member = nullptr);
TextForm ZText(int width, const std::wstring& value, const char* member);
// The whole value, zero-filled to at least w places, right-aligned: the one
// text of the format that is not cut.
TextForm ZTextWhole(int width, const std::wstring& value, const char* member = nullptr);

// Puts a text field. `direct` is the put area the field may go straight
// into (Fields::DirectBuffer), or null; the characters are the same either
// way. The other forms below that the stream's hot lines use take one too.
template <class Stream>
void PutField(Stream& os, const TextForm& form, FieldBuffer* direct)
{
    if (form.adjust == Adjust::left) {
        os.setf(std::ios_base::left, std::ios_base::adjustfield);
    } else if (form.adjust == Adjust::right) {
        os.setf(std::ios_base::right, std::ios_base::adjustfield);
    }
    os.fill(form.fill);
    // A text pads behind for `left` and in front for any other adjustment,
    // whatever the locale.
    if (direct != nullptr && Fields::StorePadded(*direct, form.value.data(), form.value.size(), 0, form.width,
                                                 form.fill, os.flags() & std::ios_base::adjustfield)) {
        os.width(0);
        return;
    }
    os.width(form.width);
    Fields::PutPadded(os, form.value.data(), form.value.size(), 0);
}

std::wostream& operator<<(std::wostream& os, const TextForm& form);

template <class T>
struct IntegerForm {
    enum class Kind { unsignedField, signedField, hexField };
    Kind kind;
    int width;
    T value;
    const char* member = nullptr;
};

// Width w, fill '0', no plus sign, right-aligned: 42 in UInt(5) is 00042,
// -42 is 00-42.
template <class T>
IntegerForm<T> UInt(int width, T value, const char* member = nullptr)
{
    static_assert(std::is_integral<T>::value, "UInt takes an integer");
    return {IntegerForm<T>::Kind::unsignedField, width, value, member};
}

// Width w+1, fill '0', internal, plus sign: 42 in SInt(5) is +00042.
template <class T>
IntegerForm<T> SInt(int width, T value, const char* member = nullptr)
{
    static_assert(std::is_integral<T>::value, "SInt takes an integer");
    return {IntegerForm<T>::Kind::signedField, width, value, member};
}

// Upper-case hexadecimal, width w, fill '0', no plus sign, right-aligned;
// the stream goes back to decimal and lower case behind the value. A negative
// value prints its full bit pattern.
template <class T>
IntegerForm<T> Hex(int width, T value, const char* member = nullptr)
{
    static_assert(std::is_integral<T>::value, "Hex takes an integer");
    return {IntegerForm<T>::Kind::hexField, width, value, member};
}

// An integer field through the stream's state and the inserter's rules,
// for every case the direct path below leaves alone.
template <class Stream, class T>
void PutIntegerThroughStream(Stream& os, const IntegerForm<T>& form)
{
    using Kind = typename IntegerForm<T>::Kind;
    switch (form.kind) {
    case Kind::unsignedField:
        os.width(form.width);
        os.fill(L'0');
        os.unsetf(std::ios_base::showpos);
        os.setf(std::ios_base::right, std::ios_base::adjustfield);
        break;
    case Kind::signedField:
        os.width(form.width + 1);
        os.fill(L'0');
        os.setf(std::ios_base::internal, std::ios_base::adjustfield);
        os.setf(std::ios_base::showpos);
        break;
    case Kind::hexField:
        os.width(form.width);
        os.fill(L'0');
        os.unsetf(std::ios_base::showpos);
        os.setf(std::ios_base::right, std::ios_base::adjustfield);
        os.setf(std::ios_base::hex, std::ios_base::basefield);
        os.setf(std::ios_base::uppercase);
        break;
    }
    // A byte is a number here, never a character.
    using Value = std::conditional_t<sizeof(T) == 1, int, T>;
    const Value value = static_cast<Value>(form.value);
    using Unsigned = std::make_unsigned_t<Value>;
    Fields::IntegerValue plain{false, std::is_signed<Value>::value, 0};
    if (form.kind == Kind::hexField) {
        plain.magnitude = static_cast<Unsigned>(value);
    } else if constexpr (std::is_signed<Value>::value) {
        plain.negative = value < 0;
        const auto wide = static_cast<unsigned long long>(static_cast<long long>(value));
        plain.magnitude = plain.negative ? 0ULL - wide : wide;
    } else {
        plain.magnitude = value;
    }
    const bool hexadecimal = form.kind == Kind::hexField;
    if (!Fields::PutInteger(os, plain, hexadecimal)) {
        os << value;
    }
    if (hexadecimal) {
        os.setf(std::ios_base::dec, std::ios_base::basefield);
        os.unsetf(std::ios_base::uppercase);
    }
}

// An integer field goes straight into the put area in the form's own zero
// fill and adjustment, its digits made in place, and leaves the stream's
// state as the inserter would; the rest goes through the stream. The state
// is set here for each kind apart rather than by the switch above: going
// through that switch and the general value first cost endDocument a tenth
// more time in the benchmark.
template <class Stream, class T>
inline void PutField(Stream& os, const IntegerForm<T>& form, FieldBuffer* direct)
{
    using Kind = typename IntegerForm<T>::Kind;
    // A byte is a number here, never a character.
    using Value = std::conditional_t<sizeof(T) == 1, int, T>;
    if (direct != nullptr && form.kind == Kind::hexField) {
        // The bit pattern in the width of its type; the stream is left in
        // decimal and lower case, as behind the inserter.
        os.fill(L'0');
        os.unsetf(std::ios_base::showpos | std::ios_base::uppercase);
        os.setf(std::ios_base::right, std::ios_base::adjustfield);
        os.setf(std::ios_base::dec, std::ios_base::basefield);
        const Fields::IntegerValue bits{false, false, static_cast<std::make_unsigned_t<Value>>(form.value)};
        if (Fields::OwnDigits(os.flags(), true) && Fields::StoreZeroFilledHex(*direct, bits, form.width)) {
            os.width(0);
            return;
        }
    }
    if (direct != nullptr && form.kind != Kind::hexField) {
        const bool signedField = form.kind == Kind::signedField;
        os.fill(L'0');
        if (signedField) {
            os.setf(std::ios_base::internal, std::ios_base::adjustfield);
            os.setf(std::ios_base::showpos);
        } else {
            os.unsetf(std::ios_base::showpos);
            os.setf(std::ios_base::right, std::ios_base::adjustfield);
        }
        if (Fields::OwnDigits(os.flags(), false)) {
            // Only a signed type shows a plus sign. The sign and magnitude
            // are made here again rather than by a helper shared with the
            // general path: with one, endDocument measured 2 to 3 % slower.
            const Value value = static_cast<Value>(form.value);
            bool negative = false;
            unsigned long long magnitude = 0;
            if constexpr (std::is_signed<Value>::value) {
                negative = value < 0;
                const auto wide = static_cast<unsigned long long>(static_cast<long long>(value));
                magnitude = negative ? 0ULL - wide : wide;
            } else {
                magnitude = value;
            }
            const wchar_t sign = negative ? L'-' : signedField && std::is_signed<Value>::value ? L'+' : L'\0';
            if (Fields::StoreZeroFilledDecimal(*direct, magnitude, sign, signedField ? form.width + 1 : form.width,
                                               signedField)) {
                os.width(0);
                return;
            }
        }
    }
    PutIntegerThroughStream(os, form);
}

template <class T>
std::wostream& operator<<(std::wostream& os, const IntegerForm<T>& form)
{
    PutField(os, form, Fields::DirectBuffer(os));
    return os;
}

struct RealForm {
    int places;   // before the point
    int decimals; // behind the point
    double value;
    const char* member = nullptr;
};

// fixed, width i+d+1, fill '0', precision d, right-aligned; no point when d
// is 0. The plus sign is left as it stands.
RealForm Real(int places, int decimals, double value, const char* member = nullptr);
std::wostream& operator<<(std::wostream& os, const RealForm& form);

// One wide character with width 1, so no fill arises.
struct CharForm {
    wchar_t value;
    const char* member = nullptr;
};
CharForm Char(wchar_t value, const char* member = nullptr);
std::wostream& operator<<(std::wostream& os, const CharForm& form);

// A narrow literal through the narrow-string inserter, each character widened.
struct LiteralForm {
    const char* text;
};
LiteralForm Literal(const char* text);
std::wostream& operator<<(std::wostream& os, const LiteralForm& form);

struct BlankForm {};
// The one-character literal " ".
inline constexpr BlankForm Blank{};
// A blank where it cannot go straight into the put area.
void PutBlankThroughStream(std::wostream& os);
template <class Stream>
void PutField(Stream& os, BlankForm, FieldBuffer* direct)
{
    // The commonest field of all: one character, no width left in force.
    if (direct != nullptr && os.width() <= 1) {
        if (wchar_t* const out = direct->Room(1)) {
            *out = L' ';
            direct->Advance(1);
            os.width(0);
            return;
        }
    }
    PutBlankThroughStream(os);
}
std::wostream& operator<<(std::wostream& os, BlankForm);

struct BlanksForm {
    int count;
};
// n blanks, one at a time; nothing for n below 1.
BlanksForm Blanks(int count);
std::wostream& operator<<(std::wostream& os, const BlanksForm& form);

struct EndLineForm {};
// The line end: widen('\n'), then a flush.
inline constexpr EndLineForm EndLine{};
template <class Stream>
void PutField(Stream& os, EndLineForm, FieldBuffer* direct)
{
    // A put area of the library's own is only ever handed to a stream in the
    // classic locale, whose line feed widens to L'\n'; what the flush does
    // then on a good stream with nothing tied is the buffer's sync.
    if (direct != nullptr) {
        if (wchar_t* const out = direct->Room(1)) {
            *out = L'\n';
            direct->Advance(1);
            if (direct->pubsync() == -1) {
                os.setstate(std::ios_base::badbit);
            }
            return;
        }
    }
    os.put(os.widen('\n'));
    os.flush();
}
std::wostream& operator<<(std::wostream& os, EndLineForm);

// A record tag or end tag: the literal, then the line end.
struct TagForm {
    const char* text;
};
TagForm Tag(const char* text);
std::wostream& operator<<(std::wostream& os, const TagForm& form);

} // namespace ItUnitechnik

// On an Archive every form goes through the Archive's own inserter, which
// tells a field sink what the field did.
#include "framework/field_trace.h"

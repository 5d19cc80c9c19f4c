#include "framework/field_output.h"

namespace ItUnitechnik {
namespace Fields {
namespace {

// The mark of a stream whose number formats are the classic ones.
int PlainDigitsIndex()
{
    static const int index = std::ios_base::xalloc();
    return index;
}

// The FieldBuffer that a marked stream was made over.
int FieldBufferIndex()
{
    static const int index = std::ios_base::xalloc();
    return index;
}

void ForgetPlainDigits(std::ios_base::event happened, std::ios_base& stream, int index)
{
    if (happened == std::ios_base::imbue_event) {
        stream.iword(index) = 0;
        stream.pword(FieldBufferIndex()) = nullptr;
    }
}

// What the inserters do when the buffer throws: the stream goes bad, and the
// exception goes on only if the stream's mask asks for it.
void MarkBad(std::wostream& os)
{
    if ((os.exceptions() & std::ios_base::badbit) != 0) {
        try {
            os.setstate(std::ios_base::badbit);
        } catch (...) {
        }
        throw;
    }
    os.setstate(std::ios_base::badbit);
}

// One character at a time: a buffer's sputc stores into its put area
// without a call while there is room.
bool Put(std::wstreambuf* buffer, const wchar_t* text, std::size_t length)
{
    using Traits = std::wstreambuf::traits_type;
    for (std::size_t i = 0; i < length; ++i) {
        if (Traits::eq_int_type(buffer->sputc(text[i]), Traits::eof())) {
            return false;
        }
    }
    return true;
}

bool PutFill(std::wstreambuf* buffer, wchar_t fill, std::size_t count)
{
    using Traits = std::wstreambuf::traits_type;
    for (std::size_t i = 0; i < count; ++i) {
        if (Traits::eq_int_type(buffer->sputc(fill), Traits::eof())) {
            return false;
        }
    }
    return true;
}

// The characters of one field with the stream's width, fill and adjustment,
// as the inserters pad them: behind the text for `left`; between the first
// `prefix` characters (a sign) and the rest for `internal`; in front of the
// text for any other adjustment. The width is used up.
void PutPaddedOnGoodStream(std::wostream& os, const wchar_t* text, std::size_t length, std::size_t prefix)
{
    try {
        const std::streamsize width = os.width();
        const std::size_t padding =
            width > static_cast<std::streamsize>(length) ? static_cast<std::size_t>(width) - length : 0;
        os.width(0);
        std::wstreambuf* const buffer = os.rdbuf();
        std::size_t before = 0; // characters of the text in front of the fill
        if (padding > 0) {
            const std::ios_base::fmtflags adjust = os.flags() & std::ios_base::adjustfield;
            if (adjust == std::ios_base::left) {
                before = length;
            } else if (adjust == std::ios_base::internal) {
                before = prefix;
            }
        }
        if (!(Put(buffer, text, before) && PutFill(buffer, os.fill(), padding) &&
              Put(buffer, text + before, length - before))) {
            os.setstate(std::ios_base::badbit);
        }
    } catch (...) {
        MarkBad(os);
    }
}

// The integer straight into the put area, digits written from the back:
// [fill][sign][digits] for a right adjustment, [sign][fill][digits] for
// `internal`, [sign][digits][fill] for `left`. False when the area has no
// room for it.
template <unsigned base>
std::size_t DigitCount(unsigned long long magnitude)
{
    std::size_t count = 1;
    for (; magnitude >= base; magnitude /= base) {
        ++count;
    }
    return count;
}

// The digits of the magnitude, the last one at out[count - 1].
template <unsigned base>
void WriteDigits(wchar_t* out, std::size_t count, unsigned long long magnitude, const wchar_t* names)
{
    for (std::size_t i = count; i > 0; --i) {
        out[i - 1] = names[magnitude % base];
        magnitude /= base;
    }
}

bool PutIntegerDirect(std::wostream& os, FieldBuffer& direct, const IntegerValue& value, bool hexadecimal)
{
    const std::size_t digitCount = hexadecimal ? DigitCount<16>(value.magnitude) : DigitCount<10>(value.magnitude);
    const std::ios_base::fmtflags flags = os.flags();
    wchar_t sign = 0;
    if (!hexadecimal) {
        if (value.negative) {
            sign = L'-';
        } else if (value.signedType && (flags & std::ios_base::showpos) != 0) {
            sign = L'+';
        }
    }
    const std::size_t length = digitCount + (sign != 0 ? 1 : 0);
    const std::streamsize width = os.width();
    const std::size_t padding =
        width > static_cast<std::streamsize>(length) ? static_cast<std::size_t>(width) - length : 0;
    wchar_t* out = direct.Room(length + padding);
    if (out == nullptr) {
        return false;
    }
    const std::ios_base::fmtflags adjust = flags & std::ios_base::adjustfield;
    const wchar_t fill = padding > 0 ? os.fill() : L'0';
    if (adjust != std::ios_base::left && adjust != std::ios_base::internal) {
        for (std::size_t i = 0; i < padding; ++i) {
            *out++ = fill;
        }
    }
    if (sign != 0) {
        *out++ = sign;
    }
    if (adjust == std::ios_base::internal) {
        for (std::size_t i = 0; i < padding; ++i) {
            *out++ = fill;
        }
    }
    const wchar_t* const names = (flags & std::ios_base::uppercase) != 0 ? L"0123456789ABCDEF" : L"0123456789abcdef";
    if (hexadecimal) {
        WriteDigits<16>(out, digitCount, value.magnitude, names);
    } else {
        WriteDigits<10>(out, digitCount, value.magnitude, names);
    }
    out += digitCount;
    if (adjust == std::ios_base::left) {
        for (std::size_t i = 0; i < padding; ++i) {
            *out++ = fill;
        }
    }
    direct.Advance(length + padding);
    os.width(0);
    return true;
}

} // namespace

FieldBuffer* DirectBuffer(std::wostream& os)
{
    if (os.rdstate() != std::ios_base::goodbit || os.tie() != nullptr || (os.flags() & std::ios_base::unitbuf) != 0) {
        return nullptr;
    }
    void* const marked = os.pword(FieldBufferIndex());
    std::wstreambuf* const buffer = os.rdbuf();
    if (marked == nullptr || marked != static_cast<void*>(buffer)) {
        return nullptr;
    }
    return static_cast<FieldBuffer*>(buffer);
}

// A tied stream and one under `unitbuf` get a real sentry, which flushes
// them; an Archive is neither. A bad stream fails as well.
void PutPadded(std::wostream& os, const wchar_t* text, std::size_t length, std::size_t prefix)
{
    if (FieldBuffer* const direct = DirectBuffer(os)) {
        const std::streamsize width = os.width();
        const std::size_t padding =
            width > static_cast<std::streamsize>(length) ? static_cast<std::size_t>(width) - length : 0;
        if (wchar_t* out = direct->Room(length + padding)) {
            std::size_t before = 0;
            if (padding > 0) {
                const std::ios_base::fmtflags adjust = os.flags() & std::ios_base::adjustfield;
                before = adjust == std::ios_base::left ? length : adjust == std::ios_base::internal ? prefix : 0;
            }
            const wchar_t fill = padding > 0 ? os.fill() : L' ';
            for (std::size_t i = 0; i < before; ++i) {
                *out++ = text[i];
            }
            for (std::size_t i = 0; i < padding; ++i) {
                *out++ = fill;
            }
            for (std::size_t i = before; i < length; ++i) {
                *out++ = text[i];
            }
            direct->Advance(length + padding);
            os.width(0);
            return;
        }
    }
    if (os.tie() != nullptr || (os.flags() & std::ios_base::unitbuf) != 0) {
        const std::wostream::sentry guard(os);
        if (guard) {
            PutPaddedOnGoodStream(os, text, length, prefix);
        }
        return;
    }
    if (!os.good()) {
        if (os.bad()) {
            os.setstate(std::ios_base::failbit);
        }
        return;
    }
    PutPaddedOnGoodStream(os, text, length, prefix);
}

void PutLiteral(std::wostream& os, const char* text)
{
    wchar_t wide[64];
    std::size_t length = 0;
    while (text[length] != '\0' && length < 64) {
        wide[length] = static_cast<wchar_t>(static_cast<unsigned char>(text[length]));
        ++length;
    }
    PutPadded(os, wide, length, 0);
}

void KeepPlainDigits(std::wostream& stream)
{
    std::wstreambuf* const buffer = stream.rdbuf();
    if (dynamic_cast<FieldBuffer*>(buffer) != nullptr) {
        stream.pword(FieldBufferIndex()) = buffer;
    }
    stream.iword(PlainDigitsIndex()) = 1;
    stream.register_callback(ForgetPlainDigits, PlainDigitsIndex());
}

bool PlainDigits(std::ios_base& stream)
{
    return stream.iword(PlainDigitsIndex()) == 1;
}

bool PutInteger(std::wostream& os, const IntegerValue& value, bool hexadecimal)
{
    if (!PlainDigits(os)) {
        return false;
    }
    const std::ios_base::fmtflags flags = os.flags();
    const std::ios_base::fmtflags base = flags & std::ios_base::basefield;
    if (hexadecimal ? (flags & std::ios_base::showbase) != 0
                    : (base == std::ios_base::oct || base == std::ios_base::hex)) {
        return false;
    }
    if (FieldBuffer* const direct = DirectBuffer(os)) {
        if (PutIntegerDirect(os, *direct, value, hexadecimal)) {
            return true;
        }
    }
    wchar_t digits[32];
    wchar_t* const end = digits + 32;
    wchar_t* first = end;
    unsigned long long magnitude = value.magnitude;
    if (hexadecimal) {
        const wchar_t* const names =
            (flags & std::ios_base::uppercase) != 0 ? L"0123456789ABCDEF" : L"0123456789abcdef";
        do {
            *--first = names[magnitude & 0xF];
            magnitude >>= 4;
        } while (magnitude != 0);
        PutPadded(os, first, static_cast<std::size_t>(end - first), 0);
        return true;
    }
    do {
        *--first = static_cast<wchar_t>(L'0' + static_cast<int>(magnitude % 10));
        magnitude /= 10;
    } while (magnitude != 0);
    std::size_t sign = 0;
    if (value.negative) {
        *--first = L'-';
        sign = 1;
    } else if (value.signedType && (flags & std::ios_base::showpos) != 0) {
        *--first = L'+';
        sign = 1;
    }
    PutPadded(os, first, static_cast<std::size_t>(end - first), sign);
    return true;
}

} // namespace Fields

} // namespace ItUnitechnik

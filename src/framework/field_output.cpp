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
        if (StorePadded(*direct, text, length, prefix, os.width(), os.fill(),
                        os.flags() & std::ios_base::adjustfield)) {
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

bool StoreZeroFilledHex(FieldBuffer& direct, const IntegerValue& value, int width)
{
    wchar_t digits[32];
    std::size_t prefix = 0;
    const wchar_t* const first = StoreSignedDigits(digits + 32, value, true, std::ios_base::uppercase, prefix);
    return StorePadded(direct, first, static_cast<std::size_t>(digits + 32 - first), prefix, width, L'0',
                       std::ios_base::right);
}

bool PutInteger(std::wostream& os, const IntegerValue& value, bool hexadecimal)
{
    if (!PlainDigits(os)) {
        return false;
    }
    const std::ios_base::fmtflags flags = os.flags();
    if (!OwnDigits(flags, hexadecimal)) {
        return false;
    }
    wchar_t digits[32];
    std::size_t prefix = 0;
    const wchar_t* const first = StoreSignedDigits(digits + 32, value, hexadecimal, flags, prefix);
    PutPadded(os, first, static_cast<std::size_t>(digits + 32 - first), prefix);
    return true;
}

} // namespace Fields

} // namespace ItUnitechnik

#include "framework/document_file_buffer.h"

#include <cstdint>

namespace ItUnitechnik {

DocumentFileBuffer::DocumentFileBuffer(const std::wstring& path, std::size_t areaSize)
    : file_(path), areaSize_(areaSize > 0 ? areaSize : 1)
{
    // Without a file there is no area: the first character goes to overflow
    // and fails there.
    if (file_.IsOpen()) {
        // Left as they come: a small document touches only the pages it
        // uses, where zeroing would touch both areas whole on every save.
        area_.reset(new wchar_t[areaSize_]);
        bytes_.reset(new char[2 * areaSize_]);
        ResetArea();
    }
}

DocumentFileBuffer::~DocumentFileBuffer()
{
    Close();
}

bool DocumentFileBuffer::IsOpen() const
{
    return file_.IsOpen();
}

void DocumentFileBuffer::Close()
{
    if (file_.IsOpen()) {
        Drain();
    }
    file_.Close();
}

bool DocumentFileBuffer::FitsAByte(wchar_t c)
{
    return static_cast<unsigned long>(c) <= 0xFF;
}

void DocumentFileBuffer::ResetArea()
{
    setp(area_.get(), area_.get() + areaSize_);
    scanned_ = area_.get();
}

bool DocumentFileBuffer::Drain()
{
    const wchar_t* const first = pbase();
    const wchar_t* const last = pptr();
    const wchar_t* const looked = scanned_;
    ResetArea();
    if (broken_) {
        // What stands in the area came after the character that broke the
        // file.
        return false;
    }
    // Everything before `looked` was looked through by sync already.
    const wchar_t* stop = last;
    for (const wchar_t* p = looked; p != last; ++p) {
        if (!FitsAByte(*p)) {
            stop = p;
            broken_ = true;
            break;
        }
    }
    char* const start = bytes_.get();
    char* out = start;
    for (const wchar_t* p = first; p != stop; ++p) {
        // Each character its one byte; a line feed gets its CR in front.
        if (*p == L'\n') {
            *out++ = '\r';
        }
        *out++ = static_cast<char>(static_cast<unsigned char>(*p));
    }
    if (out != start && !file_.Write(start, static_cast<std::size_t>(out - start))) {
        broken_ = true;
    }
    return !broken_;
}

DocumentFileBuffer::int_type DocumentFileBuffer::overflow(int_type c)
{
    if (!file_.IsOpen()) {
        broken_ = true;
        return traits_type::eof();
    }
    if (!Drain()) {
        return traits_type::eof();
    }
    if (traits_type::eq_int_type(c, traits_type::eof())) {
        return traits_type::not_eof(c);
    }
    const wchar_t character = traits_type::to_char_type(c);
    if (!FitsAByte(character)) {
        broken_ = true;
        return traits_type::eof();
    }
    *pptr() = character;
    pbump(1);
    return c;
}

int DocumentFileBuffer::sync()
{
    if (broken_) {
        return -1;
    }
    // Every character's bits together: above 0xFF when one of them is (a
    // negative character counts as above).
    std::uint32_t bits = 0;
    for (const wchar_t* p = scanned_; p != pptr(); ++p) {
        bits |= static_cast<std::uint32_t>(*p);
    }
    if (bits > 0xFF) {
        // The bytes before the character go to the file now; the file is
        // broken from it on.
        Drain();
        return -1;
    }
    scanned_ = pptr();
    return 0;
}

} // namespace ItUnitechnik

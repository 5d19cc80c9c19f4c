#include "framework/document_file_buffer.h"

namespace ItUnitechnik {

DocumentFileBuffer::DocumentFileBuffer(const std::wstring& path, std::size_t areaSize)
    : file_(path), areaSize_(areaSize > 0 ? areaSize : 1)
{
    // Without a file there is no area: the first character goes to overflow
    // and fails there.
    if (file_.IsOpen()) {
        area_ = std::make_unique<wchar_t[]>(areaSize_);
        bytes_ = std::make_unique<char[]>(2 * areaSize_);
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
    const wchar_t* first = pbase();
    const wchar_t* const last = pptr();
    ResetArea();
    if (broken_) {
        // What stands in the area came after the character that broke the
        // file.
        return false;
    }
    char* const start = bytes_.get();
    char* out = start;
    for (; first != last; ++first) {
        const wchar_t c = *first;
        if (!FitsAByte(c)) {
            broken_ = true;
            break;
        }
        if (c == L'\n') {
            *out++ = '\r';
        }
        *out++ = static_cast<char>(static_cast<unsigned char>(c));
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
    for (const wchar_t* p = scanned_; p != pptr(); ++p) {
        if (!FitsAByte(*p)) {
            // The bytes before it go to the file now; the file is broken.
            Drain();
            return -1;
        }
    }
    scanned_ = pptr();
    return 0;
}

} // namespace ItUnitechnik

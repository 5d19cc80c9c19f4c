#include "framework/document_file_buffer.h"

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

void DocumentFileBuffer::ResetArea()
{
    setp(area_.get(), area_.get() + areaSize_);
    scanned_ = area_.get();
    made_ = bytes_.get();
}

namespace {

// Makes each character of the line its byte at `out`, and tells whether
// none of them was a line feed or above U+00FF; when one was, what it made
// is not to be used. One pass without a branch in it, which the compiler
// makes into vector operations: the bits of all characters together show one
// above U+00FF (a negative one included, whose high bits are set).
bool NarrowPlainLine(const wchar_t* line, std::size_t count, char* out)
{
    wchar_t bits = 0;
    wchar_t lineFeeds = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const wchar_t c = line[i];
        out[i] = static_cast<char>(static_cast<unsigned char>(c));
        bits |= c;
        lineFeeds |= c == L'\n' ? wchar_t{1} : wchar_t{0};
    }
    return static_cast<unsigned long>(bits) <= 0xFFUL && lineFeeds == 0;
}

} // namespace

bool DocumentFileBuffer::Narrow()
{
    const wchar_t* const last = pptr();
    char* out = made_;
    const wchar_t* p = scanned_;
    // The common case, a whole line whose only line feed is its end: its
    // characters are its bytes, then CR LF.
    const auto count = static_cast<std::size_t>(last - p);
    if (count > 0 && p[count - 1] == L'\n' && NarrowPlainLine(p, count - 1, out)) {
        out += count - 1;
        *out++ = '\r';
        *out++ = '\n';
        scanned_ = last;
        made_ = out;
        return true;
    }
    for (; p != last; ++p) {
        const wchar_t c = *p;
        // A negative character counts as above U+00FF.
        if (static_cast<unsigned long>(c) > 0xFFUL) {
            broken_ = true;
            break;
        }
        // Each character its one byte; a line feed gets its CR in front.
        if (c == L'\n') {
            *out++ = '\r';
        }
        *out++ = static_cast<char>(static_cast<unsigned char>(c));
    }
    scanned_ = p;
    made_ = out;
    return !broken_;
}

bool DocumentFileBuffer::Drain()
{
    if (!broken_) {
        Narrow();
    }
    // The bytes before a character that broke the file still reach it;
    // what stands in the area behind it does not.
    char* const start = bytes_.get();
    const std::size_t count = static_cast<std::size_t>(made_ - start);
    ResetArea();
    if (count > 0 && !file_.Write(start, count)) {
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
    if (static_cast<unsigned long>(character) > 0xFFUL) {
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
    if (!Narrow()) {
        // The bytes before the character go to the file now; the file is
        // broken from it on.
        Drain();
        return -1;
    }
    return 0;
}

} // namespace ItUnitechnik

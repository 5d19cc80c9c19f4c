#include "framework/document_file_buffer.h"

namespace ItUnitechnik {
namespace {
constexpr std::size_t pendingLimit = 4096;
}

DocumentFileBuffer::DocumentFileBuffer(const std::wstring& path) : file_(path) {}

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
    WritePending();
    file_.Close();
}

bool DocumentFileBuffer::Put(wchar_t c)
{
    const unsigned long code = static_cast<unsigned long>(c);
    if (broken_ || !file_.IsOpen() || code > 0xFF) {
        broken_ = true;
        return false;
    }
    if (c == L'\n') {
        pending_ += '\r';
    }
    pending_ += static_cast<char>(static_cast<unsigned char>(code));
    if (pending_.size() >= pendingLimit) {
        return WritePending();
    }
    return true;
}

bool DocumentFileBuffer::WritePending()
{
    if (pending_.empty()) {
        return !broken_;
    }
    const bool written = file_.Write(pending_.data(), pending_.size());
    pending_.clear();
    if (!written) {
        broken_ = true;
    }
    return written;
}

DocumentFileBuffer::int_type DocumentFileBuffer::overflow(int_type c)
{
    if (traits_type::eq_int_type(c, traits_type::eof())) {
        return sync() == 0 ? traits_type::not_eof(c) : traits_type::eof();
    }
    return Put(traits_type::to_char_type(c)) ? c : traits_type::eof();
}

std::streamsize DocumentFileBuffer::xsputn(const wchar_t* s, std::streamsize n)
{
    std::streamsize done = 0;
    while (done < n && Put(s[done])) {
        ++done;
    }
    return done;
}

int DocumentFileBuffer::sync()
{
    return WritePending() ? 0 : -1;
}

} // namespace ItUnitechnik

#pragma once

#include "platform/platform.h"

#include <streambuf>
#include <string>

namespace ItUnitechnik {

// The wide stream buffer under the document file. It makes the bytes of the
// file itself, whatever the platform's text mode or locale: a character up to
// U+00FF becomes its one byte, a line feed becomes CR LF, and the first
// character above U+00FF fails the write, so that the stream goes bad and
// nothing from that character on reaches the file. Over a file that could not
// be opened the first character fails the same way.
class DocumentFileBuffer : public std::basic_streambuf<wchar_t> {
public:
    // Opens the file for output only, cutting an existing one.
    explicit DocumentFileBuffer(const std::wstring& path);
    DocumentFileBuffer(const DocumentFileBuffer&) = delete;
    DocumentFileBuffer& operator=(const DocumentFileBuffer&) = delete;
    ~DocumentFileBuffer() override;

    bool IsOpen() const;
    // Writes what is pending and closes the file.
    void Close();

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const wchar_t* s, std::streamsize n) override;
    int sync() override;

private:
    bool Put(wchar_t c);
    bool WritePending();

    Platform::OutputFile file_;
    std::string pending_;
    bool broken_ = false;
};

} // namespace ItUnitechnik

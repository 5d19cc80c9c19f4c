#pragma once

#include "framework/field_buffer.h"
#include "platform/platform.h"

#include <cstddef>
#include <memory>
#include <streambuf>
#include <string>

namespace ItUnitechnik {

// The wide stream buffer under the document file. It makes the bytes of the
// file itself, whatever the platform's text mode or locale: a character up to
// U+00FF becomes its one byte, a line feed becomes CR LF, and the first
// character above U+00FF breaks the file there: everything before it reaches
// the file, nothing from it on, and the stream goes bad (at the latest when
// the line that holds it ends, since a line end asks the buffer to sync).
// Over a file that could not be opened the first character fails.
//
// The characters collect in a put area of the buffer's own, so that the
// stream hands them over without a call per character; they go to the file
// when the area is full and when the buffer closes. A sync, which every line
// end asks for, makes the bytes of the characters put since the last one, in
// the same pass that looks for a character above U+00FF.
class DocumentFileBuffer : public FieldBuffer {
public:
    static constexpr std::size_t defaultAreaSize = std::size_t{32} * 1024; // characters; 64 KiB of file or less

    // Opens the file for output only, cutting an existing one. The put area
    // holds `areaSize` characters (at least one).
    explicit DocumentFileBuffer(const std::wstring& path, std::size_t areaSize = defaultAreaSize);
    DocumentFileBuffer(const DocumentFileBuffer&) = delete;
    DocumentFileBuffer& operator=(const DocumentFileBuffer&) = delete;
    ~DocumentFileBuffer() override;

    bool IsOpen() const;
    // Writes what is pending and closes the file.
    void Close();

protected:
    int_type overflow(int_type c) override;
    int sync() override;

private:
    // Makes the bytes of the characters put since the last sync, up to the
    // first one above U+00FF, which breaks the file. False when it has.
    bool Narrow();
    // Narrows what is left, writes the bytes and empties the area. False
    // once the file is broken.
    bool Drain();
    void ResetArea();

    Platform::OutputFile file_;
    std::size_t areaSize_;
    std::unique_ptr<wchar_t[]> area_;
    std::unique_ptr<char[]> bytes_;    // two bytes for each character at most
    const wchar_t* scanned_ = nullptr; // the area before this is made into bytes already
    char* made_ = nullptr;             // behind the bytes made so far
    bool broken_ = false;
};

} // namespace ItUnitechnik

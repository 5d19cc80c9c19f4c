#pragma once

#include <cstddef>
#include <string>

// Everything that differs between Windows and POSIX stands behind this plain
// interface: file handles, the alternate data streams of a document, UTF-8
// conversion and the allocator of blocks handed to the host.
namespace ItUnitechnik::Platform {

// A file opened for output only, cut to zero if it exists, readable and
// writable by others while it is open. Closed when it goes.
class OutputFile {
public:
    OutputFile() = default;
    explicit OutputFile(const std::wstring& path);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    OutputFile(OutputFile&& other) noexcept;
    OutputFile& operator=(OutputFile&& other) noexcept;
    ~OutputFile();

    bool IsOpen() const;
    // Writes all bytes; false on any failure.
    bool Write(const char* bytes, std::size_t count);
    void Close();

private:
#ifdef _WIN32
    void* handle_ = nullptr;
#else
    int descriptor_ = -1;
    bool pipe_ = false; // a pipe or a socket: a write to it can raise SIGPIPE
#endif
};

// The text as UTF-8. Each wchar_t is taken as one UTF-16 code unit (pairs of
// surrogates make one character, a lone surrogate becomes U+FFFD), and on a
// platform whose wchar_t is wider a value above U+FFFF is one character too.
// An empty text, or one that cannot be converted, gives an empty string.
std::string ToUtf8(const std::wstring& text);

// Writes `count` bytes at the start of the named alternate data stream (on
// Windows an NTFS stream `file:streamN`; elsewhere a file of that very name),
// creating it when missing and not cutting it. A stream that cannot be opened
// is passed over without a report.
void WriteAlternateStream(const std::string& streamNameUtf8, const char* bytes, std::size_t count);

// A block the host owns and gives back through FreeHostBlock.
void* AllocateHostBlock(std::size_t bytes);
void FreeHostBlock(void* block);

} // namespace ItUnitechnik::Platform

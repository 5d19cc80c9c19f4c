#ifdef _WIN32

#include "platform/platform.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <objbase.h>

#include <climits>

namespace ItUnitechnik::Platform {
namespace {

// The UTF-8 code page: the stream names go to CreateFileA as UTF-8 bytes,
// whatever the ANSI code page of the host is.
constexpr UINT utf8CodePage = 65001;

HANDLE AsHandle(void* handle)
{
    return handle == nullptr ? INVALID_HANDLE_VALUE : static_cast<HANDLE>(handle);
}

} // namespace

OutputFile::OutputFile(const std::wstring& path)
{
    // Output only, cut when it exists, and open for others to read and write
    // while the document is being written.
    const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        handle_ = file;
    }
}

OutputFile::OutputFile(OutputFile&& other) noexcept : handle_(other.handle_)
{
    other.handle_ = nullptr;
}

OutputFile& OutputFile::operator=(OutputFile&& other) noexcept
{
    if (this != &other) {
        Close();
        handle_ = other.handle_;
        other.handle_ = nullptr;
    }
    return *this;
}

OutputFile::~OutputFile()
{
    Close();
}

bool OutputFile::IsOpen() const
{
    return handle_ != nullptr;
}

bool OutputFile::Write(const char* bytes, std::size_t count)
{
    if (handle_ == nullptr) {
        return false;
    }
    while (count > 0) {
        // WriteFile takes a 32-bit count: a larger block goes in pieces.
        const DWORD piece = count > MAXDWORD ? MAXDWORD : static_cast<DWORD>(count);
        DWORD written = 0;
        if (!::WriteFile(AsHandle(handle_), bytes, piece, &written, nullptr) || written == 0) {
            return false;
        }
        bytes += written;
        count -= written;
    }
    return true;
}

void OutputFile::Close()
{
    if (handle_ != nullptr) {
        ::CloseHandle(AsHandle(handle_));
        handle_ = nullptr;
    }
}

std::string ToUtf8(const std::wstring& text)
{
    if (text.empty() || text.size() > static_cast<std::size_t>(INT_MAX)) {
        return std::string();
    }
    const int units = static_cast<int>(text.size());
    // Once for the byte count, once to convert; either failing gives nothing.
    const int bytes = ::WideCharToMultiByte(utf8CodePage, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
    if (bytes == 0) {
        return std::string();
    }
    std::string out(static_cast<std::size_t>(bytes), '\0');
    if (::WideCharToMultiByte(utf8CodePage, 0, text.data(), units, &out[0], bytes, nullptr, nullptr) == 0) {
        return std::string();
    }
    return out;
}

void WriteAlternateStream(const std::string& streamNameUtf8, const char* bytes, std::size_t count)
{
    // An NTFS stream `file:orderN`: created when missing, never cut, written
    // from its first byte. A stream that cannot be opened is passed over.
    const HANDLE stream =
        ::CreateFileA(streamNameUtf8.c_str(), GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS, 0, nullptr);
    if (stream == INVALID_HANDLE_VALUE) {
        return;
    }
    DWORD written = 0;
    const DWORD size = count > MAXDWORD ? MAXDWORD : static_cast<DWORD>(count);
    static_cast<void>(::WriteFile(stream, bytes, size, &written, nullptr));
    ::CloseHandle(stream);
}

void* AllocateHostBlock(std::size_t bytes)
{
    return ::CoTaskMemAlloc(bytes);
}

void FreeHostBlock(void* block)
{
    ::CoTaskMemFree(block);
}

} // namespace ItUnitechnik::Platform

#endif

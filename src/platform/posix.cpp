#ifndef _WIN32

#include "platform/platform.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace ItUnitechnik::Platform {

OutputFile::OutputFile(const std::wstring& path)
{
    const std::string name = ToUtf8(path);
    if (!name.empty()) {
        descriptor_ = ::open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    }
}

OutputFile::OutputFile(OutputFile&& other) noexcept : descriptor_(other.descriptor_)
{
    other.descriptor_ = -1;
}

OutputFile& OutputFile::operator=(OutputFile&& other) noexcept
{
    if (this != &other) {
        Close();
        descriptor_ = other.descriptor_;
        other.descriptor_ = -1;
    }
    return *this;
}

OutputFile::~OutputFile()
{
    Close();
}

bool OutputFile::IsOpen() const
{
    return descriptor_ >= 0;
}

bool OutputFile::Write(const char* bytes, std::size_t count)
{
    if (descriptor_ < 0) {
        return false;
    }
    while (count > 0) {
        const ssize_t written = ::write(descriptor_, bytes, count);
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
    return true;
}

void OutputFile::Close()
{
    if (descriptor_ >= 0) {
        ::close(descriptor_);
        descriptor_ = -1;
    }
}

void WriteAlternateStream(const std::string& streamNameUtf8, const char* bytes, std::size_t count)
{
    // Opened as Windows opens a stream with OPEN_ALWAYS: created when missing,
    // never cut, written from its first byte.
    const int descriptor = ::open(streamNameUtf8.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        return;
    }
    const ssize_t ignored = ::write(descriptor, bytes, count);
    static_cast<void>(ignored);
    ::close(descriptor);
}

void* AllocateHostBlock(std::size_t bytes)
{
    return std::malloc(bytes);
}

void FreeHostBlock(void* block)
{
    std::free(block);
}

} // namespace ItUnitechnik::Platform

#endif

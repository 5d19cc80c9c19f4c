#ifndef _WIN32

#include "platform/platform.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <optional>

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ItUnitechnik::Platform {
namespace {

// A write into a pipe whose reader has gone raises SIGPIPE, which ends a host
// that has not set the signal aside. Around each of the library's writes to a
// pipe or a socket the signal is blocked in the calling thread; one that the write raised is taken
// back before the old mask returns. The host's disposition is never touched,
// and its mask is as it was when the write ends.
class QuietPipe {
public:
    QuietPipe()
    {
        sigemptyset(&pipeOnly_);
        sigaddset(&pipeOnly_, SIGPIPE);
        sigset_t pending;
        sigemptyset(&pending);
        wasPending_ = sigpending(&pending) == 0 && sigismember(&pending, SIGPIPE) == 1;
        blocked_ = pthread_sigmask(SIG_BLOCK, &pipeOnly_, &previous_) == 0;
    }
    QuietPipe(const QuietPipe&) = delete;
    QuietPipe& operator=(const QuietPipe&) = delete;
    ~QuietPipe()
    {
        if (!blocked_) {
            return;
        }
        if (broken_ && !wasPending_) {
            const timespec none{0, 0};
            while (sigtimedwait(&pipeOnly_, nullptr, &none) < 0 && errno == EINTR) {
            }
        }
        pthread_sigmask(SIG_SETMASK, &previous_, nullptr);
    }

    // The write failed with EPIPE: a SIGPIPE of its own is pending.
    void Broken() { broken_ = true; }

private:
    sigset_t pipeOnly_{};
    sigset_t previous_{};
    bool wasPending_ = false;
    bool blocked_ = false;
    bool broken_ = false;
};

// Opens for output without waiting: a FIFO that nobody reads fails at once
// instead of holding the host, and the descriptor then blocks as usual.
int OpenForOutput(const char* name, int flags)
{
    const int descriptor = ::open(name, flags | O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666);
    if (descriptor >= 0) {
        const int status = ::fcntl(descriptor, F_GETFL);
        if (status >= 0) {
            ::fcntl(descriptor, F_SETFL, status & ~O_NONBLOCK);
        }
    }
    return descriptor;
}

} // namespace

OutputFile::OutputFile(const std::wstring& path)
{
    const std::string name = ToUtf8(path);
    if (!name.empty()) {
        descriptor_ = OpenForOutput(name.c_str(), O_TRUNC);
    }
    struct stat status {};
    pipe_ = descriptor_ >= 0 && ::fstat(descriptor_, &status) == 0 &&
            (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
}

OutputFile::OutputFile(OutputFile&& other) noexcept : descriptor_(other.descriptor_), pipe_(other.pipe_)
{
    other.descriptor_ = -1;
}

OutputFile& OutputFile::operator=(OutputFile&& other) noexcept
{
    if (this != &other) {
        Close();
        descriptor_ = other.descriptor_;
        pipe_ = other.pipe_;
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
    // Only a pipe or a socket raises SIGPIPE: a file is written without
    // the three calls around each write that keep the signal from the host.
    std::optional<QuietPipe> quiet;
    if (pipe_) {
        quiet.emplace();
    }
    while (count > 0) {
        const ssize_t written = ::write(descriptor_, bytes, count);
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            if (errno == EPIPE && quiet) {
                quiet->Broken();
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
    const int descriptor = OpenForOutput(streamNameUtf8.c_str(), 0);
    if (descriptor < 0) {
        return;
    }
    {
        QuietPipe quiet;
        if (::write(descriptor, bytes, count) < 0 && errno == EPIPE) {
            quiet.Broken();
        }
    }
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

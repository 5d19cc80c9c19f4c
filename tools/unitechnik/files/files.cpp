#include "files/files.h"

#include "text/unicode.h"

#include <chrono>
#include <cstdint>
#include <random>
#include <vector>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
#else
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ItUnitechnik::Tool {

File OpenFile(const std::string& path, const char* mode)
{
#ifdef _WIN32
    const std::optional<HostText> widePath = Utf8ToHost(path);
    const std::optional<HostText> wideMode = Utf8ToHost(mode);
    if (!widePath || !wideMode) {
        return File();
    }
    return File(_wfopen(widePath->c_str(), wideMode->c_str()));
#else
    return File(std::fopen(path.c_str(), mode));
#endif
}

std::optional<std::string> ReadWholeFile(const std::string& path)
{
    File file = OpenFile(path, "rb");
    if (!file) {
        return std::nullopt;
    }
    std::string bytes;
    char buffer[65536];
    for (;;) {
        const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get());
        bytes.append(buffer, count);
        if (count < sizeof buffer) {
            break;
        }
    }
    // A folder opens on some systems, but reading it fails.
    if (std::ferror(file.get())) {
        return std::nullopt;
    }
    return bytes;
}

bool CanWriteFile(const std::string& path)
{
    return OpenFile(path, "ab") != nullptr;
}

bool FileIsThere(const std::string& path)
{
    return OpenFile(path, "rb") != nullptr;
}

namespace {

// What stands at the path a file is written to.
struct Target {
    enum class Kind {
        missing,
        file,   // a file, replaced by the rename
        stream, // a device or a pipe: written straight
        other,  // a folder, or what cannot be looked at: the rename tells
    };
    std::string path; // a link followed
    Kind kind = Kind::missing;
    bool writable = true;
#ifndef _WIN32
    mode_t mode = 0; // of a file, which the new one keeps
#endif
};

#ifdef _WIN32

std::optional<std::wstring> Wide(const std::string& utf8)
{
    const std::optional<HostText> host = Utf8ToHost(utf8);
    if (!host) {
        return std::nullopt;
    }
    return std::wstring(host->begin(), host->end());
}

Target TargetOf(const std::string& path)
{
    Target target;
    target.path = path;
    const std::optional<std::wstring> wide = Wide(path);
    if (!wide) {
        target.kind = Target::Kind::other;
        return target;
    }
    const DWORD attributes = ::GetFileAttributesW(wide->c_str());
    const HANDLE handle = ::CreateFileW(wide->c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        target.kind = attributes == INVALID_FILE_ATTRIBUTES ? Target::Kind::missing : Target::Kind::other;
        return target;
    }
    const DWORD type = ::GetFileType(handle);
    ::CloseHandle(handle);
    if (type != FILE_TYPE_DISK) {
        target.kind = Target::Kind::stream; // NUL, CON, a pipe
    } else if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        target.kind = Target::Kind::other;
    } else {
        target.kind = Target::Kind::file;
        target.writable = attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) == 0;
    }
    return target;
}

// Made empty, and only when no file of the name is there: false with
// `taken` when one is.
bool MakeNew(const std::string& path, const Target&, bool& taken)
{
    taken = false;
    const std::optional<std::wstring> wide = Wide(path);
    if (!wide) {
        return false;
    }
    const HANDLE handle =
        ::CreateFileW(wide->c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        taken = ::GetLastError() == ERROR_FILE_EXISTS;
        return false;
    }
    ::CloseHandle(handle);
    return true;
}

// MOVEFILE_WRITE_THROUGH: the rename is on the disk when it returns.
bool ToDisk(const std::string&)
{
    return true;
}

void RemoveTemporary(const std::string& path)
{
    if (const std::optional<std::wstring> wide = Wide(path)) {
        ::DeleteFileW(wide->c_str());
    }
}

// The streams of an NTFS file are part of it and move with it.
void MoveSideFiles(const std::string&, const std::string&) {}

unsigned long ProcessId()
{
    return static_cast<unsigned long>(::GetCurrentProcessId());
}

#else

Target TargetOf(const std::string& path)
{
    Target target;
    target.path = path;
    struct stat status {};
    if (::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode)) {
        // The file the link names is replaced, and the link stays a link.
        if (char* resolved = ::realpath(path.c_str(), nullptr)) {
            target.path = resolved;
            std::free(resolved);
        }
    }
    if (::stat(target.path.c_str(), &status) != 0) {
        target.kind = errno == ENOENT ? Target::Kind::missing : Target::Kind::other;
        return target;
    }
    if (S_ISREG(status.st_mode)) {
        target.kind = Target::Kind::file;
        target.writable = ::access(target.path.c_str(), W_OK) == 0;
        target.mode = status.st_mode & 07777;
    } else if (S_ISDIR(status.st_mode)) {
        target.kind = Target::Kind::other;
    } else {
        target.kind = Target::Kind::stream;
    }
    return target;
}

bool MakeNew(const std::string& path, const Target& target, bool& taken)
{
    taken = false;
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        taken = errno == EEXIST;
        return false;
    }
    bool made = true;
    if (target.kind == Target::Kind::file) {
        made = ::fchmod(descriptor, target.mode) == 0;
    }
    ::close(descriptor);
    if (!made) {
        ::unlink(path.c_str());
    }
    return made;
}

// The bytes on the disk before the rename shows them: else a crash right
// after it may leave the new name on an empty file.
bool ToDisk(const std::string& path)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    const bool synced = ::fsync(descriptor) == 0 || errno == EINVAL; // a file system that keeps nothing to sync
    ::close(descriptor);
    return synced;
}

std::string FolderOf(const std::string& path)
{
    const std::size_t slash = path.find_last_of('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

// The files "TEMPORARY:orderN" that the library wrote beside the temporary.
std::vector<std::string> SideFiles(const std::string& temporary)
{
    std::vector<std::string> names;
    const std::string folder = FolderOf(temporary);
    const std::string prefix = temporary.substr(folder.size()) + ":";
    DIR* directory = ::opendir(folder.empty() ? "." : folder.c_str());
    if (directory == nullptr) {
        return names;
    }
    while (const dirent* entry = ::readdir(directory)) {
        const std::string name = entry->d_name;
        if (name.compare(0, prefix.size(), prefix) == 0) {
            names.push_back(name.substr(prefix.size() - 1)); // ":order0"
        }
    }
    ::closedir(directory);
    return names;
}

void RemoveTemporary(const std::string& path)
{
    for (const std::string& side : SideFiles(path)) {
        ::unlink((path + side).c_str());
    }
    ::unlink(path.c_str());
}

// Behind the document, each whole by its own rename. One that cannot be
// moved is passed over, as the library passes over a stream it cannot open.
void MoveSideFiles(const std::string& temporary, const std::string& path)
{
    for (const std::string& side : SideFiles(temporary)) {
        if (!RenameOver(temporary + side, path + side)) {
            ::unlink((temporary + side).c_str());
        }
    }
}

unsigned long ProcessId()
{
    return static_cast<unsigned long>(::getpid());
}

#endif

// Eight hex digits that differ between processes and between calls.
std::string Salt()
{
    static std::mt19937 generator = [] {
        std::random_device device;
        const auto now = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
        std::seed_seq seed{device(), static_cast<unsigned>(now), static_cast<unsigned>(now >> 32),
                           static_cast<unsigned>(ProcessId())};
        return std::mt19937(seed);
    }();
    static const char kDigits[] = "0123456789abcdef";
    auto value = static_cast<std::uint32_t>(generator());
    std::string salt(8, '0');
    for (char& digit : salt) {
        digit = kDigits[value & 0xF];
        value >>= 4;
    }
    return salt;
}

// A new empty file beside the target, of a name nobody else has taken.
std::optional<std::string> MakeTemporary(const Target& target)
{
#ifdef _WIN32
    const std::size_t slash = target.path.find_last_of("/\\:");
#else
    const std::size_t slash = target.path.find_last_of('/');
#endif
    const std::size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
    std::string name = target.path.substr(nameStart);
    // Fourteen characters more must still make a name the folder takes.
    if (name.size() > 100) {
        name = "unitechnik";
    }
    const std::string stem = target.path.substr(0, nameStart) + "." + name + ".";
    for (int attempt = 0; attempt < 100; ++attempt) {
        const std::string temporary = stem + Salt() + ".tmp";
        bool taken = false;
        if (MakeNew(temporary, target, taken)) {
            return temporary;
        }
        if (!taken) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace

bool RenameOver(const std::string& from, const std::string& to)
{
#ifdef _WIN32
    const std::optional<std::wstring> wideFrom = Wide(from);
    const std::optional<std::wstring> wideTo = Wide(to);
    return wideFrom && wideTo &&
           ::MoveFileExW(wideFrom->c_str(), wideTo->c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
#else
    return std::rename(from.c_str(), to.c_str()) == 0;
#endif
}

bool WriteWholeFile(const std::string& path, const std::function<bool(const std::string& temporary)>& write,
                    RenameFile rename)
{
    const Target target = TargetOf(path);
    if (target.kind == Target::Kind::stream) {
        return CanWriteFile(path) && write(path);
    }
    if (!target.writable) {
        return false;
    }
    const std::optional<std::string> temporary = MakeTemporary(target);
    if (!temporary) {
        return false;
    }
    bool done = false;
    try {
        done = write(*temporary) && ToDisk(*temporary) && rename(*temporary, target.path);
    } catch (...) {
        RemoveTemporary(*temporary);
        throw;
    }
    if (!done) {
        RemoveTemporary(*temporary);
        return false;
    }
    MoveSideFiles(*temporary, target.path);
    return true;
}

} // namespace ItUnitechnik::Tool

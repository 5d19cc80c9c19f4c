#include "files.h"

#include "unicode.h"

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

} // namespace ItUnitechnik::Tool

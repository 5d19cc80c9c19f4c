#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace ItUnitechnik::Tool {

// Files named by UTF-8 paths; on Windows the path reaches the file system as
// UTF-16, as the library's own paths do.

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

// Opens with a mode of fopen; null when that fails.
File OpenFile(const std::string& path, const char* mode);

// The bytes of a file; nothing when it cannot be read.
std::optional<std::string> ReadWholeFile(const std::string& path);

// Whether the file can be opened for writing. It is opened to append, so an
// existing file keeps its bytes and a missing one is made, empty.
bool CanWriteFile(const std::string& path);

// Whether the file is there and can be opened for reading.
bool FileIsThere(const std::string& path);

} // namespace ItUnitechnik::Tool

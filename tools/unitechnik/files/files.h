#pragma once

#include <cstdio>
#include <functional>
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

// Puts a finished file in the place of another, which it replaces: true when
// it did. RenameOver is the system's; a test gives one that fails.
using RenameFile = bool (*)(const std::string& from, const std::string& to);

// rename() on POSIX; MoveFileExW with MOVEFILE_REPLACE_EXISTING on Windows.
bool RenameOver(const std::string& from, const std::string& to);

// Writes the file at `path` whole or not at all. A plant imports from its
// transfer folder as soon as a file shows there, so `write` makes a new
// temporary file in the same folder (".NAME.1a2b3c4d.tmp", a name no import
// filter takes for a document), which is then renamed into place: the folder
// shows the earlier file or the finished one, never a file being written.
// `write` is given the temporary's path and says whether it wrote it.
//
// False when the temporary cannot be made, `write` fails, or the rename
// does; then the temporary is removed and what stood at `path` is as it
// was. An existing file that may not be written stays too, and so does a
// folder in the file's place. A link is followed to the file it names. A
// device or a pipe (/dev/stdout, NUL) has no folder that could show it half
// written and is written straight.
//
// On POSIX the streams "NAME:orderN" of a document are files beside it: the
// temporary's are renamed behind it. On Windows they travel with the file.
bool WriteWholeFile(const std::string& path, const std::function<bool(const std::string& temporary)>& write,
                    RenameFile rename = RenameOver);

} // namespace ItUnitechnik::Tool

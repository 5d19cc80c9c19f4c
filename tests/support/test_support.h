#pragma once

#include "framework/archive.h"
#include "itunitechnik.h"

#include <sstream>
#include <string>
#include <vector>

namespace ItUnitechnik::Testing {

// An Archive over a wide string buffer, as the summary string uses it: lines
// end in a single line feed and every character is kept.
class StringArchive {
public:
    StringArchive() : archive(&buffer) {}
    explicit StringArchive(const std::wstring& input) : buffer(input), archive(&buffer) {}

    std::wstring Text() const { return buffer.str(); }

    std::wstringbuf buffer;
    Archive archive;
};

// n blanks.
std::wstring Blanks(std::size_t n);
// The lines of a text, each without its line feed; the text must end in one.
std::vector<std::wstring> Lines(const std::wstring& text);
// The text of these lines, each ended by a line feed: a file as a reader
// sees it through a string buffer.
std::wstring JoinLines(const std::vector<std::wstring>& lines);
// The lines of `head` followed by those of `tail`.
std::vector<std::wstring> Joined(std::vector<std::wstring> head, const std::vector<std::wstring>& tail);

// Bytes of a file; empty when it cannot be read.
std::string ReadFileBytes(const std::string& path);

// Every name directly in the folder, hidden ones and folders too, sorted.
std::vector<std::string> NamesIn(const std::string& folder);
bool FileExists(const std::string& path);

// A fresh, empty directory for one test; removed with everything in it.
class TemporaryDirectory {
public:
    TemporaryDirectory();
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    const std::string& Path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

// A readable account of the first difference of two texts: line and column,
// and both lines with CR and LF made visible. Empty when they are equal.
std::string DescribeDifference(const std::string& expected, const std::string& actual);

// A host's text: the same 16-bit units as the library's text type on every
// platform. Give it a literal or a string that outlives the call.
inline const it_char16* HostText(const char16_t* text)
{
    return reinterpret_cast<const it_char16*>(text);
}

// A text handed back by the library as a wide string, one character per unit.
std::wstring FromHostText(const it_char16* text);

// The narrow text as a wide string, one character per byte.
std::wstring Wide(const std::string& text);
std::string Narrow(const std::wstring& text);

} // namespace ItUnitechnik::Testing

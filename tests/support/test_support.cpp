#include "support/test_support.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace ItUnitechnik::Testing {

std::wstring Blanks(std::size_t n)
{
    return std::wstring(n, L' ');
}

std::vector<std::wstring> Lines(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    std::wstring line;
    for (wchar_t c : text) {
        if (c == L'\n') {
            lines.push_back(line);
            line.clear();
        } else {
            line += c;
        }
    }
    if (!line.empty()) {
        lines.push_back(line + L"<no line end>");
    }
    return lines;
}

std::string ReadFileBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().u8string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool FileExists(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::u8path(path), ignored);
}

TemporaryDirectory::TemporaryDirectory()
{
    std::random_device seed;
    std::mt19937_64 random(seed());
    const std::filesystem::path base = std::filesystem::temp_directory_path();
    for (;;) {
        std::filesystem::path candidate = base / ("itunitechnik-" + std::to_string(random()));
        if (std::filesystem::create_directory(candidate)) {
            path_ = candidate.generic_string();
            break;
        }
    }
}

TemporaryDirectory::~TemporaryDirectory()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

namespace {

std::string Visible(const std::string& line)
{
    std::string out;
    for (char c : line) {
        if (c == '\r') {
            out += "\\r";
        } else if (c == '\n') {
            out += "\\n";
        } else {
            out += c;
        }
    }
    return out;
}

std::string LineAt(const std::string& text, std::size_t start)
{
    std::size_t end = text.find('\n', start);
    end = end == std::string::npos ? text.size() : end + 1;
    return text.substr(start, end - start);
}

} // namespace

std::string DescribeDifference(const std::string& expected, const std::string& actual)
{
    if (expected == actual) {
        return std::string();
    }
    std::size_t index = 0;
    std::size_t line = 1;
    std::size_t lineStart = 0;
    while (index < expected.size() && index < actual.size() && expected[index] == actual[index]) {
        if (expected[index] == '\n') {
            ++line;
            lineStart = index + 1;
        }
        ++index;
    }
    std::string out = "first difference at line " + std::to_string(line) + ", column " +
                      std::to_string(index - lineStart + 1) + " (byte " + std::to_string(index) + ")\n";
    out += "  expected: \"" + Visible(LineAt(expected, lineStart)) + "\"\n";
    out += "  actual:   \"" + Visible(LineAt(actual, lineStart)) + "\"\n";
    out += "  sizes: expected " + std::to_string(expected.size()) + " bytes, actual " + std::to_string(actual.size()) +
           " bytes\n";
    return out;
}

std::wstring Wide(const std::string& text)
{
    std::wstring out;
    for (unsigned char c : text) {
        out += static_cast<wchar_t>(c);
    }
    return out;
}

std::string Narrow(const std::wstring& text)
{
    std::string out;
    for (wchar_t c : text) {
        out += static_cast<char>(c);
    }
    return out;
}

std::wstring JoinLines(const std::vector<std::wstring>& lines)
{
    std::wstring text;
    for (const std::wstring& line : lines) {
        text += line + L"\n";
    }
    return text;
}

std::vector<std::wstring> Joined(std::vector<std::wstring> head, const std::vector<std::wstring>& tail)
{
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

std::wstring FromHostText(const it_char16* text)
{
    std::wstring out;
    for (; *text != 0; ++text) {
        out += static_cast<wchar_t>(*text);
    }
    return out;
}

} // namespace ItUnitechnik::Testing

#pragma once

#include <string>
#include <vector>

namespace ItUnitechnik::Testing {

struct ToolResult {
    int exitCode = -1; // 128 + the signal for a tool that crashed, 124 for one that hung
    std::string out;
    std::string err;
};

// Runs the built unitechnik with these arguments in `directory`, with its
// standard output and error caught. A run that takes more than two minutes is
// stopped.
ToolResult RunTool(const std::vector<std::string>& arguments, const std::string& directory);

void WriteFileBytes(const std::string& path, const std::string& bytes);

// A file of the tool's tests, by its path below tests/tools.
std::string ToolTestFile(const std::string& relative);
// A golden file of tests/functional/expected, by its path below it.
std::string GoldenFile(const std::string& relative);
std::string ExampleFile(const std::string& relative);

// The names of the files below a directory, sorted, with '/' between folders.
std::vector<std::string> FilesBelow(const std::string& directory);

// A call script of these calls, each a JSON object.
std::string Script(const std::vector<std::string>& calls);

// startOrder as the golden versions scenario makes its order at 600: the
// document of tests/functional/expected/versions/v600.txt.
extern const char* const kStartOrder600;

// Writes the script as s.json into `directory` and runs "build s.json" there,
// with these options behind.
ToolResult BuildScript(const std::string& directory, const std::string& script,
                       const std::vector<std::string>& options = {});

// The text with `from` replaced by `to`; `from` must stand in it exactly once.
std::string Replaced(const std::string& text, const std::string& from, const std::string& to);

// "unitechnik: " and the message, as the tool puts an error on stderr.
std::string ToolError(const std::string& message);

} // namespace ItUnitechnik::Testing

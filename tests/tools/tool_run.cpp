#include "tool_run.h"

#include "support/test_support.h"

#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace ItUnitechnik::Testing {
namespace {

std::string ShellQuoted(const std::string& text)
{
    std::string out = "'";
    for (char c : text) {
        if (c == '\'') {
            out += "'\\''";
        } else {
            out += c;
        }
    }
    return out + "'";
}

} // namespace

ToolResult RunTool(const std::vector<std::string>& arguments, const std::string& directory)
{
    TemporaryDirectory capture;
    std::string command = "cd " + ShellQuoted(directory) + " && exec timeout 120 " + ShellQuoted(UNITECHNIK_TOOL);
    for (const std::string& argument : arguments) {
        command += " " + ShellQuoted(argument);
    }
    command += " >" + ShellQuoted(capture.File("out")) + " 2>" + ShellQuoted(capture.File("err")) + " </dev/null";
    const int status = std::system(command.c_str());
    ToolResult result;
    if (WIFEXITED(status)) {
        result.exitCode = WEXITSTATUS(status);
    } else if (WIFSIGNALED(status)) {
        result.exitCode = 128 + WTERMSIG(status);
    }
    result.out = ReadFileBytes(capture.File("out"));
    result.err = ReadFileBytes(capture.File("err"));
    return result;
}

void WriteFileBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream out(path, std::ios::binary);
    out << bytes;
}

std::string ToolTestFile(const std::string& relative)
{
    return std::string(UNITECHNIK_TOOL_TESTS_DIR) + "/" + relative;
}

std::string GoldenFile(const std::string& relative)
{
    return std::string(UNITECHNIK_GOLDEN_DIR) + "/" + relative;
}

std::string ExampleFile(const std::string& relative)
{
    return std::string(UNITECHNIK_EXAMPLES_DIR) + "/" + relative;
}

std::vector<std::string> FilesBelow(const std::string& directory)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
        if (entry.is_regular_file()) {
            names.push_back(std::filesystem::relative(entry.path(), directory).generic_string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string Script(const std::vector<std::string>& calls)
{
    std::string text = "{\"calls\": [\n";
    for (std::size_t i = 0; i < calls.size(); ++i) {
        text += "  " + calls[i] + (i + 1 < calls.size() ? ",\n" : "\n");
    }
    return text + "]}\n";
}

const char* const kStartOrder600 = R"({"call": "startOrder", "orderValue": 4, "elementNumberArg": 101, )"
                                   R"("placement": [2.5, -2.5, 2.4, 6000, 0, 0, 0, 2400, 0], "version": 600, )"
                                   R"("elementTextArg": "Slab", "elementMeasureArg": 1.25, "clearDocument": true})";

ToolResult BuildScript(const std::string& directory, const std::string& script, const std::vector<std::string>& options)
{
    WriteFileBytes(directory + "/s.json", script);
    std::vector<std::string> arguments = {"build", "s.json"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return RunTool(arguments, directory);
}

std::string Replaced(const std::string& text, const std::string& from, const std::string& to)
{
    const std::size_t at = text.find(from);
    if (at == std::string::npos || text.find(from, at + 1) != std::string::npos) {
        throw std::invalid_argument("not once in the text: " + from);
    }
    return text.substr(0, at) + to + text.substr(at + from.size());
}

std::string ToolError(const std::string& message)
{
    return "unitechnik: " + message + "\n";
}

} // namespace ItUnitechnik::Testing

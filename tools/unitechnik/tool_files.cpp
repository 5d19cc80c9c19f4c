#include "tool_files.h"

#include "sub_command.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace ItUnitechnik::Tool {

std::string ReadFileOrThrow(const std::string& path)
{
    std::ifstream file(std::filesystem::u8path(path), std::ios::binary);
    if (!file) {
        throw FileError(path + ": cannot be read");
    }
    std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (file.bad()) {
        throw FileError(path + ": cannot be read");
    }
    return bytes;
}

std::string StopMessage(const std::string& path, const ReadStop& stop)
{
    std::string message = path + ":" + std::to_string(stop.line) + ":" + std::to_string(stop.column) +
                          ": expected " + stop.expected;
    if (!stop.record.empty()) {
        message += " in " + stop.record;
    }
    if (stop.atEnd) {
        message += ", but the file ends there";
    }
    return message;
}

} // namespace ItUnitechnik::Tool

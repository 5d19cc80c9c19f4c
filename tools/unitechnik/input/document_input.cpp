#include "input/document_input.h"

#include "files/files.h"
#include "sub_command.h"

#include <iostream>

namespace ItUnitechnik::Tool {

TolerantDocument ReadDocumentFile(const std::string& path)
{
    const std::optional<std::string> bytes = ReadWholeFile(path);
    if (!bytes) {
        throw FileError("cannot read \"" + path + "\"");
    }
    return ReadTolerantly(*bytes);
}

std::string StopMessage(const std::string& path, const ReadStop& stop)
{
    std::string message =
        path + ":" + std::to_string(stop.line) + ":" + std::to_string(stop.column) + ": expected " + stop.expected;
    if (!stop.record.empty()) {
        message += " in " + stop.record;
    }
    if (stop.atEnd) {
        message += ", but the file ends there";
    }
    return message;
}

int ReadExitCode(const std::string& path, const TolerantDocument& document)
{
    if (document.Complete()) {
        return kDone;
    }
    std::cerr << StopMessage(path, *document.stop) << '\n';
    return kFailed;
}

} // namespace ItUnitechnik::Tool

#pragma once

#include "reading/tolerant_reading.h"

#include <string>

// A Unitechnik file as the sub-commands that look into one take it: read
// tolerantly, with the place where the reading stopped told as a compiler
// tells it.
namespace ItUnitechnik::Tool {

// The file read tolerantly; a FileError when it cannot be read at all.
TolerantDocument ReadDocumentFile(const std::string& path);

// PATH:LINE:COLUMN: what was expected, in which record, and whether the file
// ended there.
std::string StopMessage(const std::string& path, const ReadStop& stop);

// The exit code of a command that printed what it read: kDone for a document
// read to its end; else kFailed, with the place of the stop on stderr.
int ReadExitCode(const std::string& path, const TolerantDocument& document);

} // namespace ItUnitechnik::Tool

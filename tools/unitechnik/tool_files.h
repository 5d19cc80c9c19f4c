#pragma once

#include "reading/field_reader.h"

#include <string>

namespace ItUnitechnik::Tool {

// The bytes of a file; a FileError when it cannot be read.
std::string ReadFileOrThrow(const std::string& path);

// Where a reading stopped, as a compiler says it: PATH:LINE:COLUMN: what was
// expected, in which record, and whether the file ended there.
std::string StopMessage(const std::string& path, const ReadStop& stop);

} // namespace ItUnitechnik::Tool

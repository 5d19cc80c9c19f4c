#pragma once

#include "findings/findings.h"

#include <string>
#include <vector>

namespace ItUnitechnik::Tool::Check {

// The check of a call script: its calls run through the library's exports
// in this process, but no file is written. At each endDocument (or, with none,
// at the script's end) the document is written in memory through an Archive
// with a field sink, and what the fields did and what the records hold are
// found; each finding is told at the call that last set the member it is
// about, with the call's line and column in the JSON and, where one of the
// call's values is the member's, the key. Counts the script gives beyond
// their lists are found before anything runs. Throws BadInput for a script
// that `build` refuses too.
std::vector<Finding> CheckScript(const std::string& path, const std::string& text);

} // namespace ItUnitechnik::Tool::Check

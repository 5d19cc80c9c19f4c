#pragma once

#include <string>

namespace ItUnitechnik::Tool {
struct ToolDescription;
}

namespace ItUnitechnik::Tool::Reference {

// A bash completion for unitechnik: the commands and the tool's own options
// first; after a command its options, the codes after --ignore, and file names
// for its arguments and for options that take a file.
std::string BashCompletion(const ToolDescription& tool);

} // namespace ItUnitechnik::Tool::Reference

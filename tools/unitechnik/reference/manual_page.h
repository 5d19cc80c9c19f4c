#pragma once

#include <string>

namespace ItUnitechnik::Tool {
struct ToolDescription;
}

namespace ItUnitechnik::Tool::Reference {

// The manual page unitechnik(1), in roff: a section for the tool's own
// options, and in COMMANDS a subsection for each sub-command with its usage,
// description, options and example, all taken from the description of the command line.
std::string ManualPage(const ToolDescription& tool);

} // namespace ItUnitechnik::Tool::Reference

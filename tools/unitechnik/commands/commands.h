#pragma once

#include "sub_command.h"

#include <vector>

namespace ItUnitechnik::Tool {

// Every sub-command of the tool, in the order --help and the manual page list
// them.
const std::vector<SubCommandMaker>& SubCommands();

} // namespace ItUnitechnik::Tool

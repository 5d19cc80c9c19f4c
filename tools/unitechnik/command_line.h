#pragma once

#include "sub_command.h"

#include <initializer_list>

namespace ItUnitechnik::Tool {

// Parses the command line into one of the sub-commands and runs it; the
// result is the process's exit code. The arguments reach the sub-commands as
// UTF-8 on every platform.
int RunCommandLine(std::initializer_list<SubCommandMaker> subCommands, int argc, char** argv);

} // namespace ItUnitechnik::Tool

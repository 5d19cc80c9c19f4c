#pragma once

#include "sub_command.h"

#include <string>
#include <vector>

namespace ItUnitechnik::Tool {

// An option or an argument of the command line, as --help shows it.
struct OptionDescription {
    std::vector<std::string> names; // "-o", "--output"; for an argument its name, "SCRIPT"
    std::string value;              // what it takes, "FILE"; empty for a flag
    std::string description;
    bool positional = false; // an argument, not an option
    bool required = false;
    bool repeated = false; // it takes several values, or may be given more than once
};

struct CommandDescription {
    std::string name;
    std::string description;
    std::string usage; // "unitechnik build SCRIPT [-o FILE] [--trace FILE|-]"
    CommandExample example;
    std::vector<OptionDescription> options; // its arguments, then its options; not --help
};

// The whole command line, in the order of the registry: what --help says of
// the tool and of each command. The manual page and the shell completion are
// written from it.
struct ToolDescription {
    std::string description;
    std::vector<OptionDescription> options; // the tool's own: --help, --version
    std::vector<CommandDescription> commands;
};

ToolDescription DescribeTool(const std::vector<SubCommandMaker>& subCommands);

// What `unitechnik --version` prints: the tool's version and the version of
// the library it was built with, one line each, without the last line end.
std::string VersionText();

// Parses the command line into one of the sub-commands and runs it; the
// result is the process's exit code. The arguments reach the sub-commands as
// UTF-8 on every platform.
int RunCommandLine(const std::vector<SubCommandMaker>& subCommands, int argc, char** argv);

} // namespace ItUnitechnik::Tool

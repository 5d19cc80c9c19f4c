// The registry of sub-commands. A sub-command is a file of its own; adding one
// is adding that file and its line here.
#include "commands/commands.h"

namespace ItUnitechnik::Tool {

std::unique_ptr<SubCommand> MakeBomCommand();
std::unique_ptr<SubCommand> MakeBuildCommand();
std::unique_ptr<SubCommand> MakeCheckCommand();
std::unique_ptr<SubCommand> MakeConvertCommand();
std::unique_ptr<SubCommand> MakeDiffCommand();
std::unique_ptr<SubCommand> MakeDumpCommand();
std::unique_ptr<SubCommand> MakeRenderCommand();

const std::vector<SubCommandMaker>& SubCommands()
{
    static const std::vector<SubCommandMaker> commands{
        MakeBuildCommand, MakeCheckCommand,  MakeConvertCommand, MakeDiffCommand,
        MakeDumpCommand,  MakeRenderCommand, MakeBomCommand,
    };
    return commands;
}

} // namespace ItUnitechnik::Tool

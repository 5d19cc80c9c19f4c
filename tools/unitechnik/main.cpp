// unitechnik: the command-line tool. Its sub-commands stand in commands.cpp.
#include "command_line.h"
#include "commands/commands.h"

int main(int argc, char** argv)
{
    using namespace ItUnitechnik::Tool;
    return RunCommandLine(SubCommands(), argc, argv);
}

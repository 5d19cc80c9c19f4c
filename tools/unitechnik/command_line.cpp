#include "command_line.h"

#include "text/unicode.h"

#include "itunitechnik_version.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
// shellapi.h needs the types of windows.h before it.
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>
#endif

namespace ItUnitechnik::Tool {
namespace {

// The arguments as UTF-8. On Windows the narrow arguments are in the ANSI
// code page, so they are taken again from the UTF-16 command line.
std::vector<std::string> Utf8Arguments(int argc, char** argv)
{
    std::vector<std::string> arguments;
#ifdef _WIN32
    (void)argc;
    (void)argv;
    int count = 0;
    wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
    if (wide != nullptr) {
        for (int i = 0; i < count; ++i) {
            arguments.push_back(HostToUtf8(HostText(wide[i])));
        }
        LocalFree(wide);
    }
#else
    arguments.reserve(static_cast<std::size_t>(argc));
    for (int i = 0; i < argc; ++i) {
        arguments.emplace_back(argv[i]);
    }
#endif
    return arguments;
}

void Complain(const std::string& message)
{
    std::cerr << "unitechnik: " << message << "\n";
}

} // namespace

std::string VersionText()
{
    return std::string("unitechnik ") + UNITECHNIK_TOOL_VERSION + "\nItUnitechnik library " +
           ITUNITECHNIK_VERSION_STRING;
}

namespace {

// The tool's app and, for each sub-command, the app that carries its name and
// options beside the sub-command itself.
struct CommandLine {
    std::unique_ptr<CLI::App> app;
    std::vector<std::pair<CLI::App*, std::unique_ptr<SubCommand>>> commands;
};

CommandLine MakeCommandLine(const std::vector<SubCommandMaker>& subCommands)
{
    CommandLine line;
    line.app = std::make_unique<CLI::App>(
        "unitechnik: makes and reads Unitechnik CAD/CAM files through the ItUnitechnik library", "unitechnik");
    CLI::App& app = *line.app;
    app.require_subcommand(1);
    // The same command line on every platform: a path such as /tmp/a.json is
    // no Windows-style option.
    app.allow_windows_style_options(false);
    app.set_version_flag("--version", VersionText(), "Prints the tool's version and the library's, and exits");
    app.footer("Each command's --help names its options and gives an example; man unitechnik tells more.");
    for (SubCommandMaker make : subCommands) {
        std::unique_ptr<SubCommand> command = make();
        CLI::App* sub = app.add_subcommand(command->Name(), command->Description());
        command->AddOptions(*sub);
        const CommandExample example = command->Example();
        sub->footer(std::string("Example:\n  ") + example.commandLine + "\n    " + example.what);
        line.commands.emplace_back(sub, std::move(command));
    }
    return line;
}

OptionDescription Describe(const CLI::Option& option)
{
    OptionDescription description;
    description.positional = option.get_positional();
    if (description.positional) {
        description.names.push_back(option.get_name(true, false));
    }
    for (const std::string& name : option.get_snames()) {
        description.names.push_back("-" + name);
    }
    for (const std::string& name : option.get_lnames()) {
        description.names.push_back("--" + name);
    }
    if (option.get_items_expected_max() > 0 && !description.positional) {
        // CLI11 adds what a check takes after a colon: "INT:INT in [0 - 65535]".
        const std::string type = option.get_type_name();
        description.value = type.substr(0, type.find(':'));
    }
    description.description = option.get_description();
    description.required = option.get_required();
    description.repeated = option.get_items_expected_max() > 1;
    return description;
}

// "unitechnik build SCRIPT [-o FILE] [--trace FILE|-]": the arguments, then
// the options, each by its first name.
std::string Usage(const CommandDescription& command)
{
    std::string usage = "unitechnik " + command.name;
    for (const OptionDescription& option : command.options) {
        const bool optional = !option.positional && !option.required;
        usage += optional ? " [" : " ";
        usage += option.names.front();
        if (!option.value.empty()) {
            usage += " ";
            usage += option.value;
        }
        usage += optional ? "]" : "";
        usage += option.repeated ? "..." : "";
    }
    return usage;
}

} // namespace

ToolDescription DescribeTool(const std::vector<SubCommandMaker>& subCommands)
{
    const CommandLine line = MakeCommandLine(subCommands);
    ToolDescription tool;
    tool.description = line.app->get_description();
    for (const CLI::Option* option : line.app->get_options()) {
        tool.options.push_back(Describe(*option));
    }
    for (const auto& [sub, command] : line.commands) {
        CommandDescription description;
        description.name = sub->get_name();
        description.description = sub->get_description();
        description.example = command->Example();
        // The arguments first, then the options; --help is every command's.
        for (const bool positional : {true, false}) {
            for (const CLI::Option* option : sub->get_options()) {
                if (option->get_positional() == positional && option != sub->get_help_ptr()) {
                    description.options.push_back(Describe(*option));
                }
            }
        }
        description.usage = Usage(description);
        tool.commands.push_back(std::move(description));
    }
    return tool;
}

int RunCommandLine(const std::vector<SubCommandMaker>& subCommands, int argc, char** argv)
{
#ifdef _WIN32
    // What the tool prints is the same bytes as on Linux: no CR before LF.
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
#endif
    CommandLine line = MakeCommandLine(subCommands);
    CLI::App& app = *line.app;
    std::vector<std::pair<CLI::App*, std::unique_ptr<SubCommand>>>& commands = line.commands;

    const std::vector<std::string> arguments = Utf8Arguments(argc, argv);
    std::vector<const char*> pointers;
    pointers.reserve(arguments.size());
    for (const std::string& argument : arguments) {
        pointers.push_back(argument.c_str());
    }
    try {
        app.parse(static_cast<int>(pointers.size()), pointers.data());
    } catch (const CLI::ParseError& e) {
        // Help asked for is no error; anything else on the command line is.
        const int code = app.exit(e);
        return code == static_cast<int>(CLI::ExitCodes::Success) ? kDone : kBadInput;
    }

    try {
        for (auto& [sub, command] : commands) {
            if (sub->parsed()) {
                return command->Run();
            }
        }
    } catch (const BadInput& e) {
        Complain(e.what());
        return kBadInput;
    } catch (const FileError& e) {
        Complain(e.what());
        return kFileError;
    } catch (const std::exception& e) {
        Complain(e.what());
        return kFailed;
    }
    return kBadInput;
}

} // namespace ItUnitechnik::Tool

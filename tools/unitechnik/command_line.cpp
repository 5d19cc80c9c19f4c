#include "command_line.h"

#include "unicode.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <iostream>
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

int RunCommandLine(std::initializer_list<SubCommandMaker> subCommands, int argc, char** argv)
{
#ifdef _WIN32
    // What the tool prints is the same bytes as on Linux: no CR before LF.
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
#endif
    CLI::App app("unitechnik: makes and reads Unitechnik CAD/CAM files through the ItUnitechnik library", "unitechnik");
    app.require_subcommand(1);
    // The same command line on every platform: a path such as /tmp/a.json is
    // no Windows-style option.
    app.allow_windows_style_options(false);
    std::vector<std::pair<CLI::App*, std::unique_ptr<SubCommand>>> commands;
    for (SubCommandMaker make : subCommands) {
        std::unique_ptr<SubCommand> command = make();
        CLI::App* sub = app.add_subcommand(command->Name(), command->Description());
        command->AddOptions(*sub);
        commands.emplace_back(sub, std::move(command));
    }

    const std::vector<std::string> arguments = Utf8Arguments(argc, argv);
    std::vector<const char*> pointers;
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

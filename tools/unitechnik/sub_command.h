#pragma once

#include <memory>
#include <stdexcept>
#include <string>

namespace CLI {
class App;
}

namespace ItUnitechnik::Tool {

// The exit codes of every sub-command.
enum ExitCode : int {
    kDone = 0,
    kFailed = 1,   // the input was understood, but the work could not be done
    kBadInput = 2, // a bad command line or a bad script: nothing is written
    kFileError = 3 // a file that cannot be read or written
};

// Thrown by a sub-command for a bad command line or a bad script; the message
// names the place (the call's index and key, or the line and column).
class BadInput : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Thrown by a sub-command for a file that cannot be read or written.
class FileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A command line that a user may run as it stands, from the top of the source
// tree once `unitechnik build examples/slab.json -o slab.uni` has written
// slab.uni, and a few words of what it does.
struct CommandExample {
    const char* commandLine;
    const char* what;
};

// One sub-command of the tool: it adds its options to the CLI11 app that
// carries its name, and runs once the command line is parsed. Its result is
// the exit code; BadInput and FileError thrown from Run give kBadInput and
// kFileError with their message on stderr. Its name, description, options and
// example are also all that --help, the manual page and the shell completion
// say of it.
class SubCommand {
public:
    virtual ~SubCommand() = default;
    virtual const char* Name() const = 0;
    // One sentence: what the command does.
    virtual const char* Description() const = 0;
    // One command line to run as it stands, and what it does.
    virtual CommandExample Example() const = 0;
    virtual void AddOptions(CLI::App& app) = 0;
    virtual int Run() = 0;
};

using SubCommandMaker = std::unique_ptr<SubCommand> (*)();

} // namespace ItUnitechnik::Tool

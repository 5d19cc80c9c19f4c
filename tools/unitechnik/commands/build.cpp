// unitechnik build SCRIPT.json [-o FILE] [--trace FILE|-]: runs a call script
// through the library's own exports, in this process, in order.
#include "build/build_document.h"
#include "build/runner.h"
#include "build/script.h"
#include "files/files.h"
#include "input/json_input.h"
#include "sub_command.h"
#include "text/unicode.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool {
namespace {

using Script::Call;
using Script::Outcome;

void Print(std::FILE* out, const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), out);
}

// With --trace: one JSON line per call, its index, name, and the integer it
// gave back or the text of getFullReinforcementString. Without: a line per
// file written.
class Report final : public Script::RunObserver {
public:
    explicit Report(std::FILE* trace) : trace_(trace) {}

    void Called(const Call& call, const Outcome& outcome) override
    {
        if (trace_ == nullptr) {
            return;
        }
        nlohmann::ordered_json line;
        line["index"] = call.index;
        line["call"] = call.callEntry->name;
        if (outcome.result) {
            line["result"] = *outcome.result;
        }
        if (outcome.text) {
            line["text"] = HostToUtf8(*outcome.text);
        }
        Print(trace_, line.dump() + "\n");
        std::fflush(trace_);
    }

    void Wrote(const std::string& path) override
    {
        if (trace_ == nullptr) {
            Print(stdout, "wrote " + path + "\n");
        }
    }

private:
    std::FILE* trace_;
};

class BuildCommand final : public SubCommand {
public:
    const char* Name() const override { return "build"; }

    const char* Description() const override
    {
        return "Runs a JSON call script through the library's exports and writes the files its endDocument calls name";
    }

    CommandExample Example() const override
    {
        return {"unitechnik build examples/slab.json -o slab.uni",
                "runs the example call script and writes the slab to slab.uni"};
    }

    void AddOptions(CLI::App& app) override
    {
        app.add_option("SCRIPT", scriptPath_, R"(The call script: {"calls": [{"call": "startOrder", ...}, ...]})")
            ->required()
            ->type_name("SCRIPT.json");
        output_ = app.add_option("-o,--output", outputPath_,
                                 "The last endDocument writes FILE instead (one is added when the script has none)")
                      ->type_name("FILE");
        trace_ = app.add_option("--trace", tracePath_,
                                "One JSON line per call to FILE, or to standard output for -, instead of the report")
                     ->type_name("FILE|-");
    }

    int Run() override
    {
        const std::optional<std::string> text = ReadWholeFile(scriptPath_);
        if (!text) {
            throw FileError("cannot read \"" + scriptPath_ + "\"");
        }
        // The whole script is read and checked before any call runs, so a bad
        // one writes nothing.
        std::vector<Call> calls;
        try {
            const nlohmann::json input = ParseJsonText(*text);
            if (input.is_object() && input.contains("document")) {
                // A dumped document goes through the records' own Write.
                BuildDocument(input, outputPath_);
                Print(stdout, "wrote " + outputPath_ + "\n");
                return kDone;
            }
            calls = Script::ReadCalls(input);
        } catch (const BadInput& e) {
            throw BadInput(scriptPath_ + ": " + e.what());
        }
        if (output_->count() > 0) {
            Script::RedirectLastDocument(calls, outputPath_);
        }
        try {
            Script::CheckPaths(calls);
        } catch (const BadInput& e) {
            throw BadInput(scriptPath_ + ": " + e.what());
        }

        File traceFile;
        std::FILE* trace = nullptr;
        if (trace_->count() > 0) {
            if (tracePath_ == "-") {
                trace = stdout;
            } else {
                traceFile = OpenFile(tracePath_, "wb");
                if (!traceFile) {
                    throw FileError("cannot write the trace \"" + tracePath_ + "\"");
                }
                trace = traceFile.get();
            }
        }

        Report report(trace);
        try {
            Script::RunCalls(calls, report);
        } catch (const FileError& e) {
            throw FileError(scriptPath_ + ": " + e.what());
        }
        if (trace == nullptr) {
            // The reinforcement of the element the script ended on, as the
            // plant sees it.
            Print(stdout, HostToUtf8(Script::TakeFullReinforcementString()));
        } else if (std::ferror(trace) != 0) {
            throw FileError("cannot write the trace \"" + tracePath_ + "\"");
        }
        std::fflush(stdout);
        return kDone;
    }

private:
    std::string scriptPath_;
    std::string outputPath_;
    std::string tracePath_;
    CLI::Option* output_ = nullptr;
    CLI::Option* trace_ = nullptr;
};

} // namespace

std::unique_ptr<SubCommand> MakeBuildCommand()
{
    return std::make_unique<BuildCommand>();
}

} // namespace ItUnitechnik::Tool

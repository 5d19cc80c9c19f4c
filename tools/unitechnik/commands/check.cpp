// unitechnik check INPUT... [--json] [--ignore CODE]...: what a plant would
// reject, found before the file reaches it. An input is a call script (as
// build takes it) or a Unitechnik file.
#include "check/file_check.h"
#include "check/script_check.h"
#include "files/files.h"
#include "findings/findings.h"
#include "findings/ignore_option.h"
#include "sub_command.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool {
namespace {

// A call script is JSON, an object; a Unitechnik file begins with a tag.
bool IsScript(const std::string& text)
{
    std::size_t at = text.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
    while (at < text.size() && (text[at] == ' ' || text[at] == '\t' || text[at] == '\r' || text[at] == '\n')) {
        ++at;
    }
    return at < text.size() && (text[at] == '{' || text[at] == '/');
}

class CheckCommand final : public SubCommand {
public:
    const char* Name() const override { return "check"; }

    const char* Description() const override
    {
        return "Finds what a plant would reject in call scripts and Unitechnik files; exit 0 when nothing is "
               "found, 1 with findings, 2 for a bad command line or script, 3 for a file that cannot be read";
    }

    CommandExample Example() const override
    {
        return {"unitechnik check examples/slab.json slab.uni", "checks the example call script and the file it wrote"};
    }

    void AddOptions(CLI::App& app) override
    {
        app.add_option("INPUT", inputs_, "Call scripts (JSON) and Unitechnik files")->required();
        app.add_flag("--json", json_, "The findings as one JSON array");
        Check::AddIgnoreOption(app, ignored_);
    }

    int Run() override
    {
        const std::set<Check::Code> ignored = Check::IgnoredCodes(ignored_);

        // Every input is checked; the worst of them decides the exit code.
        std::vector<Check::Finding> findings;
        bool badInput = false;
        bool fileError = false;
        for (const std::string& input : inputs_) {
            const std::optional<std::string> text = ReadWholeFile(input);
            if (!text) {
                std::cerr << "unitechnik: cannot read \"" << input << "\"\n";
                fileError = true;
                continue;
            }
            try {
                std::vector<Check::Finding> found =
                    IsScript(*text) ? Check::CheckScript(input, *text) : Check::CheckFile(input, *text);
                for (Check::Finding& finding : Check::Without(std::move(found), ignored)) {
                    findings.push_back(std::move(finding));
                }
            } catch (const BadInput& e) {
                std::cerr << "unitechnik: " << e.what() << "\n";
                badInput = true;
            }
        }
        if (json_ || !findings.empty()) {
            Check::PrintFindings(findings, json_);
        }
        if (badInput) {
            return kBadInput;
        }
        if (fileError) {
            return kFileError;
        }
        return findings.empty() ? kDone : kFailed;
    }

private:
    std::vector<std::string> inputs_;
    std::vector<std::string> ignored_;
    bool json_ = false;
};

} // namespace

std::unique_ptr<SubCommand> MakeCheckCommand()
{
    return std::make_unique<CheckCommand>();
}

} // namespace ItUnitechnik::Tool

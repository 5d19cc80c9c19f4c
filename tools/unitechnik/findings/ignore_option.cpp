#include "findings/ignore_option.h"

#include "sub_command.h"

#include <CLI/CLI.hpp>

#include <optional>

namespace ItUnitechnik::Tool::Check {

void AddIgnoreOption(CLI::App& app, std::vector<std::string>& texts)
{
    app.add_option("--ignore", texts, "Leaves out a code (UT101 or text-cut); may be given more than once")
        ->type_name("CODE");
}

std::set<Code> IgnoredCodes(const std::vector<std::string>& texts)
{
    std::set<Code> ignored;
    for (const std::string& text : texts) {
        const std::optional<Code> code = FindCode(text);
        if (!code) {
            throw BadInput("--ignore: no code \"" + text + "\" (the codes are " + KnownCodes() + ")");
        }
        ignored.insert(*code);
    }
    return ignored;
}

} // namespace ItUnitechnik::Tool::Check

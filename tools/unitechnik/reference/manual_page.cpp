#include "reference/manual_page.h"

#include "command_line.h"

#include "itunitechnik_version.h"

#include <string>

namespace ItUnitechnik::Tool::Reference {
namespace {

// A text as roff shows it as it stands: a backslash and a hyphen-minus
// escaped, and a line that would begin with a control character made plain.
std::string Roff(const std::string& text)
{
    std::string out;
    bool lineStart = true;
    for (const char c : text) {
        if (lineStart && (c == '.' || c == '\'')) {
            out += "\\&";
        }
        if (c == '\\') {
            out += "\\e";
        } else if (c == '-') {
            out += "\\-";
        } else {
            out += c;
        }
        lineStart = c == '\n';
    }
    return out;
}

// An option as a tagged paragraph: "-o, --output FILE" and what it does.
void Option(std::string& page, const OptionDescription& option)
{
    std::string names;
    for (const std::string& name : option.names) {
        names += (names.empty() ? "" : ", ") + name;
    }
    page += ".TP\n";
    if (option.positional) {
        page += ".I " + Roff(names) + "\n";
    } else if (!option.value.empty()) {
        page += ".BI \"" + Roff(names) + " \" \"" + Roff(option.value) + "\"\n";
    } else {
        page += ".B " + Roff(names) + "\n";
    }
    page += Roff(option.description) + (option.required && !option.positional ? " (required)" : "") + "\n";
}

} // namespace

std::string ManualPage(const ToolDescription& tool)
{
    std::string page;
    page += ".\\\" unitechnik(1), written by the build from the tool's own commands and options.\n";
    page +=
        std::string(R"(.TH UNITECHNIK 1 "" "ItUnitechnik )") + ITUNITECHNIK_VERSION_STRING + "\" \"User Commands\"\n";
    page += ".SH NAME\n";
    page += "unitechnik \\- makes and reads Unitechnik CAD/CAM files through the ItUnitechnik library\n";

    page += ".SH SYNOPSIS\n";
    for (const CommandDescription& command : tool.commands) {
        page += ".B " + Roff(command.usage) + "\n.br\n";
    }
    page += ".B unitechnik \\-\\-version\n.br\n.B unitechnik \\-\\-help\n.br\n";
    page += ".BI \"unitechnik \" COMMAND \" \\-\\-help\"\n";

    page += ".SH DESCRIPTION\n";
    page += Roff("unitechnik writes files of the Unitechnik CAD/CAM text format, which the control systems of "
                 "precast-concrete plants read, from call scripts that drive the ItUnitechnik library's exports; "
                 "and it reads such files to print, check, compare, convert and draw them. It calls the library "
                 "in its own process. Each command is described under COMMANDS, with its options and an example "
                 "that runs from the top of the source tree once the first one has written slab.uni.") +
            "\n";

    page += ".SH OPTIONS\n";
    for (const OptionDescription& option : tool.options) {
        Option(page, option);
    }
    page += ".PP\nEvery command also takes\n.BR \\-h \", \" \\-\\-help ,\n"
            "which prints its options and its example.\n";

    page += ".SH COMMANDS\n";
    for (const CommandDescription& command : tool.commands) {
        page += ".SS " + Roff(command.name) + "\n";
        page += ".B " + Roff(command.usage) + "\n.PP\n";
        page += Roff(command.description) + ".\n";
        for (const OptionDescription& option : command.options) {
            Option(page, option);
        }
        page += ".PP\nExample: " + Roff(command.example.what) + ".\n.PP\n.RS\n.nf\n" +
                Roff(command.example.commandLine) + "\n.fi\n.RE\n";
    }

    page += ".SH EXIT STATUS\n";
    page += ".TP\n.B 0\ndone: no findings, no differences, nothing cut\n";
    page += ".TP\n.B 1\nfindings, differences, something cut, a file that does not read to its end, or "
            "anything else that went wrong\n";
    page += ".TP\n.B 2\na bad command line or a bad script; nothing is written\n";
    page += ".TP\n.B 3\na file that cannot be read or written\n";

    page += ".SH SEE ALSO\n";
    page += Roff("The documentation beside the package's README (/usr/share/doc/itunitechnik/ and its docs/ "
                 "folder): a page for each command, the call scripts, the check codes and the C API.") +
            "\n";
    return page;
}

} // namespace ItUnitechnik::Tool::Reference

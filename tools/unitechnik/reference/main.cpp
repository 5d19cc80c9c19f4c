// unitechnik_reference: writes what the build and the documentation take from
// the tool's own code, so that none of it is written twice by hand.
//   unitechnik_reference man [OUTPUT]              the manual page unitechnik(1)
//   unitechnik_reference bash-completion [OUTPUT]  the bash completion
//   unitechnik_reference calls-table [OUTPUT]      the table of a script's calls and keys
//   unitechnik_reference codes [OUTPUT]            the codes of check and convert
// Without OUTPUT the text goes to standard output.
#include "command_line.h"
#include "commands/commands.h"
#include "reference/completion.h"
#include "reference/doc_tables.h"
#include "reference/manual_page.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    using namespace ItUnitechnik::Tool;
    if (argc < 2 || argc > 3) {
        std::cerr << "usage: unitechnik_reference man|bash-completion|calls-table|codes [OUTPUT]\n";
        return 2;
    }
    const std::string what = argv[1];
    const ToolDescription tool = DescribeTool(SubCommands());
    std::string text;
    if (what == "man") {
        text = Reference::ManualPage(tool);
    } else if (what == "bash-completion") {
        text = Reference::BashCompletion(tool);
    } else if (what == "calls-table") {
        text = Reference::CallsTable();
    } else if (what == "codes") {
        text = Reference::CodeList();
    } else {
        std::cerr << "unitechnik_reference: no such text: " << what << "\n";
        return 2;
    }
    if (argc == 2) {
        std::fwrite(text.data(), 1, text.size(), stdout);
        return std::fflush(stdout) == 0 ? 0 : 1;
    }
    std::ofstream out(argv[2], std::ios::binary);
    out << text;
    out.close();
    if (!out) {
        std::cerr << "unitechnik_reference: cannot write " << argv[2] << "\n";
        return 3;
    }
    return 0;
}

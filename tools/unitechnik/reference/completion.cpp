#include "reference/completion.h"

#include "command_line.h"
#include "reference/doc_tables.h"

#include <string>
#include <vector>

namespace ItUnitechnik::Tool::Reference {
namespace {

std::string Joined(const std::vector<std::string>& words, const char* separator)
{
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : separator) + word;
    }
    return text;
}

// The codes and their names, as --ignore takes them.
std::vector<std::string> CodeWords()
{
    std::vector<std::string> words;
    std::string word;
    for (const char c : CodeList()) {
        if (c == ' ' || c == '\n') {
            words.push_back(word);
            word.clear();
        } else {
            word += c;
        }
    }
    return words;
}

// The lines of one command's case: what follows an option that takes a value,
// and the options or file names otherwise.
std::string CommandCase(const CommandDescription& command)
{
    std::vector<std::string> options;
    std::vector<std::string> fileOptions;
    std::vector<std::string> codeOptions;
    std::vector<std::string> otherValueOptions;
    // Every command takes --help.
    options.insert(options.end(), {"-h", "--help"});
    for (const OptionDescription& option : command.options) {
        if (option.positional) {
            continue;
        }
        const std::vector<std::string>& names = option.names;
        options.insert(options.end(), names.begin(), names.end());
        if (option.value.empty()) {
            continue;
        }
        const std::string& type = option.value;
        std::vector<std::string>& kind = type == "CODE"                                            ? codeOptions
                                         : type.find("FILE") != std::string::npos || type == "OUT" ? fileOptions
                                                                                                   : otherValueOptions;
        kind.insert(kind.end(), names.begin(), names.end());
    }

    std::string cases;
    if (!fileOptions.empty()) {
        cases += "            " + Joined(fileOptions, "|") + ")\n                _unitechnik_files\n" +
                 "                return ;;\n";
    }
    if (!codeOptions.empty()) {
        cases += "            " + Joined(codeOptions, "|") + ")\n                _unitechnik_words \"" +
                 Joined(CodeWords(), " ") + "\"\n                return ;;\n";
    }
    if (!otherValueOptions.empty()) {
        cases += "            " + Joined(otherValueOptions, "|") + ")\n                return ;;\n";
    }
    std::string text = "    " + command.name + ")\n";
    if (!cases.empty()) {
        text += "        case \"$previous\" in\n" + cases + "        esac\n";
    }
    text += "        if [[ \"$current\" == -* ]]; then\n            _unitechnik_words \"" + Joined(options, " ") +
            "\"\n        else\n            _unitechnik_files\n        fi\n        ;;\n";
    return text;
}

} // namespace

std::string BashCompletion(const ToolDescription& tool)
{
    std::vector<std::string> commands;
    for (const CommandDescription& command : tool.commands) {
        commands.push_back(command.name);
    }
    std::vector<std::string> topLevel = commands;
    for (const OptionDescription& option : tool.options) {
        topLevel.insert(topLevel.end(), option.names.begin(), option.names.end());
    }

    std::string text;
    text += "# bash completion for unitechnik, written by the build from the tool's own commands and options.\n";
    text += "_unitechnik_words()\n{\n    mapfile -t COMPREPLY < <(compgen -W \"$1\" -- \"$current\")\n}\n\n";
    text += "_unitechnik_files()\n{\n    compopt -o filenames 2>/dev/null\n"
            "    mapfile -t COMPREPLY < <(compgen -f -- \"$current\")\n}\n\n";
    text += "_unitechnik()\n{\n";
    text += "    local current=\"${COMP_WORDS[COMP_CWORD]}\"\n";
    text += "    local previous=\"${COMP_WORDS[COMP_CWORD-1]}\"\n";
    text += "    local command=\"\" i\n";
    text += "    COMPREPLY=()\n";
    text += "    for ((i = 1; i < COMP_CWORD; i++)); do\n";
    text += "        case \"${COMP_WORDS[i]}\" in\n";
    text += "            " + Joined(commands, "|") + ")\n                command=\"${COMP_WORDS[i]}\"\n" +
            "                break ;;\n";
    text += "        esac\n    done\n\n";
    text += "    case \"$command\" in\n";
    text += "    \"\")\n        _unitechnik_words \"" + Joined(topLevel, " ") + "\"\n        ;;\n";
    for (const CommandDescription& command : tool.commands) {
        text += CommandCase(command);
    }
    text += "    esac\n}\n\n";
    text += "complete -F _unitechnik unitechnik\n";
    return text;
}

} // namespace ItUnitechnik::Tool::Reference

// Runs one scenario program into a fresh directory and compares every file it
// leaves there with the golden files of the scenario, byte for byte. The set
// of files must be the same too: a file that should not be written (an
// alternate stream of a version below 600, a file in a missing directory)
// fails the check as much as a missing one. A ':' in a written name (the
// stream files) stands as '@' in the golden name.
//
//   golden_check EXPECTED-DIRECTORY [LAUNCHER...] SCENARIO-PROGRAM

#include "support/test_support.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <string>

namespace fs = std::filesystem;
using ItUnitechnik::Testing::DescribeDifference;
using ItUnitechnik::Testing::ReadFileBytes;
using ItUnitechnik::Testing::TemporaryDirectory;

namespace {

std::map<std::string, std::string> Files(const fs::path& directory, bool fromScenario)
{
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(directory)) {
        if (!entry.is_regular_file()) {
            continue;
        }
        std::string name = fs::relative(entry.path(), directory).generic_string();
        if (fromScenario) {
            for (char& c : name) {
                if (c == ':') {
                    c = '@';
                }
            }
        }
        files[name] = ReadFileBytes(entry.path().string());
    }
    return files;
}

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::cerr << "usage: golden_check EXPECTED-DIRECTORY [LAUNCHER...] SCENARIO-PROGRAM\n";
        return 2;
    }
    const fs::path expectedDirectory = argv[1];
    if (!fs::is_directory(expectedDirectory)) {
        std::cerr << "no golden files at " << expectedDirectory << "\n";
        return 1;
    }
    TemporaryDirectory output;
    std::string command;
    for (int i = 2; i < argc; ++i) {
        command += Quoted(argv[i]) + " ";
    }
    command += Quoted(output.Path());
#ifdef _WIN32
    // The command interpreter drops the first and the last quote of a line
    // that holds more than two: one more pair keeps the program's own.
    command = "\"" + command + "\"";
#endif
    if (std::system(command.c_str()) != 0) {
        std::cerr << "the scenario failed: " << command << "\n";
        return 1;
    }

    const auto expected = Files(expectedDirectory, false);
    const auto actual = Files(output.Path(), true);
    if (expected.empty()) {
        std::cerr << "no golden files in " << expectedDirectory << "\n";
        return 1;
    }
    int failures = 0;
    for (const auto& [name, bytes] : expected) {
        const auto found = actual.find(name);
        if (found == actual.end()) {
            std::cerr << name << ": not written\n";
            ++failures;
            continue;
        }
        const std::string difference = DescribeDifference(bytes, found->second);
        if (!difference.empty()) {
            std::cerr << name << ": " << difference;
            ++failures;
        }
    }
    for (const auto& [name, bytes] : actual) {
        if (expected.find(name) == expected.end()) {
            std::cerr << name << ": written, but no golden file expects it\n";
            ++failures;
        }
    }
    std::cerr << expected.size() << " golden files checked, " << failures << " differences\n";
    return failures == 0 ? 0 : 1;
}

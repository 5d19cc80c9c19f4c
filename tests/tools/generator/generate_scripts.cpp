// generate_scripts OUTPUT-DIRECTORY SEED COUNT: writes COUNT random but valid
// call scripts for unitechnik build into OUTPUT-DIRECTORY.
#include "generator/script_generator.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::cerr << "usage: generate_scripts OUTPUT-DIRECTORY SEED COUNT\n";
        return 2;
    }
    try {
        const std::uint64_t seed = std::stoull(argv[2]);
        const std::size_t count = std::stoull(argv[3]);
        std::filesystem::create_directories(argv[1]);
        const auto paths = ItUnitechnik::Testing::GenerateScripts(argv[1], seed, count);
        std::cout << "wrote " << paths.size() << " scripts to " << argv[1] << "\n";
    } catch (const std::exception& e) {
        std::cerr << "generate_scripts: " << e.what() << "\n";
        return 1;
    }
    return 0;
}

// The adders work in linear time: twice the calls cost twice the
// instructions, counted by callgrind over the calls alone, so that no other
// work on the machine and no cache or allocator moves the figure. A timed
// ratio would; the benchmark suite reports those.
#include "workload.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <regex>
#include <string>
#include <vector>

namespace {

// The calls of the smaller run: large enough that work over the records
// already there would stand out against the work of each call.
constexpr int kCalls = 4096;

struct Count {
    bool ran = false;
    unsigned long long instructions = 0;
    std::string output;
};

// The instructions of `calls` calls of `adder` in the driver.
Count CountInstructions(const std::string& adder, int calls)
{
    const std::string command = std::string("\"") + ITUNITECHNIK_VALGRIND +
                                "\" --tool=callgrind --toggle-collect=RunAdds --callgrind-out-file=/dev/null \"" +
                                ITUNITECHNIK_ADDER_WORK_DRIVER + "\" '" + adder + "' " + std::to_string(calls) +
                                " 2>&1";
    Count count;
    std::FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return count;
    }
    char chunk[4096];
    while (std::fgets(chunk, sizeof chunk, pipe) != nullptr) {
        count.output += chunk;
    }
    const int status = pclose(pipe);
    // "==1234== Collected : 9319382"
    std::smatch found;
    static const std::regex collected("Collected : ([0-9]+)");
    if (status == 0 && std::regex_search(count.output, found, collected)) {
        count.ran = true;
        count.instructions = std::stoull(found[1].str());
    }
    return count;
}

class AdderWork : public testing::TestWithParam<std::string> {};

TEST_P(AdderWork, TwiceTheCallsCostTwiceTheInstructions)
{
    const Count once = CountInstructions(GetParam(), kCalls);
    ASSERT_TRUE(once.ran) << once.output;
    const Count twice = CountInstructions(GetParam(), 2 * kCalls);
    ASSERT_TRUE(twice.ran) << twice.output;
    // Each call costs some hundred instructions at least: the calls ran.
    ASSERT_GT(once.instructions, 100ULL * kCalls);
    const double ratio = static_cast<double>(twice.instructions) / static_cast<double>(once.instructions);
    EXPECT_GE(ratio, 1.95) << once.instructions << " then " << twice.instructions;
    EXPECT_LE(ratio, 2.05) << once.instructions << " then " << twice.instructions;
}

// Every adder of the benchmark suite, by the name it has there.
std::vector<std::string> AdderNames()
{
    std::vector<std::string> names;
    for (const ItUnitechnik::Bench::Adder& adder : ItUnitechnik::Bench::Adders()) {
        names.emplace_back(adder.name);
    }
    return names;
}

// A test's name: the adder's, with '_' for '/'.
std::string NameOf(const testing::TestParamInfo<std::string>& adder)
{
    std::string name = adder.param;
    for (char& c : name) {
        if (c == '/') {
            c = '_';
        }
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(EveryAdder, AdderWork, testing::ValuesIn(AdderNames()), NameOf);

} // namespace

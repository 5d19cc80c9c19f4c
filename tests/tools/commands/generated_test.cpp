// The random but valid call scripts of the generator: each builds, and each
// document holds the orders its script leaves.
#include "generator/script_generator.h"
#include "support/test_support.h"
#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace ItUnitechnik::Testing {
namespace {

constexpr std::uint64_t kSeed = 20261123;
constexpr std::size_t kCount = UNITECHNIK_GENERATED_SCRIPTS;

std::vector<std::string> Lines(const std::string& bytes)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = bytes.find("\r\n"); end != std::string::npos; end = bytes.find("\r\n", start)) {
        lines.push_back(bytes.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

TEST(GeneratedScripts, AreTheSameForTheSameSeed)
{
    EXPECT_EQ(GenerateScript(kSeed, 17), GenerateScript(kSeed, 17));
    EXPECT_NE(GenerateScript(kSeed, 17), GenerateScript(kSeed + 1, 17));
    EXPECT_NE(GenerateScript(kSeed, 17), GenerateScript(kSeed, 18));
}

TEST(GeneratedScripts, EveryOneBuilds)
{
    static const std::set<std::string> adders = {
        "addLayer",       "addContour",          "addCutout",           "addSet",    "addSteelmat",
        "addCFSRodstock", "addStraightRodstock", "addFreeFormRodstock", "addExtIron"};
    TemporaryDirectory directory;
    const std::vector<std::string> paths = GenerateScripts(directory.Path(), kSeed, kCount);
    ASSERT_EQ(paths.size(), kCount);
    std::set<int> versions;
    for (std::size_t number = 0; number < paths.size(); ++number) {
        SCOPED_TRACE(paths[number]);
        const auto script = nlohmann::json::parse(ReadFileBytes(paths[number]));
        // The orders the document holds at the end: those from the last
        // startOrder that clears the document on.
        std::size_t orders = 0;
        std::set<std::string> called;
        std::set<int> setKinds;
        for (const auto& call : script.at("calls")) {
            const std::string name = call.at("call").get<std::string>();
            called.insert(name);
            if (name == "startOrder") {
                versions.insert(call.at("version").get<int>());
                orders = call.at("clearDocument").get<bool>() ? 1 : orders + 1;
            }
            if (name == "addSet") {
                setKinds.insert(call.at("setKind").get<int>());
            }
        }
        for (const std::string& adder : adders) {
            EXPECT_EQ(called.count(adder), 1u) << adder;
        }
        EXPECT_EQ(setKinds.count(3) + setKinds.count(5), 2u);

        const ToolResult run = RunTool({"build", paths[number]}, directory.Path());
        ASSERT_EQ(run.exitCode, 0) << run.err;
        EXPECT_EQ(run.err, "");
        const std::string name = GeneratedScriptName(number) + ".uni";
        EXPECT_EQ(run.out.substr(0, 6 + name.size() + 1), "wrote " + name + "\n");
        const std::vector<std::string> lines = Lines(ReadFileBytes(directory.File(name)));
        ASSERT_FALSE(lines.empty());
        EXPECT_EQ(lines.front(), "HEADER__");
        EXPECT_EQ(lines.back(), "END HEADER__");
        std::size_t headers = 0;
        for (const std::string& line : lines) {
            headers += line == "HEADER__" ? 1 : 0;
        }
        EXPECT_EQ(headers, orders);
    }
    for (int version : EdgeVersions()) {
        EXPECT_EQ(versions.count(version), 1u) << version;
    }
    EXPECT_GT(versions.size(), kCount / 5);
}

} // namespace
} // namespace ItUnitechnik::Testing

// unitechnik dump: a file's record tree as JSON and as an outline; dumped and
// built again, every golden file and every generated script's document gives
// back its own bytes; a file the reading cannot read to its end exits 1 with
// the place where it stopped.
#include "generator/script_generator.h"
#include "support/test_support.h"
#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace ItUnitechnik::Testing {
namespace {

// Dumps `file` in `directory`, builds the dump again and gives the bytes of
// the file written.
std::string DumpedAndBuilt(const std::string& directory, const std::string& file)
{
    const ToolResult dump = RunTool({"dump", file}, directory);
    EXPECT_EQ(dump.exitCode, 0) << dump.err;
    EXPECT_EQ(dump.err, "");
    WriteFileBytes(directory + "/dump.json", dump.out);
    const ToolResult build = RunTool({"build", "dump.json", "-o", "again.uni"}, directory);
    EXPECT_EQ(build.exitCode, 0) << build.err;
    EXPECT_EQ(build.out, "wrote again.uni\n");
    return ReadFileBytes(directory + "/again.uni");
}

TEST(Dump, EveryGoldenFileDumpedAndBuiltAgainGivesItsBytes)
{
    TemporaryDirectory directory;
    int files = 0;
    for (const std::string scenario : {"orders", "slab", "reinforced", "versions"}) {
        for (const std::string& name : FilesBelow(GoldenFile(scenario))) {
            if (name.rfind("summary", 0) == 0) {
                continue; // no file of the format
            }
            const std::string path = GoldenFile(scenario + "/" + name);
            const std::string expected = ReadFileBytes(path);
            EXPECT_EQ(DescribeDifference(expected, DumpedAndBuilt(directory.Path(), path)), "") << path;
            ++files;
        }
    }
    EXPECT_GE(files, 19);
}

TEST(Dump, EveryGeneratedScriptsDocumentDumpedAndBuiltAgainGivesItsBytes)
{
    TemporaryDirectory directory;
    const std::vector<std::string> paths = GenerateScripts(directory.Path(), 20261124, UNITECHNIK_GENERATED_SCRIPTS);
    ASSERT_EQ(paths.size(), std::size_t{UNITECHNIK_GENERATED_SCRIPTS});
    for (std::size_t number = 0; number < paths.size(); ++number) {
        const ToolResult run = RunTool({"build", paths[number], "-o", "first.uni"}, directory.Path());
        ASSERT_EQ(run.exitCode, 0) << paths[number] << ": " << run.err;
        const std::string first = ReadFileBytes(directory.File("first.uni"));
        ASSERT_EQ(DescribeDifference(first, DumpedAndBuilt(directory.Path(), "first.uni")), "") << paths[number];
    }
}

TEST(Dump, TheJsonHoldsEveryMemberUnderItsName)
{
    TemporaryDirectory directory;
    const ToolResult run = RunTool({"dump", "--json", GoldenFile("reinforced/reinforced-600.txt")}, directory.Path());
    ASSERT_EQ(run.exitCode, 0) << run.err;
    const auto dump = nlohmann::json::parse(run.out);
    const auto& order = dump.at("document").at("orders").at(0);
    EXPECT_EQ(order.at("version"), 600);
    const auto& element = order.at("elementParts").at(0);
    EXPECT_EQ(element.at("reinforcement").at("mats").at(0).at("name"), std::string(15, ' ') + "Q188A");
    EXPECT_EQ(element.at("bracedGirderData").at("girders").at(0).at("position").at("x"), 100);
}

TEST(Dump, TheTreeIsAnOutlineOfTheRecords)
{
    TemporaryDirectory directory;
    const ToolResult run = RunTool({"dump", "--tree", GoldenFile("reinforced/reinforced-600.txt")}, directory.Path());
    ASSERT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(DescribeDifference(ReadFileBytes(ToolTestFile("expected/reinforced-600.tree.txt")), run.out), "");
}

TEST(Dump, AFileCutOffExitsOneWithThePlace)
{
    TemporaryDirectory directory;
    const std::string whole = ReadFileBytes(GoldenFile("orders/one-502.txt"));
    // Cut in the element's line A (line 21), behind its first code.
    const std::size_t cut = whole.find("001 0 00");
    WriteFileBytes(directory.File("cut.uni"), whole.substr(0, cut + 5));
    const ToolResult run = RunTool({"dump", "--tree", "cut.uni"}, directory.Path());
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "cut.uni:21:6: expected a blank in SLABDATE, but the file ends there\n");
    EXPECT_EQ(run.out, "HEADER__ version 502, order \"\", 1 element\n"
                       "  SLABDATE version 502, element 1 \"\", 0 x 0, thickness 0, area 0 m², 0 concrete layers\n"
                       "    CONTOUR_ version 502, 0 contours\n"
                       "    CUTOUT__ version 502, 0 openings\n"
                       "    MOUNPART version 502, 0 parts\n"
                       "    RODSTOCK version 502, 0 bars\n"
                       "    BRGIRDER version 502, 0 girders\n");
}

TEST(Dump, AFileThatIsNotThereExitsThree)
{
    TemporaryDirectory directory;
    const ToolResult run = RunTool({"dump", "missing.uni"}, directory.Path());
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, ToolError("cannot read \"missing.uni\""));
    EXPECT_EQ(run.out, "");
}

TEST(Dump, ADumpThatDoesNotFitTheRecordsIsABadScript)
{
    TemporaryDirectory directory;
    WriteFileBytes(directory.File("bad.json"), R"({"document": {"orders": [{"version": "600"}]}})");
    const ToolResult run = RunTool({"build", "bad.json", "-o", "out.uni"}, directory.Path());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, ToolError("bad.json: document.orders[0].version: expected a whole number from -32768 to 32767"));
    EXPECT_FALSE(FileExists(directory.File("out.uni")));
}

} // namespace
} // namespace ItUnitechnik::Testing

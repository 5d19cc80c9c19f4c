// The golden scenarios of tests/functional as call scripts: building each
// gives exactly the golden bytes, with its counts given and with them left
// out, and the summaries of the reinforced scenario stand in the trace.
#include "support/test_support.h"
#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace ItUnitechnik::Testing {
namespace {

struct Golden {
    std::string scenario;
    int exitCode;
    std::string error; // behind "unitechnik: <script>: "
    // The golden files that are no document but the text of each
    // getFullReinforcementString, in the order of the calls.
    std::vector<std::string> summaries;
};

void PrintTo(const Golden& golden, std::ostream* out)
{
    *out << golden.scenario;
}

std::vector<Golden> Scenarios()
{
    return {
        {"versions", 0, "", {}},
        // The last document goes to a folder that does not exist.
        {"orders", 3, "call 7 (endDocument): cannot write \"missing/file.txt\"", {}},
        {"slab", 0, "", {}},
        {"reinforced", 0, "", {"summary-none.txt", "summary-fresh-600.txt", "summary-502.txt", "summary-600.txt"}},
    };
}

// The texts of the trace's getFullReinforcementString lines, in order.
std::vector<std::string> TraceTexts(const std::string& trace)
{
    std::vector<std::string> texts;
    std::istringstream lines(trace);
    for (std::string line; std::getline(lines, line);) {
        const auto call = nlohmann::json::parse(line);
        if (call.contains("text")) {
            texts.push_back(call.at("text").get<std::string>());
        }
    }
    return texts;
}

// Builds the script in a fresh directory and compares every file with the
// golden files of the scenario.
void ExpectGoldenBytes(const Golden& golden, const std::string& script)
{
    TemporaryDirectory directory;
    const ToolResult run = RunTool({"build", script, "--trace", "trace.jsonl"}, directory.Path());
    EXPECT_EQ(run.exitCode, golden.exitCode);
    EXPECT_EQ(run.err, golden.error.empty() ? "" : ToolError(script + ": " + golden.error));

    const std::string goldenDirectory = GoldenFile(golden.scenario);
    std::vector<std::string> expectedFiles;
    for (const std::string& name : FilesBelow(goldenDirectory)) {
        if (std::find(golden.summaries.begin(), golden.summaries.end(), name) == golden.summaries.end()) {
            expectedFiles.push_back(name);
        }
    }
    std::vector<std::string> written = FilesBelow(directory.Path());
    written.erase(std::find(written.begin(), written.end(), "trace.jsonl"));
    EXPECT_EQ(written, expectedFiles);
    for (const std::string& name : expectedFiles) {
        const std::string expected = ReadFileBytes(goldenDirectory + "/" + name);
        const std::string actual = ReadFileBytes(directory.File(name));
        EXPECT_TRUE(expected == actual) << name << ": " << DescribeDifference(expected, actual);
    }

    const std::vector<std::string> texts = TraceTexts(ReadFileBytes(directory.File("trace.jsonl")));
    ASSERT_EQ(texts.size(), golden.summaries.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::string expected = ReadFileBytes(goldenDirectory + "/" + golden.summaries[i]);
        EXPECT_TRUE(expected == texts[i]) << golden.summaries[i] << ": " << DescribeDifference(expected, texts[i]);
    }
}

class GoldenScripts : public testing::TestWithParam<Golden> {};

TEST_P(GoldenScripts, GiveTheGoldenBytes)
{
    ExpectGoldenBytes(GetParam(), ToolTestFile("golden/" + GetParam().scenario + ".json"));
}

// Every count key removed: the counts then follow from the lists.
void DropCounts(nlohmann::json& value)
{
    if (value.is_object()) {
        for (const char* count : {"pointCount", "valueCount", "segmentCount"}) {
            value.erase(count);
        }
    }
    if (value.is_object() || value.is_array()) {
        for (auto& inner : value) {
            DropCounts(inner);
        }
    }
}

TEST_P(GoldenScripts, GiveTheGoldenBytesWithTheCountsLeftOut)
{
    std::ifstream in(ToolTestFile("golden/" + GetParam().scenario + ".json"));
    nlohmann::json script = nlohmann::json::parse(in);
    const std::string before = script.dump();
    DropCounts(script);
    if (GetParam().scenario == "slab" || GetParam().scenario == "reinforced") {
        ASSERT_NE(script.dump(), before) << "the scenario states counts";
    }
    TemporaryDirectory scripts;
    const std::string path = scripts.File(GetParam().scenario + ".json");
    WriteFileBytes(path, script.dump(2));
    ExpectGoldenBytes(GetParam(), path);
}

INSTANTIATE_TEST_SUITE_P(Functional, GoldenScripts, testing::ValuesIn(Scenarios()),
                         [](const testing::TestParamInfo<Golden>& scenario) { return scenario.param.scenario; });

TEST(GoldenTrace, TheReinforcedScenarioGivesTheResultsOfItsProgram)
{
    // The results the scenario program expects of each call, and the
    // summary texts in their places.
    TemporaryDirectory directory;
    const ToolResult run =
        RunTool({"build", ToolTestFile("golden/reinforced.json"), "--trace", "trace.jsonl"}, directory.Path());
    ASSERT_EQ(run.exitCode, 0) << run.err;
    std::vector<std::string> expected = {"getFullReinforcementString summary-none.txt", "startOrder 1",
                                         "getFullReinforcementString summary-fresh-600.txt"};
    for (const char* version : {"502", "600"}) {
        const std::vector<std::string> each = {"startOrder 1",
                                               "addCFSRodstock -1",
                                               "addSteelmat 1",
                                               "addSteelmat 2",
                                               "addCFSRodstock 1",
                                               "addCFSRodstock 2",
                                               "addStraightRodstock",
                                               "addFreeFormRodstock",
                                               "addSet 1",
                                               "addExtIron 1",
                                               "addExtIron 2",
                                               "endDocument 1",
                                               "addExtIron 3",
                                               std::string("getFullReinforcementString summary-") + version + ".txt"};
        expected.insert(expected.end(), each.begin(), each.end());
    }
    std::istringstream lines(ReadFileBytes(directory.File("trace.jsonl")));
    std::size_t index = 0;
    for (std::string line; std::getline(lines, line); ++index) {
        ASSERT_LT(index, expected.size()) << line;
        const std::string& want = expected[index];
        const std::string name = want.substr(0, want.find(' '));
        const std::string rest = want.find(' ') == std::string::npos ? "" : want.substr(want.find(' ') + 1);
        std::string head = "{\"index\":" + std::to_string(index) + ",\"call\":\"" + name + "\"";
        if (name == "getFullReinforcementString") {
            const std::string text = ReadFileBytes(GoldenFile("reinforced/" + rest));
            EXPECT_EQ(line, head + ",\"text\":" + nlohmann::json(text).dump() + "}");
        } else if (rest.empty()) {
            EXPECT_EQ(line, head + "}");
        } else {
            EXPECT_EQ(line, head + ",\"result\":" + rest + "}");
        }
    }
    EXPECT_EQ(index, expected.size());
}

} // namespace
} // namespace ItUnitechnik::Testing

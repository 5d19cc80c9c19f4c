// The bill of materials against the file read by column, as a plant's own
// script reads it: in each RODSTOCK record the first line of every bar, 75
// characters from version 600 on, holds the count in columns 22 to 26, the
// diameter in 28 to 30 and the length of one bar in 32 to 36. What bom --json
// adds up per diameter must be what those columns add up to.
#include "support/test_support.h"
#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdint>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace ItUnitechnik::Testing {
namespace {

// Per diameter in mm: the bars and their length together in mm.
struct Totals {
    std::int64_t count = 0;
    std::int64_t length = 0;
    bool operator==(const Totals& other) const { return count == other.count && length == other.length; }
};
using ByDiameter = std::map<int, Totals>;

void PrintTo(const ByDiameter& totals, std::ostream* out)
{
    for (const auto& [diameter, sum] : totals) {
        *out << "\n  diameter " << diameter << ": " << sum.count << " bars, " << sum.length << " mm";
    }
}

std::vector<std::string> FileLines(const std::string& bytes)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = bytes.find("\r\n"); end != std::string::npos; end = bytes.find("\r\n", start)) {
        lines.push_back(bytes.substr(start, end - start));
        start = end + 2;
    }
    EXPECT_EQ(start, bytes.size()) << "the file ends in a line without CR LF";
    return lines;
}

// Columns from `first` to `last`, counted from 1, as a number; -1 when they
// hold anything but digits.
int Columns(const std::string& line, std::size_t first, std::size_t last)
{
    int value = 0;
    for (std::size_t column = first; column <= last; ++column) {
        const char c = line[column - 1];
        if (c < '0' || c > '9') {
            return -1;
        }
        value = value * 10 + (c - '0');
    }
    return value;
}

// The first line of a bar: 75 characters, blanks between its fields.
bool IsFirstBarLine(const std::string& line)
{
    if (line.size() != 75) {
        return false;
    }
    for (const std::size_t blank : {4, 8, 10, 21, 27, 31, 37, 44, 51, 58, 63, 74}) {
        if (line[blank - 1] != ' ') {
            return false;
        }
    }
    return Columns(line, 22, 26) >= 0 && Columns(line, 28, 30) >= 0 && Columns(line, 32, 36) >= 0;
}

// Every RODSTOCK record: its tag, its version, the number of its bars, and
// the bars' lines up to END. Each bar's first line is read by column.
ByDiameter ReadByColumn(const std::string& bytes)
{
    ByDiameter totals;
    const std::vector<std::string> lines = FileLines(bytes);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i] != "RODSTOCK") {
            continue;
        }
        EXPECT_LT(i + 2, lines.size());
        const int bars = std::stoi(lines[i + 2]);
        int seen = 0;
        std::size_t at = i + 3;
        for (; at < lines.size() && lines[at] != "END"; ++at) {
            if (IsFirstBarLine(lines[at])) {
                Totals& sum = totals[Columns(lines[at], 28, 30)];
                const int count = Columns(lines[at], 22, 26);
                sum.count += count;
                sum.length += static_cast<std::int64_t>(count) * Columns(lines[at], 32, 36);
                ++seen;
            }
        }
        EXPECT_EQ(seen, bars) << "RODSTOCK record at line " << i + 1;
        i = at;
    }
    return totals;
}

ByDiameter BillByDiameter(const std::string& json)
{
    ByDiameter totals;
    const nlohmann::json bill = nlohmann::json::parse(json);
    for (const nlohmann::json& element : bill.at("elements")) {
        for (const nlohmann::json& group : element.at("bars")) {
            Totals& sum = totals[group.at("diameter").get<int>()];
            sum.count += group.at("count").get<std::int64_t>();
            sum.length += group.at("totalLength").get<std::int64_t>();
        }
    }
    return totals;
}

std::string StartOrder(int version)
{
    return R"({"call": "startOrder", "orderValue": 1, "elementNumberArg": 8, "placement": [0, 0, 0, 6000, 0, 0, 0,)"
           R"( 2400, 0], "version": )" +
           std::to_string(version) + R"(, "elementTextArg": "Slab", "clearDocument": true})";
}

// Loose sets of 10 mm in two grades, of 12 mm straight and bent, and a mat
// with wires of 6 and 8 mm.
std::vector<std::string> Calls(int version)
{
    return {
        StartOrder(version),
        R"({"call": "addContour", "points": [0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0]})",
        R"({"call": "addStraightRodstock", "bar": {"designation": "B500B", "positionX": 200, "positionY": 200,)"
        R"( "positionZ": 180, "firstSize": 12, "secondSize": 10, "thirdSize": 5600, "rodKind": 1}})",
        R"({"call": "addStraightRodstock", "bar": {"designation": "B500B", "positionX": 300, "positionY": 300,)"
        R"( "positionZ": 250, "firstSize": 7, "secondSize": 12, "thirdSize": 2300, "rodKind": 1}})",
        R"({"call": "addStraightRodstock", "bar": {"designation": "B500A", "positionX": 400, "positionY": 400,)"
        R"( "positionZ": 300, "firstSize": 3, "secondSize": 10, "thirdSize": 1400, "rodKind": 1}})",
        R"({"call": "addFreeFormRodstock", "bar": {"designation": "B500B", "positionX": 1000, "positionY": 1000,)"
        R"( "positionZ": 100, "firstSize": 2, "secondSize": 12, "thirdSize": 1300, "segmentCount": 2,)"
        R"( "rodKind": 1, "bendingCode": 2}, "segments": [{"length": 1000, "angle": 90}, {"length": 300}]})",
        R"({"call": "addSteelmat", "name": "Q188A", "firstDimension": 5800, "secondDimension": 2200,)"
        R"( "matKind": 1, "position": [100, 100, 35]})",
        R"({"call": "addCFSRodstock", "rodKind": 1, "designation": "B500A", "firstSize": 12, "secondSize": 6,)"
        R"( "thirdSize": 5700, "position": [50, 100, 0], "positionZ": 150})",
        R"({"call": "addCFSRodstock", "rodKind": 1, "designation": "B500A", "firstSize": 29, "secondSize": 8,)"
        R"( "thirdSize": 2100, "position": [100, 50, 0], "positionZ": -200, "rotation": 90})",
    };
}

class BomByColumn : public testing::TestWithParam<int> {};

TEST_P(BomByColumn, AddsUpWhatThePlantReadsInTheColumns)
{
    TemporaryDirectory directory;
    const ToolResult built = BuildScript(directory.Path(), Script(Calls(GetParam())), {"-o", "slab.uni"});
    ASSERT_EQ(built.exitCode, 0) << built.err;
    const ByDiameter columns = ReadByColumn(ReadFileBytes(directory.File("slab.uni")));

    // What the script put in, added up by hand: 12 x 5700 and 29 x 2100 of
    // the mat; 12 x 5600 + 3 x 1400 of 10 mm; 7 x 2300 + 2 x 1300 of 12 mm.
    const ByDiameter expected{{6, {12, 68400}}, {8, {29, 60900}}, {10, {15, 71400}}, {12, {9, 18700}}};
    EXPECT_EQ(columns, expected);

    const ToolResult bom = RunTool({"bom", "slab.uni", "--json"}, directory.Path());
    ASSERT_EQ(bom.exitCode, 0) << bom.err;
    EXPECT_EQ(BillByDiameter(bom.out), columns);
}

INSTANTIATE_TEST_SUITE_P(Versions, BomByColumn, testing::Values(600, 601),
                         [](const testing::TestParamInfo<int>& version) {
                             return "v" + std::to_string(version.param);
                         });

} // namespace
} // namespace ItUnitechnik::Testing

// The record tree as JSON: every golden file read, dumped to JSON text, built
// back into records from that text and written again gives its own bytes; a
// document that does not fit the records is told by the path of the value.

#include "dump/tree_text.h"
#include "plant/plant_text.h"
#include "tree/tree_json.h"

#include "exports/document.h"
#include "reading/tolerant_reading.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace ItUnitechnik::Tree {
namespace {

using Testing::DescribeDifference;
using Testing::ReadFileBytes;
using Testing::TemporaryDirectory;

std::string Written(std::vector<Order> orders)
{
    TemporaryDirectory directory;
    Document document;
    document.orders = std::move(orders);
    const std::string path = directory.File("again.uni");
    document.Save(std::wstring(path.begin(), path.end()));
    return ReadFileBytes(path);
}

std::string Golden(const std::string& name)
{
    return ReadFileBytes(std::string(ITUNITECHNIK_GOLDEN_DIR) + "/" + name);
}

TEST(TreeJson, EveryGoldenFileGoesThroughJsonTextToTheSameBytes)
{
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ITUNITECHNIK_GOLDEN_DIR)) {
        if (!entry.is_regular_file() || entry.path().filename().string().rfind("summary", 0) == 0) {
            continue;
        }
        const std::string bytes = ReadFileBytes(entry.path().string());
        TolerantDocument document = ReadTolerantly(bytes);
        ASSERT_TRUE(document.Complete()) << entry.path();
        const std::string text = ToJson(document.orders).dump();
        const std::vector<Order> back = FromJson(nlohmann::json::parse(text));
        EXPECT_EQ(DescribeDifference(bytes, Written(back)), "") << entry.path();
        ++files;
    }
    EXPECT_GE(files, 15);
}

TEST(TreeJson, MembersStandUnderTheirOwnNames)
{
    TolerantDocument document = ReadTolerantly(Golden("reinforced/reinforced-600.txt"));
    const nlohmann::ordered_json json = ToJson(document.orders);
    const auto& element = json["orders"][0]["elementParts"][0];
    EXPECT_EQ(json["orders"][0]["version"], 600);
    EXPECT_EQ(element["elementNumberText"], "101            ");
    EXPECT_EQ(element["rodstockData"]["bars"][1]["bendingKind"], "2");
    EXPECT_EQ(element["rodstockData"]["bars"][1]["freeForm"]["parts"][0]["segments"][1]["angle"], -90);
    EXPECT_EQ(element["bracedGirderData"]["girders"][1]["scaledValue"], 123.456);
    EXPECT_EQ(element["reinforcement"]["mats"][1]["name"], "Q257 upper layer mat");
    EXPECT_EQ(element["externalIronData"]["irons"][0]["ironText"], std::string(24, ' ') + "Anchor");
    EXPECT_EQ(element["hasExternalIron"], true);
}

TEST(TreeJson, CurvesCarryTheirClass)
{
    TolerantDocument document = ReadTolerantly(Golden("slab/slab-600.txt"));
    const nlohmann::ordered_json json = ToJson(document.orders);
    const auto& piece = json["orders"][0]["elementParts"][0]["contourData"]["contours"][0]["geoData"][0];
    EXPECT_EQ(piece["elementKind"], "S");
    EXPECT_EQ(piece["curve"]["class"], "LineSegment");
    EXPECT_EQ(piece["curve"]["version"], 600);
}

TEST(TreeJson, ADoubleThatIsNoNumberIsAWord)
{
    std::vector<Order> orders(1);
    orders[0].elementParts.emplace_back();
    orders[0].elementParts[0].elementMeasure = std::numeric_limits<double>::infinity();
    const nlohmann::ordered_json json = ToJson(orders);
    EXPECT_EQ(json["orders"][0]["elementParts"][0]["elementMeasure"], "inf");
    const std::vector<Order> back = FromJson(nlohmann::json::parse(json.dump()));
    EXPECT_EQ(back[0].elementParts[0].elementMeasure, std::numeric_limits<double>::infinity());
}

TEST(TreeJson, AMissingMemberKeepsItsDefault)
{
    const std::vector<Order> orders =
        FromJson(nlohmann::json::parse(R"({"orders": [{"version": 600, "elementParts": [{"thickness": 200}]}]})"));
    ASSERT_EQ(orders.size(), 1u);
    EXPECT_EQ(orders[0].version, 600);
    EXPECT_EQ(orders[0].orderText5, L"     ");
    ASSERT_EQ(orders[0].elementParts.size(), 1u);
    EXPECT_EQ(orders[0].elementParts[0].thickness, 200);
    EXPECT_EQ(orders[0].elementParts[0].elementNumber, 12);
}

void ExpectError(const char* text, const std::string& message)
{
    try {
        FromJson(nlohmann::json::parse(text));
        ADD_FAILURE() << "no error for " << text;
    } catch (const TreeError& error) {
        EXPECT_EQ(error.what(), message);
    }
}

TEST(TreeJson, WhatDoesNotFitIsToldByItsPath)
{
    ExpectError(R"({"orders": [{"versoin": 600}]})", "document.orders[0].versoin: no such member");
    ExpectError(R"({"orders": [{"version": 40000}]})",
                "document.orders[0].version: expected a whole number from -32768 to 32767");
    ExpectError(R"({"orders": [{"orderNumber": 7}]})", "document.orders[0].orderNumber: expected a text");
    ExpectError(R"({"orders": [{"elementParts": [{"hasExternalIron": 1}]}]})",
                "document.orders[0].elementParts[0].hasExternalIron: expected true or false");
    ExpectError(
        R"({"orders": [{"elementParts": [{"contourData": {"contours": [{"geoData": [{"curve": {"class": "Spline"}}]}]}}]}]})",
        "document.orders[0].elementParts[0].contourData.contours[0].geoData[0].curve.class: expected Arc, "
        "Circle, LineSegment or Polygon");
    ExpectError(R"({"orders": [{"elementParts": [{"rodstockData": {"bars": [{"bendingKind": "12"}]}}]}]})",
                "document.orders[0].elementParts[0].rodstockData.bars[0].bendingKind: expected a text of one "
                "character");
    ExpectError(R"({"orders": {}})", "document.orders: expected an array");
}

TEST(TreeText, TheOutlineOfTheReinforcedSlab)
{
    TolerantDocument document = ReadTolerantly(Golden("reinforced/reinforced-600.txt"));
    const std::string expected =
        ReadFileBytes(std::string(ITUNITECHNIK_TOOL_EXPECTED_DIR) + "/reinforced-600.tree.txt");
    ASSERT_FALSE(expected.empty());
    EXPECT_EQ(DescribeDifference(expected, TreeText(document.orders)), "");
}

TEST(TreeText, TextsAreShownWithoutTheirFill)
{
    EXPECT_EQ(Plant::Trimmed(L"   B500  "), "B500");
    EXPECT_EQ(Plant::Trimmed(L"     "), "");
    EXPECT_EQ(Plant::Trimmed(L"\u00e4"), "\xc3\xa4");
}

} // namespace
} // namespace ItUnitechnik::Tree

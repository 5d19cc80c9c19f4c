// The reading library through its C calls, as a host sees it: a golden file
// read by path and by bytes, by its records, the plant's view and the bill; a
// file cut off, a missing one and hostile bytes give a result that says where
// and why, and nothing else. Every expected value is read off the golden
// file's columns by hand.

#include "itunitechnik_reading.h"

#include "support/test_support.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>

namespace {

using ItUnitechnik::Testing::ReadFileBytes;
using nlohmann::json;

struct ResultFree {
    void operator()(ItrResult* result) const { itrFree(result); }
};
using Result = std::unique_ptr<ItrResult, ResultFree>;

json Parsed(const ItrResult* result)
{
    return json::parse(itrJson(result));
}

std::string Golden(const std::string& name)
{
    return std::string(ITUNITECHNIK_GOLDEN_DIR) + "/" + name;
}

TEST(ReadingLibrary, AGoldenFileReadsByItsMeanings)
{
    const Result result(itrReadFile(Golden("reinforced/reinforced-600.txt").c_str(), ITR_ALL));
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(itrOk(result.get()), 1);
    const json read = Parsed(result.get());
    EXPECT_EQ(read["ok"], true);
    EXPECT_TRUE(read["error"].is_null());
    EXPECT_EQ(read["bareLineEnds"], 0);
    const json& element = read["plant"]["orders"][0]["elements"][0];
    EXPECT_EQ(element["number"], "101");
    // "001 000 1 BSt 500 S  05800 012 00000 +00500 +00600 +00030 +000" and
    // "000 000 000 00000 00000 00006 000": a set of 5800 bars of 12 mm, 0 long,
    // 30 apart, from (500, 600), 6 above the pallet.
    const json& bar = element["bars"][0];
    EXPECT_EQ(bar["count"], 5800);
    EXPECT_EQ(bar["diameter"], 12);
    EXPECT_EQ(bar["length"], 0);
    EXPECT_EQ(bar["pitch"], 30);
    EXPECT_EQ(bar["x"], 500);
    EXPECT_EQ(bar["y"], 600);
    EXPECT_EQ(bar["z"], 6);
    EXPECT_EQ(bar["grade"], "BSt 500 S");
    // The second set is bent in seven legs.
    EXPECT_EQ(element["bars"][1]["segments"].size(), 7u);
    // "001 000 00800 KT 812     04500 +00100 +00200 +00030 +090 0" and
    // "000 000 005 01.500 07 000 00012 000": 800 girders of 4500, 30 apart.
    const json& girder = element["girders"][0];
    EXPECT_EQ(girder["count"], 800);
    EXPECT_EQ(girder["type"], "KT 812");
    EXPECT_EQ(girder["length"], 4500);
    EXPECT_EQ(girder["spacing"], 30);
    EXPECT_EQ(girder["height"], 5);
    EXPECT_EQ(girder["chord_diameter"], 7);
    EXPECT_EQ(girder["weight"], 1.5);
    EXPECT_EQ(girder["installation_height"], 12);
    // The second mat at (120, 70): its first bar at (150, 200) stands at
    // (270, 270) in the element.
    const json& mat = element["mats"][1];
    EXPECT_EQ(mat["type"], "Q257 upper layer mat");
    EXPECT_EQ(mat["bars"][0]["x"], 270);
    EXPECT_EQ(mat["bars"][0]["y"], 270);
    // The records as dump --json has them, and the bill.
    EXPECT_EQ(read["document"]["orders"][0]["elementParts"][0]["rodstockData"]["bars"][0]["firstSize"], 5800);
    EXPECT_EQ(read["bom"]["elements"][0]["girders"][0]["count"], 1800);
}

TEST(ReadingLibrary, BytesReadAsTheFileAndOnlyThePartsAskedFor)
{
    const std::string bytes = ReadFileBytes(Golden("slab/slab-600.txt"));
    const Result byPath(itrReadFile(Golden("slab/slab-600.txt").c_str(), ITR_PLANT));
    const Result byBytes(itrReadBytes(bytes.data(), bytes.size(), ITR_PLANT));
    EXPECT_STREQ(itrJson(byPath.get()), itrJson(byBytes.get()));
    const json read = Parsed(byBytes.get());
    EXPECT_TRUE(read.contains("plant"));
    EXPECT_FALSE(read.contains("document"));
    EXPECT_FALSE(read.contains("bom"));
}

TEST(ReadingLibrary, AFileCutOffSaysWhereItStopped)
{
    // "HEADER__" and the start of the version line: the version wants three
    // places on line 2.
    const std::string cut = "HEADER__\r\n60";
    const Result result(itrReadBytes(cut.data(), cut.size(), ITR_ALL));
    EXPECT_EQ(itrOk(result.get()), 0);
    const json read = Parsed(result.get());
    EXPECT_EQ(read["ok"], false);
    EXPECT_EQ(read["error"]["line"], 2);
    EXPECT_EQ(read["error"]["column"], 1);
    EXPECT_NE(read["error"]["message"].get<std::string>().find("the file ends there"), std::string::npos);
}

TEST(ReadingLibrary, AMissingFileAndNoPathHaveNoPlace)
{
    for (ItrResult* raw : {itrReadFile("/no/such/file.uni", ITR_ALL), itrReadFile(nullptr, ITR_ALL),
                           itrReadBytes(nullptr, 3, ITR_ALL)}) {
        const Result result(raw);
        EXPECT_EQ(itrOk(result.get()), 0);
        const json read = Parsed(result.get());
        EXPECT_EQ(read["error"]["line"], 0);
        EXPECT_EQ(read["error"]["column"], 0);
    }
    // No bytes at all are a document without orders.
    const Result empty(itrReadBytes(nullptr, 0, ITR_PLANT));
    EXPECT_EQ(itrOk(empty.get()), 1);
    EXPECT_TRUE(Parsed(empty.get())["plant"]["orders"].empty());
    // A null result is handed back and asked about safely.
    EXPECT_EQ(itrOk(nullptr), 0);
    EXPECT_STREQ(itrJson(nullptr), "");
    itrFree(nullptr);
}

TEST(ReadingLibrary, AFileOfBareLineFeedsReadsAndCountsThem)
{
    std::string bytes = ReadFileBytes(Golden("versions/v600.txt"));
    std::string lf;
    for (const char c : bytes) {
        if (c != '\r') {
            lf += c;
        }
    }
    const Result result(itrReadBytes(lf.data(), lf.size(), ITR_PLANT));
    EXPECT_EQ(itrOk(result.get()), 1);
    const json read = Parsed(result.get());
    EXPECT_EQ(read["bareLineEnds"], 51);
    EXPECT_NE(std::find(read["departures"].begin(), read["departures"].end(), "bare-line-feeds"),
              read["departures"].end());
}

TEST(ReadingLibrary, TheTableOfMeaningsIsServedAsData)
{
    const json table = json::parse(itrPlantMeanings());
    ASSERT_TRUE(table.is_array());
    EXPECT_EQ(table[0], json({{"record", "Rodstock"},
                              {"member", "firstSize"},
                              {"name", "count"},
                              {"meaning", "number of bars in the set"},
                              {"unit", ""}}));
    EXPECT_EQ(itrPlantMeanings(), itrPlantMeanings());
}

// Every input the fuzzers kept, as bytes: each gives a JSON result that
// parses, ok or with its place, and nothing else.
TEST(ReadingLibrary, HostileBytesGiveAResult)
{
    std::size_t read = 0;
    for (const char* folder : {"documents", "records"}) {
        for (const auto& entry :
             std::filesystem::directory_iterator(std::string(ITUNITECHNIK_FUZZ_CORPUS) + "/" + folder)) {
            const std::string bytes = ReadFileBytes(entry.path().string());
            const Result result(itrReadBytes(bytes.data(), bytes.size(), ITR_ALL));
            ASSERT_NE(result, nullptr);
            const json parsed = Parsed(result.get());
            EXPECT_EQ(parsed["ok"].get<bool>(), itrOk(result.get()) == 1) << entry.path();
            EXPECT_EQ(parsed["error"].is_null(), itrOk(result.get()) == 1) << entry.path();
            ++read;
        }
    }
    EXPECT_GT(read, 1000u);
}

} // namespace

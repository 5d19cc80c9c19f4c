// What a call script makes the exports do: every export with its keys,
// missing keys, counts given and left out, lists padded to what the export
// reads, and texts as UTF-16 code units. The expected bytes are the golden
// files of tests/functional with the records a test changes written out by
// hand.
#include "support/test_support.h"
#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>
#include <string>
#include <vector>

namespace ItUnitechnik::Testing {
namespace {

const std::string kEmptyContours = "CONTOUR_\r\n600\r\n00\r\nEND\r\n";
const std::string kNoExtents = "\r\n00000 00000 +0000 +0000";

std::string V600()
{
    return ReadFileBytes(GoldenFile("versions/v600.txt"));
}

std::string FreshSummary()
{
    return ReadFileBytes(GoldenFile("reinforced/summary-fresh-600.txt"));
}

// Builds the calls behind the order at 600 and gives back the document.
std::string Document(const std::vector<std::string>& calls)
{
    TemporaryDirectory directory;
    std::vector<std::string> all = {kStartOrder600};
    all.insert(all.end(), calls.begin(), calls.end());
    all.push_back(R"({"call": "endDocument", "path": "out.txt"})");
    const ToolResult run = BuildScript(directory.Path(), Script(all));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "");
    return ReadFileBytes(directory.File("out.txt"));
}

// Runs the calls behind the order at 600, then getFullReinforcementString,
// and gives back the text of that last call from the trace.
std::string Summary(const std::vector<std::string>& calls)
{
    TemporaryDirectory directory;
    std::vector<std::string> all = {kStartOrder600};
    all.insert(all.end(), calls.begin(), calls.end());
    all.push_back(R"({"call": "getFullReinforcementString"})");
    const ToolResult run = BuildScript(directory.Path(), Script(all), {"--trace", "-"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    const std::size_t lastLine = run.out.rfind('\n', run.out.size() - 2);
    const auto line = nlohmann::json::parse(run.out.substr(lastLine + 1));
    return line.at("text").get<std::string>();
}

void ExpectSameBytes(const std::string& expected, const std::string& actual)
{
    EXPECT_TRUE(expected == actual) << DescribeDifference(expected, actual);
}

TEST(ScriptCalls, StartOrderAndEndDocumentGiveTheGoldenOrder)
{
    ExpectSameBytes(V600(), Document({}));
}

TEST(ScriptCalls, SetThicknessesFillsBothThicknessesOfTheElement)
{
    const std::string expected =
        Replaced(V600(), "00000.0 0000 000 000 000 000 000 0000\r\n", "00000.0 0250 000 000 000 000 000 0180\r\n");
    ExpectSameBytes(expected, Document({R"({"call": "setThicknesses", "thickness": 250, "secondThickness": 180})"}));
}

TEST(ScriptCalls, MissingKeysAreZeroEmptyOrFalse)
{
    // A startOrder of nothing but zeros, and the same with every key given.
    const std::string zeros = R"({"call": "startOrder", "orderValue": 0, "elementNumberArg": 0, )"
                              R"("placement": [0, 0, 0, 0, 0, 0, 0, 0, 0], "version": 0, )"
                              R"("elementTextArg": "", "elementMeasureArg": 0, "clearDocument": false})";
    TemporaryDirectory first;
    TemporaryDirectory second;
    const std::string end = R"({"call": "endDocument", "path": "out.txt"})";
    ASSERT_EQ(BuildScript(first.Path(), Script({R"({"call": "startOrder"})", end})).exitCode, 0);
    ASSERT_EQ(BuildScript(second.Path(), Script({zeros, end})).exitCode, 0);
    const std::string bytes = ReadFileBytes(first.File("out.txt"));
    EXPECT_EQ(bytes.substr(0, 15), "HEADER__\r\n000\r\n");
    ExpectSameBytes(ReadFileBytes(second.File("out.txt")), bytes);
}

TEST(ScriptCalls, AShortPlacementIsPaddedWithZeros)
{
    TemporaryDirectory directory;
    const std::string start = Replaced(kStartOrder600, "0, 0, 0, 2400, 0]", "0, 0, 0, 2400]");
    ASSERT_EQ(BuildScript(directory.Path(), Script({start, R"({"call": "endDocument", "path": "out.txt"})"})).exitCode,
              0);
    ExpectSameBytes(V600(), ReadFileBytes(directory.File("out.txt")));
}

TEST(ScriptCalls, AnIntegerMayBeWrittenAsANumberWithoutFraction)
{
    TemporaryDirectory directory;
    const std::string start = Replaced(kStartOrder600, "\"version\": 600", "\"version\": 6e2");
    ASSERT_EQ(BuildScript(directory.Path(), Script({start, R"({"call": "endDocument", "path": "out.txt"})"})).exitCode,
              0);
    ExpectSameBytes(V600(), ReadFileBytes(directory.File("out.txt")));
}

TEST(ScriptCalls, AContourCountLargerThanItsPointsIsPaddedWithZeroPoints)
{
    // Three points, the third (0, 0) by padding: two pieces, the second back
    // to the origin, and a box of 6000 by 0.
    const std::string expected = Replaced(Replaced(V600(), kEmptyContours,
                                                   "CONTOUR_\r\n600\r\n01\r\n01 00 02\r\n"
                                                   "S +00000 +00000 +06000 +00000 0000\r\n"
                                                   "S +06000 +00000 +00000 +00000 0000\r\nEND\r\n"),
                                          kNoExtents, "\r\n06000 00000 +0000 +0000");
    ExpectSameBytes(expected, Document({R"({"call": "addContour", "pointCount": 3, "points": [0, 0, 6000, 0]})"}));
}

TEST(ScriptCalls, AMissingContourCountIsTheNumberOfPoints)
{
    const std::string expected = Replaced(Replaced(V600(), kEmptyContours,
                                                   "CONTOUR_\r\n600\r\n01\r\n01 00 02\r\n"
                                                   "S +00000 +00000 +06000 +00000 0000\r\n"
                                                   "S +06000 +00000 +06000 +02400 0000\r\nEND\r\n"),
                                          kNoExtents, "\r\n06000 02400 +0000 +0000");
    ExpectSameBytes(expected, Document({R"({"call": "addContour", "points": [0, 0, 6000, 0, 6000, 2400]})"}));
}

TEST(ScriptCalls, AContourCountSmallerThanItsPointsReadsOnlyThatMany)
{
    const std::string expected = Replaced(Replaced(V600(), kEmptyContours,
                                                   "CONTOUR_\r\n600\r\n01\r\n01 00 01\r\n"
                                                   "S +00000 +00000 +06000 +00000 0000\r\nEND\r\n"),
                                          kNoExtents, "\r\n06000 00000 +0000 +0000");
    ExpectSameBytes(expected,
                    Document({R"({"call": "addContour", "pointCount": 2, "points": [0, 0, 6000, 0, 6000, 2400]})"}));
}

TEST(ScriptCalls, AContourOfNoPointsHasNoPiecesAndTheBoxOfNothing)
{
    // A contour without pieces: its header, an empty line, and the extents
    // of the empty box, which wrap to 1.
    const std::string expected =
        Replaced(Replaced(V600(), kEmptyContours, "CONTOUR_\r\n600\r\n01\r\n01 00 00\r\n\r\nEND\r\n"), kNoExtents,
                 "\r\n00001 00001 +0000 +0000");
    ExpectSameBytes(expected, Document({R"({"call": "addContour"})"}));
    ExpectSameBytes(expected, Document({R"({"call": "addContour", "pointCount": 1})"}));
    ExpectSameBytes(expected, Document({R"({"call": "addContour", "pointCount": -3, "points": []})"}));
}

TEST(ScriptCalls, ACutoutCountInItsBlockPadsThePoints)
{
    const std::string padded = R"({"call": "addCutout", "block": {"cutoutName": "Duct", "cutoutValue": 0.5, )"
                               R"("pointCount": 3}, "points": [4000, 800, 4600, 800]})";
    const std::string whole = R"({"call": "addCutout", "block": {"cutoutName": "Duct", "cutoutValue": 0.5}, )"
                              R"("points": [4000, 800, 4600, 800, 0, 0]})";
    const std::string padding = Document({padded});
    ExpectSameBytes(Document({whole}), padding);
    EXPECT_NE(padding.find("S +04600 +00800 +00000 +00000 0000\r\n"), std::string::npos) << padding;
}

// The summary of an element whose only mounted part is given by these values.
std::string MountedPartSummary(const std::string& lastLine, const std::string& pieces)
{
    return Replaced(FreshSummary(), "MOUNPART\n600\n000\nEND\n",
                    "MOUNPART\n600\n001\n001 000 000            Box" + std::string(37, ' ') + "\n" +
                        std::string(20, ' ') + "\n" + std::string(20, ' ') + "\n" + lastLine + "\n" + pieces + "END\n");
}

TEST(ScriptCalls, AMountedPartReadsItsTwoValuesAndWholePiecesPaddedWithZeros)
{
    // Six values stated, two given: one piece from (0, 0) to (0, 0).
    EXPECT_EQ(MountedPartSummary("00.000 007 +00000 +00000 +00005 0000 000 00000 00000 01",
                                 "S +00000 +00000 +00000 +00000 0000\n"),
              Summary({R"({"call": "addSet", "setKind": 3, "setName": "Box", "valueCount": 6, "values": [7, 5]})"}));
    // Five values make one whole piece: its last coordinate is padded.
    const std::string fivePieces = MountedPartSummary("00.000 007 +00000 +00000 +00005 0000 000 00020 00020 01",
                                                      "S +00010 +00020 +00030 +00000 0000\n");
    EXPECT_EQ(fivePieces, Summary({R"({"call": "addSet", "setKind": 3, "setName": "Box", "valueCount": 5, )"
                                   R"("values": [7, 5, 10, 20, 30]})"}));
    EXPECT_EQ(fivePieces,
              Summary({R"({"call": "addSet", "setKind": 3, "setName": "Box", "values": [7, 5, 10, 20, 30]})"}));
}

TEST(ScriptCalls, GirdersAreReadInWholeGroupsOfTenPaddedWithZeros)
{
    const std::string expected = Replaced(FreshSummary(), "BRGIRDER\n600\n000\nEND\n",
                                          "BRGIRDER\n600\n001\n"
                                          "001 000 00008 KT 800     00080 +00000 +00000 +00000 +000 0\n"
                                          "000 000 000 00.000 00 000 00000 000\nEND\n");
    EXPECT_EQ(expected, Summary({R"({"call": "addSet", "setKind": 5, "setName": "KT 800", "valueCount": 10, )"
                                 R"("values": [8, 80]})"}));
    EXPECT_EQ(expected, Summary({R"({"call": "addSet", "setKind": 5, "setName": "KT 800", "valueCount": 3, )"
                                 R"("values": [8, 80]})"}));
}

TEST(ScriptCalls, SetKindsOtherThanThreeAndFiveReadNothingAndGiveZero)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(
        directory.Path(),
        Script({kStartOrder600, R"({"call": "addSet", "setKind": 4, "setName": "X", "valueCount": 2000000000})",
                R"({"call": "addSet", "setKind": 5, "setName": "X", "valueCount": 0})"}),
        {"--trace", "-"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "{\"index\":0,\"call\":\"startOrder\",\"result\":1}\n"
                       "{\"index\":1,\"call\":\"addSet\",\"result\":0}\n"
                       "{\"index\":2,\"call\":\"addSet\",\"result\":1}\n");
}

TEST(ScriptCalls, FreeFormSegmentsArePaddedToTheBarsSegmentCount)
{
    const std::string bar = R"("bar": {"designation": "B500A", "firstSize": 1650, "secondSize": 10, "rodKind": 2, )"
                            R"("bendingCode": 2)";
    const std::string padded = R"({"call": "addFreeFormRodstock", )" + bar +
                               R"(, "segmentCount": 7}, "segments": [{"length": 200, "angle": 90}, {"length": 150}]})";
    const std::string whole = R"({"call": "addFreeFormRodstock", )" + bar +
                              R"(}, "segments": [{"length": 200, "angle": 90}, {"length": 150, "angle": 0}, )"
                              R"({}, {}, {}, {}, {"length": 0, "angle": 0}]})";
    const std::string padding = Summary({padded});
    EXPECT_EQ(Summary({whole}), padding);
    // Seven segments: a part of six and a part of one.
    EXPECT_NE(padding.find("\n01 06 00200 +090 00150 +000 00000 +000 00000 +000 00000 +000 00000 +000\n"
                           "02 01 00000 +000\n"),
              std::string::npos)
        << padding;
}

TEST(ScriptCalls, SegmentsAreNotReadUnlessTheBarIsAFreeForm)
{
    // A count of 65535 with no segments: nothing to pad, since the bending
    // code 1 reads none.
    const std::string summary =
        Summary({R"({"call": "addFreeFormRodstock", "bar": {"designation": "B", "segmentCount": 65535, )"
                 R"("bendingCode": 1}})"});
    EXPECT_NE(summary.find("RODSTOCK\n600\n001\n"), std::string::npos) << summary;
}

TEST(ScriptCalls, PositionsArePaddedToThreeIntegers)
{
    const std::string shortMat = R"({"call": "addSteelmat", "name": "Q188A", "matKind": 1, "position": [100]})";
    const std::string wholeMat = R"({"call": "addSteelmat", "name": "Q188A", "matKind": 1, "position": [100, 0, 0]})";
    const std::string summary = Summary({shortMat});
    EXPECT_EQ(Summary({wholeMat}), summary);
    EXPECT_NE(summary.find("\n01 +00100 +00000 +00000 0 0                Q188A 00000 00000 1\n"), std::string::npos)
        << summary;
}

TEST(ScriptCalls, ProjectTextsBeyondThoseGivenAreEmpty)
{
    const std::string given = R"({"call": "setProjectData", "texts": ["", "", "", "", "", "", "", "", "", "", "", "", )"
                              R"("", "", "", "", "01.02.2026"]})";
    const std::string all = R"({"call": "setProjectData", "texts": ["", "", "", "", "", "", "", "", "", "", "", "", )"
                            R"("", "", "", "", "01.02.2026", "", ""]})";
    const std::string document = Document({given});
    ExpectSameBytes(Document({all}), document);
    // The empty order number is the library's "12345678".
    EXPECT_NE(document.find("HEADER__\r\n600\r\n12345678"), std::string::npos) << document;
    EXPECT_NE(document.find("\r\n01.02.2026\r\n"), std::string::npos) << document;
}

TEST(ScriptCalls, TextsUpToU00FFReachTheFileAsOneByteEach)
{
    const std::string start = Replaced(kStartOrder600, "\"Slab\"", "\"Sl\\u00e4b\"");
    TemporaryDirectory directory;
    ASSERT_EQ(BuildScript(directory.Path(), Script({start, R"({"call": "endDocument", "path": "out.txt"})"})).exitCode,
              0);
    ExpectSameBytes(Replaced(V600(), " Slab\r\n",
                             " Sl\xE4"
                             "b\r\n"),
                    ReadFileBytes(directory.File("out.txt")));
}

TEST(ScriptCalls, ACharacterAboveUFFFFIsTwoCodeUnitsAndEndsTheFile)
{
    // "Sl", U+1F600 and "b" are five code units, right-aligned in thirty
    // places; the file ends where the pair begins.
    const std::string golden = V600();
    const std::size_t lineD = golden.find("              0000 0000 00 ");
    ASSERT_NE(lineD, std::string::npos);
    const std::string expected = golden.substr(0, lineD) + "              0000 0000 00 " + std::string(25, ' ') + "Sl";
    for (const char* text : {"\"Sl\xF0\x9F\x98\x80"
                             "b\"",
                             "\"Sl\\ud83d\\ude00b\""}) {
        TemporaryDirectory directory;
        const std::string start = Replaced(kStartOrder600, "\"Slab\"", text);
        ASSERT_EQ(
            BuildScript(directory.Path(), Script({start, R"({"call": "endDocument", "path": "out.txt"})"})).exitCode,
            0);
        ExpectSameBytes(expected, ReadFileBytes(directory.File("out.txt")));
    }
}

TEST(ScriptCalls, TheSummaryKeepsSurrogatePairsAndAFieldCutBetweenThemShowsUFFFD)
{
    // Text(10): eight letters and the pair fill it; nine letters and the
    // pair are cut after the pair's first unit.
    const std::string girder = R"({"call": "addSet", "setKind": 5, "valueCount": 10, "values": [8, 80], "setName": )";
    const std::string empty = "BRGIRDER\n600\n000\nEND\n";
    const std::string lines = " 00080 +00000 +00000 +00000 +000 0\n000 000 000 00.000 00 000 00000 000\nEND\n";
    EXPECT_EQ(Replaced(FreshSummary(), empty, "BRGIRDER\n600\n001\n001 000 00008 ABCDEFGH\xF0\x9F\x98\x80" + lines),
              Summary({girder + "\"ABCDEFGH\\ud83d\\ude00\"}"}));
    EXPECT_EQ(Replaced(FreshSummary(), empty, "BRGIRDER\n600\n001\n001 000 00008 ABCDEFGHI\xEF\xBF\xBD" + lines),
              Summary({girder + "\"ABCDEFGHI\xF0\x9F\x98\x80\"}"}));
}

TEST(ScriptCalls, EveryExportIsReachable)
{
    // Each export of the library once (freeFullReinforcementString through
    // the tool), with the results they give.
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(
        directory.Path(),
        Script({kStartOrder600,
                R"({"call": "setProjectData", "texts": ["A1", "", "", "", "", "", "", "", "", "", "", "", "", "", )"
                R"("", "", "21.11.2026"]})",
                R"({"call": "setSlabInfoFields", "slabInfo1": "one"})",
                R"({"call": "setThicknesses", "thickness": 200, "secondThickness": 150})",
                R"({"call": "setDoubleWallGap", "doubleWallGap": 25})",
                R"({"call": "addLayer", "layerKind": 1, "thicknessMetres": 0.2, "layerName": "C30/37"})",
                R"({"call": "addContour", "points": [0, 0, 100, 0]})",
                R"({"call": "addCutout", "points": [0, 0, 10, 0]})",
                R"({"call": "addSet", "setKind": 3, "values": [1, 2, 0, 0, 10, 10]})",
                R"({"call": "addSteelmat", "name": "Q188A"})", R"({"call": "addCFSRodstock", "designation": "B500B"})",
                R"({"call": "addStraightRodstock", "bar": {"designation": "B500B"}})",
                R"({"call": "addFreeFormRodstock", "bar": {"designation": "B500B", "bendingCode": 2}, )"
                R"("segments": [{"length": 100, "angle": 90}]})",
                R"({"call": "addExtIron", "ironCode": 2, "ironCount": 4, "ironValue": 1.5, "ironText": "Anchor"})",
                R"({"call": "getFullReinforcementString"})", R"({"call": "endDocument", "path": "out.txt"})"}),
        {"--trace", "trace.jsonl"});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    const std::vector<std::string> expected = {
        "startOrder 1",        "setProjectData",   "setSlabInfoFields",
        "setThicknesses",      "setDoubleWallGap", "addLayer",
        "addContour",          "addCutout",        "addSet 1",
        "addSteelmat 1",       "addCFSRodstock 1", "addStraightRodstock",
        "addFreeFormRodstock", "addExtIron 1",     "getFullReinforcementString text",
        "endDocument 1"};
    std::vector<std::string> seen;
    std::istringstream lines(ReadFileBytes(directory.File("trace.jsonl")));
    for (std::string line; std::getline(lines, line);) {
        const auto call = nlohmann::json::parse(line);
        std::string entry = call.at("call").get<std::string>();
        if (call.contains("result")) {
            entry += " " + std::to_string(call.at("result").get<int>());
        }
        if (call.contains("text")) {
            entry += " text";
        }
        seen.push_back(entry);
    }
    EXPECT_EQ(seen, expected);
    EXPECT_EQ(FilesBelow(directory.Path()), (std::vector<std::string>{"out.txt", "s.json", "trace.jsonl"}));
}

TEST(ScriptCalls, IntegersAtTheEdgesOfTheirTypesAreTaken)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(
        directory.Path(),
        Script({R"({"call": "startOrder", "orderValue": 65535, "elementNumberArg": -2147483648, "version": 65535})",
                R"({"call": "setThicknesses", "thickness": 2147483647, "secondThickness": -2147483648})",
                R"({"call": "addCutout", "block": {"pointCount": 65535}})",
                R"({"call": "addStraightRodstock", "bar": {"firstSize": 65535, "rotation": -32768, "rodKind": 255}})",
                R"({"call": "addFreeFormRodstock", "bar": {"rotation": 32767, "bendingCode": 255, "notMounted": 255}, )"
                R"("segments": [{"length": -2147483648, "angle": -32768}, {"length": 2147483647, "angle": 32767}]})",
                R"({"call": "endDocument", "path": "out.txt"})"}));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(ReadFileBytes(directory.File("out.txt")).substr(0, 10), "HEADER__\r\n");
}

} // namespace
} // namespace ItUnitechnik::Testing

// Every way a call script can be bad, with the exact message and exit code 2.
// The whole script is read before any call runs, so nothing is written: the
// directory holds the script alone afterwards.
#include "support/test_support.h"
#include "tool_run.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace ItUnitechnik::Testing {
namespace {

struct BadScript {
    std::string name;
    std::string script;
    std::string message; // behind "unitechnik: s.json: "
};

void PrintTo(const BadScript& bad, std::ostream* out)
{
    *out << bad.name;
}

std::string Calls(const std::string& calls)
{
    return "{\"calls\": [" + calls + "]}";
}

// The zeros of a list of `count` integers, as JSON.
std::string Zeros(std::size_t count)
{
    std::string text = "[";
    for (std::size_t i = 0; i < count; ++i) {
        text += i == 0 ? "0" : ",0";
    }
    return text + "]";
}

std::string Segments(std::size_t count)
{
    std::string text = "[";
    for (std::size_t i = 0; i < count; ++i) {
        text += i == 0 ? "{}" : ",{}";
    }
    return text + "]";
}

const std::string kOutOfInt32 = " is out of range for int32_t (-2147483648 to 2147483647)";

std::vector<BadScript> AllBadScripts()
{
    return {
        // Not JSON: the parser's line and column.
        {"SyntaxError", "{\"calls\": [\n  {\"call\": }\n]}",
         "line 2, column 12: syntax error while parsing value - unexpected '}'; expected '[', '{', or a literal"},
        {"EmptyFile", "",
         "line 1, column 1: syntax error while parsing value - unexpected end of input; expected '[', '{', or a "
         "literal"},
        {"NumberBeyondADouble", Calls(R"({"call": "startOrder", "orderValue": 1e999})"),
         "line 1, column 53: number overflow parsing '1e999'"},
        {"TextAfterTheScript", "{\"calls\": []}\n]",
         "line 2, column 1: syntax error while parsing value - unexpected ']'; expected end of input"},
        {"NoUtf8", "{\"calls\": [\"\xFF\"]}",
         "line 1, column 13: syntax error while parsing value - invalid string: ill-formed UTF-8 byte; last read: "
         "'\"\xFF'"},
        {"LoneSurrogate", "{\"calls\": [\"\\ud800\"]}",
         "line 1, column 19: syntax error while parsing value - invalid string: surrogate U+D800..U+DBFF must be "
         "followed by U+DC00..U+DFFF; last read: '\"\\ud800\"'"},
        {"DoubledKey", Calls(R"({"call": "addContour", "pointCount": 2, "pointCount": 3})"),
         "calls[0]: the key \"pointCount\" stands twice"},
        {"DoubledKeyInABlock",
         Calls(R"({"call": "addCutout"}, {"call": "addCutout", "block": {"pointCount": 2, )"
               R"("pointCount": 3}})"),
         "calls[1].block: the key \"pointCount\" stands twice"},
        {"DoubledCalls", "{\"calls\": [], \"calls\": []}", "the top object: the key \"calls\" stands twice"},
        {"DoubledKeyInADeepArray", "{\"calls\": [[], [[{}, {\"a\": 1, \"a\": 2}]]]}",
         "calls[1][0][1]: the key \"a\" stands twice"},
        // Half a million arrays in one another: refused at once, in little memory.
        {"DeepArrays", "{\"calls\": " + std::string(500000, '[') + std::string(500000, ']') + "}",
         "arrays and objects nest deeper than 256"},

        // The script's frame.
        {"TopLevelArray", "[]", "expected an object with \"calls\", found an array"},
        {"UnknownTopLevelKey", "{\"calls\": [], \"comment\": \"x\"}",
         "unknown key \"comment\" (a call script holds \"calls\" only)"},
        {"NoCalls", "{}", "the key \"calls\" is missing"},
        {"CallsNoArray", "{\"calls\": {}}", "key \"calls\": expected an array, found an object"},
        {"CallNoObject", Calls("[]"), "call 0: expected an object, found an array"},
        {"NoCallKey", Calls(R"({"path": "x"})"), "call 0: the key \"call\" is missing"},
        {"CallKeyNoString", Calls(R"({"call": 5})"), "call 0, key \"call\": expected a string, found a number"},
        {"UnknownCall", Calls(R"({"call": "startOrder"}, {"call": "addFoo"})"), "call 1: unknown call \"addFoo\""},
        {"FreeIsNoCall", Calls(R"({"call": "freeFullReinforcementString"})"),
         "call 0: freeFullReinforcementString is no call of a script: the tool gives every result of "
         "getFullReinforcementString back through it itself"},
        {"UnknownKey", Calls(R"({"call": "addContour", "pointcount": 2})"),
         "call 0 (addContour): unknown key \"pointcount\""},
        {"UnknownKeyInABlock", Calls(R"({"call": "addCutout", "block": {"name": "x"}})"),
         "call 0 (addCutout): unknown key \"block.name\""},
        {"UnknownKeyInASegment", Calls(R"({"call": "addFreeFormRodstock", "segments": [{}, {"len": 1}]})"),
         "call 0 (addFreeFormRodstock): unknown key \"segments[1].len\""},
        {"UnusedBytesAreNoKeys", Calls(R"({"call": "addStraightRodstock", "bar": {"unused52": [0, 0]}})"),
         "call 0 (addStraightRodstock): unknown key \"bar.unused52\""},

        // Kinds of values.
        {"IntegerAsString", Calls(R"({"call": "startOrder", "version": "600"})"),
         "call 0 (startOrder), key \"version\": expected an integer, found a string"},
        {"IntegerWithFraction", Calls(R"({"call": "startOrder", "version": 600.5})"),
         "call 0 (startOrder), key \"version\": 600.5 is not an integer"},
        {"NumberAsString", Calls(R"({"call": "startOrder", "elementMeasureArg": "1.25"})"),
         "call 0 (startOrder), key \"elementMeasureArg\": expected a number, found a string"},
        {"BooleanAsNumber", Calls(R"({"call": "startOrder", "clearDocument": 1})"),
         "call 0 (startOrder), key \"clearDocument\": expected true or false, found a number"},
        {"TextAsNumber", Calls(R"({"call": "startOrder", "elementTextArg": 5})"),
         "call 0 (startOrder), key \"elementTextArg\": expected a string, found a number"},
        {"TextAsNull", Calls(R"({"call": "endDocument", "path": null})"),
         "call 0 (endDocument), key \"path\": expected a string, found null"},
        {"TextWithU0000", Calls(R"({"call": "startOrder", "elementTextArg": "a\u0000b"})"),
         "call 0 (startOrder), key \"elementTextArg\": U+0000 cannot stand in a text: the export would end the text "
         "there"},
        {"TextsNoArray", Calls(R"({"call": "setProjectData", "texts": "x"})"),
         "call 0 (setProjectData), key \"texts\": expected an array of strings, found a string"},
        {"TextsEntryNoString", Calls(R"({"call": "setProjectData", "texts": ["a", 1]})"),
         "call 0 (setProjectData), key \"texts[1]\": expected a string, found a number"},
        {"TwentyTexts",
         Calls(R"({"call": "setProjectData", "texts": ["", "", "", "", "", "", "", "", "", "", "", "", "", "", "", )"
               R"("", "01.01.2026", "", "", ""]})"),
         "call 0 (setProjectData), key \"texts\": holds 20 texts; setProjectData takes at most 19"},
        {"IntegersNoArray", Calls(R"({"call": "addContour", "points": {}})"),
         "call 0 (addContour), key \"points\": expected an array of integers, found an object"},
        {"IntegersEntryAsString", Calls(R"({"call": "addContour", "points": [0, "1"]})"),
         "call 0 (addContour), key \"points[1]\": expected an integer, found a string"},
        {"PositionOfFour", Calls(R"({"call": "addSteelmat", "position": [1, 2, 3, 4]})"),
         "call 0 (addSteelmat), key \"position\": holds 4 integers; addSteelmat reads 3"},
        {"PlacementOfTen", Calls(R"({"call": "startOrder", "placement": [0, 0, 0, 0, 0, 0, 0, 0, 0, 0]})"),
         "call 0 (startOrder), key \"placement\": holds 10 numbers; startOrder reads 9"},
        {"PlacementEntryAsBoolean", Calls(R"({"call": "startOrder", "placement": [0, true]})"),
         "call 0 (startOrder), key \"placement[1]\": expected a number, found a boolean"},
        {"BlockNoObject", Calls(R"({"call": "addCutout", "block": []})"),
         "call 0 (addCutout), key \"block\": expected an object, found an array"},
        {"SegmentsNoArray", Calls(R"({"call": "addFreeFormRodstock", "segments": {}})"),
         "call 0 (addFreeFormRodstock), key \"segments\": expected an array of objects, found an object"},
        {"SegmentNoObject", Calls(R"({"call": "addFreeFormRodstock", "segments": [1]})"),
         "call 0 (addFreeFormRodstock), key \"segments[0]\": expected an object, found a number"},

        // Integers out of their C types.
        {"UInt16AboveItsRange", Calls(R"({"call": "startOrder", "orderValue": 65536})"),
         "call 0 (startOrder), key \"orderValue\": 65536 is out of range for uint16_t (0 to 65535)"},
        {"UInt16BelowItsRange", Calls(R"({"call": "addLayer", "layerKind": -1})"),
         "call 0 (addLayer), key \"layerKind\": -1 is out of range for uint16_t (0 to 65535)"},
        {"Int32AboveItsRange", Calls(R"({"call": "setDoubleWallGap", "doubleWallGap": 2147483648})"),
         "call 0 (setDoubleWallGap), key \"doubleWallGap\": 2147483648" + kOutOfInt32},
        {"Int32BelowItsRange", Calls(R"({"call": "setThicknesses", "secondThickness": -2147483649})"),
         "call 0 (setThicknesses), key \"secondThickness\": -2147483649" + kOutOfInt32},
        {"Int32FarAbove", Calls(R"({"call": "addExtIron", "ironCount": 18446744073709551615})"),
         "call 0 (addExtIron), key \"ironCount\": 18446744073709551615" + kOutOfInt32},
        {"Int32AsLargeNumber", Calls(R"({"call": "addSet", "setKind": 1e30})"),
         "call 0 (addSet), key \"setKind\": 1e+30" + kOutOfInt32},
        {"Int16InABlock", Calls(R"({"call": "addStraightRodstock", "bar": {"rotation": 32768}})"),
         "call 0 (addStraightRodstock), key \"bar.rotation\": 32768 is out of range for int16_t (-32768 to 32767)"},
        {"UInt8InABlock", Calls(R"({"call": "addFreeFormRodstock", "bar": {"bendingCode": 256}})"),
         "call 0 (addFreeFormRodstock), key \"bar.bendingCode\": 256 is out of range for uint8_t (0 to 255)"},
        {"UInt16InABlock", Calls(R"({"call": "addCutout", "block": {"pointCount": -1}})"),
         "call 0 (addCutout), key \"block.pointCount\": -1 is out of range for uint16_t (0 to 65535)"},
        {"ListEntry", Calls(R"({"call": "addContour", "points": [0, 0, 0, 2147483648]})"),
         "call 0 (addContour), key \"points[3]\": 2147483648" + kOutOfInt32},
        {"SegmentField", Calls(R"({"call": "addFreeFormRodstock", "segments": [{}, {"angle": 40000}]})"),
         "call 0 (addFreeFormRodstock), key \"segments[1].angle\": 40000 is out of range for int16_t (-32768 to "
         "32767)"},

        // Counts and lists.
        {"PointsNoWholePoints", Calls(R"({"call": "addContour", "points": [1, 2, 3]})"),
         "call 0 (addContour), key \"points\": 3 integers are no whole number of points (2 each), so no count "
         "follows from them"},
        {"CutoutPointsBeyondItsCount", Calls(R"({"call": "addCutout", "points": )" + Zeros(131072) + "}"),
         "call 0 (addCutout), key \"block.pointCount\": the 65536 points of \"points\" are more than uint16_t (0 to "
         "65535) holds"},
        {"SegmentsBeyondTheirCount", Calls(R"({"call": "addFreeFormRodstock", "segments": )" + Segments(65536) + "}"),
         "call 0 (addFreeFormRodstock), key \"bar.segmentCount\": the 65536 segments of \"segments\" are more than "
         "uint16_t (0 to 65535) holds"},
        {"PaddingTooLarge", Calls(R"({"call": "addContour", "pointCount": 600000, "points": [1, 2]})"),
         "call 0 (addContour), key \"pointCount\": 600000 points make addContour read 1200000 integers of "
         "\"points\", which holds 2: padding passes the 1000000 zeros a script may be padded with"},
        {"PaddingTooLargeInAll",
         Calls(R"({"call": "addContour", "pointCount": 300000}, {"call": "addContour", "pointCount": 300000})"),
         "call 1 (addContour), key \"pointCount\": 300000 points make addContour read 600000 integers of "
         "\"points\", which holds 0: padding passes the 1000000 zeros a script may be padded with"},
        {"PaddingOfTheLargestCount", Calls(R"({"call": "addSet", "setKind": 3, "valueCount": 2147483647})"),
         "call 0 (addSet), key \"valueCount\": 2147483647 values make addSet read 2147483650 integers of "
         "\"values\", which holds 0: padding passes the 1000000 zeros a script may be padded with"},

        // Values whose type fits but which the export cannot take.
        {"NoDate", Calls(R"({"call": "setProjectData", "texts": ["A1"]})"),
         "call 0 (setProjectData), key \"texts[16]\": setProjectData cannot read the date \"\" (invalid string "
         "position); write it as dd.mm.yyyy"},
        {"DateWithoutLeadingZeros",
         Calls(R"({"call": "setProjectData", "texts": ["", "", "", "", "", "", "", "", "", "", "", "", "", "", "", )"
               R"("", "1.2.2024"]})"),
         "call 0 (setProjectData), key \"texts[16]\": setProjectData cannot read the date \"1.2.2024\" (invalid "
         "stoi argument); write it as dd.mm.yyyy"},
        {"EndDocumentWithoutPath", Calls(R"({"call": "startOrder"}, {"call": "endDocument"})"),
         "call 1 (endDocument), key \"path\": no file name (give one, or -o FILE for the last endDocument)"},

        // A bad call behind good ones: the endDocument before it does not run.
        {"BadCallAfterADocument",
         Calls(R"({"call": "startOrder"}, {"call": "endDocument", "path": "out.txt"}, {"call": "addContour", )"
               R"("points": [0.5]})"),
         "call 2 (addContour), key \"points[0]\": 0.5 is not an integer"},
    };
}

class BadScripts : public testing::TestWithParam<BadScript> {};

TEST_P(BadScripts, AreRefusedWithTheirPlaceAndWriteNothing)
{
    const BadScript& bad = GetParam();
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(directory.Path(), bad.script);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, ToolError("s.json: " + bad.message));
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(FilesBelow(directory.Path()), std::vector<std::string>{"s.json"});
}

INSTANTIATE_TEST_SUITE_P(Script, BadScripts, testing::ValuesIn(AllBadScripts()),
                         [](const testing::TestParamInfo<BadScript>& bad) { return bad.param.name; });

} // namespace
} // namespace ItUnitechnik::Testing

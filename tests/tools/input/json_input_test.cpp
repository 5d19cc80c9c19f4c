// The JSON of the tool's input files: how deep arrays and objects may nest,
// the place a doubled key is told at, and numbers beyond a double.
#include "input/json_input.h"

#include "sub_command.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik::Tool {
namespace {

std::string Nested(std::size_t depth, char open, char close)
{
    return std::string(depth, open) + std::string(depth, close);
}

std::string MessageOf(const std::string& text)
{
    try {
        ParseJsonText(text);
    } catch (const BadInput& e) {
        return e.what();
    }
    return "read";
}

TEST(JsonInput, ArraysNestTheMostDeepAndNoDeeper)
{
    const nlohmann::json deepest = ParseJsonText(Nested(256, '[', ']'));
    const nlohmann::json* inner = &deepest;
    std::size_t depth = 1;
    while (!inner->empty()) {
        inner = &inner->at(0);
        ++depth;
    }
    EXPECT_TRUE(inner->is_array());
    EXPECT_EQ(depth, 256u);

    EXPECT_EQ(MessageOf(Nested(257, '[', ']')), "arrays and objects nest deeper than 256");
    EXPECT_EQ(MessageOf(Nested(500000, '[', ']')), "arrays and objects nest deeper than 256");
}

TEST(JsonInput, ObjectsCountAsArraysDo)
{
    std::string deepest;
    for (int i = 0; i < 255; ++i) {
        deepest += "{\"a\": ";
    }
    deepest += "{}" + std::string(255, '}');
    EXPECT_TRUE(ParseJsonText(deepest).is_object());
    EXPECT_EQ(MessageOf("[" + deepest + "]"), "arrays and objects nest deeper than 256");
}

TEST(JsonInput, DoubledKeyIsToldAtItsPlace)
{
    EXPECT_EQ(MessageOf(R"({"a": 1, "a": 2})"), "the top object: the key \"a\" stands twice");
    EXPECT_EQ(MessageOf(R"([0, {"b": 1, "b": 2}])"), "[1]: the key \"b\" stands twice");
    EXPECT_EQ(MessageOf(R"({"x": [5, [6], {"y": {"z": 1, "z": 1}}]})"), "x[2].y: the key \"z\" stands twice");
    EXPECT_EQ(MessageOf(R"({"x": [[], {}, {"c": 1}, {"c": 1, "c": 2}]})"), "x[3]: the key \"c\" stands twice");
}

TEST(JsonInput, NumberBeyondADoubleIsToldAtItsEnd)
{
    EXPECT_EQ(MessageOf("[-1e400]"), "line 1, column 7: number overflow parsing '-1e400'");
    EXPECT_EQ(MessageOf("[1,\n  2e400]"), "line 2, column 7: number overflow parsing '2e400'");
    EXPECT_EQ(ParseJsonText("[1e308]").at(0).get<double>(), 1e308);
}

} // namespace
} // namespace ItUnitechnik::Tool

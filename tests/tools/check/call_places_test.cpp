// Where each call of a script begins: the JSON parser keeps no places, so the
// check scans the text itself, through comments, strings and nested values.

#include "check/call_places.h"

#include <gtest/gtest.h>

namespace ItUnitechnik::Tool::Check {
namespace {

std::vector<std::pair<std::size_t, std::size_t>> Places(const std::string& text)
{
    std::vector<std::pair<std::size_t, std::size_t>> places;
    for (const Place& place : CallPlaces(text)) {
        places.emplace_back(place.line, place.column);
    }
    return places;
}

using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

TEST(CallPlaces, EachCallByItsFirstCharacter)
{
    const std::string text = "{\n"
                             "  \"calls\": [\n"
                             "    {\"call\": \"startOrder\", \"version\": 600},\n"
                             "    {\"call\": \"addContour\",\n"
                             "     \"points\": [0, 0, 10, 0]}, {\"call\": \"endDocument\", \"path\": \"a\"}\n"
                             "  ]\n"
                             "}\n";
    EXPECT_EQ(Places(text), (Pairs{{3, 5}, {4, 5}, {5, 32}}));
}

TEST(CallPlaces, CommentsStringsAndNestingDoNotMislead)
{
    const std::string text = "// {\"calls\": [ not this\n"
                             "{ /* \"calls\": [ nor this */\n"
                             "  \"calls\" /* here */ : [ // the calls\n"
                             "    {\"call\": \"setProjectData\", \"texts\": [\"a ] } [ {\", \"b \\\" ]\"]},\n"
                             "    /* {\"call\": \"skipped\"}, */\n"
                             "    {\"call\": \"addSet\", \"values\": [[1], {\"x\": [2]}]}\n"
                             "  ]\n"
                             "}";
    EXPECT_EQ(Places(text), (Pairs{{4, 5}, {6, 5}}));
}

TEST(CallPlaces, ColumnsCountCharactersNotBytes)
{
    // "Łódź" is four characters in seven bytes; a byte order mark is none.
    const std::string text =
        "\xEF\xBB\xBF{\"calls\": [{\"call\": \"addLayer\", \"layerName\": \"\xC5\x81\xC3\xB3\x64\xC5\xBA\"}, "
        "{\"call\": \"endDocument\"}]}";
    EXPECT_EQ(Places(text), (Pairs{{1, 12}, {1, 55}}));
}

TEST(CallPlaces, NoCallsNoPlaces)
{
    EXPECT_TRUE(Places("{\"calls\": []}").empty());
    EXPECT_TRUE(Places("[]").empty());
    EXPECT_TRUE(Places("").empty());
}

} // namespace
} // namespace ItUnitechnik::Tool::Check

// The forms of texts, characters, blanks and tags, on every sink; and the
// sinks of every test of the field forms, those of the numbers included.
#include "framework/field_forms.h"

#include "framework/field_forms_test_support.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik {
namespace {

using FieldFormsTesting::FieldFormsOn;
using FieldFormsTesting::Sink;
using FieldFormsTesting::SinkArchive;

std::string SinkName(const ::testing::TestParamInfo<Sink>& sink)
{
    switch (sink.param) {
    case Sink::stringBuffer:
        return "StringBuffer";
    case Sink::roomyArea:
        return "RoomyPutArea";
    case Sink::oneCharacterArea:
        return "OneCharacterPutArea";
    }
    return "";
}

INSTANTIATE_TEST_SUITE_P(Sinks, FieldFormsOn,
                         ::testing::Values(Sink::stringBuffer, Sink::roomyArea, Sink::oneCharacterArea), SinkName);

TEST_P(FieldFormsOn, TextPadsBehindAndCuts)
{
    EXPECT_EQ(Written(Text(8, L"AB")), L"AB      ");
    EXPECT_EQ(Written(Text(8, L"ABCDEFGHIJ")), L"ABCDEFGH");
    EXPECT_EQ(Written(Text(5, L"")), L"     ");
}

TEST_P(FieldFormsOn, TextLeavesLeftInForce)
{
    SinkArchive s(GetParam());
    s.archive << Text(3, L"A") << ZText(3, L"7");
    EXPECT_EQ(s.Text(), L"A  700");
}

TEST_P(FieldFormsOn, RTextPadsInFrontUnlessLeftIsInForce)
{
    EXPECT_EQ(Written(RText(8, L"AB")), L"      AB");
    EXPECT_EQ(Written(RText(5, L"")), L"     ");
    EXPECT_EQ(Written(RText(3, L"ABCD")), L"ABC");

    SinkArchive s(GetParam());
    s.archive << Text(2, L"X") << RText(4, L"AB") << RText(4, L"CD", Adjust::right);
    EXPECT_EQ(s.Text(), L"X AB    CD");
}

TEST_P(FieldFormsOn, RTextInternalLeftByAnSIntPadsInFront)
{
    SinkArchive s(GetParam());
    s.archive << SInt(2, 5) << RText(5, L"AB");
    EXPECT_EQ(s.Text(), L"+05   AB");
}

TEST_P(FieldFormsOn, ZTextFillsWithZeros)
{
    EXPECT_EQ(Written(ZText(3, L"7")), L"007");
    EXPECT_EQ(Written(ZText(5, L"")), L"00000");
    EXPECT_EQ(Written(ZText(3, L"12345")), L"123");
}

TEST_P(FieldFormsOn, ZTextWholeIsNotCut)
{
    EXPECT_EQ(Written(ZTextWhole(3, L"12345")), L"12345");
    EXPECT_EQ(Written(ZTextWhole(3, L"")), L"000");
    SinkArchive s(GetParam());
    s.archive << Text(1, L"") << ZTextWhole(3, L"7");
    EXPECT_EQ(s.Text(), L" 007");
}

TEST_P(FieldFormsOn, CharOneCharacterWithoutFill)
{
    SinkArchive s(GetParam());
    s.archive << Char(L'S') << Blank << Char(L'K');
    EXPECT_EQ(s.Text(), L"S K");
}

TEST_P(FieldFormsOn, BlanksWriteBlanksOnly)
{
    EXPECT_EQ(Written(Blank), L" ");
    EXPECT_EQ(Written(Blanks(3)), L"   ");
    EXPECT_EQ(Written(Blanks(0)), L"");
    EXPECT_EQ(Written(Blanks(-1)), L"");
}

TEST_P(FieldFormsOn, BlanksRunWithWidthZeroAfterAField)
{
    SinkArchive s(GetParam());
    s.archive << UInt(3, 1) << Blank << Literal("0") << Blanks(2) << Tag("END");
    EXPECT_EQ(s.Text(), L"001 0  END\n");
}

TEST_P(FieldFormsOn, TagLiteralThenLineEnd)
{
    EXPECT_EQ(Written(Tag("HEADER__")), L"HEADER__\n");
    EXPECT_EQ(Written(Tag("END HEADER__")), L"END HEADER__\n");
    EXPECT_EQ(Written(EndLine), L"\n");
}

} // namespace
} // namespace ItUnitechnik

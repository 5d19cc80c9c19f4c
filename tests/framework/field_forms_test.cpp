#include "framework/field_forms.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

template <class Form>
std::wstring Written(const Form& form)
{
    StringArchive s;
    s.archive << form;
    return s.Text();
}

TEST(TextForm, PadsBehindAndCuts)
{
    EXPECT_EQ(Written(Text(8, L"AB")), L"AB      ");
    EXPECT_EQ(Written(Text(8, L"ABCDEFGHIJ")), L"ABCDEFGH");
    EXPECT_EQ(Written(Text(5, L"")), L"     ");
}

TEST(TextForm, LeavesLeftInForce)
{
    StringArchive s;
    s.archive << Text(3, L"A") << ZText(3, L"7");
    EXPECT_EQ(s.Text(), L"A  700");
}

TEST(RTextForm, PadsInFrontUnlessLeftIsInForce)
{
    EXPECT_EQ(Written(RText(8, L"AB")), L"      AB");
    EXPECT_EQ(Written(RText(5, L"")), L"     ");
    EXPECT_EQ(Written(RText(3, L"ABCD")), L"ABC");

    StringArchive s;
    s.archive << Text(2, L"X") << RText(4, L"AB") << RText(4, L"CD", Adjust::right);
    EXPECT_EQ(s.Text(), L"X AB    CD");
}

TEST(RTextForm, InternalLeftByAnSIntPadsInFront)
{
    StringArchive s;
    s.archive << SInt(2, 5) << RText(5, L"AB");
    EXPECT_EQ(s.Text(), L"+05   AB");
}

TEST(ZTextForm, FillsWithZeros)
{
    EXPECT_EQ(Written(ZText(3, L"7")), L"007");
    EXPECT_EQ(Written(ZText(5, L"")), L"00000");
    EXPECT_EQ(Written(ZText(3, L"12345")), L"123");
}

TEST(ZTextWholeForm, IsNotCut)
{
    EXPECT_EQ(Written(ZTextWhole(3, L"12345")), L"12345");
    EXPECT_EQ(Written(ZTextWhole(3, L"")), L"000");
    StringArchive s;
    s.archive << Text(1, L"") << ZTextWhole(3, L"7");
    EXPECT_EQ(s.Text(), L" 007");
}

TEST(UIntForm, ZeroFilledWithSignBehindTheZeros)
{
    EXPECT_EQ(Written(UInt(5, 42)), L"00042");
    EXPECT_EQ(Written(UInt(5, -42)), L"00-42");
    EXPECT_EQ(Written(UInt(5, 1234567)), L"1234567");
    EXPECT_EQ(Written(UInt(3, 1000)), L"1000");
    EXPECT_EQ(Written(UInt(2, std::int16_t{7})), L"07");
    EXPECT_EQ(Written(UInt(3, std::uint8_t{1})), L"001");
}

TEST(UIntForm, DropsAPlusSignLeftByAnSInt)
{
    StringArchive s;
    s.archive << SInt(2, 1) << UInt(3, 4);
    EXPECT_EQ(s.Text(), L"+01004");
}

TEST(SIntForm, SignFirstThenDigits)
{
    EXPECT_EQ(Written(SInt(5, 42)), L"+00042");
    EXPECT_EQ(Written(SInt(5, -42)), L"-00042");
    EXPECT_EQ(Written(SInt(5, 0)), L"+00000");
    EXPECT_EQ(Written(SInt(2, 12345)), L"+12345");
}

TEST(RealForm, FixedPlacesAroundThePoint)
{
    EXPECT_EQ(Written(Real(4, 3, 12.5)), L"0012.500");
    EXPECT_EQ(Written(Real(4, 3, -12.5)), L"0-12.500");
    EXPECT_EQ(Written(Real(5, 0, 12.4)), L"000012");
    EXPECT_EQ(Written(Real(2, 3, 123.4567)), L"123.457");
    EXPECT_EQ(Written(Real(2, 3, -0.5)), L"-0.500");
    EXPECT_EQ(Written(Real(5, 1, 0.0)), L"00000.0");
}

TEST(RealForm, RoundsTheExactValueOfTheDouble)
{
    // 0.0625 is exact in binary: a tie at three places, rounded to even.
    EXPECT_EQ(Written(Real(1, 3, 0.0625)), L"0.062");
    EXPECT_EQ(Written(Real(1, 3, 0.1875)), L"0.188");
    // 2.675 is a little below its decimal text.
    EXPECT_EQ(Written(Real(1, 2, 2.675)), L"2.67");
    EXPECT_EQ(Written(Real(2, 3, 1.0005)), L"01.000");
}

TEST(RealForm, LeavesAPlusSignInForce)
{
    StringArchive s;
    s.archive << SInt(1, 1) << Real(1, 1, 2.5);
    EXPECT_EQ(s.Text(), L"+1+2.5");
}

TEST(HexForm, UpperCaseFullPatternThenBackToDecimal)
{
    EXPECT_EQ(Written(Hex(4, 255)), L"00FF");
    EXPECT_EQ(Written(Hex(4, -1)), L"FFFFFFFF");
    StringArchive s;
    s.archive << SInt(1, 1) << Hex(4, 10) << UInt(3, 10);
    EXPECT_EQ(s.Text(), L"+1000A010");
}

TEST(CharForm, OneCharacterWithoutFill)
{
    StringArchive s;
    s.archive << Char(L'S') << Blank << Char(L'K');
    EXPECT_EQ(s.Text(), L"S K");
}

TEST(BlankForms, WriteBlanksOnly)
{
    EXPECT_EQ(Written(Blank), L" ");
    EXPECT_EQ(Written(Blanks(3)), L"   ");
    EXPECT_EQ(Written(Blanks(0)), L"");
    EXPECT_EQ(Written(Blanks(-1)), L"");
}

TEST(BlankForms, RunWithWidthZeroAfterAField)
{
    StringArchive s;
    s.archive << UInt(3, 1) << Blank << Literal("0") << Blanks(2) << Tag("END");
    EXPECT_EQ(s.Text(), L"001 0  END\n");
}

TEST(TagForm, LiteralThenLineEnd)
{
    EXPECT_EQ(Written(Tag("HEADER__")), L"HEADER__\n");
    EXPECT_EQ(Written(Tag("END HEADER__")), L"END HEADER__\n");
    EXPECT_EQ(Written(EndLine), L"\n");
}

TEST(FieldForms, WidthIsUsedUpFlagsStay)
{
    StringArchive s;
    s.archive << UInt(4, 1);
    s.archive << 5;
    EXPECT_EQ(s.Text(), L"00015");
    EXPECT_EQ(s.archive.fill(), L'0');
    EXPECT_EQ(s.archive.width(), 0);
    EXPECT_TRUE(s.archive.flags() & std::ios_base::right);
}

} // namespace
} // namespace ItUnitechnik

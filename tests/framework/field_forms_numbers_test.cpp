// The forms of numbers, on every sink, and the state they leave the stream
// in; the sinks are those of field_forms_text_test.cpp.
#include "framework/field_forms.h"

#include "framework/field_forms_test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ios>
#include <locale>
#include <ostream>
#include <string>

namespace ItUnitechnik {
namespace {

using FieldFormsTesting::FieldFormsOn;
using FieldFormsTesting::SinkArchive;

TEST_P(FieldFormsOn, UIntZeroFilledWithSignBehindTheZeros)
{
    EXPECT_EQ(Written(UInt(5, 42)), L"00042");
    EXPECT_EQ(Written(UInt(5, -42)), L"00-42");
    EXPECT_EQ(Written(UInt(5, 1234567)), L"1234567");
    EXPECT_EQ(Written(UInt(3, 1000)), L"1000");
    EXPECT_EQ(Written(UInt(2, std::int16_t{7})), L"07");
    EXPECT_EQ(Written(UInt(3, std::uint8_t{1})), L"001");
}

TEST_P(FieldFormsOn, UIntEveryNumberOfDigits)
{
    // The digits are made two at a time: each count of digits, odd and even,
    // on both sides of a power of ten and of 32 bits.
    const struct {
        std::uint64_t value;
        const wchar_t* text;
    } cases[] = {
        {0, L"0"},
        {9, L"9"},
        {10, L"10"},
        {99, L"99"},
        {100, L"100"},
        {907, L"907"},
        {9999, L"9999"},
        {10000, L"10000"},
        {54321, L"54321"},
        {123456, L"123456"},
        {99999999, L"99999999"},
        {100000000, L"100000000"},
        {2147483647, L"2147483647"},
        {4294967295U, L"4294967295"},
        {4294967296ULL, L"4294967296"},
        {10000000000ULL, L"10000000000"},
        {18446744073709551615ULL, L"18446744073709551615"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(Written(UInt(1, one.value)), one.text);
    }
    EXPECT_EQ(Written(UInt(1, -2147483647 - 1)), L"-2147483648");
    EXPECT_EQ(Written(UInt(12, std::int64_t{-12345678901LL})), L"-12345678901");
    EXPECT_EQ(Written(SInt(12, std::int64_t{98765432109LL})), L"+098765432109");
}

TEST_P(FieldFormsOn, IntegersAtTheEdgesOfTheirWidth)
{
    // A number of the width's size gets its zeros with its digits; one digit
    // more, or a minus sign in an unsigned field, goes the longer way. Both
    // must give the inserter's characters.
    const struct {
        int width;
        std::int64_t value;
        const wchar_t* text;
    } unsignedCases[] = {
        {0, 5, L"5"},
        {1, 0, L"0"},
        {1, 7, L"7"},
        {1, 10, L"10"},
        {2, 5, L"05"},
        {2, 99, L"99"},
        {2, 100, L"100"},
        {3, 42, L"042"},
        {3, 999, L"999"},
        {3, 1000, L"1000"},
        {4, 7, L"0007"},
        {4, 9999, L"9999"},
        {4, 10000, L"10000"},
        {5, 42, L"00042"},
        {5, 99999, L"99999"},
        {5, 100000, L"100000"},
        {6, 123, L"000123"},
        {7, 9999999, L"9999999"},
        {8, 1, L"00000001"},
        {8, 99999999, L"99999999"},
        {8, 100000000, L"100000000"},
        {9, 0, L"000000000"},
        {9, 999999999, L"999999999"},
        {9, 1000000000, L"1000000000"},
        {10, 42, L"0000000042"},
        {10, 4294967295LL, L"4294967295"},
        {12, 4294967296LL, L"004294967296"},
        {3, -5, L"0-5"},
        {5, -42, L"00-42"},
        {5, -99999, L"-99999"},
    };
    for (const auto& one : unsignedCases) {
        SCOPED_TRACE(one.text);
        EXPECT_EQ(Written(UInt(one.width, one.value)), one.text);
        if (one.value >= INT32_MIN && one.value <= INT32_MAX) {
            EXPECT_EQ(Written(UInt(one.width, static_cast<std::int32_t>(one.value))), one.text);
        }
    }
    const struct {
        int width;
        std::int32_t value;
        const wchar_t* text;
    } signedCases[] = {
        {0, 5, L"+5"},
        {1, 9, L"+9"},
        {1, -10, L"-10"},
        {3, 0, L"+000"},
        {5, 42, L"+00042"},
        {5, -42, L"-00042"},
        {5, 99999, L"+99999"},
        {5, 100000, L"+100000"},
        {5, -100000, L"-100000"},
        {8, 12345678, L"+12345678"},
        {9, -999999999, L"-999999999"},
        {9, 1000000000, L"+1000000000"},
    };
    for (const auto& one : signedCases) {
        SCOPED_TRACE(one.text);
        EXPECT_EQ(Written(SInt(one.width, one.value)), one.text);
    }
    // Only a signed type shows a plus sign; a byte is a number.
    EXPECT_EQ(Written(SInt(4, 42U)), L"00042");
    EXPECT_EQ(Written(SInt(2, std::int8_t{-5})), L"-05");
    EXPECT_EQ(Written(UInt(3, std::uint8_t{200})), L"200");
    EXPECT_EQ(Written(UInt(4, std::int16_t{-32768})), L"-32768");
}

TEST_P(FieldFormsOn, UIntDropsAPlusSignLeftByAnSInt)
{
    SinkArchive s(GetParam());
    s.archive << SInt(2, 1) << UInt(3, 4);
    EXPECT_EQ(s.Text(), L"+01004");
}

TEST_P(FieldFormsOn, SIntSignFirstThenDigits)
{
    EXPECT_EQ(Written(SInt(5, 42)), L"+00042");
    EXPECT_EQ(Written(SInt(5, -42)), L"-00042");
    EXPECT_EQ(Written(SInt(5, 0)), L"+00000");
    EXPECT_EQ(Written(SInt(2, 12345)), L"+12345");
    // Only a signed type shows a plus sign.
    EXPECT_EQ(Written(SInt(5, 7U)), L"000007");
    EXPECT_EQ(Written(SInt(3, std::int64_t{-9223372036854775807LL - 1})), L"-9223372036854775808");
}

TEST_P(FieldFormsOn, RealFixedPlacesAroundThePoint)
{
    EXPECT_EQ(Written(Real(4, 3, 12.5)), L"0012.500");
    EXPECT_EQ(Written(Real(4, 3, -12.5)), L"0-12.500");
    EXPECT_EQ(Written(Real(5, 0, 12.4)), L"000012");
    EXPECT_EQ(Written(Real(2, 3, 123.4567)), L"123.457");
    EXPECT_EQ(Written(Real(2, 3, -0.5)), L"-0.500");
    EXPECT_EQ(Written(Real(5, 1, 0.0)), L"00000.0");
}

TEST_P(FieldFormsOn, RealRoundsTheExactValueOfTheDouble)
{
    // 0.0625 is exact in binary: a tie at three places, rounded to even.
    EXPECT_EQ(Written(Real(1, 3, 0.0625)), L"0.062");
    EXPECT_EQ(Written(Real(1, 3, 0.1875)), L"0.188");
    // 2.675 is a little below its decimal text.
    EXPECT_EQ(Written(Real(1, 2, 2.675)), L"2.67");
    EXPECT_EQ(Written(Real(2, 3, 1.0005)), L"01.000");
}

TEST_P(FieldFormsOn, RealLeavesAPlusSignInForce)
{
    SinkArchive s(GetParam());
    s.archive << SInt(1, 1) << Real(1, 1, 2.5);
    EXPECT_EQ(s.Text(), L"+1+2.5");
}

TEST_P(FieldFormsOn, HexUpperCaseFullPatternThenBackToDecimal)
{
    EXPECT_EQ(Written(Hex(4, 255)), L"00FF");
    EXPECT_EQ(Written(Hex(4, -1)), L"FFFFFFFF");
    // Every count of digits against the width, and the pattern of each type.
    EXPECT_EQ(Written(Hex(1, 0)), L"0");
    EXPECT_EQ(Written(Hex(4, 0)), L"0000");
    EXPECT_EQ(Written(Hex(4, 0x1F)), L"001F");
    EXPECT_EQ(Written(Hex(2, 0xABC)), L"ABC");
    EXPECT_EQ(Written(Hex(4, 0x10000)), L"10000");
    EXPECT_EQ(Written(Hex(8, 0x7FFFFFFF)), L"7FFFFFFF");
    EXPECT_EQ(Written(Hex(0, 0xDEADBEEFU)), L"DEADBEEF");
    EXPECT_EQ(Written(Hex(4, std::int16_t{-1})), L"FFFF");
    EXPECT_EQ(Written(Hex(4, std::int8_t{-1})), L"FFFFFFFF");
    EXPECT_EQ(Written(Hex(4, std::int64_t{-2})), L"FFFFFFFFFFFFFFFE");
    EXPECT_EQ(Written(Hex(3, std::uint64_t{0x123456789ABCDEF0ULL})), L"123456789ABCDEF0");
    SinkArchive s(GetParam());
    s.archive << SInt(1, 1) << Hex(4, 10) << UInt(3, 10);
    EXPECT_EQ(s.Text(), L"+1000A010");
    // Right behind a Hex, even one behind an SInt, the stream is decimal,
    // lower case, right-adjusted, with no plus sign and zero as its fill.
    SinkArchive behind(GetParam());
    std::wostream& stream = behind.archive;
    stream.setf(std::ios_base::uppercase);
    behind.archive << SInt(1, 1) << Hex(4, 10);
    EXPECT_EQ(behind.Text(), L"+1000A");
    EXPECT_EQ(stream.flags() & std::ios_base::basefield, std::ios_base::dec);
    EXPECT_EQ(stream.flags() & (std::ios_base::uppercase | std::ios_base::showpos), std::ios_base::fmtflags{});
    EXPECT_EQ(stream.flags() & std::ios_base::adjustfield, std::ios_base::right);
    EXPECT_EQ(stream.fill(), L'0');
    EXPECT_EQ(stream.width(), 0);
}

TEST_P(FieldFormsOn, FieldsWidthIsUsedUpFlagsStay)
{
    SinkArchive s(GetParam());
    s.archive << UInt(4, 1);
    s.archive << 5;
    EXPECT_EQ(s.Text(), L"00015");
    EXPECT_EQ(s.archive.fill(), L'0');
    EXPECT_EQ(s.archive.width(), 0);
    EXPECT_TRUE(s.archive.flags() & std::ios_base::right);
}

// A locale imbued later is the stream's own business: from then on the
// numbers go through its inserter, digit grouping and all, wherever they go.
struct ThousandsDots : std::numpunct<wchar_t> {
    wchar_t do_thousands_sep() const override { return L'.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST_P(FieldFormsOn, ALocaleImbuedLaterFormatsTheNumbers)
{
    SinkArchive s(GetParam());
    s.archive << UInt(3, 1234567);
    s.archive << Blank;
    s.archive.imbue(std::locale(std::locale::classic(), new ThousandsDots));
    s.archive << UInt(3, 1234567);
    s.archive << EndLine;
    EXPECT_EQ(s.Text(), L"1234567 1.234.567\n");
}

} // namespace
} // namespace ItUnitechnik

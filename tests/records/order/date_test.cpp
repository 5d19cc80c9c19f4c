#include "records/order/date.h"

#include "framework/archive.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

std::wstring Written(Date date)
{
    StringArchive s;
    EXPECT_TRUE(date.Write(s.archive));
    return s.Text();
}

Date Dated(std::int16_t version, std::int16_t day, std::int16_t month, std::int16_t year)
{
    Date date;
    date.version = version;
    date.day = day;
    date.month = month;
    date.year = year;
    return date;
}

TEST(DateWrite, FourDigitYearFrom502)
{
    EXPECT_EQ(Written(Dated(502, 7, 3, 2024)), L"07.03.2024");
    EXPECT_EQ(Written(Dated(600, 31, 12, 1999)), L"31.12.1999");
}

TEST(DateWrite, TwoDigitYearBelow502)
{
    EXPECT_EQ(Written(Dated(501, 7, 3, 24)), L"07.03.24");
    // The version sets the width; a number is never cut.
    EXPECT_EQ(Written(Dated(501, 7, 3, 2024)), L"07.03.2024");
}

TEST(DateWrite, DefaultAt502)
{
    EXPECT_EQ(Written(Date()), L"00.00.0000");
}

TEST(DateWrite, WritesNoLineEnd)
{
    StringArchive s;
    Dated(502, 1, 2, 2003).Write(s.archive);
    EXPECT_EQ(s.Text().find(L'\n'), std::wstring::npos);
}

TEST(DateRead, FourAndTwoDigitYears)
{
    Date date;
    StringArchive four(L"07.03.2024\n");
    EXPECT_TRUE(date.Read(four.archive));
    EXPECT_EQ(date.day, 7);
    EXPECT_EQ(date.month, 3);
    EXPECT_EQ(date.year, 2024);

    StringArchive two(L"07.03.24\nnext");
    EXPECT_TRUE(date.Read(two.archive));
    EXPECT_EQ(date.year, 24);
    // The line end stays in the stream.
    EXPECT_EQ(two.archive.peek(), L'\n');
}

TEST(DateRead, AnUnparsableTextDoesNotFailTheRead)
{
    Date date = Dated(502, 1, 1, 2001);
    StringArchive s(L"xx.yy.zzzz\n");
    EXPECT_TRUE(date.Read(s.archive));
}

TEST(DateFromText, ByPositionNotBySeparator)
{
    const Date dotted(L"31.12.2024", 502);
    EXPECT_EQ(dotted.day, 31);
    EXPECT_EQ(dotted.month, 12);
    EXPECT_EQ(dotted.year, 2024);
    EXPECT_EQ(dotted.version, 502);
    const Date slashed(L"31/12/2024", 600);
    EXPECT_EQ(slashed.day, 31);
    EXPECT_EQ(slashed.month, 12);
    EXPECT_EQ(slashed.year, 2024);
    EXPECT_EQ(slashed.version, 600);
}

TEST(DateFromText, MissingLeadingZerosGoWrongQuietly)
{
    const Date date(L"01.2.2024", 502);
    EXPECT_EQ(date.day, 1);
    EXPECT_EQ(date.month, 2);
    EXPECT_EQ(date.year, 24);
}

template <class Exception>
std::string Thrown(const std::wstring& text)
{
    try {
        Date date(text, 502);
    } catch (const Exception& e) {
        return e.what();
    } catch (...) {
        return "another exception";
    }
    return "nothing";
}

TEST(DateFromText, AMonthWithoutDigitsThrows)
{
    EXPECT_EQ(Thrown<std::invalid_argument>(L"1.2.2024"), "invalid stoi argument");
}

TEST(DateFromText, BlanksThrow)
{
    EXPECT_EQ(Thrown<std::invalid_argument>(L"  .  .    "), "invalid stoi argument");
}

TEST(DateFromText, AnEmptyYearThrows)
{
    EXPECT_EQ(Thrown<std::invalid_argument>(L"01.02."), "invalid stoi argument");
}

TEST(DateFromText, AShortTextThrowsOutOfRange)
{
    EXPECT_EQ(Thrown<std::out_of_range>(L"01.02"), "invalid string position");
    EXPECT_EQ(Thrown<std::out_of_range>(L"01"), "invalid string position");
    EXPECT_EQ(Thrown<std::out_of_range>(L""), "invalid string position");
}

TEST(DateFromText, TheYearIsConvertedFirst)
{
    // A bad day in a text too short for a year: the year is reported.
    EXPECT_EQ(Thrown<std::out_of_range>(L"xx.01"), "invalid string position");
    const Date signs(L"+1.-2. 024", 502);
    EXPECT_EQ(signs.day, 1);
    EXPECT_EQ(signs.month, -2);
    EXPECT_EQ(signs.year, 24);
}

} // namespace
} // namespace ItUnitechnik

// The lines of an order, version by version, and its copies.
#include "records/order/order.h"

#include "records/order/order_test_support.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using OrderTesting::Sample;
using OrderTesting::Written;
using Testing::Blanks;
using Testing::Lines;

// The lines between the identifying line and the date, as the sample fills them.
std::vector<std::wstring> SampleProjectAndAddresses()
{
    return {
        L"Tower A" + Blanks(13),
        Blanks(20),
        Blanks(20),
        Blanks(20),
        L"Precast Works" + Blanks(12),
        Blanks(25),
        Blanks(8),
        Blanks(25),
        Blanks(25),
        Blanks(25),
        Blanks(8),
        L"Site" + Blanks(21),
    };
}

TEST(OrderWrite, WholeRecordAt502)
{
    std::vector<std::wstring> expected = {
        L"HEADER__",
        L"502",
        L"ORD-1   "
        L"   "
        L"ABCDE"
        L" "
        L"WXYZ"
        L" "
        L"      R8"
        L" "
        L"07"
        L" "
        L"00"
        L" " +
            Blanks(40),
    };
    for (const std::wstring& line : SampleProjectAndAddresses()) {
        expected.push_back(line);
    }
    expected.push_back(L"07.03.2024");
    expected.push_back(L"0 00 000");
    expected.push_back(L"END");
    expected.push_back(L"END HEADER__");
    EXPECT_EQ(Lines(Written(Sample(502))), expected);
}

TEST(OrderWrite, WholeRecordAt600)
{
    std::vector<std::wstring> expected = {
        L"HEADER__",
        L"600",
        L"ORD-1" + Blanks(15) +
            L" "
            L"ABCDE"
            L" "
            L"WXYZ"
            L" "
            L"      R8"
            L" "
            L"07"
            L" "
            L"XY",
    };
    for (const std::wstring& line : SampleProjectAndAddresses()) {
        expected.push_back(line);
    }
    expected.push_back(L"07.03.2024");
    expected.push_back(L"forty" + Blanks(35));
    expected.push_back(L"0 00 000");
    expected.push_back(L"END");
    expected.push_back(L"END HEADER__");
    EXPECT_EQ(Lines(Written(Sample(600))), expected);
}

TEST(OrderWrite, IdentifyingLineAtEveryVersion)
{
    const std::wstring old = L"ORD-1   "
                             L"   "
                             L"ABCDE WXYZ       R8 07 00 " +
                             Blanks(40);
    const std::wstring middle = L"ORD-1   "
                                L"   "
                                L"ABCDE WXYZ       R8 07 XY";
    const std::wstring recent = L"ORD-1" + Blanks(15) + L" ABCDE WXYZ       R8 07 XY";
    const struct {
        std::int16_t version;
        std::wstring versionLine;
        std::wstring line;
        std::size_t length;
    } cases[] = {
        {0, L"000", old, 77},      {5, L"005", old, 77},      {499, L"499", old, 77},    {501, L"501", old, 77},
        {502, L"502", old, 77},    {503, L"503", middle, 36}, {599, L"599", middle, 36}, {600, L"600", recent, 46},
        {601, L"601", recent, 46}, {-1, L"0-1", old, 77},
    };
    for (const auto& c : cases) {
        const std::vector<std::wstring> lines = Lines(Written(Sample(c.version)));
        ASSERT_GT(lines.size(), 3u);
        EXPECT_EQ(lines[1], c.versionLine) << c.version;
        EXPECT_EQ(lines[2], c.line) << c.version;
        EXPECT_EQ(lines[2].size(), c.length) << c.version;
    }
}

TEST(OrderWrite, DateAndTextLineByVersion)
{
    Order order501 = Sample(501);
    order501.date.year = 24;
    const std::vector<std::wstring> at501 = Lines(Written(order501));
    EXPECT_EQ(at501[15], L"07.03.24");
    EXPECT_EQ(at501.size(), 19u);
    EXPECT_EQ(at501[16], L"0 00 000");

    const std::vector<std::wstring> at599 = Lines(Written(Sample(599)));
    EXPECT_EQ(at599[15], L"07.03.2024");
    EXPECT_EQ(at599[16], L"0 00 000");

    const std::vector<std::wstring> at601 = Lines(Written(Sample(601)));
    EXPECT_EQ(at601[16], L"forty" + Blanks(35));
}

TEST(OrderWrite, YearBelow502WithFourDigitsStaysWhole)
{
    Order order = Sample(0);
    order.date.year = 2024;
    EXPECT_EQ(Lines(Written(order))[15], L"07.03.2024");
    order.date.year = 24;
    EXPECT_EQ(Lines(Written(order))[15], L"07.03.24");
}

TEST(OrderWrite, TextsAreCutToTheirWidths)
{
    Order order = Sample(502);
    order.orderNumber = L"0123456789ABCDEFGHIJKLMN";
    order.orderText5 = L"ABCDEFG";
    order.orderText4 = L"ABCDEFG";
    order.orderText8 = L"ABCDEFGHIJ";
    order.legacyText2 = L"ABC";
    order.legacyText40 = L"L";
    EXPECT_EQ(Lines(Written(order))[2], L"01234567   ABCDE ABCD ABCDEFGH 07 AB" + Blanks(40) + L"L");
    order.version = 600;
    EXPECT_EQ(Lines(Written(order))[2], L"0123456789ABCDEFGHIJ ABCDE ABCD ABCDEFGH 07 XY");
}

TEST(OrderWrite, NumbersPushTheLineToTheRight)
{
    Order order = Sample(600);
    order.orderValue2 = 12345;
    order.version = 1234;
    const std::vector<std::wstring> lines = Lines(Written(order));
    EXPECT_EQ(lines[1], L"1234");
    EXPECT_EQ(lines[2], L"ORD-1" + Blanks(15) + L" ABCDE WXYZ       R8 12345 XY");
    EXPECT_EQ(lines[2].size(), 49u);
}

TEST(OrderWrite, EmptyOrderNumberIsBlanks)
{
    Order order = Sample(502);
    order.orderNumber.clear();
    EXPECT_EQ(Lines(Written(order))[2].substr(0, 11), Blanks(11));
}

TEST(OrderWrite, WithoutElementsTheCountLineIsFollowedByTheEndTags)
{
    const std::wstring text = Written(Order());
    const std::wstring tail = L"00.00.0000\n0 00 000\nEND\nEND HEADER__\n";
    ASSERT_GE(text.size(), tail.size());
    EXPECT_EQ(text.substr(text.size() - tail.size()), tail);
}

TEST(OrderWrite, ACopyKeepsTheDateVersionEqual)
{
    Order order = Sample(600);
    order.date.version = 1;
    Order copy(order);
    EXPECT_EQ(copy.date.version, 600);
    Order assigned;
    assigned = order;
    EXPECT_EQ(assigned.date.version, 600);
    {
        const auto& same = assigned; // assigned to itself
        assigned = same;
    }
    EXPECT_EQ(assigned.orderNumber, L"ORD-1");
    EXPECT_EQ(Order().date.version, 502);
}

} // namespace
} // namespace ItUnitechnik

// An order that holds an element: its count line, its writing and its
// reading, from what it wrote and from a file written by hand.
#include "records/element/element_part.h"

#include "records/element/element_part_test_support.h"
#include "records/order/order.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace ItUnitechnik {
namespace {

using ElementPartTesting::ElementLines;
using ElementPartTesting::ExpectCommonMembers;
using ElementPartTesting::Filled;
using Testing::Blanks;
using Testing::Joined;
using Testing::JoinLines;
using Testing::StringArchive;

TEST(OrderWithElement, ReadsBackWholeAt502And600)
{
    for (std::int16_t version : {std::int16_t{502}, std::int16_t{600}}) {
        Order order;
        order.version = version;
        order.date.version = version;
        order.orderNumber = L"ORD-77";
        order.Add(Filled(version));
        StringArchive out;
        ASSERT_TRUE(order.Write(out.archive));
        StringArchive in(out.Text());
        Order read;
        EXPECT_TRUE(read.Read(in.archive)) << version;
        ASSERT_EQ(read.elementParts.size(), 1u);
        ExpectCommonMembers(order.elementParts[0], read.elementParts[0]);
        EXPECT_EQ(read.orderNumber, L"ORD-77");
        // Written again, the read order gives the same text but where a field
        // does not survive.
        StringArchive again;
        read.Write(again.archive);
        if (version == 502) {
            EXPECT_EQ(again.Text(), out.Text());
        }
    }
}

TEST(OrderWithElement, CountLineAndPlaceOfTheElement)
{
    Order order;
    order.Add(ElementPart());
    StringArchive out;
    order.Write(out.archive);
    const std::wstring text = out.Text();
    EXPECT_NE(text.find(L"\n0 01 000\nEND\nSLABDATE\n502\n"), std::wstring::npos);
    EXPECT_EQ(text.substr(text.size() - 30), L"END\nEND SLABDATE\nEND HEADER__\n");
}

TEST(OrderWithElement, AFailingElementIsNotKept)
{
    Order order;
    order.Add(ElementPart());
    StringArchive out;
    order.Write(out.archive);
    std::wstring text = out.Text();
    text.replace(text.find(L"SLABDATE\n"), 9, L"SLABDATX\n");
    StringArchive in(text);
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_TRUE(read.elementParts.empty());
}

TEST(OrderWithElement, ReadsAFileWrittenByHand)
{
    StringArchive s(
        JoinLines(Joined(ElementLines({L"HEADER__",
                                       L"502",
                                       L"ORD-1" + Blanks(3) + L"   ABCDE WXYZ       R8 07 00 " + Blanks(40),
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
                                       L"07.03.2024",
                                       L"0 01 000",
                                       L"END",
                                       L"SLABDATE",
                                       L"502",
                                       L"012 0 00 00 00 000 000 000 000 00 00 0000",
                                       L"00.000 000 00          0.000 00000.0 0000 000 000 000 000 000 0000",
                                       L"000          0.000 00000.0 000          0.000 00000.0",
                                       L"00",
                                       L"00000 00000 +0000 +0000 +0000 +0000 0 00000 0 00000 000000 000000 +00 +00",
                                       L"00000 00000 00000 00000 00000 00000 00000 00000",
                                       Blanks(8) + L" " + Blanks(4) + L" 0000 0000 00 " + Blanks(30),
                                       L"000000 000000 000000 000000 000000 000000 000000 000000 000000",
                                       L"END"},
                                      true),
                         {L"END HEADER__"})));
    Order order;
    EXPECT_TRUE(order.Read(s.archive));
    EXPECT_EQ(order.version, 502);
    EXPECT_EQ(order.orderNumber, L"ORD-1");
    EXPECT_EQ(order.orderText8, L"      R8");
    EXPECT_EQ(order.orderValue2, 7);
    EXPECT_EQ(order.legacyText2, L"00");
    EXPECT_EQ(order.legacyText40, Blanks(40));
    EXPECT_EQ(order.secondAddress.addressText3, Blanks(8));
    EXPECT_EQ(order.date.year, 2024);
    ASSERT_EQ(order.elementParts.size(), 1u);
    EXPECT_EQ(order.elementParts[0].elementNumber, 12);
}

} // namespace
} // namespace ItUnitechnik

// An order read back from what it wrote and from files written by hand, with
// the faults a file can have.
#include "records/order/order.h"

#include "records/order/order_test_support.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace ItUnitechnik {
namespace {

using OrderTesting::Sample;
using OrderTesting::Written;
using Testing::Blanks;
using Testing::StringArchive;

// An order without elements reads all its lines back; its last tag test then
// finds the rest of the "END" line where the element records would have ended
// on a line of their own, so the read reports failure.
void ExpectMembersReadBack(std::int16_t version)
{
    Order written = Sample(version);
    written.orderNumber = L"AB";
    StringArchive in(Written(written));
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
    EXPECT_FALSE(in.archive.fail());
    EXPECT_EQ(read.version, version);
    EXPECT_EQ(read.date.version, version);
    EXPECT_EQ(read.orderNumber, L"AB");
    EXPECT_EQ(read.orderText5, L"ABCDE");
    EXPECT_EQ(read.orderText4, L"WXYZ");
    EXPECT_EQ(read.orderText8, L"      R8");
    EXPECT_EQ(read.orderValue2, 7);
    EXPECT_EQ(read.project.projectText1, L"Tower A" + Blanks(13));
    EXPECT_EQ(read.firstAddress.addressText1, L"Precast Works" + Blanks(12));
    EXPECT_EQ(read.secondAddress.addressText4, L"Site" + Blanks(21));
    EXPECT_EQ(read.date.day, 7);
    EXPECT_EQ(read.date.month, 3);
    EXPECT_EQ(read.date.year, 2024);
}

TEST(OrderRead, MembersReadBackAt502)
{
    ExpectMembersReadBack(502);
    Order written = Sample(502);
    written.legacyText2 = L"Q1";
    written.legacyText40 = L"legacy";
    StringArchive in(Written(written));
    Order read;
    read.Read(in.archive);
    EXPECT_EQ(read.legacyText2, L"Q1");
    EXPECT_EQ(read.legacyText40, Blanks(34) + L"legacy");
}

TEST(OrderRead, MembersReadBackAt600ButNotTheFortyText)
{
    ExpectMembersReadBack(600);
    StringArchive in(Written(Sample(600)));
    Order read;
    read.Read(in.archive);
    EXPECT_EQ(read.orderText2, L"XY");
    EXPECT_EQ(read.orderText40, L"");
}

TEST(OrderRead, AnOrderNumberOfOneCharacterComesBackEmpty)
{
    Order written = Sample(502);
    written.orderNumber = L"A";
    StringArchive in(Written(written));
    Order read;
    read.Read(in.archive);
    EXPECT_EQ(read.orderNumber, L"");

    written.orderNumber.clear();
    StringArchive blank(Written(written));
    read.Read(blank.archive);
    EXPECT_EQ(read.orderNumber, L"");
}

TEST(OrderRead, VersionsFrom503To599DoNotReadBack)
{
    StringArchive in(Written(Sample(503)));
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    // The reader takes the old layout: the two characters, then forty from
    // the next line, which is the project's first.
    EXPECT_EQ(read.legacyText2, L"XY");
    EXPECT_EQ(read.legacyText40, L"Tower A" + Blanks(13));
    EXPECT_EQ(read.project.projectText1, Blanks(20));
    EXPECT_NE(read.date.year, 2024);
}

TEST(OrderRead, AWrongFirstTagLeavesValidAndTheStream)
{
    StringArchive in(L"HEADER_X\n502\n");
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_TRUE(in.archive.valid);
    EXPECT_TRUE(in.archive.good());
    EXPECT_EQ(read.version, 502);
}

TEST(OrderRead, AWrongEndTagClearsValid)
{
    std::wstring text = Written(Sample(502));
    text.replace(text.find(L"\nEND\n"), 5, L"\nEND_\n");
    StringArchive in(text);
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
}

TEST(OrderRead, APrematureEndFails)
{
    const std::wstring text = Written(Sample(502));
    StringArchive in(text.substr(0, text.size() / 2));
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_EQ(read.orderNumber, L"ORD-1");
}

TEST(OrderRead, AFileOfVersion600WrittenByHand)
{
    StringArchive in(L"HEADER__\n"
                     L"600\n"
                     L"ORD-600" +
                     Blanks(13) +
                     L" ABCDE WXYZ       R8 07 XY\n"
                     L"Tower A" +
                     Blanks(13) + L"\n" + Blanks(20) + L"\n" + Blanks(20) + L"\n" +
                     L"P4\n"
                     L"Precast Works" +
                     Blanks(12) + L"\n" + Blanks(25) + L"\n" + L"D-12345 \n" + Blanks(25) + L"\n" + Blanks(25) + L"\n" +
                     Blanks(25) + L"\n" + Blanks(8) + L"\n" + L"Site" + Blanks(21) +
                     L"\n"
                     L"31.12.2023 behind  \n"
                     L"forty" +
                     Blanks(35) +
                     L"\n"
                     L"0 00 000\n"
                     L"END\n"
                     L"END HEADER__\n");
    Order read;
    // With no element the closing tag test meets the rest of the "END" line.
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
    EXPECT_FALSE(in.archive.fail());
    EXPECT_EQ(read.version, 600);
    EXPECT_EQ(read.date.version, 600);
    EXPECT_EQ(read.orderNumber, L"ORD-600");
    EXPECT_EQ(read.orderText5, L"ABCDE");
    EXPECT_EQ(read.orderText4, L"WXYZ");
    EXPECT_EQ(read.orderText8, L"      R8");
    EXPECT_EQ(read.orderValue2, 7);
    EXPECT_EQ(read.orderText2, L"XY");
    EXPECT_EQ(read.legacyText2, L"00");
    EXPECT_EQ(read.legacyText40, Blanks(40));
    EXPECT_EQ(read.project.projectText1, L"Tower A" + Blanks(13));
    EXPECT_EQ(read.project.projectText4, L"P4");
    EXPECT_EQ(read.firstAddress.addressText1, L"Precast Works" + Blanks(12));
    EXPECT_EQ(read.firstAddress.addressText3, L"D-12345 ");
    EXPECT_EQ(read.secondAddress.addressText4, L"Site" + Blanks(21));
    EXPECT_EQ(read.date.day, 31);
    EXPECT_EQ(read.date.month, 12);
    EXPECT_EQ(read.date.year, 2023);
    // What stands behind the date, trimmed; the line below it is passed over.
    EXPECT_EQ(read.orderText40, L"behind");
    EXPECT_TRUE(read.elementParts.empty());
}

TEST(OrderRead, AFileOfVersion501WithATwoDigitYear)
{
    StringArchive in(L"HEADER__\n"
                     L"501\n"
                     L"A1" +
                     Blanks(6) + L"   " + Blanks(5) + L" " + Blanks(4) + L" " + Blanks(8) + L" 00 Q1 " + Blanks(34) +
                     L"legacy\n" + Blanks(20) + L"\n" + Blanks(20) + L"\n" + Blanks(20) + L"\n" + Blanks(20) + L"\n" +
                     Blanks(25) + L"\n" + Blanks(25) + L"\n" + Blanks(8) + L"\n" + Blanks(25) + L"\n" + Blanks(25) +
                     L"\n" + Blanks(25) + L"\n" + Blanks(8) + L"\n" + Blanks(25) +
                     L"\n"
                     L"07.03.24\n"
                     L"0 00 000\n"
                     L"END\n");
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_EQ(read.version, 501);
    EXPECT_EQ(read.orderNumber, L"A1");
    EXPECT_EQ(read.orderText5, Blanks(5));
    EXPECT_EQ(read.orderText8, Blanks(8));
    EXPECT_EQ(read.orderValue2, 0);
    EXPECT_EQ(read.legacyText2, L"Q1");
    EXPECT_EQ(read.legacyText40, Blanks(34) + L"legacy");
    EXPECT_EQ(read.date.year, 24);
}

TEST(OrderRead, AnElementCountThatIsNoNumberFailsTheStream)
{
    StringArchive in(L"HEADER__\n"
                     L"502\n"
                     L"A1" +
                     Blanks(6) + L"   " + Blanks(5) + L" " + Blanks(4) + L" " + Blanks(8) + L" 00 00 " + Blanks(40) +
                     L"\n" + Blanks(20) + L"\n" + Blanks(20) + L"\n" + Blanks(20) + L"\n" + Blanks(20) + L"\n" +
                     Blanks(25) + L"\n" + Blanks(25) + L"\n" + Blanks(8) + L"\n" + Blanks(25) + L"\n" + Blanks(25) +
                     L"\n" + Blanks(25) + L"\n" + Blanks(8) + L"\n" + Blanks(25) +
                     L"\n"
                     L"07.03.2024\n"
                     L"0 xx 000\n"
                     L"END\n"
                     L"END HEADER__\n");
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_TRUE(in.archive.fail());
    EXPECT_FALSE(in.archive.valid);
    EXPECT_TRUE(read.elementParts.empty());
}

TEST(OrderRead, AnElementCountBeyondSixteenBitsEndsWithTheFile)
{
    // The count is a 32-bit number; the element loop must neither wrap nor
    // run on once the stream has failed.
    for (const wchar_t* count : {L"32768", L"65536", L"2147483647"}) {
        // An empty order of 502 as written, with the count put in.
        std::wstring text = Written(Sample(502));
        const std::wstring countLine = L"\n0 00 000\n";
        const std::size_t at = text.find(countLine);
        ASSERT_NE(at, std::wstring::npos);
        text.replace(at, countLine.size(), L"\n0 " + std::wstring(count) + L" 000\n");
        StringArchive in(text);
        Order read;
        EXPECT_FALSE(read.Read(in.archive));
        EXPECT_TRUE(in.archive.fail());
        EXPECT_TRUE(read.elementParts.empty());
    }
}

} // namespace
} // namespace ItUnitechnik

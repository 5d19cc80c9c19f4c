#include "records/order/order.h"

#include "framework/archive.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::Blanks;
using Testing::Lines;
using Testing::StringArchive;

Order Sample(std::int16_t version)
{
    Order order;
    order.version = version;
    order.date.version = version;
    order.orderNumber = L"ORD-1";
    order.orderText5 = L"ABCDE";
    order.orderText4 = L"WXYZ";
    order.orderText8 = L"R8";
    order.orderValue2 = 7;
    order.orderText2 = L"XY";
    order.orderText40 = L"forty";
    order.project.projectText1 = L"Tower A";
    order.firstAddress.addressText1 = L"Precast Works";
    order.secondAddress.addressText4 = L"Site";
    order.date.day = 7;
    order.date.month = 3;
    order.date.year = 2024;
    return order;
}

std::wstring Written(Order order)
{
    StringArchive s;
    EXPECT_TRUE(order.Write(s.archive));
    return s.Text();
}

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

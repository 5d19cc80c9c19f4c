#include "exports/document.h"

#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cwchar>
#include <memory>
#include <string>

namespace ItUnitechnik {
namespace {

using Testing::Blanks;
using Testing::FromHostText;
using Testing::HostText;
using Testing::StringArchive;

class SummaryStringTest : public ::testing::Test {
protected:
    void SetUp() override { theDocument.orders.clear(); }
    void TearDown() override { theDocument.orders.clear(); }

    static void Start(uint16_t version)
    {
        const double placement[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};
        startOrder(1, 1, placement, version, HostText(u"E"), 0.0, true);
    }
    static ElementPart& Element() { return theDocument.orders.back().elementParts.back(); }

    // A straight bar "B12" of 3000 by 12 at (50, 60, 25).
    static ItBarBlock StraightBar()
    {
        ItBarBlock bar{};
        bar.designation = HostText(u"B12");
        bar.rodKind = 1;
        bar.firstSize = 3000;
        bar.secondSize = 12;
        bar.positionX = 50;
        bar.positionY = 60;
        bar.positionZ = 25;
        return bar;
    }

    // The summary as a wide string; the block is given back.
    static std::wstring Summary()
    {
        it_char16* result = getFullReinforcementString();
        const std::wstring text = FromHostText(result);
        freeFullReinforcementString(result);
        return text;
    }

    // The five empty records of a fresh element of this version.
    static std::wstring EmptyRecords(const std::wstring& version, const std::wstring& partCount)
    {
        return L"MOUNPART\n" + version + L"\n" + partCount + L"\nEND\n" + L"RODSTOCK\n" + version + L"\n000\nEND\n" +
               L"BRGIRDER\n" + version + L"\n000\nEND\n" + L"REFORCEM\n" + version + L"\n" + Blanks(25) +
               L"0\nEND\nEND REFORCEM\n" + L"EXTIRON_\n" + version + L"\n000\nEND\n";
    }
};

TEST_F(SummaryStringTest, WithoutAnOrderTheResultIsTheEmptyConstant)
{
    it_char16* first = getFullReinforcementString();
    it_char16* second = getFullReinforcementString();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first[0], 0);
    // A constant, not a block: the same place each time.
    EXPECT_EQ(first, second);
    // Giving a constant back does nothing (the sanitizers would see a bad free).
    freeFullReinforcementString(first);
    freeFullReinforcementString(second);
    freeFullReinforcementString(nullptr);
}

TEST_F(SummaryStringTest, AnOrderWithoutAnElementGivesTheEmptyConstant)
{
    it_char16* empty = getFullReinforcementString();
    Start(600);
    theDocument.orders.back().elementParts.clear();
    EXPECT_EQ(getFullReinforcementString(), empty);
}

TEST_F(SummaryStringTest, AFreshElementGivesTheFiveEmptyRecords)
{
    Start(600);
    EXPECT_EQ(Summary(), EmptyRecords(L"600", L"000"));
    Start(502);
    EXPECT_EQ(Summary(), EmptyRecords(L"502", L"000"));
    // Below 502 the count of mounted parts has two places.
    Start(501);
    EXPECT_EQ(Summary(), EmptyRecords(L"501", L"00"));
}

TEST_F(SummaryStringTest, TwoCallsGiveTwoBlocksWithTheSameText)
{
    Start(600);
    it_char16* first = getFullReinforcementString();
    it_char16* second = getFullReinforcementString();
    EXPECT_NE(first, second);
    EXPECT_EQ(FromHostText(first), FromHostText(second));
    freeFullReinforcementString(first);
    freeFullReinforcementString(second);
}

TEST_F(SummaryStringTest, AReinforcedElementAt502)
{
    Start(502);
    const int32_t contour[] = {0, 0, 4000, 0, 4000, 2000, 0, 2000, 0, 0};
    addContour(5, contour);
    const int32_t part[] = {7, 8, 0, 0, 2000, 1500};
    addSet(3, HostText(u"Box"), 6, part);
    ItBarBlock bar = StraightBar();
    addStraightRodstock(&bar);
    const int32_t girder[] = {800, 4500, 100, 200, 30, 90, 5, 7, 1500, 12};
    addSet(5, HostText(u"KT 800"), 10, girder);
    const int32_t matPosition[] = {100, 200, 0};
    addSteelmat(HostText(u"MAT01"), 2400, 6000, 1, 0, 65537, matPosition);
    const int32_t barPosition[] = {10, 20, 0};
    addCFSRodstock(2, HostText(u"D10"), 2300, 10, 0, barPosition, 35, -90, HostText(u"Z"), 1, 0, 0, 0, 0);
    // A character above U+00FF is kept: nothing narrows the text here.
    addExtIron(2, 10, 1.5, HostText(u"B\u00fcgel \u03a9"));

    const std::wstring expected = L"MOUNPART\n"
                                  L"502\n"
                                  L"001\n"
                                  L"001 000 000 " +
                                  Blanks(10) + L" Box" + Blanks(37) +
                                  L"\n"
                                  L"03.000 007 008 0000 000 02000 01500 01\n"
                                  L"S 00000 00000 02000 01500 0000\n"
                                  L"END\n"
                                  L"RODSTOCK\n"
                                  L"502\n"
                                  L"001\n"
                                  L"001 000 1 B12 03000 012 00000 +00050 +00060 +00025 +000            0\n"
                                  L"000 000 000 00000 00000 00000 000\n"
                                  L"END\n"
                                  L"BRGIRDER\n"
                                  L"502\n"
                                  L"001\n"
                                  L"001 000 00800 KT 800     04500 +00100 +00200 +00030 +090 0\n"
                                  L"000 000 005 01.500 07 000 00012 000\n"
                                  L"END\n"
                                  L"REFORCEM\n"
                                  L"502\n" +
                                  Blanks(25) +
                                  L"1\n"
                                  L"END\n"
                                  L"STEELMAT\n"
                                  L"502\n"
                                  L"01 +00100 +00200 +00000 1 0                MAT01 02400 06000 1\n"
                                  L"END\n"
                                  L"RODSTOCK\n"
                                  L"502\n"
                                  L"001\n"
                                  L"001 000 2 D10 02300 010 00000 +00010 +00020 +00035 -090          Z 1\n"
                                  L"000 000 000 00000 00000 00000 000\n"
                                  L"END\n"
                                  L"BRGIRDER\n"
                                  L"502\n"
                                  L"000\n"
                                  L"END\n"
                                  L"END STEELMAT\n"
                                  L"END REFORCEM\n"
                                  L"EXTIRON_\n"
                                  L"502\n"
                                  L"001\n"
                                  L"001 02 00010 001.500 " +
                                  Blanks(23) +
                                  L"B\u00fcgel \u03a9\n"
                                  L"END\n";
    EXPECT_EQ(Summary(), expected);
}

// Thousands of bars: the text grows far past the first block and through
// the buffer's area many times over, and comes out whole.
TEST_F(SummaryStringTest, ALongTextComesOutWhole)
{
    Start(502);
    const int count = 3000;
    ItBarBlock bar = StraightBar();
    std::wstring bars;
    for (int i = 0; i < count; ++i) {
        bar.positionX = i;
        addStraightRodstock(&bar);
        wchar_t line[96];
        std::swprintf(line, 96, L"%03d 000 1 B12 03000 012 00000 +%05d +00060 +00025 +000            0\n", i + 1, i);
        bars += line;
        bars += L"000 000 000 00000 00000 00000 000\n";
    }
    const std::wstring expected = L"MOUNPART\n502\n000\nEND\n"
                                  L"RODSTOCK\n502\n3000\n" +
                                  bars + L"END\nBRGIRDER\n502\n000\nEND\nREFORCEM\n502\n" + Blanks(25) +
                                  L"0\nEND\nEND REFORCEM\nEXTIRON_\n502\n000\nEND\n";
    ASSERT_GT(expected.size(), std::size_t{4} * 64 * 1024);
    EXPECT_EQ(Summary(), expected);
}

TEST_F(SummaryStringTest, NothingOfTheOutlineIsInTheText)
{
    Start(600);
    const int32_t contour[] = {0, 0, 4000, 0, 4000, 2000};
    addContour(3, contour);
    ItCutoutBlock block{};
    block.cutoutName = HostText(u"Hole");
    block.pointCount = 2;
    const int32_t hole[] = {10, 10, 20, 20};
    addCutout(&block, hole);
    EXPECT_EQ(Summary(), EmptyRecords(L"600", L"000"));
}

TEST_F(SummaryStringTest, TheElementIsLeftAsItWas)
{
    Start(600);
    const int32_t matPosition[] = {1, 2, 3};
    addSteelmat(HostText(u"M"), 1, 2, 0, 0, 1, matPosition);
    addExtIron(1, 1, 1.0, HostText(u"I"));
    StringArchive before;
    ASSERT_TRUE(Element().Write(before.archive));
    Summary();
    StringArchive after;
    ASSERT_TRUE(Element().Write(after.archive));
    EXPECT_EQ(before.Text(), after.Text());
}

TEST_F(SummaryStringTest, AMountedPartThatCannotBeWrittenGivesItsErrorConstant)
{
    Start(600);
    MountingPart broken(600);
    broken.Add(GeoData(600, L'S', nullptr));
    Element().mountingPartData.parts.push_back(broken);
    it_char16* result = getFullReinforcementString();
    EXPECT_EQ(FromHostText(result), L"ERROR MOUNPART");
    // The same constant each time, and giving it back does nothing.
    EXPECT_EQ(getFullReinforcementString(), result);
    freeFullReinforcementString(result);
    EXPECT_EQ(FromHostText(getFullReinforcementString()), L"ERROR MOUNPART");
}

} // namespace
} // namespace ItUnitechnik

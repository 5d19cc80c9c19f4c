// The adders of the element's loose bars, straight and free-form, and the
// bytes of the bar block that they read.
#include "exports/document.h"

#include "exports/reinforcement_adders_test_support.h"
#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using ReinforcementAddersTesting::ReinforcementAddersTest;
using Testing::HostText;

TEST_F(ReinforcementAddersTest, StraightBarReadsOnlyItsCells)
{
    ItBarBlock block{};
    const std::u16string designation = u"BST500";
    const std::u16string extra = u"NOT READ";
    block.extraDesignation = HostText(extra.c_str());
    block.designation = HostText(designation.c_str());
    block.auxFourth = 11;
    block.auxFifth = 12;
    block.auxSixth = 7;
    block.thirdSize = 250;
    block.positionX = 100;
    block.positionY = -200;
    block.positionZ = 30;
    block.firstSize = 1200;
    block.secondSize = 12;
    block.rotation = -45;
    block.auxFirst = 13;
    block.segmentCount = 3;
    block.rodKind = 3;
    block.notMounted = 0;
    block.bendingCode = 2;
    addStraightRodstock(&block);

    ASSERT_EQ(Element().rodstockData.bars.size(), 1u);
    const Rodstock& bar = Element().rodstockData.bars[0];
    EXPECT_EQ(bar.extraDesignation, L"");
    EXPECT_EQ(bar.auxFourth, 0);
    EXPECT_EQ(bar.auxFifth, 0);
    EXPECT_EQ(bar.auxFirst, 0);
    EXPECT_FALSE(bar.mountFlag);
    EXPECT_EQ(bar.bendingKind, L'0');
    EXPECT_TRUE(bar.freeForm.parts.empty());
    EXPECT_EQ(LooseBarsText(), L"RODSTOCK\n"
                               L"600\n"
                               L"001\n"
                               L"001 000 3 BST500     01200 012 00250 +00100 -00200 +00030 -045            0\n"
                               L"000 000 000 00000 00000 00007 000\n"
                               L"END\n");
}

TEST_F(ReinforcementAddersTest, StraightBarsAreNumberedInTheElementsList)
{
    ItBarBlock block{};
    block.designation = HostText(u"A");
    addStraightRodstock(&block);
    addStraightRodstock(&block);
    ASSERT_EQ(Element().rodstockData.bars.size(), 2u);
    EXPECT_EQ(Element().rodstockData.bars[1].number, 2);
    EXPECT_EQ(Element().rodstockData.bars[1].version, 600);
}

class FreeFormTest : public ReinforcementAddersTest {
protected:
    static ItBarBlock Block(uint8_t bendingCode, uint16_t segmentCount)
    {
        ItBarBlock block{};
        block.extraDesignation = HostText(u"EX");
        block.designation = HostText(u"FF");
        block.auxFourth = 4;
        block.auxFifth = 5;
        block.auxSixth = 6;
        block.thirdSize = 3;
        block.positionX = 10;
        block.positionY = 20;
        block.positionZ = 30;
        block.firstSize = 100;
        block.secondSize = 8;
        block.rotation = 15;
        block.auxFirst = 1;
        block.segmentCount = segmentCount;
        block.rodKind = 2;
        block.notMounted = 0;
        block.bendingCode = bendingCode;
        return block;
    }

    // Entries of length 100, 200, ... and angle 10, 20, ... by position.
    static std::vector<ItFreeFormSegment> Entries(std::size_t count)
    {
        std::vector<ItFreeFormSegment> entries(count);
        for (std::size_t i = 0; i < count; ++i) {
            entries[i].length = static_cast<int32_t>(100 * (i + 1));
            entries[i].angle = static_cast<int16_t>(-10 * static_cast<int>(i + 1));
        }
        return entries;
    }

    static const Rodstock& Bar() { return Element().rodstockData.bars.back(); }
};

TEST_F(FreeFormTest, EveryCellIsRead)
{
    const ItBarBlock block = Block(0, 0);
    addFreeFormRodstock(&block, nullptr);
    const Rodstock& bar = Bar();
    EXPECT_EQ(bar.extraDesignation, L"EX");
    EXPECT_EQ(bar.designation, L"FF");
    EXPECT_EQ(bar.auxFourth, 4);
    EXPECT_EQ(bar.auxFifth, 5);
    EXPECT_EQ(bar.auxSixth, 6);
    EXPECT_EQ(bar.thirdSize, 3);
    EXPECT_EQ(bar.position, Point2d(10, 20));
    EXPECT_EQ(bar.positionZ, 30);
    EXPECT_EQ(bar.firstSize, 100);
    EXPECT_EQ(bar.secondSize, 8);
    EXPECT_EQ(bar.rotation, 15);
    EXPECT_EQ(bar.auxFirst, 1);
    EXPECT_EQ(bar.rodKind, 2);
    EXPECT_TRUE(bar.mountFlag);
    EXPECT_FALSE(bar.hasWeldingPoints);
    EXPECT_FALSE(bar.hasSpacers);
    EXPECT_EQ(bar.bendingKind, L'0');
}

TEST_F(FreeFormTest, TheMountByteIsNegated)
{
    ItBarBlock block = Block(0, 0);
    block.notMounted = 1;
    addFreeFormRodstock(&block, nullptr);
    EXPECT_FALSE(Bar().mountFlag);
}

TEST_F(FreeFormTest, SixEntriesMakeOnePart)
{
    const ItBarBlock block = Block(2, 6);
    const auto entries = Entries(6);
    addFreeFormRodstock(&block, entries.data());
    const BendingFormFree& form = Bar().freeForm;
    EXPECT_EQ(form.formCode, L"000");
    ASSERT_EQ(form.parts.size(), 1u);
    EXPECT_EQ(form.parts[0].partNumber, 1);
    ASSERT_EQ(form.parts[0].segments.size(), 6u);
    EXPECT_EQ(form.parts[0].segments[5].length, 600);
    EXPECT_EQ(form.parts[0].segments[5].angle, -60);
}

TEST_F(FreeFormTest, SevenEntriesMakeTwoPartsOfSixAndOne)
{
    const ItBarBlock block = Block(2, 7);
    const auto entries = Entries(7);
    addFreeFormRodstock(&block, entries.data());
    const BendingFormFree& form = Bar().freeForm;
    ASSERT_EQ(form.parts.size(), 2u);
    EXPECT_EQ(form.parts[0].segments.size(), 6u);
    EXPECT_EQ(form.parts[1].partNumber, 2);
    ASSERT_EQ(form.parts[1].segments.size(), 1u);
    EXPECT_EQ(form.parts[1].segments[0].length, 700);
    EXPECT_EQ(form.parts[1].segments[0].angle, -70);
    EXPECT_EQ(Bar().bendingKind, L'2');
}

TEST_F(FreeFormTest, TwelveEntriesMakeTwoFullParts)
{
    const ItBarBlock block = Block(2, 12);
    const auto entries = Entries(12);
    addFreeFormRodstock(&block, entries.data());
    const BendingFormFree& form = Bar().freeForm;
    ASSERT_EQ(form.parts.size(), 2u);
    EXPECT_EQ(form.parts[0].segments.size(), 6u);
    EXPECT_EQ(form.parts[1].segments.size(), 6u);
    EXPECT_EQ(form.parts[1].partNumber, 2);
}

TEST_F(FreeFormTest, NoEntriesMakeNoPart)
{
    const ItBarBlock block = Block(2, 0);
    addFreeFormRodstock(&block, nullptr);
    EXPECT_EQ(Bar().freeForm.formCode, L"000");
    EXPECT_TRUE(Bar().freeForm.parts.empty());
}

TEST_F(FreeFormTest, TheAngleIsSignExtendedFrom16Bits)
{
    const ItBarBlock block = Block(2, 1);
    ItFreeFormSegment entry{};
    entry.length = 1234;
    entry.angle = -90;
    addFreeFormRodstock(&block, &entry);
    EXPECT_EQ(Bar().freeForm.parts[0].segments[0].angle, -90);
}

TEST_F(FreeFormTest, SevenEntriesAsWritten)
{
    const ItBarBlock block = Block(2, 7);
    const auto entries = Entries(7);
    addFreeFormRodstock(&block, entries.data());
    EXPECT_EQ(LooseBarsText(), L"RODSTOCK\n"
                               L"600\n"
                               L"001\n"
                               L"001 000 2 FF         00100 008 00003 +00010 +00020 +00030 +015         EX 1\n"
                               L"001 000 000 00004 00005 00006 002\n"
                               L"000 02\n"
                               L"01 06 00100 -010 00200 -020 00300 -030 00400 -040 00500 -050 00600 -060\n"
                               L"02 01 00700 -070\n"
                               L"END\n");
}

TEST_F(FreeFormTest, CodeOneIgnoresTheEntries)
{
    const ItBarBlock block = Block(1, 3);
    const auto entries = Entries(3);
    addFreeFormRodstock(&block, entries.data());
    EXPECT_EQ(Bar().bendingKind, L'1');
    EXPECT_TRUE(Bar().freeForm.parts.empty());
    EXPECT_EQ(Bar().freeForm.formCode, L"");
    // Kind '1' writes the two coded forms, empty, and the angle.
    EXPECT_EQ(LooseBarsText(), L"RODSTOCK\n"
                               L"600\n"
                               L"001\n"
                               L"001 000 2 FF         00100 008 00003 +00010 +00020 +00030 +015         EX 1\n"
                               L"001 000 000 00004 00005 00006 001\n"
                               L"000 00000 00000 00000 00000 000 000 00000 00000 00000 00000 000 +000\n"
                               L"END\n");
}

TEST_F(FreeFormTest, CodeFiveIsWrittenAndBehavesAsNone)
{
    const ItBarBlock block = Block(5, 2);
    const auto entries = Entries(2);
    addFreeFormRodstock(&block, entries.data());
    EXPECT_EQ(Bar().bendingKind, L'5');
    EXPECT_TRUE(Bar().freeForm.parts.empty());
    EXPECT_EQ(LooseBarsText(), L"RODSTOCK\n"
                               L"600\n"
                               L"001\n"
                               L"001 000 2 FF         00100 008 00003 +00010 +00020 +00030 +015         EX 1\n"
                               L"001 000 000 00004 00005 00006 005\n"
                               L"END\n");
}

// The bar block as raw bytes: every byte the table does not list carries the
// marker, and the listed cells are written at their offsets.
std::vector<unsigned char> MarkedBlock(unsigned char marker, bool freeFormCells, const it_char16* designation,
                                       const it_char16* extra)
{
    std::vector<unsigned char> bytes(sizeof(ItBarBlock), marker);
    auto put = [&bytes](std::size_t offset, const void* value, std::size_t size) {
        std::memcpy(bytes.data() + offset, value, size);
    };
    const int32_t auxFourth = 44, auxFifth = 55, auxSixth = 66, thirdSize = 333;
    const int32_t x = -1200, y = 3400, z = 50;
    const uint16_t firstSize = 2000, secondSize = 14, auxFirst = 9, segmentCount = 2;
    const int16_t rotation = -180;
    const uint8_t rodKind = 7, notMounted = 0, bendingCode = 2;
    put(8, &designation, sizeof designation);
    put(24, &auxSixth, 4);
    put(28, &thirdSize, 4);
    put(32, &x, 4);
    put(36, &y, 4);
    put(40, &z, 4);
    put(44, &firstSize, 2);
    put(46, &secondSize, 2);
    put(48, &rotation, 2);
    put(56, &rodKind, 1);
    if (freeFormCells) {
        put(0, &extra, sizeof extra);
        put(16, &auxFourth, 4);
        put(20, &auxFifth, 4);
        put(50, &auxFirst, 2);
        put(54, &segmentCount, 2);
        put(57, &notMounted, 1);
        put(60, &bendingCode, 1);
    }
    return bytes;
}

// Two entries, each with its two unread bytes set to the marker.
std::vector<unsigned char> MarkedSegments(unsigned char marker)
{
    std::vector<unsigned char> bytes(2 * sizeof(ItFreeFormSegment), marker);
    const int32_t lengths[2] = {1500, 800};
    const int16_t angles[2] = {90, -45};
    for (std::size_t i = 0; i < 2; ++i) {
        std::memcpy(bytes.data() + 8 * i, &lengths[i], 4);
        std::memcpy(bytes.data() + 8 * i + 4, &angles[i], 2);
    }
    return bytes;
}

class BarBlockMarkerTest : public ReinforcementAddersTest, public ::testing::WithParamInterface<unsigned char> {};

TEST_P(BarBlockMarkerTest, UnlistedBytesDoNotReachTheFile)
{
    const std::u16string designation = u"BAR";
    const std::u16string extra = u"XTRA";
    const unsigned char marker = GetParam();

    // A straight bar reads none of the free-form cells either: they carry
    // the marker too.
    std::vector<unsigned char> straight = MarkedBlock(marker, false, HostText(designation.c_str()), nullptr);
    ItBarBlock straightBlock;
    std::memcpy(&straightBlock, straight.data(), sizeof straightBlock);
    addStraightRodstock(&straightBlock);

    std::vector<unsigned char> free = MarkedBlock(marker, true, HostText(designation.c_str()), HostText(extra.c_str()));
    std::vector<unsigned char> segmentBytes = MarkedSegments(marker);
    ItBarBlock freeBlock;
    std::memcpy(&freeBlock, free.data(), sizeof freeBlock);
    std::vector<ItFreeFormSegment> segments(2);
    std::memcpy(segments.data(), segmentBytes.data(), segmentBytes.size());
    addFreeFormRodstock(&freeBlock, segments.data());

    EXPECT_EQ(LooseBarsText(), L"RODSTOCK\n"
                               L"600\n"
                               L"002\n"
                               L"001 000 7 BAR        02000 014 00333 -01200 +03400 +00050 -180            0\n"
                               L"000 000 000 00000 00000 00066 000\n"
                               L"002 000 7 BAR        02000 014 00333 -01200 +03400 +00050 -180       XTRA 1\n"
                               L"009 000 000 00044 00055 00066 002\n"
                               L"000 01\n"
                               L"01 02 01500 +090 00800 -045\n"
                               L"END\n");
}

INSTANTIATE_TEST_SUITE_P(Markers, BarBlockMarkerTest, ::testing::Values(0x00, 0x5A, 0xA5, 0xFF));

} // namespace
} // namespace ItUnitechnik

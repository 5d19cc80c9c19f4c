// The list of bars: its record as written, and as read back and from files.
#include "records/reinforcement/rodstock.h"

#include "framework/read_idioms.h"
#include "records/reinforcement/rodstock_test_support.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using RodstockTesting::defaultFirstLine502;
using RodstockTesting::defaultSecondLine;
using RodstockTesting::FullBar;
using RodstockTesting::fullFirstLine;
using RodstockTesting::fullSecondLine;
using RodstockTesting::Written;
using Testing::StringArchive;

TEST(RodstockData, EmptyListWritesTagVersionZeroCountAndEnd)
{
    RodstockData data;
    EXPECT_EQ(Written(data), L"RODSTOCK\n502\n000\nEND\n");
}

TEST(RodstockData, EmptyListReadsBackEmpty)
{
    StringArchive s(L"RODSTOCK\n502\n000\nEND\n");
    RodstockData data;
    data.version = 600;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.version, 502);
    EXPECT_TRUE(data.bars.empty());
}

TEST(RodstockData, AppendNumbersAndHandsOnTheVersion)
{
    RodstockData data;
    Rodstock bar(600);
    bar.number = 17;
    data.appendRodstock(bar);
    EXPECT_EQ(bar.number, 1);
    EXPECT_EQ(bar.version, 502);
    bar.number = 40;
    data.appendRodstock(bar);
    EXPECT_EQ(bar.number, 2);
    ASSERT_EQ(data.bars.size(), 2u);
    EXPECT_EQ(data.bars[0].number, 1);
    EXPECT_EQ(data.bars[1].number, 2);
    EXPECT_EQ(data.bars[1].version, 502);
}

TEST(RodstockData, ListOfTwoBars)
{
    RodstockData data;
    data.version = 600;
    Rodstock bar = FullBar();
    data.appendRodstock(bar);
    Rodstock plain(600);
    data.appendRodstock(plain);
    EXPECT_EQ(Written(data), L"RODSTOCK\n600\n002\n" + fullFirstLine + L"\n" + fullSecondLine + L"\n" +
                                 L"002 000 0            00000 000 00000 +00000 +00000 +00000 +000 " + L"          " +
                                 L" 0\n" + defaultSecondLine + L"\n" + L"END\n");
}

TEST(RodstockData, EmptySpacerListLeavesAnEmptyLine)
{
    RodstockData data;
    Rodstock bar(502);
    bar.hasSpacers = true;
    data.appendRodstock(bar);
    EXPECT_EQ(Written(data),
              L"RODSTOCK\n502\n001\n" + std::wstring(L"001 000 0     00000 000 00000 +00000 +00000 +00000 +000 ") +
                  L"          " + L" 0\n" + L"000 000 000 00000 00000 00000 010\n" + L"000 000\n" + L"\n" + L"END\n");
}

TEST(RodstockData, EmptyCodeAndExtraDesignationReadBackFilled)
{
    RodstockData data;
    Rodstock bar(502);
    bar.code = L"";
    data.appendRodstock(bar);
    StringArchive out;
    ASSERT_TRUE(data.Write(out.archive));

    StringArchive in(out.Text());
    RodstockData back;
    EXPECT_TRUE(back.Read(in.archive));
    ASSERT_EQ(back.bars.size(), 1u);
    EXPECT_EQ(back.bars[0].code, L"000");
    EXPECT_EQ(back.bars[0].designation, L"   ");
    EXPECT_EQ(back.bars[0].extraDesignation, L"          ");
    EXPECT_EQ(back.bars[0].bendingKind, L'0');
}

TEST(RodstockData, ReadsEveryFieldOfABarAt600)
{
    StringArchive s(L"RODSTOCK\n600\n001\n" + fullFirstLine + L"\n" + fullSecondLine + L"\nEND\n");
    RodstockData data;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.version, 600);
    ASSERT_EQ(data.bars.size(), 1u);
    const Rodstock& bar = data.bars[0];
    EXPECT_EQ(bar.version, 600);
    EXPECT_EQ(bar.number, 1);
    EXPECT_EQ(bar.code, L"007");
    EXPECT_EQ(bar.rodKind, 2);
    EXPECT_EQ(bar.designation, L"ABCDE     ");
    EXPECT_EQ(bar.firstSize, 1200);
    EXPECT_EQ(bar.secondSize, 12);
    EXPECT_EQ(bar.thirdSize, 300);
    EXPECT_EQ(bar.position.x, 150);
    EXPECT_EQ(bar.position.y, -20);
    EXPECT_EQ(bar.positionZ, 40);
    EXPECT_EQ(bar.rotation, -90);
    EXPECT_EQ(bar.extraDesignation, L"        XY");
    EXPECT_TRUE(bar.mountFlag);
    EXPECT_EQ(bar.auxFirst, 5);
    EXPECT_EQ(bar.auxFourth, 100);
    EXPECT_EQ(bar.auxFifth, 200);
    EXPECT_EQ(bar.auxSixth, 300);
    EXPECT_FALSE(bar.hasWeldingPoints);
    EXPECT_FALSE(bar.hasSpacers);
    EXPECT_EQ(bar.bendingKind, L'0');
}

TEST(RodstockData, DesignationIsReadThreeWideBelow600)
{
    StringArchive s(L"RODSTOCK\n502\n001\n"
                    L"003 000 1 ABC 00000 000 00000 +00000 +00000 +00000 +000            0\n"
                    L"000 000 000 00000 00000 00000 000\n"
                    L"END\n");
    RodstockData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.bars.size(), 1u);
    EXPECT_EQ(data.bars[0].version, 502);
    EXPECT_EQ(data.bars[0].number, 3);
    EXPECT_EQ(data.bars[0].rodKind, 1);
    EXPECT_EQ(data.bars[0].designation, L"ABC");
}

TEST(RodstockData, FormsAndSpacersReadBack)
{
    RodstockData data;
    Rodstock bar(502);
    bar.applyFlagsCode(10);
    bar.firstForm.formCode = L"21";
    bar.firstForm.formValueB = 250;
    bar.secondForm.formValueE = 90;
    bar.formAngle = -45;
    bar.spacers.spacerCode = 3;
    SpacerPosition position;
    position.value2 = 77;
    bar.spacers.positions.push_back(position);
    data.appendRodstock(bar);
    Rodstock free(502);
    free.bendingKind = L'2';
    std::vector<BendingFormSegment> entries;
    for (int i = 1; i <= 7; ++i) {
        entries.emplace_back(i * 100, -i);
    }
    free.freeForm.buildFromSegments(entries);
    data.appendRodstock(free);
    StringArchive out;
    ASSERT_TRUE(data.Write(out.archive));

    StringArchive in(out.Text());
    RodstockData back;
    EXPECT_TRUE(back.Read(in.archive));
    ASSERT_EQ(back.bars.size(), 2u);
    const Rodstock& formed = back.bars[0];
    EXPECT_TRUE(formed.hasSpacers);
    EXPECT_FALSE(formed.hasWeldingPoints);
    EXPECT_EQ(formed.bendingKind, L'1');
    EXPECT_EQ(formed.firstForm.formCode, L"021");
    EXPECT_EQ(formed.firstForm.formValueB, 250);
    EXPECT_EQ(formed.secondForm.formCode, L"000");
    EXPECT_EQ(formed.secondForm.formValueE, 90);
    EXPECT_EQ(formed.formAngle, -45);
    EXPECT_EQ(formed.spacers.spacerCode, 3);
    ASSERT_EQ(formed.spacers.positions.size(), 1u);
    EXPECT_EQ(formed.spacers.positions[0].value2, 77);
    const Rodstock& freeBack = back.bars[1];
    EXPECT_EQ(freeBack.number, 2);
    EXPECT_EQ(freeBack.bendingKind, L'2');
    EXPECT_EQ(freeBack.freeForm.formCode, L"000");
    ASSERT_EQ(freeBack.freeForm.parts.size(), 2u);
    ASSERT_EQ(freeBack.freeForm.parts[1].segments.size(), 1u);
    EXPECT_EQ(freeBack.freeForm.parts[1].segments[0].length, 700);
    EXPECT_EQ(freeBack.freeForm.parts[1].segments[0].angle, -7);
}

TEST(RodstockData, UnknownBendingKindReadsAsNoBendingData)
{
    StringArchive s(L"RODSTOCK\n502\n001\n" + defaultFirstLine502 + L"\n" +
                    L"000 000 000 00000 00000 00000 005\nEND\n");
    RodstockData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.bars.size(), 1u);
    EXPECT_EQ(data.bars[0].bendingKind, L'5');
    EXPECT_TRUE(data.bars[0].freeForm.parts.empty());
}

TEST(RodstockData, BarWithWeldingPointsDoesNotReadBack)
{
    RodstockData data;
    Rodstock bar(502);
    bar.applyFlagsCode(100);
    data.appendRodstock(bar);
    StringArchive out;
    ASSERT_TRUE(data.Write(out.archive));

    StringArchive in(out.Text());
    RodstockData back;
    EXPECT_FALSE(back.Read(in.archive));
    EXPECT_TRUE(back.bars.empty());
}

TEST(RodstockData, WrongTagClearsValid)
{
    StringArchive s(L"BRGIRDER\n502\n000\nEND\n");
    RodstockData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(RodstockData, WrongClosingTokenClearsValid)
{
    StringArchive s(L"RODSTOCK\n502\n000\nBRGIRDER\n");
    RodstockData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(RodstockData, FailedBarIsNotKeptAndTheLoopRunsOut)
{
    StringArchive s(L"RODSTOCK\n502\n002\n"
                    L"001 000 0     0XXXX\n"
                    L"END\n");
    RodstockData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(data.bars.empty());
}

TEST(RodstockData, ReadsABarWithTwoFormsSpacersAndWeldingPointsFromAFile)
{
    // The welding head is written with blanks around its flag, as a file
    // must have it to read.
    StringArchive s(L"RODSTOCK\n502\n001\n"
                    L"001 007 2 ABC 01200 012 00300 +00150 -00020 +00040 -090         XY 1\n"
                    L"005 000 000 00100 00200 00300 111\n"
                    L"021 00000 00250 00000 00000 000 000 00000 00000 00000 00000 090 -045\n"
                    L"003 001\n"
                    L"00001 00002 00003 00004 00005 00006 00007 00008 00009 00010\n"
                    L"000 000 000 A 0 001\n"
                    L"00001 002 00003 004 00005 006 00007 008 00009 010 00011 012 00013 014 00015 016\n"
                    L"END\n"
                    L"NEXT");
    RodstockData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.bars.size(), 1u);
    const Rodstock& bar = data.bars[0];
    EXPECT_EQ(bar.version, 502);
    EXPECT_EQ(bar.number, 1);
    EXPECT_EQ(bar.code, L"007");
    EXPECT_EQ(bar.rodKind, 2);
    EXPECT_EQ(bar.designation, L"ABC");
    EXPECT_EQ(bar.firstSize, 1200);
    EXPECT_EQ(bar.secondSize, 12);
    EXPECT_EQ(bar.thirdSize, 300);
    EXPECT_EQ(bar.position, Point2d(150, -20));
    EXPECT_EQ(bar.positionZ, 40);
    EXPECT_EQ(bar.rotation, -90);
    EXPECT_EQ(bar.extraDesignation, L"        XY");
    EXPECT_TRUE(bar.mountFlag);
    EXPECT_EQ(bar.auxFirst, 5);
    EXPECT_EQ(bar.auxSixth, 300);
    EXPECT_TRUE(bar.hasWeldingPoints);
    EXPECT_TRUE(bar.hasSpacers);
    EXPECT_EQ(bar.bendingKind, L'1');
    EXPECT_EQ(bar.firstForm.formCode, L"021");
    EXPECT_EQ(bar.firstForm.formValueB, 250);
    EXPECT_EQ(bar.secondForm.formCode, L"000");
    EXPECT_EQ(bar.secondForm.formValueE, 90);
    EXPECT_EQ(bar.formAngle, -45);
    EXPECT_EQ(bar.spacers.spacerCode, 3);
    ASSERT_EQ(bar.spacers.positions.size(), 1u);
    EXPECT_EQ(bar.spacers.positions[0].value1, 1);
    EXPECT_EQ(bar.spacers.positions[0].value10, 10);
    EXPECT_EQ(bar.weldingPoints.weldLetter, L'A');
    EXPECT_FALSE(bar.weldingPoints.weldFlag);
    ASSERT_EQ(bar.weldingPoints.points.size(), 1u);
    EXPECT_EQ(bar.weldingPoints.points[0].intersections[7].offset, 15);
    EXPECT_EQ(bar.weldingPoints.points[0].intersections[7].weldCode, 16);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(RodstockData, ReadsABarWithAFreeFormFromAFileAt600)
{
    StringArchive s(L"RODSTOCK\n600\n001\n"
                    L"002 000 0 BAR10      00000 000 00000 +00000 +00000 +00000 +000            0\n"
                    L"000 000 000 00000 00000 00000 002\n"
                    L"000 02\n"
                    L"01 02 00100 +090 00200 -045\n"
                    L"02 01 00300 +000\n"
                    L"END\n");
    RodstockData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.bars.size(), 1u);
    const Rodstock& bar = data.bars[0];
    EXPECT_EQ(bar.version, 600);
    EXPECT_EQ(bar.number, 2);
    EXPECT_EQ(bar.designation, L"BAR10     ");
    EXPECT_EQ(bar.extraDesignation, Testing::Blanks(10));
    EXPECT_FALSE(bar.hasSpacers);
    EXPECT_EQ(bar.bendingKind, L'2');
    EXPECT_EQ(bar.freeForm.formCode, L"000");
    ASSERT_EQ(bar.freeForm.parts.size(), 2u);
    EXPECT_EQ(bar.freeForm.parts[0].partNumber, 1);
    ASSERT_EQ(bar.freeForm.parts[0].segments.size(), 2u);
    EXPECT_EQ(bar.freeForm.parts[0].segments[1].length, 200);
    EXPECT_EQ(bar.freeForm.parts[0].segments[1].angle, -45);
    EXPECT_EQ(bar.freeForm.parts[1].partNumber, 2);
    ASSERT_EQ(bar.freeForm.parts[1].segments.size(), 1u);
    EXPECT_EQ(bar.freeForm.parts[1].segments[0].length, 300);
}

TEST(RodstockData, ACountOfBarsTooHighFailsTheStream)
{
    StringArchive s(L"RODSTOCK\n502\n002\n"
                    L"001 000 0     00000 000 00000 +00000 +00000 +00000 +000            0\n"
                    L"000 000 000 00000 00000 00000 000\n"
                    L"END\n");
    RodstockData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(s.archive.fail());
    EXPECT_EQ(data.bars.size(), 1u);
}

TEST(RodstockData, ACountOfBarsTooLowClearsValidAtTheNextBar)
{
    StringArchive s(L"RODSTOCK\n502\n000\n"
                    L"001 000 0     00000 000 00000 +00000 +00000 +00000 +000            0\n"
                    L"000 000 000 00000 00000 00000 000\n"
                    L"END\n");
    RodstockData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_TRUE(data.bars.empty());
}

} // namespace
} // namespace ItUnitechnik

#include "records/reinforcement/rodstock.h"

#include "framework/read_idioms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

// The first line of a bar with default members at a version below 600, field
// by field: number, code, rodKind, blank, designation (3 places), blank,
// sizes, positions, rotation, blank, extraDesignation (10 places), blank,
// mountFlag.
const std::wstring defaultFirstLine502 = L"000 000 0 "
                                         L"   "
                                         L" 00000 000 00000 +00000 +00000 +00000 +000 "
                                         L"          "
                                         L" 0";
// The same from 600 on, with a designation of 10 places.
const std::wstring defaultFirstLine600 = L"000 000 0 "
                                         L"          "
                                         L" 00000 000 00000 +00000 +00000 +00000 +000 "
                                         L"          "
                                         L" 0";
// aux fields, then the flags 0, 0 and the bending kind '0'.
const std::wstring defaultSecondLine = L"000 000 000 00000 00000 00000 000";

std::wstring Written(Serializable& record)
{
    StringArchive s;
    EXPECT_TRUE(record.Write(s.archive));
    return s.Text();
}

// A bar of version 600 with every field of its two lines set.
Rodstock FullBar()
{
    Rodstock bar(600);
    bar.number = 1;
    bar.code = L"7";
    bar.rodKind = 2;
    bar.designation = L"ABCDE";
    bar.firstSize = 1200;
    bar.secondSize = 12;
    bar.thirdSize = 300;
    bar.position = Point2d(150, -20);
    bar.positionZ = 40;
    bar.rotation = -90;
    bar.extraDesignation = L"XY";
    bar.mountFlag = true;
    bar.auxFirst = 5;
    bar.auxFourth = 100;
    bar.auxFifth = 200;
    bar.auxSixth = 300;
    return bar;
}

const std::wstring fullFirstLine = L"001 007 2 "
                                   L"ABCDE     "
                                   L" 01200 012 00300 +00150 -00020 +00040 -090 "
                                   L"        XY"
                                   L" 1";
const std::wstring fullSecondLine = L"005 000 000 00100 00200 00300 000";

TEST(Rodstock, DefaultsOfABar)
{
    Rodstock bar(503);
    EXPECT_EQ(bar.version, 503);
    EXPECT_EQ(bar.number, 0);
    EXPECT_EQ(bar.code, L"000");
    EXPECT_EQ(bar.bendingKind, L'0');
    EXPECT_FALSE(bar.hasSpacers);
    EXPECT_FALSE(bar.hasWeldingPoints);
    EXPECT_EQ(bar.spacers.spacerCode, 0);
    EXPECT_EQ(bar.weldingPoints.weldValueA, 0);
    EXPECT_EQ(bar.weldingPoints.weldLetter, L'0');
}

TEST(Rodstock, DefaultBarAt502HasTwoLines)
{
    Rodstock bar(502);
    EXPECT_EQ(defaultFirstLine502.size(), 68u); // 10 + 3 + 43 + 10 + 2
    EXPECT_EQ(Written(bar), defaultFirstLine502 + L"\n" + defaultSecondLine);
}

TEST(Rodstock, DefaultBarAt600HasTheWideDesignation)
{
    Rodstock bar(600);
    EXPECT_EQ(Written(bar), defaultFirstLine600 + L"\n" + defaultSecondLine);
}

TEST(Rodstock, EveryFieldOfTheTwoLines)
{
    Rodstock bar = FullBar();
    EXPECT_EQ(Written(bar), fullFirstLine + L"\n" + fullSecondLine);
}

TEST(Rodstock, DesignationIsCutToThreeBelow600)
{
    Rodstock bar(502);
    bar.designation = L"ABCDE";
    EXPECT_EQ(Written(bar), L"000 000 0 ABC 00000 000 00000 +00000 +00000 +00000 +000 "
                            L"          "
                            L" 0\n" +
                                defaultSecondLine);
    Rodstock wide(600);
    wide.designation = L"ABCDEFGHIJKL";
    EXPECT_EQ(Written(wide), L"000 000 0 ABCDEFGHIJ 00000 000 00000 +00000 +00000 +00000 +000 "
                             L"          "
                             L" 0\n" +
                                 defaultSecondLine);
}

TEST(Rodstock, OneCharacterCodeGetsTwoLeadingZeros)
{
    Rodstock bar(502);
    bar.code = L"5";
    EXPECT_EQ(Written(bar).substr(0, 8), L"000 005 ");
    bar.code = L"";
    EXPECT_EQ(Written(bar).substr(0, 8), L"000 000 ");
}

TEST(Rodstock, ExtraDesignationIsPaddedInFrontAndCutToTen)
{
    Rodstock bar(502);
    bar.extraDesignation = L"ABCDEFGHIJKLM";
    EXPECT_EQ(Written(bar),
              L"000 000 0     00000 000 00000 +00000 +00000 +00000 +000 ABCDEFGHIJ 0\n" + defaultSecondLine);
}

TEST(Rodstock, NegativeNumbersInUnsignedFieldsKeepTheirSignBehindTheZeros)
{
    Rodstock bar(502);
    bar.firstSize = -42;
    bar.rotation = 1234;
    EXPECT_EQ(Written(bar), L"000 000 0     00-42 000 00000 +00000 +00000 +00000 +1234 "
                            L"          "
                            L" 0\n" +
                                defaultSecondLine);
}

TEST(Rodstock, TwoCodedFormsFollowOnTheirOwnLine)
{
    Rodstock bar(502);
    bar.bendingKind = L'1';
    bar.firstForm.formCode = L"12";
    bar.firstForm.formValueA = 300;
    bar.secondForm.formCode = L"12345";
    bar.secondForm.formValueE = 45;
    bar.formAngle = -135;
    EXPECT_EQ(Written(bar), defaultFirstLine502 + L"\n" + L"000 000 000 00000 00000 00000 001\n" +
                                L"012 00300 00000 00000 00000 000 12345 00000 00000 00000 00000 045 -135");
}

TEST(Rodstock, FreeFormFollowsTheSecondLine)
{
    Rodstock bar(502);
    bar.bendingKind = L'2';
    std::vector<BendingFormSegment> entries{BendingFormSegment(100, 90), BendingFormSegment(250, -45)};
    bar.freeForm.buildFromSegments(entries);
    EXPECT_EQ(Written(bar), defaultFirstLine502 + L"\n" + L"000 000 000 00000 00000 00000 002\n" + L"000 01\n" +
                                L"01 02 00100 +090 00250 -045");
}

TEST(Rodstock, FreeFormCodeStandsRightAfterTheSecondLine)
{
    Rodstock bar(502);
    bar.bendingKind = L'2';
    bar.freeForm.formCode = L"7";
    EXPECT_EQ(Written(bar), defaultFirstLine502 + L"\n" + L"000 000 000 00000 00000 00000 002\n" + L"  7 00\n");
}

TEST(Rodstock, UnknownBendingKindIsWrittenButCarriesNothing)
{
    Rodstock bar(502);
    bar.bendingKind = L'5';
    EXPECT_EQ(Written(bar), defaultFirstLine502 + L"\n" + L"000 000 000 00000 00000 00000 005");
}

TEST(Rodstock, SpacersAndWeldingPointsInTheirOrder)
{
    Rodstock bar(502);
    bar.applyFlagsCode(110);
    // forms, then the empty spacer list with its own line end, then the empty
    // welding point list with its own line end
    EXPECT_EQ(Written(bar), defaultFirstLine502 + L"\n" + L"000 000 000 00000 00000 00000 111\n" +
                                L"000 00000 00000 00000 00000 000 000 00000 00000 00000 00000 000 +000\n" +
                                L"000 000\n" + L"\n" + L"000 000 000 00000\n");
}

TEST(Rodstock, FlagsCode110)
{
    Rodstock bar(502);
    bar.applyFlagsCode(110);
    EXPECT_TRUE(bar.hasWeldingPoints);
    EXPECT_TRUE(bar.hasSpacers);
    EXPECT_EQ(bar.bendingKind, L'1');
}

TEST(Rodstock, FlagsCode020)
{
    Rodstock bar(502);
    bar.applyFlagsCode(20);
    EXPECT_FALSE(bar.hasWeldingPoints);
    EXPECT_FALSE(bar.hasSpacers);
    EXPECT_EQ(bar.bendingKind, L'2');
}

TEST(Rodstock, FlagsCode200)
{
    Rodstock bar(502);
    bar.hasWeldingPoints = true;
    bar.applyFlagsCode(200);
    EXPECT_FALSE(bar.hasWeldingPoints);
    EXPECT_FALSE(bar.hasSpacers);
    EXPECT_EQ(bar.bendingKind, L'0');
}

TEST(Rodstock, FlagsCodeIgnoresTheUnitsAndTakesAnyTensDigitButOneAsFreeForm)
{
    Rodstock bar(502);
    bar.applyFlagsCode(109);
    EXPECT_TRUE(bar.hasWeldingPoints);
    EXPECT_FALSE(bar.hasSpacers);
    EXPECT_EQ(bar.bendingKind, L'0');
    bar.applyFlagsCode(190);
    EXPECT_TRUE(bar.hasWeldingPoints);
    EXPECT_FALSE(bar.hasSpacers);
    EXPECT_EQ(bar.bendingKind, L'2');
    bar.applyFlagsCode(1110);
    EXPECT_FALSE(bar.hasWeldingPoints);
    EXPECT_TRUE(bar.hasSpacers);
    EXPECT_EQ(bar.bendingKind, L'1');
}

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

TEST(Rodstock, CopyIsDeepAndViewsItsOwnLists)
{
    Rodstock bar(600);
    bar.designation = L"D";
    bar.hasSpacers = true;
    bar.spacers.spacerCode = 4;
    bar.freeForm.buildFromSegments({BendingFormSegment(1, 1)});
    Rodstock copy(bar);
    copy.ItCollectionImpl<SpacerData>::Add(SpacerPosition());
    copy.ItCollectionImpl<WeldingPointData>::Add(WeldingPoint());
    copy.freeForm.parts[0].segments[0].length = 9;
    EXPECT_EQ(copy.version, 600);
    EXPECT_EQ(copy.designation, L"D");
    EXPECT_TRUE(copy.hasSpacers);
    EXPECT_EQ(copy.spacers.spacerCode, 4);
    EXPECT_EQ(copy.spacers.positions.size(), 1u);
    EXPECT_EQ(copy.weldingPoints.points.size(), 1u);
    EXPECT_TRUE(bar.spacers.positions.empty());
    EXPECT_TRUE(bar.weldingPoints.points.empty());
    EXPECT_EQ(bar.freeForm.parts[0].segments[0].length, 1);

    Rodstock assigned(502);
    assigned = copy;
    assigned.ItCollectionImpl<SpacerData>::Clear();
    EXPECT_TRUE(assigned.spacers.positions.empty());
    EXPECT_EQ(copy.spacers.positions.size(), 1u);
    EXPECT_EQ(assigned.version, 600);
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

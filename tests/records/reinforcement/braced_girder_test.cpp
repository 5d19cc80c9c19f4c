#include "records/reinforcement/braced_girder.h"

#include "framework/read_idioms.h"
#include "support/test_support.h"
#include "support/written.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

using Testing::Written;

// The first line of a default girder: number, code, type, blank,
// designation (10 blanks), blank, size, positions, rotation, mountFlag.
const std::wstring defaultFirstLine = L"000 000 00000 "
                                      L"          "
                                      L" 00000 +00000 +00000 +00000 +000 0";
// codes, aux, scaled value, short number, blank, thirdCode (3 blanks), blank,
// last number, blank, the welding flag, the constant 0 and the anchor flag.
const std::wstring defaultSecondLine = L"000 000 000 00.000 00 "
                                       L"   "
                                       L" 00000 000";

// A girder as the host's set of ten numbers makes it: g0 12, g1 4000,
// g2 100, g3 200, g4 50, g5 90, g6 3, g7 8, g8 1500, g9 250.
BracedGirder SetGirder()
{
    BracedGirder girder;
    girder.code = L"000";
    girder.typeNumber = 12;
    girder.designation = L"GT 8-20";
    girder.firstSize = 4000;
    girder.position = Point2d(100, 200);
    girder.positionZ = 50;
    girder.rotation = 90;
    girder.mountFlag = false;
    girder.auxNumber = 3;
    girder.thirdCode = L"000";
    girder.shortNumber = 8;
    girder.scaledValue = 1500 / 1000.0;
    girder.lastNumber = 250;
    return girder;
}

const std::wstring setFirstLine = L"001 000 00012 "
                                  L"GT 8-20   "
                                  L" 04000 +00100 +00200 +00050 +090 0";
const std::wstring setSecondLine = L"000 000 003 01.500 08 000 00250 000";

TEST(BracedGirder, Defaults)
{
    BracedGirder girder;
    EXPECT_EQ(girder.code, L"000");
    EXPECT_EQ(girder.firstCode, L"000");
    EXPECT_EQ(girder.secondCode, L"000");
    EXPECT_TRUE(girder.thirdCode.empty());
    EXPECT_EQ(girder.scaledValue, 0.0);
    EXPECT_EQ(girder.anchorBars.anchorCode, 0);
    EXPECT_EQ(girder.weldingPoints.weldValueC, 0);
    EXPECT_EQ(girder.weldingPoints.weldLetter, L'0');
}

TEST(BracedGirder, DefaultGirderWritesThreeBlanksForItsThirdCode)
{
    BracedGirder girder;
    EXPECT_EQ(defaultSecondLine.size(), 35u); // 22 + 3 + 10
    EXPECT_EQ(Written(girder), defaultFirstLine + L"\n" + defaultSecondLine);
}

TEST(BracedGirder, GirderOfASetWritesThreeZerosForItsThirdCode)
{
    BracedGirder girder = SetGirder();
    girder.number = 1;
    EXPECT_EQ(Written(girder), setFirstLine + L"\n" + setSecondLine);
}

TEST(BracedGirder, ScaledValueOverflowsItsWidthWhole)
{
    BracedGirder girder;
    girder.thirdCode = L"000";
    girder.scaledValue = 123.456;
    EXPECT_EQ(Written(girder), defaultFirstLine + L"\n" + L"000 000 000 123.456 00 000 00000 000");
}

TEST(BracedGirder, CodesAndTextsAreCutAndFilled)
{
    BracedGirder girder;
    girder.code = L"7";
    girder.designation = L"ABCDEFGHIJKLMN";
    girder.firstCode = L"1";
    girder.secondCode = L"98765";
    girder.thirdCode = L"4";
    girder.mountFlag = true;
    girder.rotation = -5;
    EXPECT_EQ(Written(girder), L"000 007 00000 ABCDEFGHIJ 00000 +00000 +00000 +00000 -005 1\n"
                               L"001 987 000 00.000 00   4 00000 000");
}

TEST(BracedGirder, EmptyAnchorListEndsItsOwnLine)
{
    BracedGirder girder = SetGirder();
    girder.hasAnchorBars = true;
    EXPECT_EQ(Written(girder), L"000 000 00012 GT 8-20    04000 +00100 +00200 +00050 +090 0\n"
                               L"000 000 003 01.500 08 000 00250 001\n"
                               L"000 000\n");
}

TEST(BracedGirder, WeldingPointsComeBeforeAnchorBars)
{
    BracedGirder girder = SetGirder();
    girder.hasAnchorBars = true;
    girder.hasWeldingPoints = true;
    girder.anchorBars.anchorCode = 12;
    AnchorBar bar;
    bar.firstType = 1;
    bar.secondLength = 600;
    girder.anchorBars.Add(bar);
    EXPECT_EQ(Written(girder), L"000 000 00012 GT 8-20    04000 +00100 +00200 +00050 +090 0\n"
                               L"000 000 003 01.500 08 000 00250 101\n"
                               L"000 000 000 00000\n"
                               L"\n"
                               L"012 001\n"
                               L"001 000 00000 00600 ");
}

TEST(BracedGirderData, EmptyListWritesTagVersionZeroCountAndEnd)
{
    BracedGirderData data;
    EXPECT_EQ(Written(data), L"BRGIRDER\n502\n000\nEND\n");
    data.version = 600;
    EXPECT_EQ(Written(data), L"BRGIRDER\n600\n000\nEND\n");
}

TEST(BracedGirderData, AppendNumbersOneTwo)
{
    BracedGirderData data;
    BracedGirder girder = SetGirder();
    girder.number = 9;
    data.appendGirder(girder);
    EXPECT_EQ(girder.number, 1);
    data.appendGirder(girder);
    EXPECT_EQ(girder.number, 2);
    ASSERT_EQ(data.girders.size(), 2u);
    EXPECT_EQ(data.girders[0].number, 1);
    EXPECT_EQ(data.girders[1].number, 2);
}

TEST(BracedGirderData, ListWithAnEmptyAnchorListHasAnEmptyLine)
{
    BracedGirderData data;
    BracedGirder girder = SetGirder();
    girder.hasAnchorBars = true;
    data.appendGirder(girder);
    EXPECT_EQ(Written(data), L"BRGIRDER\n502\n001\n"
                             L"001 000 00012 GT 8-20    04000 +00100 +00200 +00050 +090 0\n"
                             L"000 000 003 01.500 08 000 00250 001\n"
                             L"000 000\n"
                             L"\n"
                             L"END\n");
}

TEST(BracedGirderData, GirderOfASetReadsBack)
{
    BracedGirderData data;
    BracedGirder girder = SetGirder();
    girder.position = Point2d(-100, 200);
    girder.hasAnchorBars = true;
    girder.anchorBars.anchorCode = 7;
    AnchorBar bar;
    bar.firstType = 2;
    bar.firstLength = 350;
    girder.anchorBars.Add(bar);
    data.appendGirder(girder);
    data.appendGirder(girder);
    StringArchive out;
    ASSERT_TRUE(data.Write(out.archive));

    StringArchive in(out.Text());
    BracedGirderData back;
    back.version = 600;
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_EQ(back.version, 502);
    ASSERT_EQ(back.girders.size(), 2u);
    const BracedGirder& first = back.girders[0];
    EXPECT_EQ(first.number, 1);
    EXPECT_EQ(first.code, L"000");
    EXPECT_EQ(first.typeNumber, 12);
    EXPECT_EQ(first.designation, L"GT 8-20   ");
    EXPECT_EQ(first.firstSize, 4000);
    EXPECT_EQ(first.position.x, -100);
    EXPECT_EQ(first.position.y, 200);
    EXPECT_EQ(first.positionZ, 50);
    EXPECT_EQ(first.rotation, 90);
    EXPECT_FALSE(first.mountFlag);
    EXPECT_EQ(first.firstCode, L"000");
    EXPECT_EQ(first.secondCode, L"000");
    EXPECT_EQ(first.auxNumber, 3);
    EXPECT_DOUBLE_EQ(first.scaledValue, 1.5);
    EXPECT_EQ(first.shortNumber, 8);
    EXPECT_EQ(first.thirdCode, L"000");
    EXPECT_EQ(first.lastNumber, 250);
    EXPECT_FALSE(first.hasWeldingPoints);
    EXPECT_TRUE(first.hasAnchorBars);
    EXPECT_EQ(first.anchorBars.anchorCode, 7);
    ASSERT_EQ(first.anchorBars.bars.size(), 1u);
    EXPECT_EQ(first.anchorBars.bars[0].firstLength, 350);
    EXPECT_EQ(back.girders[1].number, 2);
}

TEST(BracedGirder, EmptyThirdCodeTakesTheLastNumberWhenRead)
{
    StringArchive s(defaultFirstLine + L"\n" + defaultSecondLine + L"\nEND\n");
    BracedGirder girder;
    EXPECT_FALSE(girder.Read(s.archive));
    EXPECT_EQ(girder.thirdCode, L"00000");
    EXPECT_EQ(girder.lastNumber, 0);
    EXPECT_TRUE(girder.hasWeldingPoints); // the E of END
}

TEST(BracedGirderData, DefaultGirderDoesNotReadBack)
{
    BracedGirderData data;
    BracedGirder girder;
    data.appendGirder(girder);
    StringArchive out;
    ASSERT_TRUE(data.Write(out.archive));

    StringArchive in(out.Text());
    BracedGirderData back;
    EXPECT_FALSE(back.Read(in.archive));
    EXPECT_TRUE(back.girders.empty());
}

TEST(BracedGirderData, WrongTagClearsValid)
{
    StringArchive s(L"RODSTOCK\n502\n000\nEND\n");
    BracedGirderData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(BracedGirderData, WrongClosingTokenClearsValid)
{
    StringArchive s(L"BRGIRDER\n502\n000\nREFORCEM\n");
    BracedGirderData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(BracedGirder, CopyIsDeepAndViewsItsOwnLists)
{
    BracedGirder girder = SetGirder();
    girder.anchorBars.anchorCode = 3;
    BracedGirder copy(girder);
    copy.ItCollectionImpl<AnchorBarData>::Add(AnchorBar());
    copy.ItCollectionImpl<WeldingPointData>::Add(WeldingPoint());
    EXPECT_EQ(copy.designation, L"GT 8-20");
    EXPECT_DOUBLE_EQ(copy.scaledValue, 1.5);
    EXPECT_EQ(copy.anchorBars.anchorCode, 3);
    EXPECT_EQ(copy.anchorBars.bars.size(), 1u);
    EXPECT_EQ(copy.weldingPoints.points.size(), 1u);
    EXPECT_TRUE(girder.anchorBars.bars.empty());
    EXPECT_TRUE(girder.weldingPoints.points.empty());

    BracedGirder assigned;
    assigned = copy;
    assigned.ItCollectionImpl<AnchorBarData>::Clear();
    EXPECT_TRUE(assigned.anchorBars.bars.empty());
    EXPECT_EQ(copy.anchorBars.bars.size(), 1u);
}

TEST(BracedGirderData, ReadsAGirderWithWeldingPointsAndAnchorBarsFromAFile)
{
    StringArchive s(L"BRGIRDER\n600\n001\n"
                    L"001 ABC 00012 GT 8-20    04000 -00100 +00200 +00050 -090 1\n"
                    L"001 002 003 01.500 08 000 00250 101\n"
                    L"001 022 333 W 1 001\n"
                    L"00001 002 00003 004 00005 006 00007 008 00009 010 00011 012 00013 014 00015 016\n"
                    L"007 001\n"
                    L"002 003 00350 00400 \n"
                    L"END\n"
                    L"NEXT");
    BracedGirderData data;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.version, 600);
    ASSERT_EQ(data.girders.size(), 1u);
    const BracedGirder& girder = data.girders[0];
    EXPECT_EQ(girder.number, 1);
    EXPECT_EQ(girder.code, L"ABC");
    EXPECT_EQ(girder.typeNumber, 12);
    EXPECT_EQ(girder.designation, L"GT 8-20   ");
    EXPECT_EQ(girder.firstSize, 4000);
    EXPECT_EQ(girder.position, Point2d(-100, 200));
    EXPECT_EQ(girder.positionZ, 50);
    EXPECT_EQ(girder.rotation, -90);
    EXPECT_TRUE(girder.mountFlag);
    EXPECT_EQ(girder.firstCode, L"001");
    EXPECT_EQ(girder.secondCode, L"002");
    EXPECT_EQ(girder.auxNumber, 3);
    EXPECT_EQ(girder.scaledValue, 1.5);
    EXPECT_EQ(girder.shortNumber, 8);
    EXPECT_EQ(girder.thirdCode, L"000");
    EXPECT_EQ(girder.lastNumber, 250);
    EXPECT_TRUE(girder.hasWeldingPoints);
    EXPECT_TRUE(girder.hasAnchorBars);
    EXPECT_EQ(girder.weldingPoints.weldValueA, 1);
    EXPECT_EQ(girder.weldingPoints.weldValueB, 22);
    EXPECT_EQ(girder.weldingPoints.weldValueC, 333);
    EXPECT_EQ(girder.weldingPoints.weldLetter, L'W');
    EXPECT_TRUE(girder.weldingPoints.weldFlag);
    ASSERT_EQ(girder.weldingPoints.points.size(), 1u);
    EXPECT_EQ(girder.weldingPoints.points[0].intersections[0].offset, 1);
    EXPECT_EQ(girder.anchorBars.anchorCode, 7);
    ASSERT_EQ(girder.anchorBars.bars.size(), 1u);
    EXPECT_EQ(girder.anchorBars.bars[0].firstType, 2);
    EXPECT_EQ(girder.anchorBars.bars[0].secondType, 3);
    EXPECT_EQ(girder.anchorBars.bars[0].firstLength, 350);
    EXPECT_EQ(girder.anchorBars.bars[0].secondLength, 400);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(BracedGirderData, TheMiddleFlagCharacterIsDropped)
{
    StringArchive s(L"BRGIRDER\n502\n001\n"
                    L"001 000 00012 GT 8-20    04000 +00100 +00200 +00050 +090 0\n"
                    L"000 000 003 01.500 08 000 00250 090\n"
                    L"END\n");
    BracedGirderData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.girders.size(), 1u);
    EXPECT_FALSE(data.girders[0].hasWeldingPoints);
    EXPECT_FALSE(data.girders[0].hasAnchorBars);
}

TEST(BracedGirderData, ACountOfGirdersTooHighFailsTheStream)
{
    StringArchive s(L"BRGIRDER\n502\n002\n"
                    L"001 000 00012 GT 8-20    04000 +00100 +00200 +00050 +090 0\n"
                    L"000 000 003 01.500 08 000 00250 000\n"
                    L"END\n");
    BracedGirderData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(s.archive.fail());
    EXPECT_EQ(data.girders.size(), 1u);
}

} // namespace
} // namespace ItUnitechnik

// The lines of one bar, its flags code and its copies.
#include "records/reinforcement/rodstock.h"

#include "records/reinforcement/rodstock_test_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using RodstockTesting::defaultFirstLine502;
using RodstockTesting::defaultFirstLine600;
using RodstockTesting::defaultSecondLine;
using RodstockTesting::FullBar;
using RodstockTesting::fullFirstLine;
using RodstockTesting::fullSecondLine;
using RodstockTesting::Written;

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

} // namespace
} // namespace ItUnitechnik

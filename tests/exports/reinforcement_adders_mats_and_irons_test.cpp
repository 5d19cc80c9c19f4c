// The adders of mats, of the bars in a mat and of irons, and what they do to
// the element's extents.
#include "exports/document.h"

#include "exports/reinforcement_adders_test_support.h"
#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace ItUnitechnik {
namespace {

using ReinforcementAddersTesting::ReinforcementAddersTest;
using Testing::HostText;

TEST_F(ReinforcementAddersTest, SteelmatTurnsTheBlockOnAndFillsTheMat)
{
    const int32_t position[3] = {1, 2, 3};
    EXPECT_EQ(addSteelmat(HostText(u"Q188"), 2400, 6000, 7, 0, 65537, position), 1);
    const Reinforcement& reinforcement = Element().reinforcement;
    EXPECT_TRUE(reinforcement.present);
    EXPECT_EQ(reinforcement.matFlag, 1);
    ASSERT_EQ(reinforcement.mats.size(), 1u);
    const Steelmat& mat = reinforcement.mats[0];
    EXPECT_EQ(mat.number, 1);
    EXPECT_EQ(mat.name, L"Q188");
    EXPECT_EQ(mat.firstDimension, 2400);
    EXPECT_EQ(mat.secondDimension, 6000);
    EXPECT_TRUE(mat.firstFlag);
    EXPECT_FALSE(mat.secondFlag);
    EXPECT_EQ(mat.matKind, 65537);
    EXPECT_EQ(mat.positionX, 1);
    EXPECT_EQ(mat.positionY, 2);
    EXPECT_EQ(mat.positionZ, 3);
    // The mat and both its lists carry the order's version.
    EXPECT_EQ(mat.version, 600);
    EXPECT_EQ(mat.rodstocks.version, 600);
    EXPECT_EQ(mat.girders.version, 600);
    EXPECT_EQ(AddMat(), 2);
}

TEST_F(ReinforcementAddersTest, AdderResultsWithoutAnElementAreZero)
{
    theDocument.orders.clear();
    EXPECT_EQ(AddMat(), 0);
    EXPECT_EQ(AddCfs(), 0);
    EXPECT_EQ(addExtIron(1, 1, 1.0, HostText(u"I")), 0);
    ItBarBlock block{};
    block.designation = HostText(u"B");
    addStraightRodstock(&block);
    addFreeFormRodstock(&block, nullptr);
    EXPECT_TRUE(theDocument.orders.empty());
}

TEST_F(ReinforcementAddersTest, CfsBarBeforeAnyMatGoesNowhere)
{
    EXPECT_EQ(AddCfs(), -1);
    EXPECT_TRUE(Element().reinforcement.mats.empty());
    EXPECT_TRUE(Element().rodstockData.bars.empty());
}

TEST_F(ReinforcementAddersTest, CfsBarsJoinTheLastMatNumberedPerMat)
{
    AddMat(u"first");
    AddMat(u"second");
    EXPECT_EQ(AddCfs(), 1);
    EXPECT_EQ(AddCfs(), 2);
    const Reinforcement& reinforcement = Element().reinforcement;
    EXPECT_TRUE(reinforcement.mats[0].rodstocks.bars.empty());
    ASSERT_EQ(reinforcement.mats[1].rodstocks.bars.size(), 2u);
    EXPECT_EQ(reinforcement.mats[1].rodstocks.bars[0].number, 1);
    EXPECT_EQ(reinforcement.mats[1].rodstocks.bars[1].number, 2);
    EXPECT_TRUE(Element().rodstockData.bars.empty());
    // A third mat starts its own numbering.
    AddMat(u"third");
    EXPECT_EQ(AddCfs(), 1);
}

TEST_F(ReinforcementAddersTest, CfsBarTakesEveryArgument)
{
    AddMat();
    const int32_t position[3] = {-100, 250, 77};
    EXPECT_EQ(addCFSRodstock(4, HostText(u"B500"), 1200, 12, 300, position, -30, 90, HostText(u"XD"), 1, 5, 6, 7, 0),
              1);
    const Rodstock& bar = Element().reinforcement.mats[0].rodstocks.bars[0];
    EXPECT_EQ(bar.version, 600);
    EXPECT_EQ(bar.rodKind, 4);
    EXPECT_EQ(bar.designation, L"B500");
    EXPECT_EQ(bar.firstSize, 1200);
    EXPECT_EQ(bar.secondSize, 12);
    EXPECT_EQ(bar.thirdSize, 300);
    EXPECT_EQ(bar.position, Point2d(-100, 250));
    EXPECT_EQ(bar.auxSixth, 77);
    EXPECT_EQ(bar.positionZ, -30);
    EXPECT_EQ(bar.rotation, 90);
    EXPECT_EQ(bar.extraDesignation, L"XD");
    EXPECT_TRUE(bar.mountFlag);
    EXPECT_EQ(bar.auxFirst, 5);
    EXPECT_EQ(bar.auxFourth, 6);
    EXPECT_EQ(bar.auxFifth, 7);
    EXPECT_EQ(bar.auxSecond, 0);
    EXPECT_EQ(bar.auxThird, 0);
    EXPECT_EQ(bar.code, L"000");
}

TEST_F(ReinforcementAddersTest, CfsMountFlagIsSetOnlyByOne)
{
    AddMat();
    const int32_t position[3] = {0, 0, 0};
    addCFSRodstock(0, HostText(u"D"), 0, 0, 0, position, 0, 0, HostText(u""), 2, 0, 0, 0, 0);
    addCFSRodstock(0, HostText(u"D"), 0, 0, 0, position, 0, 0, HostText(u""), -1, 0, 0, 0, 0);
    const auto& bars = Element().reinforcement.mats[0].rodstocks.bars;
    EXPECT_FALSE(bars[0].mountFlag);
    EXPECT_FALSE(bars[1].mountFlag);
}

TEST_F(ReinforcementAddersTest, CfsFlagsCodes)
{
    AddMat();
    AddCfs(110);
    AddCfs(20);
    AddCfs(200);
    const auto& bars = Element().reinforcement.mats[0].rodstocks.bars;
    EXPECT_TRUE(bars[0].hasWeldingPoints);
    EXPECT_TRUE(bars[0].hasSpacers);
    EXPECT_EQ(bars[0].bendingKind, L'1');
    EXPECT_FALSE(bars[1].hasWeldingPoints);
    EXPECT_FALSE(bars[1].hasSpacers);
    EXPECT_EQ(bars[1].bendingKind, L'2');
    EXPECT_FALSE(bars[2].hasWeldingPoints);
    EXPECT_FALSE(bars[2].hasSpacers);
    EXPECT_EQ(bars[2].bendingKind, L'0');
}

TEST_F(ReinforcementAddersTest, CfsBarTakesTheLastMatsVersion)
{
    AddMat();
    // The list of the mat hands its own version on, whatever the mat has.
    Element().reinforcement.mats[0].version = 501;
    Element().reinforcement.mats[0].rodstocks.version = 503;
    AddCfs();
    EXPECT_EQ(Element().reinforcement.mats[0].rodstocks.bars[0].version, 503);
}

TEST_F(ReinforcementAddersTest, ExternalIronsAreNumberedPerElement)
{
    EXPECT_EQ(addExtIron(2, 10, 1.5, HostText(u"Anchor")), 1);
    EXPECT_EQ(addExtIron(3, 1, 0.25, HostText(u"Hook")), 2);
    EXPECT_EQ(addExtIron(4, 2, 2.0, HostText(u"Loop")), 3);
    const ExternalIron& first = Element().externalIronData.irons[0];
    EXPECT_EQ(first.ironCode, 2);
    EXPECT_EQ(first.ironCount, 10);
    EXPECT_DOUBLE_EQ(first.ironValue, 1.5);
    EXPECT_EQ(first.ironText, L"Anchor");
    // Irons are not the block's own irons.
    EXPECT_TRUE(Element().reinforcement.externalIrons.irons.empty());
    Start(600);
    EXPECT_EQ(addExtIron(2, 10, 1.5, HostText(u"Anchor")), 1);
}

TEST_F(ReinforcementAddersTest, AddersKeepTheExtentsOfTheContours)
{
    const int32_t points[] = {0, 0, 3000, 0, 3000, 1500};
    addContour(3, points);
    AddMat();
    AddCfs();
    ItBarBlock block{};
    block.designation = HostText(u"B");
    block.positionX = 90000;
    addStraightRodstock(&block);
    addExtIron(1, 1, 1.0, HostText(u"I"));
    EXPECT_EQ(Element().extentX, 3000);
    EXPECT_EQ(Element().extentY, 1500);
}

} // namespace
} // namespace ItUnitechnik

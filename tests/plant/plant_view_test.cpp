// The records as the plant reads them: sets, groups and mats by their
// meanings, and where each bar and girder of a set stands in plan. Every
// expected number is worked out by hand from the records in each test.

#include "plant/plant_text.h"
#include "plant/plant_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <utility>
#include <vector>

namespace ItUnitechnik::Plant {
namespace {

void ExpectPoint(PlanPoint point, double x, double y)
{
    EXPECT_NEAR(point.x, x, 0.005);
    EXPECT_NEAR(point.y, y, 0.005);
}

Rodstock BarRecord(std::int32_t count, std::int32_t diameter, std::int32_t length, std::int32_t pitch, std::int32_t x,
                   std::int32_t y, std::int32_t rotation)
{
    Rodstock bar(600);
    bar.firstSize = count;
    bar.secondSize = diameter;
    bar.thirdSize = length;
    bar.positionZ = pitch;
    bar.position = Point2d(x, y);
    bar.rotation = rotation;
    return bar;
}

std::vector<BendingFormSegment> Segments(std::initializer_list<std::pair<std::int32_t, std::int32_t>> legs)
{
    std::vector<BendingFormSegment> segments;
    for (const auto& [length, turn] : legs) {
        segments.emplace_back(length, turn);
    }
    return segments;
}

TEST(BarSetOf, ReadsCountDiameterLengthPitchAndHeight)
{
    Rodstock bar = BarRecord(12, 10, 5600, 150, 200, 300, 0);
    bar.auxSixth = 40;
    bar.designation = L"500";
    bar.extraDesignation = L"    A-4711";
    const BarSet set = BarSetOf(bar);
    EXPECT_EQ(set.count, 12);
    EXPECT_EQ(set.diameter, 10);
    EXPECT_EQ(set.length, 5600);
    EXPECT_EQ(set.pitch, 150);
    EXPECT_EQ(set.x, 200);
    EXPECT_EQ(set.y, 300);
    EXPECT_EQ(set.z, 40);
    EXPECT_EQ(set.grade, L"500");
    EXPECT_TRUE(set.legs.empty());
    EXPECT_EQ(SetSummary(set), "12 \u00d7 \u00d810 \u00d7 5600 mm, pitch 150 mm, z 40 mm, grade 500");
    EXPECT_EQ(SetLine(set), "12 \u00d7 \u00d810 \u00d7 5600 mm, pitch 150, at (200, 300), z 40, rotation 0");
    // 12 bars of 5.6 m: 67.2 m; 10² x 0.0061654 = 0.61654 kg/m; 41.431488 kg.
    EXPECT_EQ(TotalLength(set), 67200);
    EXPECT_NEAR(Weight(set), 41.431488, 1e-9);
}

TEST(BarInPlan, BarsAlongXStandOneAboveTheOtherAtThePitch)
{
    // Direction 0: the normal (-sin 0, cos 0) is +y.
    const BarSet set = BarSetOf(BarRecord(5, 10, 3000, 400, 500, 200, 0));
    for (std::int32_t i = 0; i < 5; ++i) {
        const std::vector<PlanPoint> bar = BarInPlan(set, i);
        ASSERT_EQ(bar.size(), 2u);
        ExpectPoint(bar[0], 500, 200 + 400 * i);
        ExpectPoint(bar[1], 3500, 200 + 400 * i);
    }
}

TEST(BarInPlan, BarsAlongYStandSideBySideTowardsMinusX)
{
    // Direction 90: the normal (-sin 90, cos 90) is -x.
    const BarSet set = BarSetOf(BarRecord(3, 8, 2000, 250, 1000, 100, 90));
    ExpectPoint(BarInPlan(set, 0)[0], 1000, 100);
    ExpectPoint(BarInPlan(set, 0)[1], 1000, 2100);
    ExpectPoint(BarInPlan(set, 2)[0], 500, 100);
    ExpectPoint(BarInPlan(set, 2)[1], 500, 2100);
}

TEST(BarInPlan, ANegativePitchGoesTheOtherWayAndAnOddDirectionTurnsBoth)
{
    const BarSet down = BarSetOf(BarRecord(2, 8, 1000, -300, 0, 1000, 0));
    ExpectPoint(BarInPlan(down, 1)[0], 0, 700);
    // 30 degrees: along (0.866025, 0.5), normal (-0.5, 0.866025).
    const BarSet slanted = BarSetOf(BarRecord(2, 8, 1000, 200, 0, 0, 30));
    ExpectPoint(BarInPlan(slanted, 0)[1], 866.025, 500);
    ExpectPoint(BarInPlan(slanted, 1)[0], -100, 173.205);
    ExpectPoint(BarInPlan(slanted, 1)[1], 766.025, 673.205);
}

TEST(BarInPlan, ABentBarShowsEachLegByTheCosineOfTheTurnsBeforeIt)
{
    // Legs 300 (turn 45), 400 (turn -45), 1500 (turn -45), 400 (turn 45),
    // 300: the legs lie at 0, 45, 0, -45 and 0 degrees in the vertical plane,
    // so in plan 300, 282.843, 1500, 282.843 and 300 along x.
    Rodstock bar = BarRecord(1, 12, 2900, 0, 100, 50, 0);
    bar.bendingKind = L'2';
    bar.freeForm.buildFromSegments(Segments({{300, 45}, {400, -45}, {1500, -45}, {400, 45}, {300, 0}}));
    const BarSet set = BarSetOf(bar);
    ASSERT_EQ(set.legs.size(), 5u);
    EXPECT_EQ(set.legs[1].length, 400);
    EXPECT_EQ(set.legs[1].turn, -45);
    const std::vector<PlanPoint> plan = BarInPlan(set, 0);
    ASSERT_EQ(plan.size(), 6u);
    ExpectPoint(plan[0], 100, 50);
    ExpectPoint(plan[1], 400, 50);
    ExpectPoint(plan[2], 682.843, 50);
    ExpectPoint(plan[3], 2182.843, 50);
    ExpectPoint(plan[4], 2465.685, 50);
    ExpectPoint(plan[5], 2765.685, 50);
    // A stirrup leg standing upright shows nothing in plan: 200, then 150 up.
    Rodstock hook = BarRecord(1, 8, 350, 0, 0, 0, 90);
    hook.bendingKind = L'2';
    hook.freeForm.buildFromSegments(Segments({{200, 90}, {150, 0}}));
    const std::vector<PlanPoint> hooked = BarInPlan(BarSetOf(hook), 0);
    ASSERT_EQ(hooked.size(), 3u);
    ExpectPoint(hooked[1], 0, 200);
    ExpectPoint(hooked[2], 0, 200);
}

// The last place of a double near VALUE.
double Ulp(double value)
{
    return std::nextafter(std::fabs(value), 2.0) - std::fabs(value);
}

TEST(Direction, WholeAndHalfDegreesAreTheTrueSineAndCosineWithinOneUlp)
{
    // The reference: the host's long double sinl and cosl of the angle
    // reduced to a half turn each way, which carry more bits than a double.
    const long double pi = 3.14159265358979323846264338327950288L;
    for (int halves = -1440; halves <= 1440; ++halves) {
        if (halves % 180 == 0) {
            continue; // exact, below; the reference is not
        }
        int reduced = halves % 720;
        reduced = reduced > 360 ? reduced - 720 : reduced < -360 ? reduced + 720 : reduced;
        const long double radians = static_cast<long double>(reduced) * pi / 360.0L;
        const double cosine = static_cast<double>(std::cos(radians));
        const double sine = static_cast<double>(std::sin(radians));
        const PlanPoint along = Direction(halves / 2.0);
        EXPECT_LE(std::fabs(along.x - cosine), Ulp(cosine)) << halves / 2.0 << " degrees";
        EXPECT_LE(std::fabs(along.y - sine), Ulp(sine)) << halves / 2.0 << " degrees";
    }
}

TEST(Direction, QuarterTurnsAndHalvesAreExactAndWholeTurnsChangeNothing)
{
    const PlanPoint quarters[] = {{1.0, 0.0}, {0.0, 1.0}, {-1.0, 0.0}, {0.0, -1.0}};
    for (int quarter = -8; quarter <= 8; ++quarter) {
        const PlanPoint along = Direction(90.0 * quarter);
        const PlanPoint& expected = quarters[((quarter % 4) + 4) % 4];
        EXPECT_EQ(along.x, expected.x) << quarter;
        EXPECT_EQ(along.y, expected.y) << quarter;
        // A zero is +0, so that no coordinate is written as -0.
        EXPECT_EQ(std::signbit(along.x), expected.x < 0.0) << quarter;
        EXPECT_EQ(std::signbit(along.y), expected.y < 0.0) << quarter;
    }
    EXPECT_EQ(Direction(30.0).y, 0.5);
    EXPECT_EQ(Direction(60.0).x, 0.5);
    EXPECT_EQ(Direction(-150.0).y, -0.5);
    EXPECT_EQ(Direction(240.0).x, -0.5);
    for (const double degrees : {1.0, 29.0, 44.0, 46.0, 133.0, 271.0, 359.0}) {
        // Past 2^31 degrees as well, where whole degrees take the longer way.
        for (const double turns : {1.0, -1.0, 1000003.0, -5965232.0, 10000019.0, -1e12}) {
            const PlanPoint along = Direction(degrees + 360.0 * turns);
            EXPECT_EQ(along.x, Direction(degrees).x) << degrees << " + " << turns << " turns";
            EXPECT_EQ(along.y, Direction(degrees).y) << degrees << " + " << turns << " turns";
        }
    }
}

TEST(MatOf, PutsItsBarsAndGirdersAtTheMatsOrigin)
{
    Steelmat mat;
    mat.name = L"Q188A";
    mat.firstDimension = 5800;
    mat.secondDimension = 2200;
    mat.positionX = 100;
    mat.positionY = 150;
    mat.positionZ = 35;
    mat.rodstocks.bars = {BarRecord(1, 6, 5800, 0, 0, 50, 0), BarRecord(1, 6, 2200, 0, 50, 0, 90)};
    BracedGirder girder;
    girder.typeNumber = 2;
    girder.position = Point2d(10, 20);
    mat.girders.girders = {girder};
    const Mat view = MatOf(mat);
    EXPECT_EQ(view.type, L"Q188A");
    EXPECT_EQ(view.length, 5800);
    EXPECT_EQ(view.width, 2200);
    EXPECT_EQ(view.z, 35);
    ASSERT_EQ(view.bars.size(), 2u);
    EXPECT_EQ(view.bars[0].x, 100);
    EXPECT_EQ(view.bars[0].y, 200);
    EXPECT_EQ(view.bars[1].x, 150);
    EXPECT_EQ(view.bars[1].y, 150);
    ExpectPoint(BarInPlan(view.bars[0], 0)[1], 5900, 200);
    ASSERT_EQ(view.girders.size(), 1u);
    EXPECT_EQ(view.girders[0].x, 110);
    EXPECT_EQ(view.girders[0].y, 170);
    EXPECT_EQ(MatLine(view), "5800 \u00d7 2200 mm at (100, 150), z 35");
}

TEST(MatOf, AnOriginFarOutWrapsAroundIn32BitsAsAllCoordinatesDo)
{
    Steelmat mat;
    mat.positionX = 2147483647;
    mat.positionY = -2147483647;
    mat.rodstocks.bars = {BarRecord(1, 6, 100, 0, 11581, -10, 0)};
    const Mat view = MatOf(mat);
    // 2147483647 + 11581 = 2147495228, less 2^32; -2147483647 - 10 likewise
    // plus 2^32.
    EXPECT_EQ(view.bars.at(0).x, -2147472068);
    EXPECT_EQ(view.bars.at(0).y, 2147483639);
}

TEST(GirderGroupOf, ReadsTheGroupFromTheTenValues)
{
    BracedGirder girder;
    girder.typeNumber = 4;
    girder.designation = L"KT 800";
    girder.firstSize = 5400;
    girder.position = Point2d(300, 400);
    girder.positionZ = 600;
    girder.rotation = 0;
    girder.auxNumber = 80;
    girder.shortNumber = 10;
    girder.scaledValue = 1.5;
    girder.lastNumber = 35;
    const GirderGroup group = GirderGroupOf(girder);
    EXPECT_EQ(group.count, 4);
    EXPECT_EQ(group.type, L"KT 800");
    EXPECT_EQ(group.length, 5400);
    EXPECT_EQ(group.spacing, 600);
    EXPECT_EQ(group.height, 80);
    EXPECT_EQ(group.chordDiameter, 10);
    EXPECT_DOUBLE_EQ(group.weight, 1.5);
    EXPECT_EQ(group.installationHeight, 35);
    const std::vector<PlanPoint> last = GirderInPlan(group, 3);
    ExpectPoint(last[0], 300, 2200);
    ExpectPoint(last[1], 5700, 2200);
    EXPECT_EQ(GroupSummary(group), "4 \u00d7 5400 mm, spacing 600 mm, height 80 mm, type KT 800");
}

TEST(PartOf, ReadsHeightAndInstallationHeight)
{
    MountingPart part(600);
    part.partName = L"Socket box" + std::wstring(30, L' ');
    part.setValue1 = 100;
    part.setValue2 = 20;
    const Part view = PartOf(part);
    EXPECT_EQ(view.height, 100);
    EXPECT_EQ(view.installationHeight, 20);
    EXPECT_EQ(Trimmed(view.name), "Socket box");
    EXPECT_EQ(PartLine(view), "height 100 mm, 20 mm above the pallet");
}

TEST(LayerOf, TheMassIsUnitWeightTimesVolume)
{
    ConcreteLayer layer(600);
    layer.layerKind = 0;
    layer.layerThickness = 60;
    layer.firstFactor = 2.4;
    layer.secondFactor = 799.2;
    const ConcreteLayerView view = LayerOf(layer);
    EXPECT_NEAR(view.Mass(), 1918.08, 1e-9);
    EXPECT_EQ(LayerKindName(view.kind), "concrete");
    EXPECT_EQ(LayerKindName(2), "insulation");
    EXPECT_EQ(LayerKindName(7), "7");
    EXPECT_EQ(Kilograms(1918.08), "1918.08");
    EXPECT_EQ(Kilograms(0.005), "0.01");
}

} // namespace
} // namespace ItUnitechnik::Plant

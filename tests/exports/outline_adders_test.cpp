#include "exports/document.h"

#include "geometry/line_segment.h"
#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

const it_char16* C(const std::u16string& text)
{
    return Testing::HostText(text.c_str());
}

class OutlineAddersTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        theDocument.orders.clear();
        const double placement[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};
        startOrder(1, 1, placement, 600, C(u"E"), 0.0, true);
    }
    void TearDown() override { theDocument.orders.clear(); }
    static ElementPart& Element() { return theDocument.orders.back().elementParts.back(); }

    static const LineSegment& Segment(const GeoData& element)
    {
        return dynamic_cast<const LineSegment&>(*element.curve);
    }
};

TEST_F(OutlineAddersTest, AClosedRectangleGivesFourPiecesAndTheExtents)
{
    const int32_t points[] = {0, 0, 3000, 0, 3000, 1500, 0, 1500, 0, 0};
    addContour(5, points);
    ASSERT_EQ(Element().contourData.contours.size(), 1u);
    const Contour& contour = Element().contourData.contours[0];
    EXPECT_EQ(contour.contourNumber, 1);
    EXPECT_EQ(contour.version, 600);
    ASSERT_EQ(contour.geoData.size(), 4u);
    EXPECT_EQ(contour.geoData[0].elementKind, L'S');
    EXPECT_EQ(Segment(contour.geoData[1]).start, Point2d(3000, 0));
    EXPECT_EQ(Segment(contour.geoData[1]).end, Point2d(3000, 1500));
    EXPECT_EQ(Segment(contour.geoData[3]).end, Point2d(0, 0));
    EXPECT_EQ(Element().extentX, 3000);
    EXPECT_EQ(Element().extentY, 1500);
}

TEST_F(OutlineAddersTest, OnePointGivesAnEmptyContourAndTheEmptyOutlineRule)
{
    const int32_t points[] = {5, 5};
    addContour(1, points);
    ASSERT_EQ(Element().contourData.contours.size(), 1u);
    EXPECT_TRUE(Element().contourData.contours[0].geoData.empty());
    EXPECT_EQ(Element().extentX, 1);
    EXPECT_EQ(Element().extentY, 1);
}

TEST_F(OutlineAddersTest, ASecondContourIsNumberedTwoAndWidensTheExtents)
{
    const int32_t first[] = {0, 0, 3000, 0, 3000, 1500};
    const int32_t second[] = {5000, 0, 6000, 1000};
    addContour(3, first);
    addContour(2, second);
    EXPECT_EQ(Element().contourData.contours[1].contourNumber, 2);
    EXPECT_EQ(Element().extentX, 6000);
    EXPECT_EQ(Element().extentY, 1500);
}

TEST_F(OutlineAddersTest, NegativeCoordinates)
{
    const int32_t points[] = {-100, -50, 100, 50};
    addContour(2, points);
    EXPECT_EQ(Element().extentX, 200);
    EXPECT_EQ(Element().extentY, 100);
}

TEST_F(OutlineAddersTest, ACutoutKeepsItsChainOpenAndLeavesTheExtents)
{
    const int32_t outline[] = {0, 0, 3000, 0, 3000, 1500};
    addContour(3, outline);
    const std::u16string name = u"Opening 1";
    const ItCutoutBlock block = {C(name), 2.5, 3};
    const int32_t points[] = {100, 100, 9000, 100, 9000, 9000};
    addCutout(&block, points);
    ASSERT_EQ(Element().cutoutData.cutouts.size(), 1u);
    const Cutout& cutout = Element().cutoutData.cutouts[0];
    EXPECT_EQ(cutout.cutoutNumber, 1);
    EXPECT_EQ(cutout.cutoutName, L"Opening 1");
    EXPECT_EQ(cutout.cutoutValue, 2.5);
    EXPECT_EQ(cutout.geoData.size(), 2u);
    EXPECT_EQ(Element().extentX, 3000);
    EXPECT_EQ(Element().extentY, 1500);
}

TEST_F(OutlineAddersTest, UnknownKindsAndAMissingElementGiveZero)
{
    const int32_t values[] = {1, 2};
    EXPECT_EQ(addSet(4, C(u"x"), 2, values), 0);
    EXPECT_TRUE(Element().mountingPartData.parts.empty());
    theDocument.orders.clear();
    EXPECT_EQ(addSet(3, C(u"x"), 2, values), 0);
    addContour(1, values);
    EXPECT_TRUE(theDocument.orders.empty());
}

TEST_F(OutlineAddersTest, APartWithoutPiecesKeepsTheStartingBox)
{
    const int32_t values[] = {7, -8};
    EXPECT_EQ(addSet(3, C(u"Socket"), 2, values), 1);
    ASSERT_EQ(Element().mountingPartData.parts.size(), 1u);
    const MountingPart& part = Element().mountingPartData.parts[0];
    EXPECT_EQ(part.partNumber, 1);
    EXPECT_EQ(part.setValue1, 7);
    EXPECT_EQ(part.setValue2, -8);
    EXPECT_EQ(part.partName, L"Socket");
    EXPECT_EQ(part.partWidth, 2000000u);
    EXPECT_EQ(part.partHeight, 2000000u);
    // 2000000 * 2000000 wraps to 1385447424 in 32 bits.
    EXPECT_DOUBLE_EQ(part.partArea, 1385.447424);
    EXPECT_TRUE(part.geoData.empty());
}

TEST_F(OutlineAddersTest, OnePieceGivesItsBoxAndArea)
{
    const int32_t values[] = {0, 0, 0, 0, 3000, 2000};
    addSet(3, C(u"Box"), 6, values);
    const MountingPart& part = Element().mountingPartData.parts[0];
    EXPECT_EQ(part.partWidth, 3000u);
    EXPECT_EQ(part.partHeight, 2000u);
    EXPECT_DOUBLE_EQ(part.partArea, 6.0);
    EXPECT_EQ(part.geoData.size(), 1u);
    EXPECT_EQ(part.version, 600);
}

TEST_F(OutlineAddersTest, TwoPiecesSpanOneBox)
{
    const int32_t values[] = {0, 0, 0, 0, 100, 100, -50, 20, 300, 40};
    addSet(3, C(u"Two"), 10, values);
    const MountingPart& part = Element().mountingPartData.parts[0];
    EXPECT_EQ(part.geoData.size(), 2u);
    EXPECT_EQ(part.partWidth, 350u);
    EXPECT_EQ(part.partHeight, 100u);
}

TEST_F(OutlineAddersTest, TheStartingBoxIsNotTheFirstPoint)
{
    const int32_t values[] = {0, 0, 2000000, 0, 2000100, 0};
    addSet(3, C(u"Far"), 6, values);
    const MountingPart& part = Element().mountingPartData.parts[0];
    EXPECT_EQ(part.partWidth, 1000100u);
}

TEST_F(OutlineAddersTest, AnAreaBeyond32BitsWraps)
{
    const int32_t values[] = {0, 0, 0, 0, 50000, 50000};
    addSet(3, C(u"Big"), 6, values);
    EXPECT_DOUBLE_EQ(Element().mountingPartData.parts[0].partArea, -1794.967296);
}

TEST_F(OutlineAddersTest, GirdersInGroupsOfTen)
{
    const int32_t values[] = {11, 80, 100, 200, 30, 90,  3, 12, 1500,   6000,
                              12, 90, 400, 500, 30, -90, 4, 13, 123456, 7000};
    EXPECT_EQ(addSet(5, C(u"KT 800"), 20, values), 1);
    const auto& girders = Element().bracedGirderData.girders;
    ASSERT_EQ(girders.size(), 2u);
    EXPECT_EQ(girders[0].number, 1);
    EXPECT_EQ(girders[1].number, 2);
    EXPECT_EQ(girders[0].typeNumber, 11);
    EXPECT_EQ(girders[0].designation, L"KT 800");
    EXPECT_EQ(girders[0].position, Point2d(100, 200));
    EXPECT_EQ(girders[1].rotation, -90);
    EXPECT_DOUBLE_EQ(girders[0].scaledValue, 1.5);
    EXPECT_DOUBLE_EQ(girders[1].scaledValue, 123.456);
    EXPECT_EQ(girders[1].lastNumber, 7000);
    EXPECT_EQ(girders[0].thirdCode, L"000");
    EXPECT_EQ(addSet(5, C(u"none"), 0, values), 1);
    EXPECT_EQ(girders.size(), 2u);
}

} // namespace
} // namespace ItUnitechnik

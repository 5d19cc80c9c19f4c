// The box of the contours of a record.
#include "records/outline/contour.h"

#include "geometry/bounding_box.h"
#include "geometry/point.h"
#include "records/outline/contour_test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace ItUnitechnik {
namespace {

using ContourTesting::CircleElement;
using ContourTesting::Segment;

TEST(ContourData, BoxOfACircleContour)
{
    ContourData data;
    Contour contour(502);
    contour.geoData.push_back(CircleElement(502, Point2d(100, 100), 50));
    data.contours.push_back(contour);
    EXPECT_EQ(data.boundingBox(), BoundingBox(Point2d(50, 50), Point2d(150, 150)));
}

TEST(ContourData, BoxWithoutContoursIsInvertedAndItsWidthWrapsToOne)
{
    ContourData data;
    BoundingBox box = data.boundingBox();
    EXPECT_EQ(box.min, Point2d(2147483647, 2147483647));
    EXPECT_EQ(box.max, Point2d(std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::min()));
    EXPECT_EQ(WrappingSubtract(box.max.x, box.min.x), 1);

    data.contours.push_back(Contour(502));
    EXPECT_EQ(data.boundingBox(), box);
}

TEST(ContourData, ElementWithoutCurveAddsNothingToTheBox)
{
    ContourData data;
    Contour contour(502);
    contour.geoData.push_back(GeoData(502));
    contour.geoData.push_back(Segment(502, Point2d(1, 2), Point2d(3, 4)));
    data.contours.push_back(contour);
    EXPECT_EQ(data.boundingBox(), BoundingBox(Point2d(1, 2), Point2d(3, 4)));
}

TEST(ContourData, BoxTakesInAllContours)
{
    ContourData data;
    Contour first(502);
    first.geoData.push_back(Segment(502, Point2d(0, 0), Point2d(3000, 0)));
    first.geoData.push_back(Segment(502, Point2d(3000, 0), Point2d(3000, 1500)));
    Contour second(502);
    second.geoData.push_back(Segment(502, Point2d(5000, 0), Point2d(6000, 1000)));
    Contour third(502);
    third.geoData.push_back(Segment(502, Point2d(-100, -50), Point2d(100, 50)));
    data.contours = {first, second, third};
    EXPECT_EQ(data.boundingBox(), BoundingBox(Point2d(-100, -50), Point2d(6000, 1500)));
}

} // namespace
} // namespace ItUnitechnik

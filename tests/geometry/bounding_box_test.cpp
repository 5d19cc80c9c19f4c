#include "geometry/bounding_box.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace ItUnitechnik {
namespace {

const std::int32_t int32Max = std::numeric_limits<std::int32_t>::max();
const std::int32_t int32Min = std::numeric_limits<std::int32_t>::min();

TEST(BoundingBox, EmptyBoxIsInverted)
{
    BoundingBox box;
    EXPECT_EQ(box.min.x, 2147483647);
    EXPECT_EQ(box.min.y, 2147483647);
    EXPECT_EQ(box.max.x, int32Min);
    EXPECT_EQ(box.max.y, int32Min);
}

TEST(BoundingBox, WidthOfTheEmptyBoxWrapsToOne)
{
    BoundingBox box;
    EXPECT_EQ(WrappingSubtract(box.max.x, box.min.x), 1);
    EXPECT_EQ(WrappingSubtract(box.max.y, box.min.y), 1);
}

TEST(BoundingBox, WideningTheEmptyBoxByAPointGivesThePoint)
{
    BoundingBox box;
    box.widen(Point2d(-3, 7));
    EXPECT_EQ(box, BoundingBox(Point2d(-3, 7), Point2d(-3, 7)));
}

TEST(BoundingBox, WidensPerAxis)
{
    BoundingBox box(Point2d(0, 0), Point2d(10, 10));
    box.widen(BoundingBox(Point2d(5, -5), Point2d(20, 5)));
    EXPECT_EQ(box, BoundingBox(Point2d(0, -5), Point2d(20, 10)));
}

TEST(BoundingBox, WideningByTheEmptyBoxChangesNothing)
{
    BoundingBox box(Point2d(1, 2), Point2d(3, 4));
    box.widen(BoundingBox());
    EXPECT_EQ(box, BoundingBox(Point2d(1, 2), Point2d(3, 4)));

    BoundingBox empty;
    empty.widen(BoundingBox());
    EXPECT_EQ(empty.min, Point2d(int32Max, int32Max));
    EXPECT_EQ(empty.max, Point2d(int32Min, int32Min));
}

} // namespace
} // namespace ItUnitechnik

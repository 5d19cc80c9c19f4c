#include "geometry/curve.h"

#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"

#include <gtest/gtest.h>

#include <memory>

namespace ItUnitechnik {
namespace {

TEST(Curve, VersionIsSetAtConstruction)
{
    EXPECT_EQ(LineSegment(600).version, 600);
    EXPECT_EQ(Circle(502).version, 502);
    EXPECT_EQ(Arc(-1).version, -1);
}

TEST(Curve, CopyVersionFromNullChangesNothing)
{
    LineSegment segment(502);
    EXPECT_FALSE(segment.copyVersion(nullptr));
    EXPECT_EQ(segment.version, 502);
}

TEST(Curve, CopyVersionTakesTheOthersVersion)
{
    Arc arc(502);
    LineSegment other(600);
    EXPECT_TRUE(arc.copyVersion(&other));
    EXPECT_EQ(arc.version, 600);
    EXPECT_EQ(other.version, 600);
}

TEST(Curve, CloneKeepsTheClassAndIsDestroyedThroughTheBase)
{
    std::unique_ptr<Curve> curves[] = {std::make_unique<LineSegment>(1), std::make_unique<Circle>(2),
                                       std::make_unique<Arc>(3)};
    std::unique_ptr<Curve> copies[] = {curves[0]->clone(), curves[1]->clone(), curves[2]->clone()};
    EXPECT_NE(dynamic_cast<LineSegment*>(copies[0].get()), nullptr);
    EXPECT_NE(dynamic_cast<Circle*>(copies[1].get()), nullptr);
    EXPECT_EQ(dynamic_cast<Arc*>(copies[1].get()), nullptr);
    EXPECT_NE(dynamic_cast<Arc*>(copies[2].get()), nullptr);
    EXPECT_EQ(copies[0]->version, 1);
    EXPECT_EQ(copies[1]->version, 2);
    EXPECT_EQ(copies[2]->version, 3);
}

} // namespace
} // namespace ItUnitechnik

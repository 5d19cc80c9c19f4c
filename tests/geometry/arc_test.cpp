#include "geometry/arc.h"

#include "framework/read_idioms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

Arc QuarterArc(std::int32_t version)
{
    Arc arc(version);
    arc.centre = Point2d(100, 200);
    arc.radius = 50;
    arc.startAngle = 0;
    arc.endAngle = 90;
    return arc;
}

std::wstring Written(Arc& arc)
{
    StringArchive s;
    EXPECT_TRUE(arc.Write(s.archive));
    return s.Text();
}

TEST(Arc, DefaultsAreZero)
{
    Arc arc(502);
    EXPECT_EQ(arc.startAngle, 0);
    EXPECT_EQ(arc.endAngle, 0);
    EXPECT_EQ(Written(arc), L"00000 00000 00000 000 000 000");
}

TEST(Arc, WritesItsFlagsInDecimalWithThreeDigits)
{
    Arc arc = QuarterArc(502);
    arc.flags = 255;
    EXPECT_EQ(Written(arc), L"00100 00200 00050 000 090 255");
    arc.flags = 10;
    EXPECT_EQ(Written(arc), L"00100 00200 00050 000 090 010");
}

TEST(Arc, WritesSignedCoordinatesFromVersion600)
{
    Arc arc = QuarterArc(600);
    arc.centre.y = -200;
    arc.endAngle = 1234;
    EXPECT_EQ(Written(arc), L"+00100 -00200 00050 000 1234 000");
}

TEST(Arc, ReadsItsFlagsInHexadecimal)
{
    StringArchive s(L"00100 00200 00050 045 270 010\nNEXT");
    Arc arc(502);
    EXPECT_TRUE(arc.Read(s.archive));
    EXPECT_EQ(arc.centre, Point2d(100, 200));
    EXPECT_EQ(arc.radius, 50);
    EXPECT_EQ(arc.startAngle, 45);
    EXPECT_EQ(arc.endAngle, 270);
    EXPECT_EQ(arc.flags, 16);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(Arc, FlagsTenAreWrittenAs010AndReadBackAs16)
{
    Arc written = QuarterArc(600);
    written.flags = 10;
    StringArchive out;
    written.Write(out.archive);

    StringArchive in(out.Text());
    Arc read(600);
    EXPECT_TRUE(read.Read(in.archive));
    EXPECT_EQ(read.centre, written.centre);
    EXPECT_EQ(read.radius, written.radius);
    EXPECT_EQ(read.startAngle, written.startAngle);
    EXPECT_EQ(read.endAngle, written.endAngle);
    EXPECT_EQ(read.flags, 16);
}

TEST(Arc, LastFieldThatIsNoHexadecimalNumberIsDropped)
{
    StringArchive s(L"00100 00200 00050 045 270 xyz NEXT");
    Arc arc(502);
    EXPECT_TRUE(arc.Read(s.archive));
    EXPECT_EQ(arc.endAngle, 270);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(Arc, FailedAngleFailsTheArc)
{
    StringArchive s(L"00100 00200 00050 045 ### 000");
    Arc arc(502);
    EXPECT_FALSE(arc.Read(s.archive));
}

TEST(Arc, BoxIsTheWholeCircleWhateverTheAngles)
{
    Arc arc = QuarterArc(502);
    EXPECT_EQ(arc.boundingBox(), BoundingBox(Point2d(50, 150), Point2d(150, 250)));
    arc.startAngle = 10;
    arc.endAngle = 20;
    EXPECT_EQ(arc.boundingBox(), BoundingBox(Point2d(50, 150), Point2d(150, 250)));
}

TEST(Arc, RotateMovesTheCentreAndLeavesTheAngles)
{
    Arc arc = QuarterArc(502);
    arc.rotate(Point2d(0, 0), std::acos(-1.0) / 2.0);
    EXPECT_EQ(arc.centre, Point2d(-200, 100));
    EXPECT_EQ(arc.radius, 50);
    EXPECT_EQ(arc.startAngle, 0);
    EXPECT_EQ(arc.endAngle, 90);
}

TEST(Arc, MirrorsAndTranslateLeaveTheAngles)
{
    Arc arc = QuarterArc(502);
    arc.mirrorX(0);
    arc.mirrorY(0);
    arc.translate(Vector2d(1, 1));
    EXPECT_EQ(arc.centre, Point2d(-99, -199));
    EXPECT_EQ(arc.startAngle, 0);
    EXPECT_EQ(arc.endAngle, 90);
}

TEST(Arc, CloneIsAnArcWithEveryMember)
{
    Arc arc = QuarterArc(600);
    arc.flags = 3;
    std::unique_ptr<Curve> copy = arc.clone();
    auto* clone = dynamic_cast<Arc*>(copy.get());
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->version, 600);
    EXPECT_EQ(clone->centre, Point2d(100, 200));
    EXPECT_EQ(clone->radius, 50);
    EXPECT_EQ(clone->startAngle, 0);
    EXPECT_EQ(clone->endAngle, 90);
    EXPECT_EQ(clone->flags, 3);
}

} // namespace
} // namespace ItUnitechnik

#include "geometry/circle.h"

#include "framework/read_idioms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

std::wstring Written(Circle& circle)
{
    StringArchive s;
    EXPECT_TRUE(circle.Write(s.archive));
    return s.Text();
}

TEST(Circle, DefaultsAreZero)
{
    Circle circle(502);
    EXPECT_EQ(circle.centre, Point2d(0, 0));
    EXPECT_EQ(circle.radius, 0);
    EXPECT_EQ(circle.flags, 0);
    EXPECT_EQ(Written(circle), L"00000 00000 00000 0000");
}

TEST(Circle, WritesTheOldFormBelowVersion600)
{
    Circle circle(502, Point2d(100, 200), 50);
    circle.flags = 255;
    EXPECT_EQ(Written(circle), L"00100 00200 00050 00FF");
    circle.centre.x = -100;
    EXPECT_EQ(Written(circle), L"00000 00200 00050 00FF");
}

TEST(Circle, WritesSignedCoordinatesFromVersion600)
{
    Circle circle(600, Point2d(-100, 200), 50);
    EXPECT_EQ(Written(circle), L"-00100 +00200 00050 0000");
}

TEST(Circle, BoundingBoxIsTheCirclesBox)
{
    Circle circle(502, Point2d(100, 200), 50);
    EXPECT_EQ(circle.boundingBox(), BoundingBox(Point2d(50, 150), Point2d(150, 250)));
}

TEST(Circle, BoundingBoxWrapsAround)
{
    Circle circle(502, Point2d(std::numeric_limits<std::int32_t>::max(), 0), 1);
    BoundingBox box = circle.boundingBox();
    EXPECT_EQ(box.max.x, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(box.min.x, 2147483646);
}

TEST(Circle, OperationsMoveTheCentreOnly)
{
    Circle circle(502, Point2d(20, 0), 7);
    circle.rotate(Point2d(10, 0), std::acos(-1.0) / 2.0);
    EXPECT_EQ(circle.centre, Point2d(10, 10));
    EXPECT_EQ(circle.radius, 7);
    circle.translate(Vector2d(-5, 5));
    EXPECT_EQ(circle.centre, Point2d(5, 15));
    circle.mirrorX(0);
    EXPECT_EQ(circle.centre, Point2d(-5, 15));
    circle.mirrorY(10);
    EXPECT_EQ(circle.centre, Point2d(-5, 5));
    EXPECT_EQ(circle.radius, 7);
}

TEST(Circle, CloneHoldsEveryMember)
{
    Circle circle(600, Point2d(1, 2), 3);
    circle.flags = 4;
    std::unique_ptr<Curve> copy = circle.clone();
    auto* clone = dynamic_cast<Circle*>(copy.get());
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->version, 600);
    EXPECT_EQ(clone->centre, Point2d(1, 2));
    EXPECT_EQ(clone->radius, 3);
    EXPECT_EQ(clone->flags, 4);
}

TEST(Circle, ReadsItsFieldsAndLeavesTheLineEnd)
{
    StringArchive s(L"00100 00200 00050 00FF\nNEXT");
    Circle circle(502);
    EXPECT_TRUE(circle.Read(s.archive));
    EXPECT_EQ(circle.centre, Point2d(100, 200));
    EXPECT_EQ(circle.radius, 50);
    EXPECT_EQ(circle.flags, 255);
    EXPECT_EQ(s.archive.peek(), L'\n');
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(Circle, ReadsSignedCoordinates)
{
    StringArchive s(L"-00100 +00200 00050 0000");
    Circle circle(600);
    EXPECT_TRUE(circle.Read(s.archive));
    EXPECT_EQ(circle.centre, Point2d(-100, 200));
}

TEST(Circle, LastFieldThatIsNoHexadecimalNumberIsDroppedAsOneToken)
{
    StringArchive s(L"00100 00200 00050 ZZZZ NEXT");
    Circle circle(502);
    circle.flags = 9;
    EXPECT_TRUE(circle.Read(s.archive));
    // The failed extraction stores 0.
    EXPECT_EQ(circle.flags, 0);
    EXPECT_TRUE(s.archive.valid);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(Circle, StreamIsDecimalAgainAfterRead)
{
    StringArchive s(L"00100 00200 00050 0010 10");
    Circle circle(502);
    circle.Read(s.archive);
    EXPECT_EQ(circle.flags, 16);
    int next = 0;
    s.archive >> next;
    EXPECT_EQ(next, 10);
}

TEST(Circle, EarlierFieldThatFailsFailsTheCircle)
{
    StringArchive s(L"00100 00200 xx 00FF");
    Circle circle(502);
    EXPECT_FALSE(circle.Read(s.archive));
    EXPECT_EQ(circle.flags, 0);
}

TEST(Circle, ReadFailsOnAnInvalidArchive)
{
    StringArchive s(L"00100 00200 00050 00FF");
    s.archive.valid = false;
    Circle circle(502);
    EXPECT_FALSE(circle.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(Circle, ReadsBackAtBothVersions)
{
    for (std::int32_t version : {502, 600}) {
        Circle written(version, Point2d(100, 200), 50);
        written.flags = 0x7F;
        StringArchive out;
        written.Write(out.archive);
        StringArchive in(out.Text());
        Circle read(version);
        EXPECT_TRUE(read.Read(in.archive));
        EXPECT_EQ(read.centre, written.centre);
        EXPECT_EQ(read.radius, written.radius);
        EXPECT_EQ(read.flags, written.flags);
    }
}

} // namespace
} // namespace ItUnitechnik

#include "geometry/line_segment.h"

#include "framework/read_idioms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

std::wstring Written(LineSegment& segment)
{
    StringArchive s;
    EXPECT_TRUE(segment.Write(s.archive));
    return s.Text();
}

TEST(LineSegment, DefaultsAreZero)
{
    LineSegment segment(502);
    EXPECT_EQ(segment.start, Point2d(0, 0));
    EXPECT_EQ(segment.end, Point2d(0, 0));
    EXPECT_EQ(segment.flags, 0);
}

TEST(LineSegment, BelowVersion600CoordinatesAreClampedPoints)
{
    LineSegment segment(502, Point2d(-10, 5), Point2d(20, 30));
    EXPECT_EQ(Written(segment), L"00000 00005 00020 00030 0000");
    segment.version = 599;
    EXPECT_EQ(Written(segment), L"00000 00005 00020 00030 0000");
    segment.version = 0;
    EXPECT_EQ(Written(segment), L"00000 00005 00020 00030 0000");
    EXPECT_EQ(segment.start.x, -10);
}

TEST(LineSegment, FromVersion600CoordinatesAreSigned)
{
    LineSegment segment(600, Point2d(-10, 5), Point2d(20, 30));
    EXPECT_EQ(Written(segment), L"-00010 +00005 +00020 +00030 0000");
    segment.version = 601;
    EXPECT_EQ(Written(segment), L"-00010 +00005 +00020 +00030 0000");
}

TEST(LineSegment, FlagsAreFourUpperCaseHexadecimalDigits)
{
    LineSegment segment(502);
    segment.flags = 255;
    EXPECT_EQ(Written(segment), L"00000 00000 00000 00000 00FF");
    segment.flags = 0xABCDE;
    EXPECT_EQ(Written(segment), L"00000 00000 00000 00000 ABCDE");
    segment.flags = -1;
    EXPECT_EQ(Written(segment), L"00000 00000 00000 00000 FFFFFFFF");
}

TEST(LineSegment, StreamIsDecimalAgainBehindTheFlags)
{
    StringArchive s;
    LineSegment segment(600, Point2d(1, 2), Point2d(3, 4));
    segment.flags = 10;
    segment.Write(s.archive);
    s.archive << 10 << 1.5;
    EXPECT_EQ(s.Text(), L"+00001 +00002 +00003 +00004 000A101.5");
}

TEST(LineSegment, BoundingBoxTakesTheSmallerAndLargerEndPerAxis)
{
    LineSegment segment(502, Point2d(5, 1), Point2d(2, 9));
    EXPECT_EQ(segment.boundingBox(), BoundingBox(Point2d(2, 1), Point2d(5, 9)));

    LineSegment flat(502, Point2d(4, 7), Point2d(-4, 7));
    EXPECT_EQ(flat.boundingBox(), BoundingBox(Point2d(-4, 7), Point2d(4, 7)));
}

TEST(LineSegment, TranslateMovesBothEnds)
{
    LineSegment segment(502, Point2d(1, 2), Point2d(3, 4));
    segment.flags = 5;
    segment.translate(Vector2d(10, -20));
    EXPECT_EQ(segment.start, Point2d(11, -18));
    EXPECT_EQ(segment.end, Point2d(13, -16));
    EXPECT_EQ(segment.flags, 5);
}

TEST(LineSegment, RotateTurnsEachEndAboutTheCentre)
{
    LineSegment segment(502, Point2d(10, 0), Point2d(20, 0));
    segment.rotate(Point2d(10, 0), std::acos(-1.0) / 2.0);
    EXPECT_EQ(segment.start, Point2d(10, 0));
    EXPECT_EQ(segment.end, Point2d(10, 10));
}

TEST(LineSegment, MirrorsChangeTheNamedCoordinateAtBothEnds)
{
    LineSegment segment(502, Point2d(30, 1), Point2d(40, 2));
    segment.mirrorX(100);
    EXPECT_EQ(segment.start, Point2d(170, 1));
    EXPECT_EQ(segment.end, Point2d(160, 2));
    segment.mirrorY(0);
    EXPECT_EQ(segment.start, Point2d(170, -1));
    EXPECT_EQ(segment.end, Point2d(160, -2));
}

TEST(LineSegment, CloneHoldsEveryMember)
{
    LineSegment segment(600, Point2d(1, 2), Point2d(3, 4));
    segment.flags = 0x1F;
    std::unique_ptr<Curve> copy = segment.clone();
    auto* clone = dynamic_cast<LineSegment*>(copy.get());
    ASSERT_NE(clone, nullptr);
    EXPECT_NE(clone, &segment);
    EXPECT_EQ(clone->version, 600);
    EXPECT_EQ(clone->start, Point2d(1, 2));
    EXPECT_EQ(clone->end, Point2d(3, 4));
    EXPECT_EQ(clone->flags, 0x1F);
}

TEST(LineSegment, ReadsTheOldFormAndSkipsTheRestOfTheLine)
{
    StringArchive s(L"00010 00005 00020 00030 00FF rest\nNEXT");
    LineSegment segment(502);
    EXPECT_TRUE(segment.Read(s.archive));
    EXPECT_EQ(segment.start, Point2d(10, 5));
    EXPECT_EQ(segment.end, Point2d(20, 30));
    EXPECT_EQ(segment.flags, 255);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(LineSegment, ReadsTheSignedFormWhateverItsVersion)
{
    StringArchive s(L"-00010 +00005 +00020 +00030 0A1b\n");
    LineSegment segment(0);
    EXPECT_TRUE(segment.Read(s.archive));
    EXPECT_EQ(segment.start, Point2d(-10, 5));
    EXPECT_EQ(segment.end, Point2d(20, 30));
    EXPECT_EQ(segment.flags, 0xA1B);
}

TEST(LineSegment, FlagsThatAreNoNumberLeaveZeroAndTheFileGoesOn)
{
    StringArchive s(L"00010 00005 00020 00030 ZZZZ\nNEXT");
    LineSegment segment(502);
    EXPECT_TRUE(segment.Read(s.archive));
    EXPECT_EQ(segment.flags, 0);
    EXPECT_TRUE(s.archive.valid);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(LineSegment, StreamStaysDecimalAfterRead)
{
    StringArchive s(L"00010 00005 00020 00030 0010\n10");
    LineSegment segment(502);
    segment.Read(s.archive);
    EXPECT_EQ(segment.flags, 16);
    int next = 0;
    s.archive >> next;
    EXPECT_EQ(next, 10);
}

TEST(LineSegment, ReadFailsOnABadCoordinateAndReadsNoFurther)
{
    StringArchive s(L"00010 00005 xx 00030 00FF\n");
    LineSegment segment(502);
    segment.flags = 7;
    EXPECT_FALSE(segment.Read(s.archive));
    EXPECT_EQ(segment.flags, 7);
    EXPECT_TRUE(s.archive.valid);
}

TEST(LineSegment, ReadFailsOnAnInvalidArchive)
{
    StringArchive s(L"00010 00005 00020 00030 00FF\n");
    s.archive.valid = false;
    LineSegment segment(502);
    EXPECT_FALSE(segment.Read(s.archive));
    EXPECT_EQ(segment.flags, 0);
}

TEST(LineSegment, ReadsBackFromVersion600)
{
    LineSegment written(600, Point2d(-10, 5), Point2d(20, -30));
    written.flags = 0x12;
    StringArchive out;
    written.Write(out.archive);

    StringArchive in(out.Text() + L"\n");
    LineSegment read(600);
    EXPECT_TRUE(read.Read(in.archive));
    EXPECT_EQ(read.start, written.start);
    EXPECT_EQ(read.end, written.end);
    EXPECT_EQ(read.flags, written.flags);
}

TEST(LineSegment, NegativeCoordinatesBelowVersion600ReadBackAsZero)
{
    LineSegment written(502, Point2d(-10, 5), Point2d(20, -30));
    StringArchive out;
    written.Write(out.archive);

    StringArchive in(out.Text() + L"\n");
    LineSegment read(502);
    EXPECT_TRUE(read.Read(in.archive));
    EXPECT_EQ(read.start, Point2d(0, 5));
    EXPECT_EQ(read.end, Point2d(20, 0));
}

} // namespace
} // namespace ItUnitechnik

#include "geometry/polygon.h"

#include "framework/read_idioms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

std::wstring Written(Polygon& polygon)
{
    StringArchive s;
    EXPECT_TRUE(polygon.Write(s.archive));
    return s.Text();
}

Polygon ThreePoints(std::int32_t version)
{
    Polygon polygon(version);
    polygon.points = {Point2d(10, 20), Point2d(30, 40), Point2d(50, 60)};
    polygon.segmentFlags = {1, 2};
    return polygon;
}

TEST(Polygon, EmptyPolygonIsTheCountAndABlank)
{
    Polygon polygon(600);
    EXPECT_EQ(Written(polygon), L"0 ");
}

TEST(Polygon, EmptyPolygonHasTheInvertedBox)
{
    Polygon polygon(502);
    BoundingBox box = polygon.boundingBox();
    EXPECT_EQ(box.min, Point2d(2147483647, 2147483647));
    EXPECT_EQ(box.max, Point2d(std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::min()));
}

TEST(Polygon, OnePointEndsWithABlankAndNoFlags)
{
    Polygon polygon(600);
    polygon.points = {Point2d(5, 6)};
    EXPECT_EQ(Written(polygon), L"1 +00005 +00006 ");
}

TEST(Polygon, ThreePointsWithTheirFlags)
{
    Polygon polygon = ThreePoints(500);
    EXPECT_EQ(Written(polygon), L"3 00010 00020 00030 00040 0001 00050 00060 0002");
}

TEST(Polygon, ThreePointsFromVersion600)
{
    Polygon polygon = ThreePoints(600);
    polygon.segmentFlags = {0xAB, -1};
    EXPECT_EQ(Written(polygon), L"3 +00010 +00020 +00030 +00040 00AB +00050 +00060 FFFFFFFF");
}

TEST(Polygon, NegativeCoordinateIsClampedBelowVersion600Only)
{
    Polygon polygon(502);
    polygon.points = {Point2d(-5, 10), Point2d(20, -30)};
    polygon.segmentFlags = {0xFF};
    EXPECT_EQ(Written(polygon), L"2 00000 00010 00020 00000 00FF");
    polygon.version = 600;
    EXPECT_EQ(Written(polygon), L"2 -00005 +00010 +00020 -00030 00FF");
    EXPECT_EQ(polygon.points[0].x, -5);
}

TEST(Polygon, TenPointsTakeTwoDigitsForTheCount)
{
    Polygon polygon(502);
    polygon.points.assign(10, Point2d(1, 1));
    polygon.segmentFlags.assign(9, 0);
    std::wstring text = Written(polygon);
    EXPECT_EQ(text.substr(0, 32), L"10 00001 00001 00001 00001 0000 ");
}

TEST(Polygon, MissingFlagsEntryIsWrittenAsZero)
{
    Polygon polygon(502);
    polygon.points = {Point2d(1, 2), Point2d(3, 4), Point2d(5, 6)};
    polygon.segmentFlags = {7};
    EXPECT_EQ(Written(polygon), L"3 00001 00002 00003 00004 0007 00005 00006 0000");
}

TEST(Polygon, BoundingBoxTakesEveryPoint)
{
    Polygon polygon(502);
    polygon.points = {Point2d(5, 1), Point2d(-2, 9), Point2d(3, -4)};
    EXPECT_EQ(polygon.boundingBox(), BoundingBox(Point2d(-2, -4), Point2d(5, 9)));
}

TEST(Polygon, RotateRoundsEachPointByItself)
{
    // (1, 1) by 45 degrees: (0, 1.41) gives (0, 1); (2, 1): (0.71, 2.12) gives (1, 2).
    Polygon polygon(502);
    polygon.points = {Point2d(1, 1), Point2d(2, 1)};
    polygon.segmentFlags = {3};
    polygon.rotate(Point2d(0, 0), std::acos(-1.0) / 4.0);
    EXPECT_EQ(polygon.points[0], Point2d(0, 1));
    EXPECT_EQ(polygon.points[1], Point2d(1, 2));
    EXPECT_EQ(polygon.segmentFlags, std::vector<std::int32_t>{3});
}

TEST(Polygon, TranslateAndMirrorsWorkOnEveryPoint)
{
    Polygon polygon(502);
    polygon.points = {Point2d(1, 2), Point2d(3, 4)};
    polygon.segmentFlags = {9};
    polygon.translate(Vector2d(10, 10));
    EXPECT_EQ(polygon.points[0], Point2d(11, 12));
    EXPECT_EQ(polygon.points[1], Point2d(13, 14));
    polygon.mirrorX(0);
    EXPECT_EQ(polygon.points[0], Point2d(-11, 12));
    EXPECT_EQ(polygon.points[1], Point2d(-13, 14));
    polygon.mirrorY(20);
    EXPECT_EQ(polygon.points[0], Point2d(-11, 28));
    EXPECT_EQ(polygon.points[1], Point2d(-13, 26));
    EXPECT_EQ(polygon.segmentFlags, std::vector<std::int32_t>{9});
}

TEST(Polygon, CloneCopiesVersionPointsAndFlags)
{
    Polygon polygon = ThreePoints(600);
    std::unique_ptr<Curve> copy = polygon.clone();
    auto* clone = dynamic_cast<Polygon*>(copy.get());
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->version, 600);
    EXPECT_EQ(clone->points, polygon.points);
    EXPECT_EQ(clone->segmentFlags, polygon.segmentFlags);

    // The clone's collections work on its own vectors.
    clone->Add(Point2d(70, 80));
    clone->Add(3);
    EXPECT_EQ(clone->points.size(), 4u);
    EXPECT_EQ(clone->segmentFlags.size(), 3u);
    EXPECT_EQ(polygon.points.size(), 3u);
    EXPECT_EQ(polygon.segmentFlags.size(), 2u);
}

TEST(Polygon, AssignmentKeepsTheCollectionsOnTheirOwnVectors)
{
    Polygon source = ThreePoints(600);
    Polygon target(502);
    target = source;
    EXPECT_EQ(target.version, 600);
    EXPECT_EQ(target.points, source.points);
    target.PointCollection::Clear();
    target.FlagCollection::Clear();
    EXPECT_TRUE(target.points.empty());
    EXPECT_TRUE(target.segmentFlags.empty());
    EXPECT_EQ(source.points.size(), 3u);
    EXPECT_EQ(source.segmentFlags.size(), 2u);
}

TEST(Polygon, CollectionOperationsEditPointsAndFlags)
{
    Polygon polygon(502);
    polygon.Add(Point2d(1, 1));
    polygon.Add(Point2d(3, 3));
    polygon.Insert(polygon.points.begin() + 1, Point2d(2, 2));
    polygon.Add(5);
    polygon.Insert(polygon.segmentFlags.begin(), 4);
    EXPECT_EQ(polygon.points, (std::vector<Point2d>{Point2d(1, 1), Point2d(2, 2), Point2d(3, 3)}));
    EXPECT_EQ(polygon.segmentFlags, (std::vector<std::int32_t>{4, 5}));
    polygon.Remove(polygon.points.begin());
    polygon.RemoveRange(polygon.segmentFlags.begin(), polygon.segmentFlags.begin() + 1);
    EXPECT_EQ(polygon.points, (std::vector<Point2d>{Point2d(2, 2), Point2d(3, 3)}));
    EXPECT_EQ(polygon.segmentFlags, (std::vector<std::int32_t>{5}));
}

TEST(Polygon, ReadsPointsAndFlagsAndSkipsTheLine)
{
    StringArchive s(L"3 00010 00020 00030 00040 0001 00050 00060 000A\nNEXT");
    Polygon polygon(502);
    EXPECT_TRUE(polygon.Read(s.archive));
    EXPECT_EQ(polygon.points, (std::vector<Point2d>{Point2d(10, 20), Point2d(30, 40), Point2d(50, 60)}));
    EXPECT_EQ(polygon.segmentFlags, (std::vector<std::int32_t>{1, 10}));
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(Polygon, ReadsSignedCoordinatesWithoutAVersionTest)
{
    StringArchive s(L"2 -00005 +00010 +00020 -00030 00FF\n");
    Polygon polygon(0);
    EXPECT_TRUE(polygon.Read(s.archive));
    EXPECT_EQ(polygon.points, (std::vector<Point2d>{Point2d(-5, 10), Point2d(20, -30)}));
    EXPECT_EQ(polygon.segmentFlags, std::vector<std::int32_t>{255});
}

TEST(Polygon, StreamIsDecimalAgainAfterRead)
{
    StringArchive s(L"2 1 2 3 4 10\n10");
    Polygon polygon(502);
    polygon.Read(s.archive);
    EXPECT_EQ(polygon.segmentFlags, std::vector<std::int32_t>{16});
    int next = 0;
    s.archive >> next;
    EXPECT_EQ(next, 10);
}

TEST(Polygon, CountOfZeroOrLessSkipsTheLine)
{
    StringArchive s(L"0 \n-2 00001 00002\nNEXT");
    Polygon polygon(502);
    EXPECT_TRUE(polygon.Read(s.archive));
    EXPECT_TRUE(polygon.points.empty());
    EXPECT_TRUE(polygon.Read(s.archive));
    EXPECT_TRUE(polygon.points.empty());
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(Polygon, ReadAppends)
{
    StringArchive s(L"1 00007 00008 \n");
    Polygon polygon(502);
    polygon.points = {Point2d(1, 2)};
    EXPECT_TRUE(polygon.Read(s.archive));
    EXPECT_EQ(polygon.points, (std::vector<Point2d>{Point2d(1, 2), Point2d(7, 8)}));
    EXPECT_TRUE(polygon.segmentFlags.empty());
}

TEST(Polygon, FlagsThatAreNoNumberFailTheRead)
{
    StringArchive s(L"3 00001 00002 00003 00004 ZZZZ 00005 00006 0001\n");
    Polygon polygon(502);
    EXPECT_FALSE(polygon.Read(s.archive));
    EXPECT_EQ(polygon.points, (std::vector<Point2d>{Point2d(1, 2), Point2d(3, 4)}));
    EXPECT_TRUE(polygon.segmentFlags.empty());
    EXPECT_TRUE(s.archive.valid);
}

TEST(Polygon, ReadsBackFromVersion600)
{
    Polygon written(600);
    written.points = {Point2d(-10, 20), Point2d(30, -40), Point2d(0, 0)};
    written.segmentFlags = {0x1, 0xFFFF};
    StringArchive out;
    written.Write(out.archive);

    StringArchive in(out.Text() + L"\n");
    Polygon read(600);
    EXPECT_TRUE(read.Read(in.archive));
    EXPECT_EQ(read.points, written.points);
    EXPECT_EQ(read.segmentFlags, written.segmentFlags);
}

TEST(Polygon, ReadsBackBelowVersion600WithoutNegativeCoordinates)
{
    Polygon written = ThreePoints(502);
    StringArchive out;
    written.Write(out.archive);

    StringArchive in(out.Text() + L"\n");
    Polygon read(502);
    EXPECT_TRUE(read.Read(in.archive));
    EXPECT_EQ(read.points, written.points);
    EXPECT_EQ(read.segmentFlags, written.segmentFlags);
}

} // namespace
} // namespace ItUnitechnik

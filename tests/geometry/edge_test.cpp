#include "geometry/edge.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

TEST(Edge, DefaultIsTwoZeroPoints)
{
    StringArchive s;
    Edge e;
    EXPECT_TRUE(e.Write(s.archive));
    EXPECT_EQ(s.Text(), L"00000 00000 00000 00000");
}

TEST(Edge, WritesBothEndsClampedAsPoints)
{
    StringArchive s;
    Edge e(Point2d(-1, 2), Point2d(300, -4));
    EXPECT_TRUE(e.Write(s.archive));
    EXPECT_EQ(s.Text(), L"00000 00002 00300 00000");
    EXPECT_EQ(e.first.x, -1);
    EXPECT_EQ(e.second.y, -4);
}

TEST(Edge, ReadsFirstThenSecond)
{
    StringArchive s(L"00001 00002 00300 00004");
    Edge e;
    EXPECT_TRUE(e.Read(s.archive));
    EXPECT_EQ(e.first, Point2d(1, 2));
    EXPECT_EQ(e.second, Point2d(300, 4));
}

TEST(Edge, ReadsSignedCoordinates)
{
    StringArchive s(L"-00001 +00002 +00003 -00004");
    Edge e;
    EXPECT_TRUE(e.Read(s.archive));
    EXPECT_EQ(e, Edge(Point2d(-1, 2), Point2d(3, -4)));
}

TEST(Edge, ReadFailsOnAMissingCoordinate)
{
    StringArchive s(L"1 2 3");
    Edge e;
    EXPECT_FALSE(e.Read(s.archive));
}

TEST(Edge, WriteReportsAnInvalidArchive)
{
    StringArchive s;
    s.archive.valid = false;
    Edge e;
    EXPECT_FALSE(e.Write(s.archive));
}

} // namespace
} // namespace ItUnitechnik

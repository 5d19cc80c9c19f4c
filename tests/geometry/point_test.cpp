#include "geometry/point.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

const double quarterTurn = std::acos(-1.0) / 2.0;
const std::int32_t int32Max = std::numeric_limits<std::int32_t>::max();
const std::int32_t int32Min = std::numeric_limits<std::int32_t>::min();

TEST(Point2d, DefaultIsZero)
{
    Point2d p;
    EXPECT_EQ(p.x, 0);
    EXPECT_EQ(p.y, 0);
}

TEST(Point2d, WritesTwoFiveDigitFields)
{
    StringArchive s;
    Point2d p(12, 3456);
    EXPECT_TRUE(p.Write(s.archive));
    EXPECT_EQ(s.Text(), L"00012 03456");
}

TEST(Point2d, NegativeCoordinateIsWrittenAsZeroButKept)
{
    StringArchive s;
    Point2d p(-1, 20);
    EXPECT_TRUE(p.Write(s.archive));
    EXPECT_EQ(s.Text(), L"00000 00020");
    EXPECT_EQ(p.x, -1);
    EXPECT_EQ(p.y, 20);
}

TEST(Point2d, EachCoordinateIsClampedByItself)
{
    StringArchive s;
    Point2d p(7, -300);
    p.Write(s.archive);
    EXPECT_EQ(s.Text(), L"00007 00000");
}

TEST(Point2d, WideCoordinateIsNotCut)
{
    StringArchive s;
    Point2d p(123456, 1);
    EXPECT_TRUE(p.Write(s.archive));
    EXPECT_EQ(s.Text(), L"123456 00001");
}

TEST(Point2d, WriteReportsAnInvalidArchive)
{
    StringArchive s;
    s.archive.valid = false;
    Point2d p(1, 2);
    EXPECT_FALSE(p.Write(s.archive));
}

TEST(Point2d, ReadsTheUnsignedAndTheSignedForm)
{
    StringArchive s(L"00012 03456 +01234 -01234");
    Point2d a;
    Point2d b;
    EXPECT_TRUE(a.Read(s.archive));
    EXPECT_TRUE(b.Read(s.archive));
    EXPECT_EQ(a, Point2d(12, 3456));
    EXPECT_EQ(b.x, 1234);
    EXPECT_EQ(b.y, -1234);
}

TEST(Point2d, ReadFailsOnText)
{
    StringArchive s(L"12 ab");
    Point2d p;
    EXPECT_FALSE(p.Read(s.archive));
    EXPECT_EQ(p.x, 12);
}

TEST(Point2d, ReadFailsWhenTheArchiveIsInvalid)
{
    StringArchive s(L"1 2");
    s.archive.valid = false;
    Point2d p;
    EXPECT_FALSE(p.Read(s.archive));
}

TEST(Point2d, TranslateMovesAndReturnsThePoint)
{
    Point2d p(10, 20);
    Point2d& result = p.translate(Vector2d(5, -30));
    EXPECT_EQ(&result, &p);
    EXPECT_EQ(p, Point2d(15, -10));
}

TEST(Point2d, TranslateWrapsAround)
{
    Point2d p(int32Max, int32Min);
    p.translate(Vector2d(1, -1));
    EXPECT_EQ(p.x, int32Min);
    EXPECT_EQ(p.y, int32Max);
}

TEST(Point2d, MirrorXChangesOnlyX)
{
    Point2d p(30, 5);
    Point2d& result = p.mirrorX(100);
    EXPECT_EQ(&result, &p);
    EXPECT_EQ(p.x, 170);
    EXPECT_EQ(p.y, 5);
}

TEST(Point2d, MirrorYChangesOnlyY)
{
    Point2d p(3, 4);
    p.mirrorY(10);
    EXPECT_EQ(p.x, 3);
    EXPECT_EQ(p.y, 16);
}

TEST(Point2d, MirrorWrapsAround)
{
    // 2 * 2^30 is 2^31, which wraps to -2^31.
    Point2d p(0, 0);
    p.mirrorY(1073741824);
    EXPECT_EQ(p.y, int32Min);
    p.mirrorX(int32Max); // 2 * max wraps to -2, minus 0
    EXPECT_EQ(p.x, -2);
}

TEST(Point2d, QuarterTurnAboutTheOriginLandsOnTheGrid)
{
    Point2d p(10, 0);
    Point2d& result = p.rotate(Point2d(0, 0), quarterTurn);
    EXPECT_EQ(&result, &p);
    EXPECT_EQ(p, Point2d(0, 10));
}

TEST(Point2d, TurnsAboutItsCentre)
{
    Point2d p(110, 50);
    p.rotate(Point2d(100, 50), quarterTurn);
    EXPECT_EQ(p, Point2d(100, 60));
}

TEST(Point2d, TurnWrapsAroundThroughTheCentre)
{
    // The offset from the centre wraps to 2147483647 and back again.
    Point2d p(int32Min, 0);
    p.rotate(Point2d(1, 0), 0.0);
    EXPECT_EQ(p.x, int32Min);
    EXPECT_EQ(p.y, 0);
}

TEST(Vector2d, WritesSixDigitFieldsWithoutClamp)
{
    StringArchive s;
    Vector2d v(-5, 7);
    EXPECT_TRUE(v.Write(s.archive));
    EXPECT_EQ(s.Text(), L"0000-5 000007");
}

TEST(Vector2d, NegativeFieldDoesNotReadBackAsWritten)
{
    StringArchive s(L"0000-5 000007");
    Vector2d v(1, 1);
    EXPECT_TRUE(v.Read(s.archive));
    EXPECT_EQ(v.x, 0);
    EXPECT_EQ(v.y, -5);
}

TEST(Vector2d, ReadsTwoIntegers)
{
    StringArchive s(L"000012 -00034");
    Vector2d v;
    EXPECT_TRUE(v.Read(s.archive));
    EXPECT_EQ(v, Vector2d(12, -34));
}

TEST(Vector2d, RotateRoundsToTheNearestWholeNumber)
{
    // (2, 0) by 60 degrees: (1.0000000000000002, 1.7320508075688772).
    Vector2d v(2, 0);
    v.rotate(std::acos(-1.0) / 3.0);
    EXPECT_EQ(v, Vector2d(1, 2));

    // Halves and fractions go away from zero, not down.
    Vector2d w(-2, 0);
    w.rotate(std::acos(-1.0) / 3.0);
    EXPECT_EQ(w, Vector2d(-1, -2));
}

TEST(Vector2d, RepeatedTurnsDriftByRounding)
{
    // (5, 0) by 45 degrees is (3.54, 3.54), on the grid (4, 4); turned again
    // (0, 5.66), on the grid (0, 6): one turn of 90 degrees gives (0, 5).
    Vector2d twice(5, 0);
    twice.rotate(quarterTurn / 2.0);
    EXPECT_EQ(twice, Vector2d(4, 4));
    twice.rotate(quarterTurn / 2.0);
    EXPECT_EQ(twice, Vector2d(0, 6));

    Vector2d once(5, 0);
    once.rotate(quarterTurn);
    EXPECT_EQ(once, Vector2d(0, 5));
}

TEST(Vector2d, RotateUsesTheOldComponentsForBoth)
{
    Vector2d v(3, 4);
    v.rotate(quarterTurn);
    EXPECT_EQ(v, Vector2d(-4, 3));
}

TEST(Point3d, WritesThreeSixDigitFieldsWithoutClamp)
{
    StringArchive s;
    Point3d p(1, -2, 1234567);
    EXPECT_TRUE(p.Write(s.archive));
    EXPECT_EQ(s.Text(), L"000001 0000-2 1234567");
}

TEST(Point3d, ReadsThreeIntegers)
{
    StringArchive s(L"000001 -00002 +00003");
    Point3d p;
    EXPECT_TRUE(p.Read(s.archive));
    EXPECT_EQ(p, Point3d(1, -2, 3));
}

TEST(Point3d, DefaultIsZero)
{
    StringArchive s;
    Point3d p;
    p.Write(s.archive);
    EXPECT_EQ(s.Text(), L"000000 000000 000000");
}

TEST(Vector3d, WritesEachComponentCutTowardsZero)
{
    StringArchive s;
    Vector3d v(-1.9, 2.9, 0.4);
    EXPECT_TRUE(v.Write(s.archive));
    EXPECT_EQ(s.Text(), L"0000-1 000002 000000");
    EXPECT_EQ(v.x, -1.9);
}

TEST(Vector3d, ReadsIntegersAndStoresThemAsDoubles)
{
    StringArchive s(L"000001 -2 +3");
    Vector3d v(0.5, 0.5, 0.5);
    EXPECT_TRUE(v.Read(s.archive));
    EXPECT_EQ(v.x, 1.0);
    EXPECT_EQ(v.y, -2.0);
    EXPECT_EQ(v.z, 3.0);
}

TEST(Vector3d, ReadFailsOnAFraction)
{
    StringArchive s(L"1.5 2 3");
    Vector3d v;
    EXPECT_FALSE(v.Read(s.archive));
}

TEST(TruncateToInt32, CutsTowardsZero)
{
    EXPECT_EQ(TruncateToInt32(-1.9), -1);
    EXPECT_EQ(TruncateToInt32(1.9), 1);
    EXPECT_EQ(TruncateToInt32(2147483647.9), int32Max);
    EXPECT_EQ(TruncateToInt32(-2147483648.9), int32Min);
}

TEST(TruncateToInt32, ValueWithoutAnInt32GivesTheSmallest)
{
    EXPECT_EQ(TruncateToInt32(1e10), int32Min);
    EXPECT_EQ(TruncateToInt32(-1e10), int32Min);
    EXPECT_EQ(TruncateToInt32(2147483648.0), int32Min);
    EXPECT_EQ(TruncateToInt32(std::numeric_limits<double>::quiet_NaN()), int32Min);
}

TEST(WrappingArithmetic, WrapsInThirtyTwoBits)
{
    EXPECT_EQ(WrappingAdd(int32Max, 1), int32Min);
    EXPECT_EQ(WrappingSubtract(int32Min, 1), int32Max);
    EXPECT_EQ(WrappingSubtract(int32Min, int32Max), 1);
    EXPECT_EQ(WrappingAdd(-3, 5), 2);
}

} // namespace
} // namespace ItUnitechnik

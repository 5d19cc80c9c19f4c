#include "records/reinforcement/welding_point.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

TEST(WeldingIntersection, OffsetAndCode)
{
    WeldingIntersection intersection;
    intersection.offset = 120;
    intersection.weldCode = 5;
    StringArchive s;
    EXPECT_TRUE(intersection.Write(s.archive));
    EXPECT_EQ(s.Text(), L"00120 005");
}

TEST(WeldingPoint, AlwaysEightIntersectionsWithoutATrailingBlank)
{
    WeldingPoint point;
    StringArchive s;
    EXPECT_TRUE(point.Write(s.archive));
    EXPECT_EQ(s.Text(), L"00000 000 00000 000 00000 000 00000 000 00000 000 00000 000 00000 000 00000 000");
}

TEST(WeldingPoint, UnusedIntersectionsAreZeros)
{
    WeldingPoint point;
    point.intersections[0].offset = 120;
    point.intersections[0].weldCode = 5;
    point.intersections[7].offset = 99999;
    point.intersections[7].weldCode = 1;
    StringArchive s;
    EXPECT_TRUE(point.Write(s.archive));
    EXPECT_EQ(s.Text(), L"00120 005 00000 000 00000 000 00000 000 00000 000 00000 000 00000 000 99999 001");
}

TEST(WeldingPoint, ReadsEightPairs)
{
    StringArchive s(L"00001 002 00003 004 00005 006 00007 008 00009 010 00011 012 00013 014 00015 016\n");
    WeldingPoint point;
    EXPECT_TRUE(point.Read(s.archive));
    EXPECT_EQ(point.intersections[0].offset, 1);
    EXPECT_EQ(point.intersections[0].weldCode, 2);
    EXPECT_EQ(point.intersections[3].offset, 7);
    EXPECT_EQ(point.intersections[7].offset, 15);
    EXPECT_EQ(point.intersections[7].weldCode, 16);
}

TEST(WeldingPointData, NeverReadListWritesZerosAndTheLetterZero)
{
    WeldingPointData data;
    StringArchive s;
    EXPECT_TRUE(data.Write(s.archive));
    // three values, the letter 0, the flag 0 and the count 000 side by side
    EXPECT_EQ(s.Text(), L"000 000 000 00000\n");
}

TEST(WeldingPointData, HeadLetterFlagAndCountSideBySide)
{
    WeldingPointData data;
    data.weldValueA = 1;
    data.weldValueB = 22;
    data.weldValueC = 333;
    data.weldLetter = L'W';
    data.weldFlag = true;
    WeldingPoint point;
    point.intersections[0].offset = 120;
    point.intersections[0].weldCode = 5;
    point.intersections[1].offset = 340;
    point.intersections[1].weldCode = 7;
    data.Add(point);
    StringArchive s;
    EXPECT_TRUE(data.Write(s.archive));
    EXPECT_EQ(s.Text(), L"001 022 333 W1001\n"
                        L"00120 005 00340 007 00000 000 00000 000 00000 000 00000 000 00000 000 00000 000");
}

TEST(WeldingPointData, FlagAndCountWrittenTogetherDoNotReadBack)
{
    // The boolean extractor takes 1001 as one number, which is no boolean.
    StringArchive s(L"001 022 333 W1001\n"
                    L"00120 005 00340 007 00000 000 00000 000 00000 000 00000 000 00000 000 00000 000\n");
    WeldingPointData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_EQ(data.weldLetter, L'W');
    EXPECT_TRUE(data.points.empty());
}

TEST(WeldingPointData, EmptyListTakesItsCountFromWhatFollows)
{
    // 0000 is a valid false, and the count is then looked for on the next line.
    StringArchive s(L"000 000 000 00000\nEND\n");
    WeldingPointData data;
    data.weldFlag = true;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(data.weldFlag);
    EXPECT_EQ(data.weldLetter, L'0');
}

TEST(WeldingPointData, FlagAndCountSeparatedByWhiteSpaceReadCorrectly)
{
    StringArchive s(L"001 022 333 W 1 002\n"
                    L"00120 005 00340 007 00000 000 00000 000 00000 000 00000 000 00000 000 00000 000\n"
                    L"00001 001 00002 002 00003 003 00004 004 00005 005 00006 006 00007 007 00008 008\n");
    WeldingPointData data;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.weldValueA, 1);
    EXPECT_EQ(data.weldValueB, 22);
    EXPECT_EQ(data.weldValueC, 333);
    EXPECT_EQ(data.weldLetter, L'W');
    EXPECT_TRUE(data.weldFlag);
    ASSERT_EQ(data.points.size(), 2u);
    EXPECT_EQ(data.points[0].intersections[1].offset, 340);
    EXPECT_EQ(data.points[1].intersections[7].weldCode, 8);
}

TEST(WeldingPointData, FailedPointIsNotKept)
{
    StringArchive s(L"000 000 000 A 0 002\n"
                    L"00001 001 00002 002 00003 003 00004 004 00005 005 00006 006 00007 007 00008 008\n"
                    L"00001 001 XXXXX\n");
    WeldingPointData data;
    EXPECT_FALSE(data.Read(s.archive));
    ASSERT_EQ(data.points.size(), 1u);
    EXPECT_EQ(data.points[0].intersections[7].offset, 8);
}

TEST(WeldingPointData, CopyCarriesTheHeadAndIsDeep)
{
    WeldingPointData data;
    data.weldValueB = 4;
    data.weldLetter = L'K';
    data.weldFlag = true;
    data.Add(WeldingPoint());
    WeldingPointData copy(data);
    copy.Add(WeldingPoint());
    copy.points[0].intersections[0].offset = 5;
    EXPECT_EQ(copy.weldValueB, 4);
    EXPECT_EQ(copy.weldLetter, L'K');
    EXPECT_TRUE(copy.weldFlag);
    EXPECT_EQ(copy.points.size(), 2u);
    EXPECT_EQ(data.points.size(), 1u);
    EXPECT_EQ(data.points[0].intersections[0].offset, 0);
}

TEST(WeldingPointData, ACountOfPointsTooHighFailsTheStream)
{
    StringArchive s(L"000 000 000 A 1 002\n"
                    L"00001 002 00003 004 00005 006 00007 008 00009 010 00011 012 00013 014 00015 016\n"
                    L"END\n");
    WeldingPointData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(s.archive.fail());
    EXPECT_TRUE(data.weldFlag);
    ASSERT_EQ(data.points.size(), 1u);
    EXPECT_EQ(data.points[0].intersections[1].offset, 3);
}

} // namespace
} // namespace ItUnitechnik

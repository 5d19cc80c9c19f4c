#include "records/reinforcement/spacer.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

TEST(SpacerPosition, TenFiveDigitFieldsWithoutATrailingBlank)
{
    SpacerPosition position;
    position.value1 = 1;
    position.value5 = 500;
    position.value10 = 12345;
    StringArchive s;
    EXPECT_TRUE(position.Write(s.archive));
    EXPECT_EQ(s.Text(), L"00001 00000 00000 00000 00500 00000 00000 00000 00000 12345");
}

TEST(SpacerData, NeverReadListWritesCodeZeroAndItsOwnLineEnd)
{
    SpacerData data;
    StringArchive s;
    EXPECT_TRUE(data.Write(s.archive));
    EXPECT_EQ(s.Text(), L"000 000\n");
}

TEST(SpacerData, TwoPositionsGiveThreeLines)
{
    SpacerData data;
    data.spacerCode = 12;
    SpacerPosition first;
    first.value1 = 1;
    first.value2 = 2;
    first.value3 = 3;
    first.value4 = 4;
    first.value5 = 5;
    first.value6 = 6;
    first.value7 = 7;
    first.value8 = 8;
    first.value9 = 9;
    first.value10 = 10;
    data.Add(first);
    SpacerPosition second;
    second.value1 = 12345;
    data.Add(second);
    StringArchive s;
    EXPECT_TRUE(data.Write(s.archive));
    EXPECT_EQ(s.Text(), L"012 002\n"
                        L"00001 00002 00003 00004 00005 00006 00007 00008 00009 00010\n"
                        L"12345 00000 00000 00000 00000 00000 00000 00000 00000 00000");
}

TEST(SpacerData, ReadsBack)
{
    StringArchive s(L"012 002\n"
                    L"00001 00002 00003 00004 00005 00006 00007 00008 00009 00010\n"
                    L"12345 00000 00000 00000 00000 00000 00000 00000 00000 00000\n");
    SpacerData data;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.spacerCode, 12);
    ASSERT_EQ(data.positions.size(), 2u);
    EXPECT_EQ(data.positions[0].value1, 1);
    EXPECT_EQ(data.positions[0].value10, 10);
    EXPECT_EQ(data.positions[1].value1, 12345);
    EXPECT_EQ(data.positions[1].value2, 0);
}

TEST(SpacerData, BrokenFileKeepsThePartlyReadPositionAndStopsThere)
{
    StringArchive s(L"005 002\n"
                    L"00001 00002 XXXXX\n");
    SpacerData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_EQ(data.spacerCode, 5);
    ASSERT_EQ(data.positions.size(), 1u);
    EXPECT_EQ(data.positions[0].value1, 1);
    EXPECT_EQ(data.positions[0].value2, 2);
    EXPECT_EQ(data.positions[0].value3, 0);
}

TEST(SpacerData, AHugeCountTakesNoMoreThanTheFileHolds)
{
    StringArchive s(L"005 2147483647\n"
                    L"00001 00002 00003 00004 00005 00006 00007 00008 00009 00010\n");
    SpacerData data;
    EXPECT_FALSE(data.Read(s.archive));
    ASSERT_EQ(data.positions.size(), 2u);
    EXPECT_EQ(data.positions[0].value10, 10);
    EXPECT_EQ(data.positions[1].value1, 0);
}

TEST(SpacerData, CopyIsDeep)
{
    SpacerData data;
    data.spacerCode = 8;
    data.Add(SpacerPosition());
    SpacerData copy(data);
    copy.positions[0].value3 = 3;
    copy.Add(SpacerPosition());
    EXPECT_EQ(copy.spacerCode, 8);
    EXPECT_EQ(copy.positions.size(), 2u);
    EXPECT_EQ(data.positions.size(), 1u);
    EXPECT_EQ(data.positions[0].value3, 0);
}

TEST(SpacerData, ACountOfZeroOrLessReadsNoPosition)
{
    StringArchive s(L"006 000\n\n007 -02\n");
    SpacerData data;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.spacerCode, 6);
    EXPECT_TRUE(data.positions.empty());
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.spacerCode, 7);
    EXPECT_TRUE(data.positions.empty());
}

} // namespace
} // namespace ItUnitechnik

#include "records/reinforcement/anchor_bar.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

AnchorBar Bar(std::int32_t firstType, std::int32_t secondType, std::int32_t firstLength, std::int32_t secondLength)
{
    AnchorBar bar;
    bar.firstType = firstType;
    bar.secondType = secondType;
    bar.firstLength = firstLength;
    bar.secondLength = secondLength;
    return bar;
}

TEST(AnchorBar, LineEndsInABlank)
{
    AnchorBar bar = Bar(1, 2, 300, 4000);
    StringArchive s;
    EXPECT_TRUE(bar.Write(s.archive));
    EXPECT_EQ(s.Text(), L"001 002 00300 04000 ");
}

TEST(AnchorBar, ReadsFourNumbers)
{
    StringArchive s(L"001 002 00300 04000 \n");
    AnchorBar bar;
    EXPECT_TRUE(bar.Read(s.archive));
    EXPECT_EQ(bar.firstType, 1);
    EXPECT_EQ(bar.secondType, 2);
    EXPECT_EQ(bar.firstLength, 300);
    EXPECT_EQ(bar.secondLength, 4000);
}

TEST(AnchorBarData, EmptyListWritesTwoFieldsAndItsOwnLineEnd)
{
    AnchorBarData data;
    StringArchive s;
    EXPECT_TRUE(data.Write(s.archive));
    EXPECT_EQ(s.Text(), L"000 000\n");
}

TEST(AnchorBarData, EveryBarLineEndsInABlankAndTheLastLineIsLeftOpen)
{
    AnchorBarData data;
    data.anchorCode = 7;
    data.Add(Bar(1, 2, 300, 4000));
    data.Add(Bar(10, 20, 30, 40));
    StringArchive s;
    EXPECT_TRUE(data.Write(s.archive));
    EXPECT_EQ(s.Text(), L"007 002\n"
                        L"001 002 00300 04000 \n"
                        L"010 020 00030 00040 ");
}

TEST(AnchorBarData, ReadsBack)
{
    StringArchive s(L"007 002\n"
                    L"001 002 00300 04000 \n"
                    L"010 020 00030 00040 \n");
    AnchorBarData data;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.anchorCode, 7);
    ASSERT_EQ(data.bars.size(), 2u);
    EXPECT_EQ(data.bars[0].secondLength, 4000);
    EXPECT_EQ(data.bars[1].firstType, 10);
    EXPECT_EQ(data.bars[1].secondLength, 40);
}

TEST(AnchorBarData, FailedBarIsNotKept)
{
    StringArchive s(L"000 002\n"
                    L"001 002 00300 04000 \n"
                    L"XYZ\n");
    AnchorBarData data;
    EXPECT_FALSE(data.Read(s.archive));
    ASSERT_EQ(data.bars.size(), 1u);
    EXPECT_EQ(data.bars[0].firstLength, 300);
}

TEST(AnchorBarData, CopyIsDeep)
{
    AnchorBarData data;
    data.anchorCode = 3;
    data.Add(Bar(1, 1, 1, 1));
    AnchorBarData copy(data);
    copy.Add(Bar(2, 2, 2, 2));
    copy.bars[0].firstType = 9;
    EXPECT_EQ(copy.anchorCode, 3);
    EXPECT_EQ(data.bars.size(), 1u);
    EXPECT_EQ(data.bars[0].firstType, 1);
    EXPECT_EQ(copy.bars.size(), 2u);
}

TEST(AnchorBarData, ACountOfZeroOrLessReadsNoBar)
{
    StringArchive s(L"004 000\n\n005 -01\n");
    AnchorBarData data;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.anchorCode, 4);
    EXPECT_TRUE(data.bars.empty());
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.anchorCode, 5);
    EXPECT_TRUE(data.bars.empty());
}

} // namespace
} // namespace ItUnitechnik

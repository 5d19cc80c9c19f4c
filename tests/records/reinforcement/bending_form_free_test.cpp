#include "records/reinforcement/bending_form_free.h"

#include "framework/field_forms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

// Segments (10, 1), (20, 2), ... as the host would hand them in.
std::vector<BendingFormSegment> Entries(int count)
{
    std::vector<BendingFormSegment> entries;
    for (int i = 1; i <= count; ++i) {
        entries.emplace_back(10 * i, i);
    }
    return entries;
}

TEST(BendingFormSegment, SignFirstAndZeroFilled)
{
    BendingFormSegment segment(1234, -90);
    StringArchive s;
    EXPECT_TRUE(segment.Write(s.archive));
    EXPECT_EQ(s.Text(), L"01234 -090");
}

TEST(BendingFormSegment, PositiveAngleHasAPlusSign)
{
    BendingFormSegment segment(5, 45);
    StringArchive s;
    EXPECT_TRUE(segment.Write(s.archive));
    EXPECT_EQ(s.Text(), L"00005 +045");
}

TEST(BendingFormSegment, ReadsLengthAndSignedAngle)
{
    StringArchive s(L"01234 -090");
    BendingFormSegment segment(7, 7);
    EXPECT_TRUE(segment.Read(s.archive));
    EXPECT_EQ(segment.length, 1234);
    EXPECT_EQ(segment.angle, -90);
}

TEST(BendingFormPart, NumberCountAndSegmentsOnOneLine)
{
    BendingFormPart part(1);
    part.Add(BendingFormSegment(100, 90));
    part.Add(BendingFormSegment(200, -45));
    StringArchive s;
    EXPECT_TRUE(part.Write(s.archive));
    EXPECT_EQ(s.Text(), L"01 02 00100 +090 00200 -045");
}

TEST(BendingFormPart, EmptyPartWritesNumberAndZeroCount)
{
    BendingFormPart part(3);
    StringArchive s;
    EXPECT_TRUE(part.Write(s.archive));
    EXPECT_EQ(s.Text(), L"03 00");
}

TEST(BendingFormPart, ReadsItsSegments)
{
    StringArchive s(L"02 02 00100 +090 00200 -045\n");
    BendingFormPart part;
    EXPECT_TRUE(part.Read(s.archive));
    EXPECT_EQ(part.partNumber, 2);
    ASSERT_EQ(part.segments.size(), 2u);
    EXPECT_EQ(part.segments[0].length, 100);
    EXPECT_EQ(part.segments[0].angle, 90);
    EXPECT_EQ(part.segments[1].length, 200);
    EXPECT_EQ(part.segments[1].angle, -45);
}

TEST(BendingFormPart, ShortLineLeavesAZeroSegmentBehindAndStopsThere)
{
    StringArchive s(L"01 03 00010 +001");
    BendingFormPart part;
    EXPECT_FALSE(part.Read(s.archive));
    ASSERT_EQ(part.segments.size(), 2u);
    EXPECT_EQ(part.segments[0].length, 10);
    EXPECT_EQ(part.segments[0].angle, 1);
    EXPECT_EQ(part.segments[1].length, 0);
    EXPECT_EQ(part.segments[1].angle, 0);
}

TEST(BendingFormPart, AHugeCountTakesNoMoreThanTheFileHolds)
{
    StringArchive s(L"01 2147483647 00010 +001\n");
    BendingFormPart part;
    EXPECT_FALSE(part.Read(s.archive));
    EXPECT_EQ(part.segments.size(), 2u);
}

TEST(BendingFormPart, CopyIsDeepAndViewsItsOwnSegments)
{
    BendingFormPart part(1);
    part.Add(BendingFormSegment(1, 2));
    BendingFormPart copy(part);
    copy.Add(BendingFormSegment(3, 4));
    EXPECT_EQ(part.segments.size(), 1u);
    EXPECT_EQ(copy.segments.size(), 2u);
    EXPECT_EQ(copy.partNumber, 1);

    BendingFormPart assigned;
    assigned = copy;
    assigned.Clear();
    EXPECT_TRUE(assigned.segments.empty());
    EXPECT_EQ(copy.segments.size(), 2u);
}

TEST(BendingFormFree, NoPartsWritesCodeBlankZeroCountAndItsOwnLineEnd)
{
    BendingFormFree form;
    form.formCode = L"000";
    StringArchive s;
    EXPECT_TRUE(form.Write(s.archive));
    EXPECT_EQ(s.Text(), L"000 00\n");
}

TEST(BendingFormFree, EmptyCodeIsThreeBlanks)
{
    BendingFormFree form;
    StringArchive s;
    EXPECT_TRUE(form.Write(s.archive));
    EXPECT_EQ(s.Text(), L"    00\n");
}

TEST(BendingFormFree, EmptyCodeReadsTheCountAsCodeAndGoesOutOfStep)
{
    StringArchive s(L"    00\nEND\n");
    BendingFormFree form;
    EXPECT_FALSE(form.Read(s.archive));
    EXPECT_EQ(form.formCode, L"00");
    EXPECT_TRUE(form.parts.empty());
}

TEST(BendingFormFree, CodeKeepsTheAdjustmentInForce)
{
    BendingFormFree right;
    right.formCode = L"7";
    StringArchive r;
    r.archive << UInt(1, 0);
    EXPECT_TRUE(right.Write(r.archive));
    EXPECT_EQ(r.Text(), L"0  7 00\n");

    BendingFormFree left;
    left.formCode = L"7";
    StringArchive l;
    l.archive << Text(1, L"X");
    EXPECT_TRUE(left.Write(l.archive));
    EXPECT_EQ(l.Text(), L"X7   00\n");
}

TEST(BendingFormFree, CodeIsCutToThree)
{
    BendingFormFree form;
    form.formCode = L"12345";
    StringArchive s;
    EXPECT_TRUE(form.Write(s.archive));
    EXPECT_EQ(s.Text(), L"123 00\n");
}

TEST(BendingFormFree, SixEntriesGiveOnePartOfSix)
{
    BendingFormFree form;
    form.buildFromSegments(Entries(6));
    EXPECT_EQ(form.formCode, L"000");
    ASSERT_EQ(form.parts.size(), 1u);
    EXPECT_EQ(form.parts[0].partNumber, 1);
    ASSERT_EQ(form.parts[0].segments.size(), 6u);
    EXPECT_EQ(form.parts[0].segments[5].length, 60);
    EXPECT_EQ(form.parts[0].segments[5].angle, 6);
}

TEST(BendingFormFree, SevenEntriesGiveTwoPartsOfSixAndOne)
{
    BendingFormFree form;
    form.buildFromSegments(Entries(7));
    ASSERT_EQ(form.parts.size(), 2u);
    EXPECT_EQ(form.parts[0].partNumber, 1);
    EXPECT_EQ(form.parts[0].segments.size(), 6u);
    EXPECT_EQ(form.parts[1].partNumber, 2);
    ASSERT_EQ(form.parts[1].segments.size(), 1u);
    EXPECT_EQ(form.parts[1].segments[0].length, 70);
    EXPECT_EQ(form.parts[1].segments[0].angle, 7);
}

TEST(BendingFormFree, TwelveEntriesLeaveNoEmptyPart)
{
    BendingFormFree form;
    form.buildFromSegments(Entries(12));
    ASSERT_EQ(form.parts.size(), 2u);
    EXPECT_EQ(form.parts[0].segments.size(), 6u);
    EXPECT_EQ(form.parts[1].partNumber, 2);
    EXPECT_EQ(form.parts[1].segments.size(), 6u);
    EXPECT_EQ(form.parts[1].segments[0].length, 70);
}

TEST(BendingFormFree, NoEntriesGiveNoPart)
{
    BendingFormFree form;
    form.buildFromSegments({});
    EXPECT_EQ(form.formCode, L"000");
    EXPECT_TRUE(form.parts.empty());
}

TEST(BendingFormFree, SevenEntriesAreWrittenOnTwoLinesWithoutAFinalLineEnd)
{
    BendingFormFree form;
    form.buildFromSegments(Entries(7));
    StringArchive s;
    EXPECT_TRUE(form.Write(s.archive));
    EXPECT_EQ(s.Text(), L"000 02\n"
                        L"01 06 00010 +001 00020 +002 00030 +003 00040 +004 00050 +005 00060 +006\n"
                        L"02 01 00070 +007");
}

TEST(BendingFormFree, ReadsBackItsLines)
{
    StringArchive s(L"000 02\n"
                    L"01 06 00010 +001 00020 +002 00030 +003 00040 +004 00050 +005 00060 +006\n"
                    L"02 01 00070 -007\n");
    BendingFormFree form;
    EXPECT_TRUE(form.Read(s.archive));
    EXPECT_EQ(form.formCode, L"000");
    ASSERT_EQ(form.parts.size(), 2u);
    EXPECT_EQ(form.parts[0].partNumber, 1);
    ASSERT_EQ(form.parts[0].segments.size(), 6u);
    EXPECT_EQ(form.parts[0].segments[2].length, 30);
    EXPECT_EQ(form.parts[1].partNumber, 2);
    ASSERT_EQ(form.parts[1].segments.size(), 1u);
    EXPECT_EQ(form.parts[1].segments[0].angle, -7);
}

TEST(BendingFormFree, FailedPartIsNotKept)
{
    StringArchive s(L"000 02\n01 01 00010 +001\n02 01 XXXXX +007\n");
    BendingFormFree form;
    EXPECT_FALSE(form.Read(s.archive));
    ASSERT_EQ(form.parts.size(), 1u);
    EXPECT_EQ(form.parts[0].partNumber, 1);
}

TEST(BendingFormFree, CopyIsDeep)
{
    BendingFormFree form;
    form.buildFromSegments(Entries(7));
    BendingFormFree copy(form);
    copy.parts[0].segments[0].length = 999;
    copy.Add(BendingFormPart(3));
    EXPECT_EQ(form.parts.size(), 2u);
    EXPECT_EQ(copy.parts.size(), 3u);
    EXPECT_EQ(form.parts[0].segments[0].length, 10);
    EXPECT_EQ(copy.formCode, L"000");
}

TEST(BendingFormFree, ACountOfZeroReadsNoPart)
{
    StringArchive s(L"000 00\n\nEND\n");
    BendingFormFree form;
    EXPECT_TRUE(form.Read(s.archive));
    EXPECT_EQ(form.formCode, L"000");
    EXPECT_TRUE(form.parts.empty());
}

TEST(BendingFormPart, ACountOfZeroReadsNoSegment)
{
    StringArchive s(L"03 00\n");
    BendingFormPart part;
    EXPECT_TRUE(part.Read(s.archive));
    EXPECT_EQ(part.partNumber, 3);
    EXPECT_TRUE(part.segments.empty());
}

} // namespace
} // namespace ItUnitechnik

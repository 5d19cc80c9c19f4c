#include "records/order/lot.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"
#include "geometry/line_segment.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::Blanks;
using Testing::Joined;
using Testing::Lines;
using Testing::StringArchive;

std::vector<std::wstring> Written(Lot lot)
{
    StringArchive s;
    EXPECT_TRUE(lot.Write(s.archive));
    return Lines(s.Text());
}

// The closing lines of a lot whose outline lists are empty.
std::vector<std::wstring> EmptyOutlines(const std::wstring& version)
{
    return {L"CONTOUR_", version, L"00", L"END", L"CUTOUT__", version, L"00", L"END", L"END LOT_____"};
}

TEST(LotWrite, DefaultLot)
{
    const std::vector<std::wstring> expected =
        Joined({L"LOT_____", L"502", L"00 " + Blanks(8) + L" 0.000    00.000 000000 000000 000000 000", L"END"},
               EmptyOutlines(L"502"));
    EXPECT_EQ(Written(Lot()), expected);
}

TEST(LotWrite, From600TheTextIsTwentyWideAndTheLastTextFollows)
{
    Lot lot;
    lot.version = 600;
    lot.contourData.version = 600;
    lot.cutoutData.version = 600;
    lot.lotNumber = 7;
    lot.lotText = L"Lot A";
    lot.lotReal1 = 1.5;
    lot.lotCode2 = L"X";
    lot.lotReal2 = -2.25;
    lot.lotValue1 = 1;
    lot.lotValue2 = 22;
    lot.lotValue3 = 333;
    lot.lotValue4 = 4;
    lot.lotText20 = L"tail";
    const std::vector<std::wstring> expected =
        Joined({L"LOT_____", L"600",
                L"07 Lot A" + Blanks(15) + L" 1.500 X  -2.250 000001 000022 000333 004 tail" + Blanks(16), L"END"},
               EmptyOutlines(L"600"));
    EXPECT_EQ(Written(lot), expected);
}

TEST(LotWrite, BelowVersion600TextsAreCutAndNumbersAreNot)
{
    Lot lot;
    lot.version = 599;
    lot.lotNumber = 123;
    lot.lotText = L"ABCDEFGHIJ";
    lot.lotReal1 = 12.5;
    lot.lotCode2 = L"ABC";
    lot.lotReal2 = -0.5;
    lot.lotValue4 = 1000;
    lot.lotText20 = L"never written";
    EXPECT_EQ(Written(lot)[2], L"123 ABCDEFGH 12.500 AB -0.500 000000 000000 000000 1000");
}

TEST(LotWrite, OutlinesStandBetweenEndAndTheClosingTag)
{
    Lot lot;
    lot.version = 600;
    lot.contourData.version = 600;
    Contour contour(600);
    contour.contourNumber = 1;
    contour.Add(GeoData(600, L'S', std::make_unique<LineSegment>(600, Point2d(-10, 5), Point2d(20, 30))));
    lot.Add(contour);
    const std::vector<std::wstring> lines = Written(lot);
    const std::vector<std::wstring> expected = {
        L"END", L"CONTOUR_", L"600", L"01", L"01 00 01", L"S -00010 +00005 +00020 +00030 0000",
        L"END", L"CUTOUT__", L"502", L"00", L"END",      L"END LOT_____"};
    ASSERT_EQ(lines.size(), 3 + expected.size());
    EXPECT_EQ(std::vector<std::wstring>(lines.begin() + 3, lines.end()), expected);
}

TEST(LotWrite, ReturnsTrueOnABadStream)
{
    StringArchive s;
    s.archive.setstate(std::ios_base::badbit);
    Lot lot;
    EXPECT_TRUE(lot.Write(s.archive));
    EXPECT_EQ(s.Text(), L"");
}

TEST(LotCopy, CopiesWorkOnTheirOwnOutlines)
{
    Lot lot;
    lot.lotNumber = 3;
    lot.Add(Contour(502));
    Lot copy(lot);
    copy.Add(Contour(502));
    copy.Add(Cutout(502));
    EXPECT_EQ(copy.lotNumber, 3);
    EXPECT_EQ(lot.contourData.contours.size(), 1u);
    EXPECT_TRUE(lot.cutoutData.cutouts.empty());
    EXPECT_EQ(copy.contourData.contours.size(), 2u);
    EXPECT_EQ(copy.cutoutData.cutouts.size(), 1u);

    Lot assigned;
    assigned = copy;
    assigned.Remove(assigned.contourData.contours.begin());
    static_cast<ItCollectionImpl<std::vector<Cutout>>&>(assigned).Clear();
    EXPECT_EQ(assigned.contourData.contours.size(), 1u);
    EXPECT_TRUE(assigned.cutoutData.cutouts.empty());
    EXPECT_EQ(copy.contourData.contours.size(), 2u);
    EXPECT_EQ(copy.cutoutData.cutouts.size(), 1u);

    Lot& same = assigned;
    assigned = same;
    EXPECT_EQ(assigned.contourData.contours.size(), 1u);
    EXPECT_EQ(assigned.lotNumber, 3);
}

TEST(LotRead, ReadsTheShortDataLineWithItsBlanks)
{
    StringArchive s(L"LOT_____\n502\n"
                    L"05 Name8" +
                    Blanks(3) +
                    L" 0.250 Q  12.500 000010 000020 000030 040\n"
                    L"END\nCONTOUR_\n502\n00\nEND\nCUTOUT__\n502\n00\nEND\nEND LOT_____\nNEXT\n");
    Lot lot;
    EXPECT_TRUE(lot.Read(s.archive));
    EXPECT_TRUE(Healthy(s.archive));
    EXPECT_EQ(lot.version, 502);
    EXPECT_EQ(lot.lotNumber, 5);
    EXPECT_EQ(lot.lotText, L"Name8   ");
    EXPECT_EQ(lot.lotReal1, 0.25);
    EXPECT_EQ(lot.lotCode2, L"Q ");
    EXPECT_EQ(lot.lotReal2, 12.5);
    EXPECT_EQ(lot.lotValue1, 10);
    EXPECT_EQ(lot.lotValue2, 20);
    EXPECT_EQ(lot.lotValue3, 30);
    EXPECT_EQ(lot.lotValue4, 40);
    EXPECT_EQ(lot.lotText20, L"");
    EXPECT_TRUE(lot.contourData.contours.empty());
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(LotRead, TheLastTextGainsALeadingBlankAndLosesItsLastOne)
{
    StringArchive s(L"LOT_____\n600\n"
                    L"07 Lot A" +
                    Blanks(15) + L" 1.500 X  -2.250 000001 000022 000333 004 tail" + Blanks(16) +
                    L"\n"
                    L"END\nCONTOUR_\n600\n00\nEND\nCUTOUT__\n600\n00\nEND\nEND LOT_____\n");
    Lot lot;
    EXPECT_TRUE(lot.Read(s.archive));
    EXPECT_EQ(lot.version, 600);
    EXPECT_EQ(lot.lotNumber, 7);
    EXPECT_EQ(lot.lotText, L"Lot A" + Blanks(15));
    EXPECT_EQ(lot.lotReal1, 1.5);
    EXPECT_EQ(lot.lotCode2, L"X ");
    EXPECT_EQ(lot.lotReal2, -2.25);
    EXPECT_EQ(lot.lotValue3, 333);
    EXPECT_EQ(lot.lotValue4, 4);
    EXPECT_EQ(lot.lotText20, L" tail" + Blanks(15));
    EXPECT_EQ(lot.contourData.version, 600);
    EXPECT_EQ(lot.cutoutData.version, 600);
}

TEST(LotRead, AFullLastTextLeavesItsLastCharacterAndTheLotFails)
{
    StringArchive s(L"LOT_____\n600\n"
                    L"07 Lot A" +
                    Blanks(15) +
                    L" 1.500 X  -2.250 000001 000022 000333 004 ABCDEFGHIJKLMNOPQRST\n"
                    L"END\nCONTOUR_\n600\n00\nEND\nCUTOUT__\n600\n00\nEND\nEND LOT_____\n");
    Lot lot;
    EXPECT_FALSE(lot.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_FALSE(s.archive.fail());
    EXPECT_EQ(lot.lotText20, L" ABCDEFGHIJKLMNOPQRS");
    // The token that took the "T" leaves the "END" behind it.
    EXPECT_EQ(ReadToken(s.archive), L"END");
}

TEST(LotRead, AThreeDigitNumberIsReadWhole)
{
    StringArchive s(L"LOT_____\n502\n"
                    L"123 ABCDEFGH 12.500 AB -0.500 000000 000000 000000 1000\n"
                    L"END\nCONTOUR_\n502\n00\nEND\nCUTOUT__\n502\n00\nEND\nEND LOT_____\n");
    Lot lot;
    EXPECT_TRUE(lot.Read(s.archive));
    EXPECT_EQ(lot.lotNumber, 123);
    EXPECT_EQ(lot.lotText, L"ABCDEFGH");
    EXPECT_EQ(lot.lotReal1, 12.5);
    EXPECT_EQ(lot.lotCode2, L"AB");
    EXPECT_EQ(lot.lotReal2, -0.5);
    EXPECT_EQ(lot.lotValue4, 1000);
}

TEST(LotRead, ACodeWithALeadingBlankKeepsIt)
{
    StringArchive s(L"LOT_____\n502\n"
                    L"01 abc" +
                    Blanks(5) +
                    L" 0.000  B 00.000 000000 000000 000000 000\n"
                    L"END\nCONTOUR_\n502\n00\nEND\nCUTOUT__\n502\n00\nEND\nEND LOT_____\n");
    Lot lot;
    EXPECT_TRUE(lot.Read(s.archive));
    EXPECT_EQ(lot.lotText, L"abc     ");
    EXPECT_EQ(lot.lotCode2, L" B");
}

TEST(LotRead, ReadsItsOutlines)
{
    StringArchive s(L"LOT_____\n600\n"
                    L"01 " +
                    Blanks(20) + L" 0.000    00.000 000000 000000 000000 000 " + Blanks(20) +
                    L"\n"
                    L"END\n"
                    L"CONTOUR_\n600\n01\n01 00 01\nS -00010 +00005 +00020 +00030 0000\nEND\n"
                    L"CUTOUT__\n600\n01\n01 00.000 " +
                    Blanks(40) +
                    L" 01\nK +00100 +00200 00050 0000\nEND\n"
                    L"END LOT_____\n");
    Lot lot;
    EXPECT_TRUE(lot.Read(s.archive));
    ASSERT_EQ(lot.contourData.contours.size(), 1u);
    const Contour& contour = lot.contourData.contours[0];
    EXPECT_EQ(contour.contourNumber, 1);
    ASSERT_EQ(contour.geoData.size(), 1u);
    const auto* line = dynamic_cast<const LineSegment*>(contour.geoData[0].curve.get());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->start, Point2d(-10, 5));
    EXPECT_EQ(line->end, Point2d(20, 30));
    ASSERT_EQ(lot.cutoutData.cutouts.size(), 1u);
    EXPECT_EQ(lot.cutoutData.cutouts[0].cutoutNumber, 1);
    EXPECT_EQ(lot.cutoutData.cutouts[0].geoData.size(), 1u);
}

TEST(LotRead, AWrongStartTagClearsValidAndReadsNoFurther)
{
    StringArchive s(L"LOT____\n600\n");
    Lot lot;
    EXPECT_FALSE(lot.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_FALSE(s.archive.fail());
    EXPECT_EQ(lot.version, 502);
    EXPECT_EQ(ReadToken(s.archive), L"600");
}

TEST(LotRead, AWrongEndClearsValid)
{
    StringArchive s(L"LOT_____\n502\n"
                    L"00 " +
                    Blanks(8) +
                    L" 0.000    00.000 000000 000000 000000 000\n"
                    L"ENDE\nCONTOUR_\n502\n00\nEND\nCUTOUT__\n502\n00\nEND\nEND LOT_____\n");
    Lot lot;
    EXPECT_FALSE(lot.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(LotRead, AClosingLineWithATrailingBlankClearsValid)
{
    StringArchive s(L"LOT_____\n502\n"
                    L"00 " +
                    Blanks(8) +
                    L" 0.000    00.000 000000 000000 000000 000\n"
                    L"END\nCONTOUR_\n502\n00\nEND\nCUTOUT__\n502\n00\nEND\nEND LOT_____ \n");
    Lot lot;
    EXPECT_FALSE(lot.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_FALSE(s.archive.fail());
}

TEST(LotRead, AFailingOutlineListFailsTheLot)
{
    StringArchive contours(L"LOT_____\n502\n"
                           L"00 " +
                           Blanks(8) +
                           L" 0.000    00.000 000000 000000 000000 000\n"
                           L"END\nCONTOURX\n502\n00\nEND\nCUTOUT__\n502\n00\nEND\nEND LOT_____\n");
    Lot first;
    EXPECT_FALSE(first.Read(contours.archive));
    EXPECT_FALSE(contours.archive.valid);

    StringArchive cutouts(L"LOT_____\n502\n"
                          L"00 " +
                          Blanks(8) +
                          L" 0.000    00.000 000000 000000 000000 000\n"
                          L"END\nCONTOUR_\n502\n00\nEND\nCUTOUTXX\n502\n00\nEND\nEND LOT_____\n");
    Lot second;
    EXPECT_FALSE(second.Read(cutouts.archive));
    EXPECT_FALSE(cutouts.archive.valid);
}

TEST(LotRead, AWrongEndOfTheContoursIsPassedOverSinceOnlyTheStreamIsTested)
{
    // The contour list fails without touching the stream or `valid`, and the
    // lot looks at those alone.
    StringArchive s(L"LOT_____\n502\n"
                    L"00 " +
                    Blanks(8) +
                    L" 0.000    00.000 000000 000000 000000 000\n"
                    L"END\nCONTOUR_\n502\n00\nEMD\nCUTOUT__\n502\n00\nEND\nEND LOT_____\n");
    Lot lot;
    EXPECT_TRUE(lot.Read(s.archive));
    EXPECT_TRUE(s.archive.valid);
}

TEST(LotRead, ANumberThatCannotBeParsedFailsTheStream)
{
    StringArchive s(L"LOT_____\n502\n"
                    L"00 " +
                    Blanks(8) +
                    L" x.000    00.000 000000 000000 000000 000\n"
                    L"END\nCONTOUR_\n502\n00\nEND\nCUTOUT__\n502\n00\nEND\nEND LOT_____\n");
    Lot lot;
    EXPECT_FALSE(lot.Read(s.archive));
    EXPECT_TRUE(s.archive.fail());
    EXPECT_FALSE(s.archive.valid);
}

TEST(LotRead, WhatItWroteReadsBack)
{
    Lot written;
    written.version = 600;
    written.lotNumber = 9;
    written.lotText = L"piece";
    written.lotReal1 = 2.125;
    written.lotCode2 = L"PC";
    written.lotReal2 = 10.75;
    written.lotValue1 = 123456;
    written.lotValue4 = 12;
    written.lotText20 = L"ends";
    StringArchive out;
    written.Write(out.archive);
    StringArchive in(out.Text());
    Lot read;
    EXPECT_TRUE(read.Read(in.archive));
    EXPECT_EQ(read.lotNumber, 9);
    EXPECT_EQ(read.lotText, L"piece" + Blanks(15));
    EXPECT_EQ(read.lotReal1, 2.125);
    EXPECT_EQ(read.lotCode2, L"PC");
    EXPECT_EQ(read.lotReal2, 10.75);
    EXPECT_EQ(read.lotValue1, 123456);
    EXPECT_EQ(read.lotValue4, 12);
    EXPECT_EQ(read.lotText20, L" ends" + Blanks(15));
}

} // namespace
} // namespace ItUnitechnik

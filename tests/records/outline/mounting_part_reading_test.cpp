// Mounted parts read back from what they wrote and from files, with the
// faults a file can have.
#include "records/outline/mounting_part.h"

#include "framework/read_idioms.h"
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "records/outline/mounting_part_test_support.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using MountingPartTesting::AnchorChannel;
using MountingPartTesting::ExpectSameFields;
using MountingPartTesting::Spaces;
using Testing::StringArchive;

TEST(MountingPartData, PartWithoutElementsReadsBackCleanly)
{
    for (std::int16_t version : {std::int16_t{500}, std::int16_t{502}, std::int16_t{600}}) {
        MountingPartData written;
        written.version = version;
        MountingPart first(version);
        first.partNumber = 1;
        first.partKind = L'C';
        first.partSubCode = 12;
        first.partCode = L"ABCDEFGHIJ";
        first.partName = L"Hülse für Durchführung, vierzig Zeichen.";
        ASSERT_EQ(first.partName.size(), 40u);
        first.partArea = 1.25;
        first.setValue1 = 3;
        first.setValue2 = version >= 600 ? -40 : 40;
        if (version >= 600) {
            first.partText1 = L"ABCDEFGHIJKLMNOPQRST";
            first.partText2 = L"abcdefghijklmnopqrst";
            first.position = Point2d(-120, 300);
        }
        first.partValue1 = 9;
        first.partValue2 = 8;
        first.partWidth = 1000;
        first.partHeight = 1250;
        MountingPart second(version);
        second.partNumber = 2;
        written.parts = {first, second};

        StringArchive out;
        ASSERT_TRUE(written.Write(out.archive));
        StringArchive in(out.Text() + L"NEXT");
        MountingPartData read;
        EXPECT_TRUE(read.Read(in.archive)) << version;
        EXPECT_EQ(read.version, version);
        ASSERT_EQ(read.parts.size(), 2u);
        EXPECT_EQ(read.parts[0].version, version);
        ExpectSameFields(read.parts[0], first);
        // An empty text of version 600 comes back as its twenty blanks.
        MountingPart expectedSecond = second;
        if (version >= 600) {
            expectedSecond.partText1 = Spaces(20);
            expectedSecond.partText2 = Spaces(20);
        }
        ExpectSameFields(read.parts[1], expectedSecond);
        EXPECT_EQ(ReadToken(in.archive), L"NEXT");
    }
}

TEST(MountingPartData, PartWithCircleElementsReadsBackCleanly)
{
    MountingPartData written;
    written.version = 600;
    MountingPart part(600);
    part.partNumber = 1;
    part.geoData.emplace_back(600, L'K', std::make_unique<Circle>(600, Point2d(-5, 5), 20));
    part.geoData.emplace_back(600, L'K', std::make_unique<Circle>(600, Point2d(5, 5), 10));
    written.parts = {part, part};
    written.parts[1].partNumber = 2;

    StringArchive out;
    ASSERT_TRUE(written.Write(out.archive));
    StringArchive in(out.Text());
    MountingPartData read;
    EXPECT_TRUE(read.Read(in.archive));
    ASSERT_EQ(read.parts.size(), 2u);
    EXPECT_EQ(read.parts[1].partNumber, 2);
    ASSERT_EQ(read.parts[1].geoData.size(), 2u);
    auto* circle = dynamic_cast<Circle*>(read.parts[1].geoData[1].curve.get());
    ASSERT_NE(circle, nullptr);
    EXPECT_EQ(circle->version, 600);
    EXPECT_EQ(circle->centre, Point2d(5, 5));
    EXPECT_EQ(circle->radius, 10);
}

TEST(MountingPartData, LineElementMakesThePartEatTheEnd)
{
    MountingPartData written;
    written.parts.push_back(AnchorChannel(502));
    StringArchive out;
    ASSERT_TRUE(written.Write(out.archive));
    ASSERT_EQ(out.Text(), L"MOUNPART\n502\n001\n"
                          L"012 B34 000 HTA-40     Ankerschiene" +
                              Spaces(28) +
                              L"\n"
                              L"06.000 005 007 1234 056 03000 02000 01\n"
                              L"S 00000 00000 03000 02000 0000\n"
                              L"END\n");

    StringArchive in(out.Text());
    MountingPartData read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
    // The part itself was read whole before its skip took the "END".
    ASSERT_EQ(read.parts.size(), 1u);
    ASSERT_EQ(read.parts[0].geoData.size(), 1u);
    auto* line = dynamic_cast<LineSegment*>(read.parts[0].geoData[0].curve.get());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->end, Point2d(3000, 2000));
}

TEST(MountingPartData, LineBehindALineElementIsDropped)
{
    StringArchive in(L"MOUNPART\n502\n001\n"
                     L"012 B34 000 HTA-40     Ankerschiene\n"
                     L"06.000 005 007 1234 056 03000 02000 01\n"
                     L"S 00000 00000 03000 02000 0000\n"
                     L"this line is lost\n"
                     L"END\n");
    MountingPartData read;
    EXPECT_TRUE(read.Read(in.archive));
    ASSERT_EQ(read.parts.size(), 1u);
    EXPECT_EQ(read.parts[0].partName, L"Ankerschiene");
    EXPECT_EQ(read.parts[0].setValue2, 7);
    EXPECT_EQ(read.parts[0].geoData.size(), 1u);
}

TEST(MountingPart, NegativeSetValue2BelowVersion600DoesNotReadBack)
{
    MountingPart written(502);
    written.setValue2 = -7;
    StringArchive out;
    ASSERT_TRUE(written.Write(out.archive));
    ASSERT_EQ(out.Text(), L"000 000 000 " + Spaces(10) + L" " + Spaces(40) +
                              L"\n"
                              L"00.000 000 0-7 0000 000 00000 00000 00\n");

    // "0-7" reads as 0 and hands "-7" on: every later field moves by one.
    StringArchive in(out.Text());
    MountingPart read(502);
    EXPECT_TRUE(read.Read(in.archive));
    EXPECT_EQ(read.setValue2, 0);
    EXPECT_EQ(read.partValue1, -7);
    EXPECT_EQ(read.partValue2, 0);
    EXPECT_TRUE(read.geoData.empty());
}

TEST(MountingPart, NameLineIsCutAtItsLastCarriageReturn)
{
    StringArchive in(L"001 A07 000 CODE       Name with\rcarriage return  \r\n"
                     L"01.500 001 002 0003 004 00005 00006 00\n"
                     L"\nNEXT");
    MountingPart part(502);
    EXPECT_TRUE(part.Read(in.archive));
    EXPECT_EQ(part.partNumber, 1);
    EXPECT_EQ(part.partKind, L'A');
    EXPECT_EQ(part.partSubCode, 7);
    EXPECT_EQ(part.partCode, L"CODE      ");
    EXPECT_EQ(part.partName, L"Name with\rcarriage return  ");
    EXPECT_EQ(part.partArea, 1.5);
    EXPECT_EQ(part.setValue1, 1);
    EXPECT_EQ(part.setValue2, 2);
    EXPECT_EQ(part.partValue1, 3);
    EXPECT_EQ(part.partValue2, 4);
    EXPECT_EQ(part.partWidth, 5u);
    EXPECT_EQ(part.partHeight, 6u);
    EXPECT_EQ(ReadToken(in.archive), L"NEXT");
}

TEST(MountingPart, ReadsTheTextLinesAndThePositionFromVersion600)
{
    StringArchive in(L"002 000 000 " + Spaces(10) + L" Name\n" + Spaces(16) +
                     L"Oben\n"
                     L"unten\n"
                     L"00.000 000 -00120 +00300 +00040 0000 000 00000 00000 00\n"
                     L"\n");
    MountingPart part(600);
    EXPECT_TRUE(part.Read(in.archive));
    EXPECT_EQ(part.partNumber, 2);
    EXPECT_EQ(part.partName, L"Name");
    EXPECT_EQ(part.partText1, Spaces(16) + L"Oben");
    EXPECT_EQ(part.partText2, L"unten");
    EXPECT_EQ(part.position, Point2d(-120, 300));
    EXPECT_EQ(part.setValue2, 40);
}

TEST(MountingPartData, WrongTagClearsValid)
{
    StringArchive in(L"MOUNTING\n502\n000\nEND\n");
    MountingPartData data;
    EXPECT_FALSE(data.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
    EXPECT_FALSE(in.archive.fail());
}

TEST(MountingPartData, WrongEndClearsValid)
{
    StringArchive in(L"MOUNPART\n502\n000\nEN\n");
    MountingPartData data;
    EXPECT_FALSE(data.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
}

TEST(MountingPartData, FailureInsideAPartFailsTheRead)
{
    StringArchive in(L"MOUNPART\n502\n001\n001 000 000 x\nxx.000 000 000 0000 000 00000 00000 00\n\nEND\n");
    MountingPartData data;
    EXPECT_FALSE(data.Read(in.archive));
    EXPECT_TRUE(data.parts.empty());
}

TEST(MountingPartData, ReadAppends)
{
    MountingPartData data;
    data.parts.push_back(MountingPart(502));
    StringArchive in(L"MOUNPART\n502\n000\nEND\n");
    EXPECT_TRUE(data.Read(in.archive));
    EXPECT_EQ(data.parts.size(), 1u);
}

TEST(MountingPartData, ReadsAPolygonAndAnArcFromVersion600)
{
    // The arc stops before its line end, so the part's own skip takes no
    // more than that.
    StringArchive in(L"MOUNPART\n600\n001\n"
                     L"001 A07 000 CODE       Name" +
                     Spaces(36) + L"\n" + Spaces(20) + L"\n" + Spaces(20) +
                     L"\n"
                     L"02.000 003 -00120 +00300 +00040 0009 008 01000 02000 02\n"
                     L"P 2 +00000 +00000 +01000 +02000 000A\n"
                     L"B +00500 +00500 00250 000 090 001\n"
                     L"END\n"
                     L"NEXT");
    MountingPartData data;
    EXPECT_TRUE(data.Read(in.archive));
    EXPECT_EQ(data.version, 600);
    ASSERT_EQ(data.parts.size(), 1u);
    const MountingPart& part = data.parts[0];
    EXPECT_EQ(part.version, 600);
    EXPECT_EQ(part.partNumber, 1);
    EXPECT_EQ(part.partKind, L'A');
    EXPECT_EQ(part.partSubCode, 7);
    EXPECT_EQ(part.partCode, L"CODE      ");
    EXPECT_EQ(part.partName, L"Name" + Spaces(36));
    EXPECT_EQ(part.partText1, Spaces(20));
    EXPECT_EQ(part.partText2, Spaces(20));
    EXPECT_EQ(part.partArea, 2.0);
    EXPECT_EQ(part.setValue1, 3);
    EXPECT_EQ(part.position, Point2d(-120, 300));
    EXPECT_EQ(part.setValue2, 40);
    EXPECT_EQ(part.partValue1, 9);
    EXPECT_EQ(part.partValue2, 8);
    EXPECT_EQ(part.partWidth, 1000u);
    EXPECT_EQ(part.partHeight, 2000u);
    ASSERT_EQ(part.geoData.size(), 2u);
    const auto* polygon = dynamic_cast<const Polygon*>(part.geoData[0].curve.get());
    ASSERT_NE(polygon, nullptr);
    EXPECT_EQ(polygon->points, (std::vector<Point2d>{Point2d(0, 0), Point2d(1000, 2000)}));
    EXPECT_EQ(polygon->segmentFlags, (std::vector<int>{10}));
    const auto* arc = dynamic_cast<const Arc*>(part.geoData[1].curve.get());
    ASSERT_NE(arc, nullptr);
    EXPECT_EQ(arc->version, 600);
    EXPECT_EQ(arc->centre, Point2d(500, 500));
    EXPECT_EQ(arc->radius, 250);
    EXPECT_EQ(arc->endAngle, 90);
    EXPECT_EQ(arc->flags, 1);
    EXPECT_EQ(ReadToken(in.archive), L"NEXT");
}

TEST(MountingPartData, VersionBelow502HasTwoDigitCounts)
{
    StringArchive in(L"MOUNPART\n500\n01\n"
                     L"07 001 000 " +
                     Spaces(10) + L" " + Spaces(40) +
                     L"\n"
                     L"00.000 000 000 0000 000 00000 00000 00\n"
                     L"\n"
                     L"END\n");
    MountingPartData data;
    EXPECT_TRUE(data.Read(in.archive));
    ASSERT_EQ(data.parts.size(), 1u);
    EXPECT_EQ(data.parts[0].version, 500);
    EXPECT_EQ(data.parts[0].partNumber, 7);
    EXPECT_EQ(data.parts[0].partKind, L'0');
    EXPECT_EQ(data.parts[0].partSubCode, 1);
}

TEST(MountingPartData, AnElementOfUnknownKindIsKeptWithoutACurve)
{
    StringArchive in(L"MOUNPART\n502\n001\n"
                     L"001 000 000 " +
                     Spaces(10) +
                     L" Name\n"
                     L"00.000 000 000 0000 000 00000 00000 01\n"
                     L"X\n"
                     L"END\n");
    MountingPartData data;
    EXPECT_TRUE(data.Read(in.archive));
    ASSERT_EQ(data.parts.size(), 1u);
    ASSERT_EQ(data.parts[0].geoData.size(), 1u);
    EXPECT_EQ(data.parts[0].geoData[0].elementKind, L'X');
    EXPECT_EQ(data.parts[0].geoData[0].curve, nullptr);
}

TEST(MountingPartData, ACountOfPartsTooHighFailsTheStream)
{
    StringArchive in(L"MOUNPART\n502\n002\n"
                     L"001 000 000 " +
                     Spaces(10) +
                     L" Name\n"
                     L"00.000 000 000 0000 000 00000 00000 00\n"
                     L"\n"
                     L"END\n");
    MountingPartData data;
    EXPECT_FALSE(data.Read(in.archive));
    EXPECT_TRUE(in.archive.fail());
    EXPECT_EQ(data.parts.size(), 1u);
}

} // namespace
} // namespace ItUnitechnik

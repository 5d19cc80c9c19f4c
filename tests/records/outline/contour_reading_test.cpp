// Contours read back from what they wrote and from files, with the faults a
// file can have.
#include "records/outline/contour.h"

#include "framework/read_idioms.h"
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "records/outline/contour_test_support.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

namespace ItUnitechnik {
namespace {

using ContourTesting::CircleElement;
using ContourTesting::Segment;
using Testing::StringArchive;

TEST(ContourData, ReadsTheRecordWithItsVersionHandedDown)
{
    StringArchive s(L"CONTOUR_\n"
                    L"600\n"
                    L"02\n"
                    L"01 00 03\n"
                    L"S -00010 +00005 +00020 +00030 0000\n"
                    L"K +00100 +00100 00050 0000\n"
                    L"P 2 +00001 +00002 +00003 +00004 0001\n"
                    L"02 AB 00\n"
                    L"\n"
                    L"END\n"
                    L"NEXT");
    ContourData data;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.version, 600);
    ASSERT_EQ(data.contours.size(), 2u);
    const Contour& first = data.contours[0];
    EXPECT_EQ(first.version, 600);
    EXPECT_EQ(first.contourNumber, 1);
    EXPECT_EQ(first.contourCode, L"00");
    ASSERT_EQ(first.geoData.size(), 3u);
    EXPECT_EQ(first.geoData[0].version, 600);
    ASSERT_NE(first.geoData[0].curve, nullptr);
    EXPECT_EQ(first.geoData[0].curve->version, 600);
    auto* line = dynamic_cast<LineSegment*>(first.geoData[0].curve.get());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->start, Point2d(-10, 5));
    auto* circle = dynamic_cast<Circle*>(first.geoData[1].curve.get());
    ASSERT_NE(circle, nullptr);
    EXPECT_EQ(circle->radius, 50);
    auto* polygon = dynamic_cast<Polygon*>(first.geoData[2].curve.get());
    ASSERT_NE(polygon, nullptr);
    EXPECT_EQ(polygon->points.size(), 2u);
    EXPECT_EQ(data.contours[1].contourNumber, 2);
    EXPECT_EQ(data.contours[1].contourCode, L"AB");
    EXPECT_TRUE(data.contours[1].geoData.empty());
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(ContourData, LongerCodeIsReadWhole)
{
    StringArchive s(L"CONTOUR_\n502\n01\n01 ABC 00\n\nEND\n");
    ContourData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.contours.size(), 1u);
    EXPECT_EQ(data.contours[0].contourCode, L"ABC");
}

TEST(ContourData, ReadAppends)
{
    StringArchive s(L"CONTOUR_\n502\n01\n01 00 00\n\nEND\n");
    ContourData data;
    data.contours.push_back(Contour(502));
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.contours.size(), 2u);
}

TEST(ContourData, WrongTagClearsValid)
{
    StringArchive s(L"CONTOURS\n502\n00\nEND\n");
    ContourData data;
    data.version = 600;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_EQ(data.version, 600);
    EXPECT_FALSE(s.archive.fail());
}

TEST(ContourData, LongerTagDoesNotMatch)
{
    StringArchive s(L"CONTOUR__\n502\n00\nEND\n");
    ContourData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(ContourData, WrongEndFailsButLeavesValid)
{
    StringArchive s(L"CONTOUR_\n502\n00\nENDE\n");
    ContourData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(s.archive.valid);
    EXPECT_FALSE(s.archive.fail());
}

TEST(ContourData, FailureInsideAContourFailsTheRead)
{
    StringArchive s(L"CONTOUR_\n502\n02\n01 00 01\nS 00001 xx\n02 00 00\n\nEND\n");
    ContourData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(data.contours.empty());
}

TEST(ContourData, ElementOfUnknownKindIsKeptWithoutCurve)
{
    // The unknown kind leaves the rest of its line to the next element.
    StringArchive s(L"CONTOUR_\n502\n01\n01 00 02\nX S 00001 00002 00003 00004 0000\nEND\n");
    ContourData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.contours.size(), 1u);
    const Contour& contour = data.contours[0];
    ASSERT_EQ(contour.geoData.size(), 2u);
    EXPECT_EQ(contour.geoData[0].elementKind, L'X');
    EXPECT_EQ(contour.geoData[0].curve, nullptr);
    EXPECT_EQ(contour.geoData[1].elementKind, L'S');
    EXPECT_NE(dynamic_cast<LineSegment*>(contour.geoData[1].curve.get()), nullptr);

    StringArchive out;
    EXPECT_FALSE(data.Write(out.archive));
}

TEST(ContourData, ReadsBackWhatItWrote)
{
    for (std::int16_t version : {std::int16_t{502}, std::int16_t{600}}) {
        ContourData written;
        written.version = version;
        Contour contour(version);
        contour.contourNumber = 1;
        contour.contourCode = L"K1";
        contour.geoData.push_back(Segment(version, Point2d(0, 0), Point2d(3000, 0)));
        auto arc = std::make_unique<Arc>(version);
        arc->centre = Point2d(3000, 750);
        arc->radius = 750;
        arc->startAngle = 270;
        arc->endAngle = 90;
        contour.geoData.emplace_back(version, L'B', std::move(arc));
        contour.geoData.push_back(CircleElement(version, Point2d(10, 20), 5));
        Contour empty(version);
        empty.contourNumber = 2;
        written.contours = {contour, empty};

        StringArchive out;
        ASSERT_TRUE(written.Write(out.archive));
        StringArchive in(out.Text());
        ContourData read;
        EXPECT_TRUE(read.Read(in.archive));
        EXPECT_EQ(read.version, version);
        ASSERT_EQ(read.contours.size(), 2u);
        EXPECT_EQ(read.contours[0].contourNumber, 1);
        EXPECT_EQ(read.contours[0].contourCode, L"K1");
        ASSERT_EQ(read.contours[0].geoData.size(), 3u);
        auto* line = dynamic_cast<LineSegment*>(read.contours[0].geoData[0].curve.get());
        ASSERT_NE(line, nullptr);
        EXPECT_EQ(line->end, Point2d(3000, 0));
        auto* readArc = dynamic_cast<Arc*>(read.contours[0].geoData[1].curve.get());
        ASSERT_NE(readArc, nullptr);
        EXPECT_EQ(readArc->startAngle, 270);
        EXPECT_EQ(readArc->endAngle, 90);
        EXPECT_EQ(read.contours[1].contourNumber, 2);
        EXPECT_TRUE(read.contours[1].geoData.empty());
        EXPECT_EQ(read.boundingBox(), written.boundingBox());

        StringArchive again;
        ASSERT_TRUE(read.Write(again.archive));
        EXPECT_EQ(again.Text(), out.Text());
    }
}

TEST(ContourData, ReadsAnArcInTheUnsignedForm)
{
    StringArchive s(L"CONTOUR_\n502\n01\n01 00 02\n"
                    L"B 00100 00200 00050 045 090 010\n"
                    L"S 00000 00000 00010 00010 0000\n"
                    L"END\n");
    ContourData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.contours.size(), 1u);
    ASSERT_EQ(data.contours[0].geoData.size(), 2u);
    EXPECT_EQ(data.contours[0].geoData[0].elementKind, L'B');
    const auto* arc = dynamic_cast<const Arc*>(data.contours[0].geoData[0].curve.get());
    ASSERT_NE(arc, nullptr);
    EXPECT_EQ(arc->version, 502);
    EXPECT_EQ(arc->centre, Point2d(100, 200));
    EXPECT_EQ(arc->radius, 50);
    EXPECT_EQ(arc->startAngle, 45);
    EXPECT_EQ(arc->endAngle, 90);
    // The last field is taken in hexadecimal.
    EXPECT_EQ(arc->flags, 16);
    const auto* line = dynamic_cast<const LineSegment*>(data.contours[0].geoData[1].curve.get());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->end, Point2d(10, 10));
}

TEST(ContourData, ACountOfContoursTooHighTakesTheEndForANumberAndFails)
{
    StringArchive s(L"CONTOUR_\n502\n02\n01 00 00\n\nEND\n");
    ContourData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(s.archive.fail());
    EXPECT_EQ(data.contours.size(), 1u);
}

TEST(ContourData, ACountOfElementsTooHighReadsTheEndAsElementsOfUnknownKind)
{
    // "E" and "N" become elements without a curve, and "D" is no end tag.
    StringArchive s(L"CONTOUR_\n502\n01\n01 00 03\nS 00000 00000 00010 00010 0000\nEND\n");
    ContourData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(s.archive.valid);
    EXPECT_FALSE(s.archive.fail());
    ASSERT_EQ(data.contours.size(), 1u);
    const Contour& contour = data.contours[0];
    ASSERT_EQ(contour.geoData.size(), 3u);
    EXPECT_NE(contour.geoData[0].curve, nullptr);
    EXPECT_EQ(contour.geoData[1].elementKind, L'E');
    EXPECT_EQ(contour.geoData[1].curve, nullptr);
    EXPECT_EQ(contour.geoData[2].elementKind, L'N');
    EXPECT_EQ(contour.geoData[2].curve, nullptr);
}

TEST(ContourData, ACountOfElementsTooLowLeavesAnElementWhereTheEndShouldBe)
{
    StringArchive s(L"CONTOUR_\n502\n01\n01 00 01\n"
                    L"S 00000 00000 00010 00010 0000\n"
                    L"S 00010 00010 00020 00020 0000\n"
                    L"END\n");
    ContourData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(s.archive.valid);
    ASSERT_EQ(data.contours.size(), 1u);
    EXPECT_EQ(data.contours[0].geoData.size(), 1u);
}

TEST(ContourData, ACountThatIsNoNumberFailsTheStream)
{
    StringArchive s(L"CONTOUR_\n502\nxx\nEND\n");
    ContourData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(s.archive.fail());
    EXPECT_TRUE(data.contours.empty());
}

TEST(ContourData, ALowerCaseKindIsUnknown)
{
    StringArchive s(L"CONTOUR_\n600\n01\n01 00 01\ns\nEND\n");
    ContourData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.contours.size(), 1u);
    ASSERT_EQ(data.contours[0].geoData.size(), 1u);
    EXPECT_EQ(data.contours[0].geoData[0].elementKind, L's');
    EXPECT_EQ(data.contours[0].geoData[0].curve, nullptr);
}

} // namespace
} // namespace ItUnitechnik

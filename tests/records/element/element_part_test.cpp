#include "records/element/element_part.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"
#include "geometry/line_segment.h"
#include "records/order/order.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::Blanks;
using Testing::Joined;
using Testing::JoinLines;
using Testing::Lines;
using Testing::StringArchive;

ElementPart AtVersion(std::int16_t version)
{
    ElementPart element;
    element.version = version;
    return element;
}

std::vector<std::wstring> Written(ElementPart element)
{
    StringArchive s;
    EXPECT_TRUE(element.Write(s.archive));
    return Lines(s.Text());
}

// The lines of a default element, written out from the record's tables.
const std::wstring shortLineA = L"012 0 00 00 00 000 000 000 000";
const std::wstring longLineA = shortLineA + L" 00 00 0000";
const std::wstring shortLineB = L"00.000 000 00          0.000 00000.0 0000 000 000 000 000 000";
const std::wstring longLineB = shortLineB + L" 0000";
const std::wstring plasterLine = L"000          0.000 00000.0 000          0.000 00000.0";
const std::wstring lineC = L"00000 00000 +0000 +0000 +0000 +0000 0 00000 0 00000 000000 000000 +00 +00";
const std::wstring edgeLine = L"00000 00000 00000 00000 00000 00000 00000 00000";
const std::wstring lineD = Blanks(8) + L" " + Blanks(4) + L" 0000 0000 00 " + Blanks(30);
const std::wstring lineE = L"000000 000000 000000 000000 000000 000000 000000 000000 000000";
const std::wstring lineE600 = L"+000000 +000000 +000000 +000000 +000000 +000000 +000000 +000000 +000000";
const std::wstring lineA600 = Blanks(15) + L" 0 00 00 00 000 00000 000 000 00 00 " + Blanks(40);
const std::wstring lineF = L"+00000 +00000 +00000 000";

// The nested records of a default element: its outline lists always, and
// below 600 the empty lists of loose bars and girders too. They keep their
// own default version, 502.
std::vector<std::wstring> Nested(bool below600)
{
    std::vector<std::wstring> lines = {L"CONTOUR_", L"502", L"00",       L"END", L"CUTOUT__", L"502",
                                       L"00",       L"END", L"MOUNPART", L"502", L"000",      L"END"};
    if (below600) {
        for (const wchar_t* line : {L"RODSTOCK", L"502", L"000", L"END", L"BRGIRDER", L"502", L"000", L"END"}) {
            lines.push_back(line);
        }
    }
    return lines;
}

std::vector<std::wstring> Record(std::vector<std::wstring> own, bool below600)
{
    for (const std::wstring& line : Nested(below600)) {
        own.push_back(line);
    }
    own.push_back(L"END SLABDATE");
    return own;
}

TEST(ElementPartWrite, DefaultBelow501HasTheShortLinesAndNoLayerLines)
{
    const std::vector<std::wstring> expected =
        Record({L"SLABDATE", L"499", shortLineA, shortLineB, lineC, edgeLine, lineD, lineE, L"END"}, true);
    EXPECT_EQ(Written(AtVersion(499)), expected);
    std::vector<std::wstring> at0 = expected;
    at0[1] = L"000";
    EXPECT_EQ(Written(AtVersion(0)), at0);
    std::vector<std::wstring> at500 = expected;
    at500[1] = L"500";
    EXPECT_EQ(Written(AtVersion(500)), at500);
}

TEST(ElementPartWrite, VersionFiveHasTheLongLinesButNoConcreteLines)
{
    const std::vector<std::wstring> expected =
        Record({L"SLABDATE", L"005", longLineA, longLineB, lineC, edgeLine, lineD, lineE, L"END"}, true);
    EXPECT_EQ(Written(AtVersion(5)), expected);
}

TEST(ElementPartWrite, Version501)
{
    const std::vector<std::wstring> expected =
        Record({L"SLABDATE", L"501", longLineA, longLineB, lineC, edgeLine, lineD, lineE, L"END"}, true);
    EXPECT_EQ(Written(AtVersion(501)), expected);
}

TEST(ElementPartWrite, Version502HasPlastersConcreteCountAndEdges)
{
    const std::vector<std::wstring> expected = Record(
        {L"SLABDATE", L"502", longLineA, longLineB, plasterLine, L"00", lineC, edgeLine, lineD, lineE, L"END"}, true);
    EXPECT_EQ(Written(AtVersion(502)), expected);
}

TEST(ElementPartWrite, Versions503To599HaveNeitherPlastersNorEdges)
{
    for (std::int16_t version : {std::int16_t{503}, std::int16_t{599}}) {
        const std::vector<std::wstring> expected = Record(
            {L"SLABDATE", std::to_wstring(version), longLineA, longLineB, L"00", lineC, lineD, lineE, L"END"}, true);
        EXPECT_EQ(Written(AtVersion(version)), expected) << version;
    }
}

TEST(ElementPartWrite, From600TheNumberIsTextAndLinesFAndGFollow)
{
    for (std::int16_t version : {std::int16_t{600}, std::int16_t{601}}) {
        const std::vector<std::wstring> expected =
            Record({L"SLABDATE", std::to_wstring(version), lineA600, longLineB, L"00", lineC, lineD, lineE600, lineF,
                    Blanks(20), Blanks(20), Blanks(20), Blanks(20), L"END"},
                   false);
        EXPECT_EQ(Written(AtVersion(version)), expected) << version;
    }
}

TEST(ElementPartWrite, ShortCodesArePaddedBehindFrom600)
{
    ElementPart element = AtVersion(502);
    element.codeA1 = L"";
    element.codeA2 = L"A";
    element.codeA3 = L"12345";
    element.codeA4 = L"B";
    EXPECT_EQ(Written(element)[2], L"012 0 0A 00 00 123 000 000 000 00 00 000B");
    element.version = 600;
    element.elementNumberText = L"E-7";
    element.textA40 = L"forty";
    EXPECT_EQ(Written(element)[2],
              L"E-7" + Blanks(12) + L" 0 A0 00 00 123 00000 000 000 00 00 " + Blanks(35) + L"forty");
}

TEST(ElementPartWrite, FilledLines)
{
    ElementPart element = AtVersion(502);
    element.elementNumber = 7;
    element.valueA1 = 1;
    element.valueA2 = 123;
    element.valueA3 = 4;
    element.valueA6 = 6;
    element.elementMeasure = 2.5;
    element.codeB3 = L"7";
    element.textB8 = L"B8";
    element.realB1 = 0.25;
    element.layerProductSum = 12.25;
    element.thickness = 200;
    element.doubleWallGap = 60;
    element.secondThickness = 150;
    element.extentX = 6000;
    element.extentY = 2400;
    element.valueC1 = -5;
    element.valueC5 = 1;
    element.elementVector = Vector2d(-5, 7);
    element.valueC9 = 3;
    element.valueC10 = -4;
    element.valueC11 = 1;
    element.valueC12 = 2;
    element.textD8 = L"D8";
    element.textD4 = L"D4";
    element.valueD3 = 9;
    element.elementText30 = L"Floor slab";
    element.firstPoint = Point3d(1, -2, 3);
    const std::vector<std::wstring> lines = Written(element);
    EXPECT_EQ(lines[2], L"007 0 00 01 123 000 004 000 000 06 00 0000");
    EXPECT_EQ(lines[3], L"02.500 000 00       B8 0.250 00012.2 0200 060 007 000 000 000 0150");
    EXPECT_EQ(lines[6], L"06000 02400 -0005 +0000 +0000 +0000 1 00000 0 00000 0000-5 000007 +03 -04 001 002");
    EXPECT_EQ(lines[8], L"      D8   D4 0000 0000 09 " + Blanks(20) + L"Floor slab");
    EXPECT_EQ(lines[9], L"000001 0000-2 000003 000000 000000 000000 000000 000000 000000");
}

TEST(ElementPartWrite, TheOptionalPairNeedsBothValuesAndAVersionBelow600)
{
    ElementPart element = AtVersion(502);
    element.valueC12 = 5;
    EXPECT_EQ(Written(element)[6], lineC);
    element.valueC11 = 4;
    EXPECT_EQ(Written(element)[6], lineC + L" 004 005");
    element.valueC12 = -1;
    EXPECT_EQ(Written(element)[6], lineC);
    element.valueC12 = 5;
    element.version = 600;
    EXPECT_EQ(Written(element)[5], lineC);
}

TEST(ElementPartWrite, LinesEFAndGFrom600)
{
    ElementPart element = AtVersion(600);
    element.firstPoint = Point3d(1, -2, 1234567);
    element.fourthPoint = Point3d(-1, 2, 3);
    element.valueF1 = 42;
    element.slabInfo1 = L"info";
    element.slabInfo4 = L"0123456789012345678901234";
    const std::vector<std::wstring> lines = Written(element);
    EXPECT_EQ(lines[7], L"+000001 -000002 +1234567 +000000 +000000 +000000 +000000 +000000 +000000");
    EXPECT_EQ(lines[8], L"-00001 +00002 +00003 042");
    EXPECT_EQ(lines[9], Blanks(16) + L"info");
    EXPECT_EQ(lines[12], L"01234567890123456789");
}

TEST(ElementPartWrite, ConcreteLayersFollowTheirCount)
{
    ElementPart element = AtVersion(600);
    ConcreteLayer layer(600);
    layer.layerNumber = 1;
    layer.layerKind = 2;
    layer.layerThickness = 200;
    layer.layerName = L"C30";
    element.concreteLayers.push_back(layer);
    const std::vector<std::wstring> lines = Written(element);
    EXPECT_EQ(lines[4], L"01");
    EXPECT_EQ(lines[5], L"01 02 200 C30" + Blanks(17) + L" 0.000 00000.0 " + Blanks(20));

    ElementPart many = AtVersion(503);
    for (int i = 0; i < 100; ++i) {
        many.concreteLayers.push_back(ConcreteLayer(503));
    }
    EXPECT_EQ(Written(many)[4], L"100");
}

TEST(ElementPartCopy, CopiesWorkOnTheirOwnLayers)
{
    ElementPart element;
    element.Add(ConcreteLayer());
    ElementPart copy(element);
    copy.Add(ConcreteLayer());
    EXPECT_EQ(element.concreteLayers.size(), 1u);
    EXPECT_EQ(copy.concreteLayers.size(), 2u);
    ElementPart assigned;
    assigned = copy;
    assigned.Add(ConcreteLayer());
    EXPECT_EQ(copy.concreteLayers.size(), 2u);
    EXPECT_EQ(assigned.concreteLayers.size(), 3u);
    {
        const auto& same = assigned; // assigned to itself
        assigned = same;
    }
    EXPECT_EQ(assigned.concreteLayers.size(), 3u);
    EXPECT_EQ(assigned.codeA2, L"00");
}

TEST(ElementPartDefaults, AsTheRecordNeedsThem)
{
    const ElementPart element;
    EXPECT_EQ(element.version, 502);
    EXPECT_EQ(element.elementNumber, 12);
    EXPECT_EQ(element.codeA1, L"0");
    EXPECT_EQ(element.codeA4, L"0000");
    EXPECT_EQ(element.textB8, Blanks(8));
    EXPECT_EQ(element.codeB3, L"");
    EXPECT_EQ(element.valueC11, -1);
    EXPECT_EQ(element.valueC12, -1);
    EXPECT_EQ(element.extentX, 0);
}

ElementPart Filled(std::int16_t version)
{
    ElementPart element = AtVersion(version);
    element.elementNumber = 34;
    element.elementNumberText = L"34";
    element.codeA1 = L"1";
    element.codeA2 = L"22";
    element.valueA2 = 5;
    element.codeA3 = L"333";
    element.valueA5 = 7;
    element.valueA7 = 8;
    element.codeA4 = L"4444";
    element.textA40 = L"forty characters are here";
    element.elementMeasure = 1.25;
    element.codeB1 = L"111";
    element.codeB2 = L"22";
    element.textB8 = L"textB8xx";
    element.realB1 = 0.5;
    element.layerProductSum = 3.5;
    element.thickness = 200;
    element.doubleWallGap = 30;
    element.codeB3 = L"333";
    element.codeB4 = L"444";
    element.valueB2 = 9;
    element.secondThickness = 180;
    ConcreteLayer layer(version);
    layer.layerNumber = 1;
    layer.layerKind = 3;
    layer.layerThickness = 120;
    layer.layerName = L"C25";
    element.concreteLayers.push_back(layer);
    element.extentX = 6000;
    element.extentY = 2400;
    element.valueC2 = -3;
    element.valueC6 = 11;
    element.elementVector = Vector2d(10, 20);
    element.valueC9 = 1;
    element.valueC10 = -2;
    element.valueC11 = 3;
    element.valueC12 = 4;
    element.textD8 = L"abcdefgh";
    element.textD4 = L"wxyz";
    element.valueD1 = 12;
    element.valueD3 = 5;
    element.elementText30 = L"Floor slab";
    element.firstPoint = Point3d(1, 2, 3);
    element.secondPoint = Point3d(6000, 0, 0);
    element.thirdPoint = Point3d(0, 2400, 0);
    element.fourthPoint = Point3d(7, 8, 9);
    element.valueF1 = 77;
    element.slabInfo1 = L"first";
    element.slabInfo2 = L"second";
    return element;
}

ElementPart ReadBack(const ElementPart& written)
{
    ElementPart copy = written;
    StringArchive out;
    copy.Write(out.archive);
    StringArchive in(out.Text());
    ElementPart read;
    EXPECT_TRUE(read.Read(in.archive));
    EXPECT_TRUE(Healthy(in.archive));
    return read;
}

void ExpectCommonMembers(const ElementPart& a, const ElementPart& b)
{
    EXPECT_EQ(a.version, b.version);
    EXPECT_EQ(a.elementNumber, b.elementNumber);
    EXPECT_EQ(a.codeA1, b.codeA1);
    EXPECT_EQ(a.codeA2, b.codeA2);
    EXPECT_EQ(a.valueA2, b.valueA2);
    EXPECT_EQ(a.codeA3, b.codeA3);
    EXPECT_EQ(a.valueA5, b.valueA5);
    EXPECT_EQ(a.valueA7, b.valueA7);
    EXPECT_EQ(a.elementMeasure, b.elementMeasure);
    EXPECT_EQ(a.codeB1, b.codeB1);
    EXPECT_EQ(a.codeB2, b.codeB2);
    EXPECT_EQ(a.textB8, b.textB8);
    EXPECT_EQ(a.realB1, b.realB1);
    EXPECT_EQ(a.layerProductSum, b.layerProductSum);
    EXPECT_EQ(a.thickness, b.thickness);
    EXPECT_EQ(a.doubleWallGap, b.doubleWallGap);
    EXPECT_EQ(a.codeB3, b.codeB3);
    EXPECT_EQ(a.codeB4, b.codeB4);
    EXPECT_EQ(a.valueB2, b.valueB2);
    EXPECT_EQ(a.secondThickness, b.secondThickness);
    ASSERT_EQ(a.concreteLayers.size(), b.concreteLayers.size());
    EXPECT_EQ(a.concreteLayers[0].layerThickness, b.concreteLayers[0].layerThickness);
    EXPECT_EQ(a.extentX, b.extentX);
    EXPECT_EQ(a.extentY, b.extentY);
    EXPECT_EQ(a.valueC2, b.valueC2);
    EXPECT_EQ(a.valueC6, b.valueC6);
    EXPECT_EQ(a.elementVector, b.elementVector);
    EXPECT_EQ(a.valueC9, b.valueC9);
    EXPECT_EQ(a.valueC10, b.valueC10);
    EXPECT_EQ(a.textD8, b.textD8);
    EXPECT_EQ(a.textD4, b.textD4);
    EXPECT_EQ(a.valueD1, b.valueD1);
    EXPECT_EQ(a.valueD3, b.valueD3);
    EXPECT_EQ(a.firstPoint, b.firstPoint);
    EXPECT_EQ(a.secondPoint, b.secondPoint);
    EXPECT_EQ(a.thirdPoint, b.thirdPoint);
}

TEST(ElementPartRead, ReadsBackAt502)
{
    const ElementPart written = Filled(502);
    const ElementPart read = ReadBack(written);
    ExpectCommonMembers(written, read);
    EXPECT_EQ(read.codeA4, L"4444");
    EXPECT_EQ(read.valueC11, 3);
    EXPECT_EQ(read.valueC12, 4);
    EXPECT_EQ(read.firstEdge, written.firstEdge);
    // The element text comes back with the blanks of its right-aligned field.
    EXPECT_EQ(read.elementText30, Blanks(20) + L"Floor slab");
}

TEST(ElementPartRead, ReadsBackAt600)
{
    const ElementPart written = Filled(600);
    const ElementPart read = ReadBack(written);
    ExpectCommonMembers(written, read);
    EXPECT_EQ(read.elementNumberText, L"34");
    EXPECT_EQ(read.textA40, Blanks(15) + L"forty characters are here");
    // Never written from 600: the pair stays absent.
    EXPECT_EQ(read.valueC11, -1);
    EXPECT_EQ(read.valueC12, -1);
    EXPECT_EQ(read.fourthPoint, written.fourthPoint);
    EXPECT_EQ(read.valueF1, 77);
    EXPECT_EQ(read.slabInfo1, Blanks(15) + L"first");
    EXPECT_EQ(read.slabInfo2, Blanks(14) + L"second");
}

TEST(ElementPartRead, TheNumberComesFromTheTextFrom600)
{
    for (const auto& [text, number] :
         std::vector<std::pair<std::wstring, int>>{{L"12A", 12}, {L"X9", 0}, {L"70000", 4464}, {L"-5", -5}}) {
        ElementPart element = Filled(600);
        element.elementNumberText = text;
        const ElementPart read = ReadBack(element);
        EXPECT_EQ(read.elementNumber, number) << std::string(text.begin(), text.end());
    }
}

TEST(ElementPartRead, AWrongStartTagClearsValid)
{
    StringArchive in(L"SLABDATX\n502\n");
    ElementPart element;
    EXPECT_FALSE(element.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
}

TEST(ElementPartRead, AWrongEndLeavesValidSoTheOrderKeepsTheElement)
{
    ElementPart written = Filled(502);
    StringArchive out;
    written.Write(out.archive);
    std::wstring text = out.Text();
    text.replace(text.find(L"\nEND\n"), 5, L"\nEMD\n");
    StringArchive in(text);
    ElementPart read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_TRUE(in.archive.valid);
}

TEST(OrderWithElement, ReadsBackWholeAt502And600)
{
    for (std::int16_t version : {std::int16_t{502}, std::int16_t{600}}) {
        Order order;
        order.version = version;
        order.date.version = version;
        order.orderNumber = L"ORD-77";
        order.Add(Filled(version));
        StringArchive out;
        ASSERT_TRUE(order.Write(out.archive));
        StringArchive in(out.Text());
        Order read;
        EXPECT_TRUE(read.Read(in.archive)) << version;
        ASSERT_EQ(read.elementParts.size(), 1u);
        ExpectCommonMembers(order.elementParts[0], read.elementParts[0]);
        EXPECT_EQ(read.orderNumber, L"ORD-77");
        // Written again, the read order gives the same text but where a field
        // does not survive.
        StringArchive again;
        read.Write(again.archive);
        if (version == 502) {
            EXPECT_EQ(again.Text(), out.Text());
        }
    }
}

TEST(OrderWithElement, CountLineAndPlaceOfTheElement)
{
    Order order;
    order.Add(ElementPart());
    StringArchive out;
    order.Write(out.archive);
    const std::wstring text = out.Text();
    EXPECT_NE(text.find(L"\n0 01 000\nEND\nSLABDATE\n502\n"), std::wstring::npos);
    EXPECT_EQ(text.substr(text.size() - 30), L"END\nEND SLABDATE\nEND HEADER__\n");
}

TEST(OrderWithElement, AFailingElementIsNotKept)
{
    Order order;
    order.Add(ElementPart());
    StringArchive out;
    order.Write(out.archive);
    std::wstring text = out.Text();
    text.replace(text.find(L"SLABDATE\n"), 9, L"SLABDATX\n");
    StringArchive in(text);
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_TRUE(read.elementParts.empty());
}

} // namespace
} // namespace ItUnitechnik

namespace ItUnitechnik {
namespace {

// The pieces of one contour as the test keeps them: x0, y0, x1, y1 each.
using Pieces = std::vector<std::array<std::int32_t, 4>>;

Contour ContourOf(const Pieces& pieces)
{
    Contour contour(502);
    for (const auto& p : pieces) {
        contour.Add(GeoData(502, L'S', std::make_unique<LineSegment>(502, Point2d(p[0], p[1]), Point2d(p[2], p[3]))));
    }
    return contour;
}

Contour Rectangle(std::int32_t x0, std::int32_t y0, std::int32_t x1, std::int32_t y1)
{
    return ContourOf({{x0, y0, x1, y1}});
}

TEST(ElementPartExtents, AnyChangeWithoutAContourGivesOneAndOne)
{
    ElementPart element;
    EXPECT_EQ(element.extentX, 0);
    element.Add(ConcreteLayer());
    EXPECT_EQ(element.extentX, 1);
    EXPECT_EQ(element.extentY, 1);
}

TEST(ElementPartExtents, TheBoxOfAllContours)
{
    ElementPart element;
    element.appendContour(Rectangle(0, 0, 3000, 1500));
    EXPECT_EQ(element.extentX, 3000);
    EXPECT_EQ(element.extentY, 1500);
    element.appendContour(Rectangle(5000, 0, 6000, 1000));
    EXPECT_EQ(element.extentX, 6000);
    EXPECT_EQ(element.extentY, 1500);
    EXPECT_EQ(element.contourData.contours[1].contourNumber, 2);
}

TEST(ElementPartExtents, RemovingTheLastContourGivesOneAndOne)
{
    ElementPart element;
    element.appendContour(Rectangle(-100, -50, 100, 50));
    EXPECT_EQ(element.extentX, 200);
    EXPECT_EQ(element.extentY, 100);
    element.Remove(element.contourData.contours.begin());
    EXPECT_EQ(element.extentX, 1);
    EXPECT_EQ(element.extentY, 1);
}

TEST(ElementPartExtents, ACopyChangesOnlyItself)
{
    ElementPart element;
    element.appendContour(Rectangle(0, 0, 3000, 1500));
    ElementPart copy(element);
    copy.Add(Rectangle(0, 0, 9000, 100));
    EXPECT_EQ(copy.extentX, 9000);
    EXPECT_EQ(copy.contourData.contours.size(), 2u);
    EXPECT_EQ(element.extentX, 3000);
    EXPECT_EQ(element.contourData.contours.size(), 1u);
}

TEST(ElementPartExtents, CutoutsDoNotCount)
{
    ElementPart element;
    element.appendContour(Rectangle(0, 0, 3000, 1500));
    Cutout cutout(502);
    cutout.Add(GeoData(502, L'S', std::make_unique<LineSegment>(502, Point2d(0, 0), Point2d(9000, 9000))));
    element.appendCutout(cutout);
    EXPECT_EQ(element.extentX, 3000);
    EXPECT_EQ(element.cutoutData.cutouts[0].cutoutNumber, 1);
}

// The extents of an outline, worked out here from the end points: the width
// and height of their box in 32-bit unsigned differences, where no point at
// all leaves the inverted box and so 1 and 1.
std::array<std::int32_t, 2> ExtentsOf(const std::vector<Pieces>& outline)
{
    std::int32_t minX = INT32_MAX;
    std::int32_t minY = INT32_MAX;
    std::int32_t maxX = INT32_MIN;
    std::int32_t maxY = INT32_MIN;
    for (const Pieces& pieces : outline) {
        for (const auto& p : pieces) {
            minX = std::min({minX, p[0], p[2]});
            maxX = std::max({maxX, p[0], p[2]});
            minY = std::min({minY, p[1], p[3]});
            maxY = std::max({maxY, p[1], p[3]});
        }
    }
    return {static_cast<std::int32_t>(static_cast<std::uint32_t>(maxX) - static_cast<std::uint32_t>(minX)),
            static_cast<std::int32_t>(static_cast<std::uint32_t>(maxY) - static_cast<std::uint32_t>(minY))};
}

TEST(ElementPartExtents, ALongRunOfChangesKeepsTheBoxOfAllContours)
{
    std::mt19937 random(13);
    auto below = [&random](std::uint32_t n) { return static_cast<std::size_t>(random() % n); };
    auto coordinate = [&random]() { return static_cast<std::int32_t>(random() % 200001) - 100000; };
    auto somePieces = [&]() {
        Pieces pieces(below(4));
        for (auto& p : pieces) {
            p = {coordinate(), coordinate(), coordinate(), coordinate()};
        }
        return pieces;
    };

    ElementPart element;
    std::vector<Pieces> outline; // what the element's contours hold, in order
    // The first change gives an element with no contour 1 and 1; without
    // one the extents keep the constructor's 0.
    element.Add(ConcreteLayer());
    ASSERT_EQ(element.extentX, 1);
    ASSERT_EQ(element.extentY, 1);
    for (int step = 0; step < 600; ++step) {
        SCOPED_TRACE(step);
        const std::size_t count = outline.size();
        switch (below(step % 100 == 99 ? 10 : 9)) {
        case 0: {
            Pieces pieces = somePieces();
            element.appendContour(ContourOf(pieces));
            outline.push_back(pieces);
            break;
        }
        case 1: {
            Pieces pieces = somePieces();
            element.Add(ContourOf(pieces));
            outline.push_back(pieces);
            break;
        }
        case 2: {
            const std::size_t at = below(static_cast<std::uint32_t>(count + 1));
            Pieces pieces = somePieces();
            element.Insert(element.contourData.contours.begin() + static_cast<std::ptrdiff_t>(at), ContourOf(pieces));
            outline.insert(outline.begin() + static_cast<std::ptrdiff_t>(at), pieces);
            break;
        }
        case 3:
            if (count > 0) {
                // A contour of the element itself, inserted again.
                const std::size_t from = below(static_cast<std::uint32_t>(count));
                const std::size_t at = below(static_cast<std::uint32_t>(count + 1));
                element.Insert(element.contourData.contours.begin() + static_cast<std::ptrdiff_t>(at),
                               element.contourData.contours[from]);
                const Pieces copy = outline[from];
                outline.insert(outline.begin() + static_cast<std::ptrdiff_t>(at), copy);
            }
            break;
        case 4:
        case 5:
            if (count > 0) {
                const std::size_t at = below(static_cast<std::uint32_t>(count));
                element.Remove(element.contourData.contours.begin() + static_cast<std::ptrdiff_t>(at));
                outline.erase(outline.begin() + static_cast<std::ptrdiff_t>(at));
            }
            break;
        case 6: {
            const std::size_t first = below(static_cast<std::uint32_t>(count + 1));
            const std::size_t last = first + below(static_cast<std::uint32_t>(count - first + 1));
            element.RemoveRange(element.contourData.contours.begin() + static_cast<std::ptrdiff_t>(first),
                                element.contourData.contours.begin() + static_cast<std::ptrdiff_t>(last));
            outline.erase(outline.begin() + static_cast<std::ptrdiff_t>(first),
                          outline.begin() + static_cast<std::ptrdiff_t>(last));
            break;
        }
        case 7:
            // Changes to the other lists leave the box as it is.
            element.Add(ConcreteLayer());
            element.appendRodstock(Rodstock(502));
            break;
        case 8: {
            Cutout cutout(502);
            cutout.Add(GeoData(502, L'S', std::make_unique<LineSegment>(502, Point2d(-900000, 0), Point2d(900000, 0))));
            element.appendCutout(cutout);
            element.Remove(element.cutoutData.cutouts.begin());
            break;
        }
        default:
            element.ItCollectionImpl<std::vector<Contour>>::Clear();
            outline.clear();
            break;
        }
        const std::array<std::int32_t, 2> expected = ExtentsOf(outline);
        EXPECT_EQ(element.extentX, expected[0]);
        EXPECT_EQ(element.extentY, expected[1]);
        ElementPart recomputed(element);
        recomputed.recomputeExtents();
        EXPECT_EQ(element.extentX, recomputed.extentX);
        EXPECT_EQ(element.extentY, recomputed.extentY);
        ASSERT_EQ(element.contourData.contours.size(), outline.size());
    }
}

TEST(ElementPartExtents, AfterAReadTheNextChangeTakesTheContoursRead)
{
    ElementPart written = AtVersion(600);
    written.elementNumberText = L"7";
    written.contourData.version = 600;
    written.contourData.contours.push_back(ContourOf({{0, 0, 2500, 1200}}));
    // Never changed through a collection: the file says 0 and 0.
    StringArchive s;
    ASSERT_TRUE(written.Write(s.archive));
    StringArchive in(s.Text());
    ElementPart read;
    read.appendContour(ContourOf({{0, 0, 9000, 9000}}));
    read.ItCollectionImpl<std::vector<Contour>>::Clear();
    ASSERT_TRUE(read.Read(in.archive));
    EXPECT_EQ(read.extentX, 0);
    EXPECT_EQ(read.extentY, 0);
    read.Add(ConcreteLayer());
    EXPECT_EQ(read.extentX, 2500);
    EXPECT_EQ(read.extentY, 1200);
}

TEST(ElementPartExtents, AContourPutStraightIntoTheListCountsAtTheNextChange)
{
    ElementPart element;
    element.appendContour(ContourOf({{0, 0, 100, 100}}));
    element.contourData.contours.push_back(ContourOf({{0, 0, 4000, 50}}));
    element.Add(ConcreteLayer());
    EXPECT_EQ(element.extentX, 4000);
    EXPECT_EQ(element.extentY, 100);
}

TEST(ElementPartRead, From600MissingOutlineListsArePassedOver)
{
    // The number text must not be empty: the reader takes it as a token.
    ElementPart element = AtVersion(600);
    element.elementNumberText = L"1";
    StringArchive out;
    element.Write(out.archive);
    std::wstring text = out.Text();
    const std::wstring cutouts = L"CUTOUT__\n502\n00\nEND\n";
    text.erase(text.find(cutouts), cutouts.size());
    StringArchive in(text);
    ElementPart read;
    EXPECT_TRUE(read.Read(in.archive));

    // Below 600 the same gap fails the element.
    ElementPart old = AtVersion(502);
    StringArchive oldOut;
    old.Write(oldOut.archive);
    std::wstring oldText = oldOut.Text();
    oldText.erase(oldText.find(cutouts), cutouts.size());
    StringArchive oldIn(oldText);
    ElementPart oldRead;
    EXPECT_FALSE(oldRead.Read(oldIn.archive));
}

TEST(ElementPartRead, AContourListWithAWrongClosingTokenIsTakenAsRead)
{
    // The list's own Read fails, but it leaves the stream and `valid` as
    // they were, and only they decide for the element.
    for (const std::int16_t version : {std::int16_t{502}, std::int16_t{600}}) {
        ElementPart element = AtVersion(version);
        element.elementNumberText = L"1";
        element.contourData.Add(Contour(502));
        StringArchive out;
        ASSERT_TRUE(element.Write(out.archive));
        std::wstring text = out.Text();
        const std::wstring closing = L"END\nCUTOUT__";
        const std::size_t at = text.find(closing);
        ASSERT_NE(at, std::wstring::npos);
        text.replace(at, 3, L"EXT");
        StringArchive in(text);
        ElementPart read;
        EXPECT_TRUE(read.Read(in.archive)) << version;
        EXPECT_TRUE(in.archive.valid);
        EXPECT_EQ(read.contourData.contours.size(), 1u);
    }
}

} // namespace
} // namespace ItUnitechnik

namespace ItUnitechnik {
namespace {

using Testing::Blanks;
using Testing::Joined;
using Testing::JoinLines;
using Testing::Lines;
using Testing::StringArchive;

// A default element's own lines at 502, up to its "END".
std::vector<std::wstring> OwnLines502(const std::wstring& extents = L"00000 00000")
{
    return {L"SLABDATE", L"502", longLineA, longLineB, plasterLine, L"00", extents + lineC.substr(11),
            edgeLine,    lineD,  lineE,     L"END"};
}

// An empty layer as written: its block has no irons of its own.
std::vector<std::wstring> EmptyLayerLines(const std::wstring& dataLine = L"0 000000 000000 000000 00")
{
    return {L"LAYER___",
            L"502",
            dataLine,
            L"END",
            L"MOUNPART",
            L"502",
            L"000",
            L"END",
            L"REFORCEM",
            L"502",
            Blanks(10) + L" " + Blanks(4) + L" " + Blanks(8) + L" 0",
            L"END",
            L"END REFORCEM",
            L"END LAYER___"};
}

// A layer as a file has it when it reads: the block carries an empty list of
// irons.
std::vector<std::wstring> ReadableLayerLines(const std::wstring& dataLine)
{
    return {L"LAYER___",
            L"502",
            dataLine,
            L"END",
            L"MOUNPART",
            L"502",
            L"000",
            L"END",
            L"REFORCEM",
            L"502",
            Blanks(10) + L" " + Blanks(4) + L" " + Blanks(8) + L" 0",
            L"END",
            L"EXTIRON_",
            L"502",
            L"000",
            L"END",
            L"END REFORCEM",
            L"END LAYER___"};
}

Contour Square(std::int32_t side)
{
    Contour contour(502);
    contour.Add(GeoData(502, L'S', std::make_unique<LineSegment>(502, Point2d(0, 0), Point2d(side, side))));
    return contour;
}

TEST(ElementPartLayers, WithALayerTheContoursAreNotWrittenAtAll)
{
    ElementPart element;
    element.appendContour(Square(3000));
    element.appendContour(Square(1000));
    element.appendCutout(Cutout(502));
    element.layers.push_back(Layer());
    StringArchive s;
    EXPECT_TRUE(element.Write(s.archive));
    const std::vector<std::wstring> expected =
        Joined(Joined(OwnLines502(L"03000 03000"), EmptyLayerLines()), {L"END SLABDATE"});
    EXPECT_EQ(Lines(s.Text()), expected);
}

TEST(ElementPartLayers, WithALayerNoReinforcementRecordIsWrittenEither)
{
    for (std::int16_t version : {std::int16_t{502}, std::int16_t{600}}) {
        ElementPart element = AtVersion(version);
        element.reinforcement.present = true;
        element.hasExternalIron = true;
        element.appendRodstock(Rodstock(version));
        element.bracedGirderData.girders.push_back(BracedGirder());
        Layer first;
        first.layerValue1 = 1;
        Layer second;
        second.layerValue1 = 2;
        element.layers.push_back(first);
        element.layers.push_back(second);
        StringArchive s;
        EXPECT_TRUE(element.Write(s.archive));
        const std::vector<std::wstring> lines = Lines(s.Text());
        const std::vector<std::wstring> layers =
            Joined(Joined(EmptyLayerLines(L"1 000000 000000 000000 00"), EmptyLayerLines(L"2 000000 000000 000000 00")),
                   {L"END SLABDATE"});
        ASSERT_GT(lines.size(), layers.size());
        EXPECT_EQ(lines[lines.size() - layers.size() - 1], L"END") << version;
        EXPECT_EQ(std::vector<std::wstring>(lines.end() - static_cast<std::ptrdiff_t>(layers.size()), lines.end()),
                  layers)
            << version;
    }
}

TEST(ElementPartLayers, TheLayersAreTheEighthCollection)
{
    ElementPart element;
    element.Add(Layer());
    EXPECT_EQ(element.layers.size(), 1u);
    // Any change through a collection of the element recomputes its extents.
    EXPECT_EQ(element.extentX, 1);
    EXPECT_EQ(element.extentY, 1);
    element.Insert(element.layers.begin(), Layer());
    element.Remove(element.layers.begin());
    EXPECT_EQ(element.layers.size(), 1u);
    element.RemoveRange(element.layers.begin(), element.layers.end());
    EXPECT_TRUE(element.layers.empty());
}

TEST(ElementPartLayers, ACopyWorksOnItsOwnLayers)
{
    ElementPart element;
    element.Add(Layer());
    ElementPart copy(element);
    copy.Add(Layer());
    EXPECT_EQ(element.layers.size(), 1u);
    EXPECT_EQ(copy.layers.size(), 2u);
    ElementPart assigned;
    assigned = copy;
    static_cast<ItCollectionImpl<std::vector<Layer>>&>(assigned).Clear();
    EXPECT_TRUE(assigned.layers.empty());
    EXPECT_EQ(copy.layers.size(), 2u);
}

TEST(ElementPartLayers, ReadsLayersUpToTheClosingTag)
{
    const std::vector<std::wstring> lines =
        Joined(Joined(Joined(OwnLines502(), ReadableLayerLines(L"1 000011 000012 000013 00")),
                      ReadableLayerLines(L"2 000021 000022 000023 00")),
               {L"END SLABDATE", L"NEXT"});
    StringArchive s(JoinLines(lines));
    ElementPart element;
    EXPECT_TRUE(element.Read(s.archive));
    EXPECT_TRUE(s.archive.valid);
    ASSERT_EQ(element.layers.size(), 2u);
    EXPECT_EQ(element.layers[0].layerValue1, 1);
    EXPECT_EQ(element.layers[0].layerValue3, 12);
    EXPECT_EQ(element.layers[1].layerValue1, 2);
    EXPECT_EQ(element.layers[1].layerValue4, 23);
    EXPECT_TRUE(element.layers[1].reinforcement.present);
    // Nothing of the outline or reinforcement is read beside the layers.
    EXPECT_TRUE(element.contourData.contours.empty());
    EXPECT_FALSE(element.reinforcement.present);
    EXPECT_FALSE(element.hasExternalIron);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(ElementPartLayers, ALayerThatFailsEndsTheLayersAndTheClosingTagFails)
{
    // The second layer counts two lots and has one: it fails, the element
    // goes back to its start and finds "LAYER___" where it wants its closing
    // tag.
    std::vector<std::wstring> broken = ReadableLayerLines(L"2 000000 000000 000000 02");
    const std::vector<std::wstring> lot = {
        L"LOT_____",    L"502",      L"00 " + Blanks(8) + L" 0.000    00.000 000000 000000 000000 000",
        L"END",         L"CONTOUR_", L"502",
        L"00",          L"END",      L"CUTOUT__",
        L"502",         L"00",       L"END",
        L"END LOT_____"};
    broken.insert(broken.begin() + 4, lot.begin(), lot.end());
    const std::vector<std::wstring> lines = Joined(
        Joined(Joined(OwnLines502(), ReadableLayerLines(L"1 000000 000000 000000 00")), broken), {L"END SLABDATE"});
    StringArchive s(JoinLines(lines));
    ElementPart element;
    EXPECT_FALSE(element.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    ASSERT_EQ(element.layers.size(), 1u);
    EXPECT_EQ(element.layers[0].layerValue1, 1);
    EXPECT_EQ(ReadToken(s.archive), L"502");
}

TEST(ElementPartLayers, WithoutALayerTheOutlineIsReadAsBefore)
{
    const std::vector<std::wstring> lines =
        Joined(OwnLines502(), {L"CONTOUR_", L"502",      L"01",          L"01 00 01", L"S 00000 00000 00100 00200 0000",
                               L"END",      L"CUTOUT__", L"502",         L"00",       L"END",
                               L"MOUNPART", L"502",      L"000",         L"END",      L"RODSTOCK",
                               L"502",      L"000",      L"END",         L"BRGIRDER", L"502",
                               L"000",      L"END",      L"END SLABDATE"});
    StringArchive s(JoinLines(lines));
    ElementPart element;
    EXPECT_TRUE(element.Read(s.archive));
    EXPECT_TRUE(element.layers.empty());
    ASSERT_EQ(element.contourData.contours.size(), 1u);
    EXPECT_EQ(element.contourData.contours[0].geoData.size(), 1u);
    // The extents are what the file says, not the box of the contour.
    EXPECT_EQ(element.extentX, 0);
    EXPECT_FALSE(element.hasExternalIron);
}

TEST(ElementPartLayers, AnOrderWithALayeredElementReadsBack)
{
    Order order;
    ElementPart element;
    Layer layer;
    layer.layerValue2 = 42;
    layer.lotCount = 1;
    layer.Add(Lot());
    layer.reinforcement.hasExternalIrons = true;
    element.Add(layer);
    order.Add(element);
    StringArchive out;
    ASSERT_TRUE(order.Write(out.archive));
    StringArchive in(out.Text());
    Order read;
    EXPECT_TRUE(read.Read(in.archive));
    ASSERT_EQ(read.elementParts.size(), 1u);
    ASSERT_EQ(read.elementParts[0].layers.size(), 1u);
    EXPECT_EQ(read.elementParts[0].layers[0].layerValue2, 42);
    EXPECT_EQ(read.elementParts[0].layers[0].lots.size(), 1u);
    StringArchive again;
    read.Write(again.archive);
    EXPECT_EQ(again.Text(), out.Text());
}

} // namespace
} // namespace ItUnitechnik

// Elements read from files written out by hand, line by line.
namespace ItUnitechnik {
namespace {

using Testing::Blanks;
using Testing::Joined;
using Testing::JoinLines;
using Testing::StringArchive;

TEST(ElementPartReadFile, Version600)
{
    StringArchive s(JoinLines(
        {L"SLABDATE", L"600", L"E-7" + Blanks(12) + L" 1 A0 01 123 007 00004 000 000 06 00 " + Blanks(35) + L"forty",
         L"02.500 000 00       B8 0.250 00012.5 0200 060 007 000 000 000 0150", L"00",
         L"06000 02400 -0005 +0000 +0000 +0000 1 00000 0 00000 000010 000020 +03 -04",
         L"      D8   D4 0012 0000 09 " + Blanks(20) + L"Floor slab",
         L"+000001 -000002 +000003 +006000 +000000 +000000 +000000 +002400 +000000", L"-00001 +00002 +00003 042",
         Blanks(16) + L"info", Blanks(20), Blanks(20), L"01234567890123456789", L"END",
         // No openings, parts, bars, girders or mats: from 600 each may be
         // missing. The irons are there.
         L"CONTOUR_", L"600", L"00", L"END", L"EXTIRON_", L"600", L"000", L"END", L"END SLABDATE", L"NEXT"}));
    ElementPart element;
    EXPECT_TRUE(element.Read(s.archive));
    EXPECT_TRUE(Healthy(s.archive));
    EXPECT_EQ(element.version, 600);
    EXPECT_EQ(element.elementNumberText, L"E-7");
    EXPECT_EQ(element.elementNumber, 0);
    EXPECT_EQ(element.codeA1, L"1");
    EXPECT_EQ(element.codeA2, L"A0");
    EXPECT_EQ(element.valueA1, 1);
    EXPECT_EQ(element.valueA2, 123);
    EXPECT_EQ(element.codeA3, L"007");
    EXPECT_EQ(element.valueA3, 4);
    EXPECT_EQ(element.valueA6, 6);
    EXPECT_EQ(element.codeA4, L"0000");
    EXPECT_EQ(element.textA40, Blanks(35) + L"forty");
    EXPECT_EQ(element.elementMeasure, 2.5);
    EXPECT_EQ(element.textB8, L"      B8");
    EXPECT_EQ(element.realB1, 0.25);
    EXPECT_EQ(element.layerProductSum, 12.5);
    EXPECT_EQ(element.thickness, 200);
    EXPECT_EQ(element.doubleWallGap, 60);
    EXPECT_EQ(element.codeB3, L"007");
    EXPECT_EQ(element.codeB4, L"000");
    EXPECT_EQ(element.secondThickness, 150);
    EXPECT_TRUE(element.concreteLayers.empty());
    EXPECT_EQ(element.extentX, 6000);
    EXPECT_EQ(element.extentY, 2400);
    EXPECT_EQ(element.valueC1, -5);
    EXPECT_EQ(element.valueC5, 1);
    EXPECT_EQ(element.elementVector, Vector2d(10, 20));
    EXPECT_EQ(element.valueC9, 3);
    EXPECT_EQ(element.valueC10, -4);
    EXPECT_EQ(element.valueC11, -1);
    EXPECT_EQ(element.valueC12, -1);
    EXPECT_EQ(element.textD8, L"      D8");
    EXPECT_EQ(element.textD4, L"  D4");
    EXPECT_EQ(element.valueD1, 12);
    EXPECT_EQ(element.valueD3, 9);
    EXPECT_EQ(element.elementText30, Blanks(20) + L"Floor slab");
    EXPECT_EQ(element.firstPoint, Point3d(1, -2, 3));
    EXPECT_EQ(element.secondPoint, Point3d(6000, 0, 0));
    EXPECT_EQ(element.thirdPoint, Point3d(0, 2400, 0));
    EXPECT_EQ(element.fourthPoint, Point3d(-1, 2, 3));
    EXPECT_EQ(element.valueF1, 42);
    EXPECT_EQ(element.slabInfo1, Blanks(16) + L"info");
    EXPECT_EQ(element.slabInfo2, Blanks(20));
    EXPECT_EQ(element.slabInfo4, L"01234567890123456789");
    EXPECT_EQ(element.contourData.version, 600);
    EXPECT_EQ(element.cutoutData.version, 502);
    EXPECT_FALSE(element.reinforcement.present);
    EXPECT_TRUE(element.hasExternalIron);
    EXPECT_EQ(element.externalIronData.version, 600);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(ElementPartReadFile, Version502WithPlastersAConcreteLayerAndTheOptionalPair)
{
    StringArchive s(JoinLines({L"SLABDATE",
                               L"502",
                               L"034 1 22 00 05 333 000 000 007 00 08 4444",
                               L"01.250 111 22 textB8xx 0.500 00003.5 0200 030 333 444 000 009 0180",
                               L"012 Kalk     1.250 00030.5 000          0.000 00000.0",
                               L"01",
                               L"03 01 1000 C30" + Blanks(5) + L" 1.500 02400.0",
                               L"06000 02400 +0000 -0003 +0000 +0000 0 00011 0 00000 000010 000020 +01 -02 003 004",
                               L"00001 00002 00003 00004 00005 00006 00007 00008",
                               L"abcdefgh wxyz 0012 0000 05 " + Blanks(20) + L"Floor slab",
                               L"000001 000002 000003 006000 000000 000000 000000 002400 000000",
                               L"END",
                               L"CONTOUR_",
                               L"502",
                               L"00",
                               L"END",
                               L"CUTOUT__",
                               L"502",
                               L"00",
                               L"END",
                               L"MOUNPART",
                               L"502",
                               L"000",
                               L"END",
                               L"RODSTOCK",
                               L"502",
                               L"000",
                               L"END",
                               L"BRGIRDER",
                               L"502",
                               L"000",
                               L"END",
                               L"END SLABDATE"}));
    ElementPart element;
    EXPECT_TRUE(element.Read(s.archive));
    EXPECT_EQ(element.version, 502);
    EXPECT_EQ(element.elementNumber, 34);
    EXPECT_EQ(element.codeA2, L"22");
    EXPECT_EQ(element.valueA2, 5);
    EXPECT_EQ(element.codeA3, L"333");
    EXPECT_EQ(element.valueA5, 7);
    EXPECT_EQ(element.valueA7, 8);
    EXPECT_EQ(element.codeA4, L"4444");
    EXPECT_EQ(element.elementMeasure, 1.25);
    EXPECT_EQ(element.codeB1, L"111");
    EXPECT_EQ(element.textB8, L"textB8xx");
    EXPECT_EQ(element.layerProductSum, 3.5);
    EXPECT_EQ(element.doubleWallGap, 30);
    EXPECT_EQ(element.codeB4, L"444");
    EXPECT_EQ(element.valueB2, 9);
    EXPECT_EQ(element.secondThickness, 180);
    EXPECT_EQ(element.firstPlaster.plasterNumber, 12);
    EXPECT_EQ(element.firstPlaster.plasterName, L"Kalk    ");
    EXPECT_EQ(element.firstPlaster.secondValue, 30.5);
    EXPECT_EQ(element.secondPlaster.plasterNumber, 0);
    ASSERT_EQ(element.concreteLayers.size(), 1u);
    EXPECT_EQ(element.concreteLayers[0].version, 502);
    EXPECT_EQ(element.concreteLayers[0].layerNumber, 3);
    EXPECT_EQ(element.concreteLayers[0].layerThickness, 1000);
    EXPECT_EQ(element.valueC2, -3);
    EXPECT_EQ(element.valueC6, 11);
    EXPECT_EQ(element.valueC9, 1);
    EXPECT_EQ(element.valueC10, -2);
    EXPECT_EQ(element.valueC11, 3);
    EXPECT_EQ(element.valueC12, 4);
    EXPECT_EQ(element.firstEdge, Edge(Point2d(1, 2), Point2d(3, 4)));
    EXPECT_EQ(element.secondEdge, Edge(Point2d(5, 6), Point2d(7, 8)));
    EXPECT_EQ(element.textD8, L"abcdefgh");
    EXPECT_EQ(element.textD4, L"wxyz");
    EXPECT_EQ(element.valueD3, 5);
    EXPECT_EQ(element.secondPoint, Point3d(6000, 0, 0));
    EXPECT_FALSE(element.hasExternalIron);
}

TEST(ElementPartReadFile, Version499HasTheShortLinesAndNoPlasterOrConcreteLines)
{
    StringArchive s(JoinLines({L"SLABDATE",
                               L"499",
                               L"034 1 22 00 05 333 000 000 007",
                               L"01.250 111 22 textB8xx 0.500 00003.5 0200 030 333 444 000 009",
                               L"06000 02400 +0000 +0000 +0000 +0000 0 00000 0 00000 000000 000000 +00 +00",
                               L"00000 00000 00000 00000 00000 00000 00000 00000",
                               Blanks(8) + L" " + Blanks(4) + L" 0000 0000 00 " + Blanks(30),
                               L"000000 000000 000000 000000 000000 000000 000000 000000 000000",
                               L"END",
                               L"CONTOUR_",
                               L"499",
                               L"00",
                               L"END",
                               L"CUTOUT__",
                               L"499",
                               L"00",
                               L"END",
                               L"MOUNPART",
                               L"499",
                               L"00",
                               L"END",
                               L"RODSTOCK",
                               L"499",
                               L"000",
                               L"END",
                               L"BRGIRDER",
                               L"499",
                               L"000",
                               L"END",
                               L"EXTIRON_",
                               L"499",
                               L"000",
                               L"END",
                               L"END SLABDATE"}));
    ElementPart element;
    EXPECT_TRUE(element.Read(s.archive));
    EXPECT_EQ(element.version, 499);
    EXPECT_EQ(element.valueA5, 7);
    EXPECT_EQ(element.valueA6, 0);
    EXPECT_EQ(element.codeA4, L"0000");
    EXPECT_EQ(element.valueB2, 9);
    EXPECT_EQ(element.secondThickness, 0);
    EXPECT_EQ(element.extentX, 6000);
    EXPECT_EQ(element.valueC11, -1);
    EXPECT_EQ(element.textD8, Blanks(8));
    EXPECT_EQ(element.elementText30, Blanks(30));
    EXPECT_EQ(element.contourData.version, 499);
    EXPECT_EQ(element.mountingPartData.version, 499);
    EXPECT_TRUE(element.hasExternalIron);
}

TEST(ElementPartReadFile, VersionFiveHasTheLongLinesButNoConcreteLines)
{
    StringArchive s(JoinLines({L"SLABDATE",
                               L"005",
                               L"012 0 00 00 00 000 000 000 000 01 02 ABCD",
                               L"00.000 000 00          0.000 00000.0 0000 000 000 000 000 000 0250",
                               L"00000 00000 +0000 +0000 +0000 +0000 0 00000 0 00000 000000 000000 +00 +00",
                               L"00000 00000 00000 00000 00000 00000 00000 00000",
                               Blanks(8) + L" " + Blanks(4) + L" 0000 0000 00 " + Blanks(30),
                               L"000000 000000 000000 000000 000000 000000 000000 000000 000000",
                               L"END",
                               L"CONTOUR_",
                               L"502",
                               L"00",
                               L"END",
                               L"CUTOUT__",
                               L"502",
                               L"00",
                               L"END",
                               L"MOUNPART",
                               L"502",
                               L"000",
                               L"END",
                               L"RODSTOCK",
                               L"502",
                               L"000",
                               L"END",
                               L"BRGIRDER",
                               L"502",
                               L"000",
                               L"END",
                               L"END SLABDATE"}));
    ElementPart element;
    EXPECT_TRUE(element.Read(s.archive));
    EXPECT_EQ(element.version, 5);
    EXPECT_EQ(element.valueA6, 1);
    EXPECT_EQ(element.valueA7, 2);
    EXPECT_EQ(element.codeA4, L"ABCD");
    EXPECT_EQ(element.secondThickness, 250);
    EXPECT_TRUE(element.concreteLayers.empty());
}

TEST(ElementPartReadFile, BelowVersion600AMissingListOfOpeningsFailsTheElement)
{
    StringArchive s(JoinLines({L"SLABDATE", L"499", L"034 1 22 00 05 333 000 000 007",
                               L"01.250 111 22 textB8xx 0.500 00003.5 0200 030 333 444 000 009",
                               L"06000 02400 +0000 +0000 +0000 +0000 0 00000 0 00000 000000 000000 +00 +00",
                               L"00000 00000 00000 00000 00000 00000 00000 00000",
                               Blanks(8) + L" " + Blanks(4) + L" 0000 0000 00 " + Blanks(30),
                               L"000000 000000 000000 000000 000000 000000 000000 000000 000000", L"END", L"CONTOUR_",
                               L"499", L"00", L"END", L"MOUNPART", L"499", L"00", L"END", L"END SLABDATE"}));
    ElementPart element;
    EXPECT_FALSE(element.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(ElementPartReadFile, AConcreteCountThatIsNoNumberFailsTheStream)
{
    StringArchive s(JoinLines({L"SLABDATE", L"503", L"012 0 00 00 00 000 000 000 000 00 00 0000",
                               L"00.000 000 00          0.000 00000.0 0000 000 000 000 000 000 0000", L"xx",
                               L"00000 00000 +0000 +0000 +0000 +0000 0 00000 0 00000 000000 000000 +00 +00", L"END",
                               L"END SLABDATE"}));
    ElementPart element;
    EXPECT_FALSE(element.Read(s.archive));
    EXPECT_TRUE(s.archive.fail());
    EXPECT_TRUE(element.concreteLayers.empty());
}

TEST(OrderWithElement, ReadsAFileWrittenByHand)
{
    StringArchive s(JoinLines({L"HEADER__",
                               L"502",
                               L"ORD-1" + Blanks(3) + L"   ABCDE WXYZ       R8 07 00 " + Blanks(40),
                               L"Tower A" + Blanks(13),
                               Blanks(20),
                               Blanks(20),
                               Blanks(20),
                               L"Precast Works" + Blanks(12),
                               Blanks(25),
                               Blanks(8),
                               Blanks(25),
                               Blanks(25),
                               Blanks(25),
                               Blanks(8),
                               L"Site" + Blanks(21),
                               L"07.03.2024",
                               L"0 01 000",
                               L"END",
                               L"SLABDATE",
                               L"502",
                               L"012 0 00 00 00 000 000 000 000 00 00 0000",
                               L"00.000 000 00          0.000 00000.0 0000 000 000 000 000 000 0000",
                               L"000          0.000 00000.0 000          0.000 00000.0",
                               L"00",
                               L"00000 00000 +0000 +0000 +0000 +0000 0 00000 0 00000 000000 000000 +00 +00",
                               L"00000 00000 00000 00000 00000 00000 00000 00000",
                               Blanks(8) + L" " + Blanks(4) + L" 0000 0000 00 " + Blanks(30),
                               L"000000 000000 000000 000000 000000 000000 000000 000000 000000",
                               L"END",
                               L"CONTOUR_",
                               L"502",
                               L"00",
                               L"END",
                               L"CUTOUT__",
                               L"502",
                               L"00",
                               L"END",
                               L"MOUNPART",
                               L"502",
                               L"000",
                               L"END",
                               L"RODSTOCK",
                               L"502",
                               L"000",
                               L"END",
                               L"BRGIRDER",
                               L"502",
                               L"000",
                               L"END",
                               L"END SLABDATE",
                               L"END HEADER__"}));
    Order order;
    EXPECT_TRUE(order.Read(s.archive));
    EXPECT_EQ(order.version, 502);
    EXPECT_EQ(order.orderNumber, L"ORD-1");
    EXPECT_EQ(order.orderText8, L"      R8");
    EXPECT_EQ(order.orderValue2, 7);
    EXPECT_EQ(order.legacyText2, L"00");
    EXPECT_EQ(order.legacyText40, Blanks(40));
    EXPECT_EQ(order.secondAddress.addressText3, Blanks(8));
    EXPECT_EQ(order.date.year, 2024);
    ASSERT_EQ(order.elementParts.size(), 1u);
    EXPECT_EQ(order.elementParts[0].elementNumber, 12);
}

} // namespace
} // namespace ItUnitechnik

// The lines of an element, version by version, its defaults and its copies.
#include "records/element/element_part.h"

#include "records/element/element_part_test_support.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using ElementPartTesting::AtVersion;
using ElementPartTesting::edgeLine;
using ElementPartTesting::ElementLines;
using ElementPartTesting::lineA600;
using ElementPartTesting::lineC;
using ElementPartTesting::lineD;
using ElementPartTesting::lineE;
using ElementPartTesting::lineE600;
using ElementPartTesting::lineF;
using ElementPartTesting::longLineA;
using ElementPartTesting::longLineB;
using ElementPartTesting::plasterLine;
using ElementPartTesting::shortLineA;
using ElementPartTesting::shortLineB;
using Testing::Blanks;
using Testing::Lines;
using Testing::StringArchive;

std::vector<std::wstring> Written(ElementPart element)
{
    StringArchive s;
    EXPECT_TRUE(element.Write(s.archive));
    return Lines(s.Text());
}

TEST(ElementPartWrite, DefaultBelow501HasTheShortLinesAndNoLayerLines)
{
    const std::vector<std::wstring> expected =
        ElementLines({L"SLABDATE", L"499", shortLineA, shortLineB, lineC, edgeLine, lineD, lineE, L"END"}, true);
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
        ElementLines({L"SLABDATE", L"005", longLineA, longLineB, lineC, edgeLine, lineD, lineE, L"END"}, true);
    EXPECT_EQ(Written(AtVersion(5)), expected);
}

TEST(ElementPartWrite, Version501)
{
    const std::vector<std::wstring> expected =
        ElementLines({L"SLABDATE", L"501", longLineA, longLineB, lineC, edgeLine, lineD, lineE, L"END"}, true);
    EXPECT_EQ(Written(AtVersion(501)), expected);
}

TEST(ElementPartWrite, Version502HasPlastersConcreteCountAndEdges)
{
    const std::vector<std::wstring> expected = ElementLines(
        {L"SLABDATE", L"502", longLineA, longLineB, plasterLine, L"00", lineC, edgeLine, lineD, lineE, L"END"}, true);
    EXPECT_EQ(Written(AtVersion(502)), expected);
}

TEST(ElementPartWrite, Versions503To599HaveNeitherPlastersNorEdges)
{
    for (std::int16_t version : {std::int16_t{503}, std::int16_t{599}}) {
        const std::vector<std::wstring> expected = ElementLines(
            {L"SLABDATE", std::to_wstring(version), longLineA, longLineB, L"00", lineC, lineD, lineE, L"END"}, true);
        EXPECT_EQ(Written(AtVersion(version)), expected) << version;
    }
}

TEST(ElementPartWrite, From600TheNumberIsTextAndLinesFAndGFollow)
{
    for (std::int16_t version : {std::int16_t{600}, std::int16_t{601}}) {
        const std::vector<std::wstring> expected =
            ElementLines({L"SLABDATE", std::to_wstring(version), lineA600, longLineB, L"00", lineC, lineD, lineE600,
                          lineF, Blanks(20), Blanks(20), Blanks(20), Blanks(20), L"END"},
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

} // namespace
} // namespace ItUnitechnik

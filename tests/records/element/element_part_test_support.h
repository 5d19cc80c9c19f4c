// What the tests of an element share: an element of a version, the lines of
// a default element as the record's tables write them, and an element with
// every member set that a reading gives back.
#pragma once

#include "records/element/element_part.h"

#include "framework/archive.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik::ElementPartTesting {

using Testing::Blanks;
using Testing::StringArchive;

inline ElementPart AtVersion(std::int16_t version)
{
    ElementPart element;
    element.version = version;
    return element;
}

// The lines of a default element, written out from the record's tables.
inline const std::wstring shortLineA = L"012 0 00 00 00 000 000 000 000";
inline const std::wstring longLineA = shortLineA + L" 00 00 0000";
inline const std::wstring shortLineB = L"00.000 000 00          0.000 00000.0 0000 000 000 000 000 000";
inline const std::wstring longLineB = shortLineB + L" 0000";
inline const std::wstring plasterLine = L"000          0.000 00000.0 000          0.000 00000.0";
inline const std::wstring lineC = L"00000 00000 +0000 +0000 +0000 +0000 0 00000 0 00000 000000 000000 +00 +00";
inline const std::wstring edgeLine = L"00000 00000 00000 00000 00000 00000 00000 00000";
inline const std::wstring lineD = Blanks(8) + L" " + Blanks(4) + L" 0000 0000 00 " + Blanks(30);
inline const std::wstring lineE = L"000000 000000 000000 000000 000000 000000 000000 000000 000000";
inline const std::wstring lineE600 = L"+000000 +000000 +000000 +000000 +000000 +000000 +000000 +000000 +000000";
inline const std::wstring lineA600 = Blanks(15) + L" 0 00 00 00 000 00000 000 000 00 00 " + Blanks(40);
inline const std::wstring lineF = L"+00000 +00000 +00000 000";

// The nested records of a default element: its outline lists always, and
// below 600 the empty lists of loose bars and girders too. They keep their
// own default version, 502.
inline std::vector<std::wstring> NestedLines(bool below600)
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

// An element's lines: its own, then the nested records of a default
// element, then the end tag.
inline std::vector<std::wstring> ElementLines(std::vector<std::wstring> own, bool below600)
{
    for (const std::wstring& line : NestedLines(below600)) {
        own.push_back(line);
    }
    own.push_back(L"END SLABDATE");
    return own;
}

inline ElementPart Filled(std::int16_t version)
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

inline ElementPart ReadBack(const ElementPart& written)
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

inline void ExpectCommonMembers(const ElementPart& a, const ElementPart& b)
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

} // namespace ItUnitechnik::ElementPartTesting

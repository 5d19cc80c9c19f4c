// Elements read from files written out by hand, line by line.
#include "records/element/element_part.h"

#include "records/element/element_part_test_support.h"

#include "framework/read_idioms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace ItUnitechnik {
namespace {

using ElementPartTesting::ElementLines;
using Testing::Blanks;
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
    StringArchive s(
        JoinLines(ElementLines({L"SLABDATE", L"502", L"034 1 22 00 05 333 000 000 007 00 08 4444",
                                L"01.250 111 22 textB8xx 0.500 00003.5 0200 030 333 444 000 009 0180",
                                L"012 Kalk     1.250 00030.5 000          0.000 00000.0", L"01",
                                L"03 01 1000 C30" + Blanks(5) + L" 1.500 02400.0",
                                L"06000 02400 +0000 -0003 +0000 +0000 0 00011 0 00000 000010 000020 +01 -02 003 004",
                                L"00001 00002 00003 00004 00005 00006 00007 00008",
                                L"abcdefgh wxyz 0012 0000 05 " + Blanks(20) + L"Floor slab",
                                L"000001 000002 000003 006000 000000 000000 000000 002400 000000", L"END"},
                               true)));
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
    StringArchive s(
        JoinLines(ElementLines({L"SLABDATE", L"005", L"012 0 00 00 00 000 000 000 000 01 02 ABCD",
                                L"00.000 000 00          0.000 00000.0 0000 000 000 000 000 000 0250",
                                L"00000 00000 +0000 +0000 +0000 +0000 0 00000 0 00000 000000 000000 +00 +00",
                                L"00000 00000 00000 00000 00000 00000 00000 00000",
                                Blanks(8) + L" " + Blanks(4) + L" 0000 0000 00 " + Blanks(30),
                                L"000000 000000 000000 000000 000000 000000 000000 000000 000000", L"END"},
                               true)));
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

} // namespace
} // namespace ItUnitechnik

// The lines of contours and of their record, their defaults and their copies.
#include "records/outline/contour.h"

#include "records/outline/contour_test_support.h"
#include "support/test_support.h"
#include "support/written.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace ItUnitechnik {
namespace {

using ContourTesting::CircleElement;
using ContourTesting::Segment;
using Testing::StringArchive;

using Testing::Written;

TEST(Contour, Defaults)
{
    Contour contour(600);
    EXPECT_EQ(contour.version, 600);
    EXPECT_EQ(contour.contourNumber, 0);
    EXPECT_EQ(contour.contourCode, L"00");
    EXPECT_TRUE(contour.geoData.empty());

    ContourData data;
    EXPECT_EQ(data.version, 502);
    EXPECT_TRUE(data.contours.empty());
}

TEST(ContourData, EmptyRecord)
{
    ContourData data;
    EXPECT_EQ(Written(data), L"CONTOUR_\n502\n00\nEND\n");
}

TEST(ContourData, ContourWithoutElementsLeavesAnEmptyLine)
{
    ContourData data;
    Contour contour(502);
    contour.contourNumber = 1;
    data.contours.push_back(contour);
    EXPECT_EQ(Written(data), L"CONTOUR_\n502\n01\n01 00 00\n\nEND\n");
}

TEST(Contour, ElementsStandOnLinesOfTheirOwnBelowVersion600)
{
    ContourData data;
    Contour contour(502);
    contour.contourNumber = 1;
    contour.geoData.push_back(Segment(502, Point2d(-10, 5), Point2d(20, 30)));
    contour.geoData.push_back(CircleElement(502, Point2d(100, 100), 50));
    data.contours.push_back(contour);
    EXPECT_EQ(Written(data), L"CONTOUR_\n"
                             L"502\n"
                             L"01\n"
                             L"01 00 02\n"
                             L"S 00000 00005 00020 00030 0000\n"
                             L"K 00100 00100 00050 0000\n"
                             L"END\n");
}

TEST(Contour, ElementsFromVersion600)
{
    ContourData data;
    data.version = 600;
    Contour contour(600);
    contour.contourNumber = 2;
    contour.contourCode = L"AB";
    contour.geoData.push_back(Segment(600, Point2d(-10, 5), Point2d(20, 30)));
    data.contours.push_back(contour);
    EXPECT_EQ(Written(data), L"CONTOUR_\n600\n01\n02 AB 01\nS -00010 +00005 +00020 +00030 0000\nEND\n");
}

TEST(Contour, CodeIsCutToTwoAndZeroFilled)
{
    Contour contour(502);
    contour.contourNumber = 3;
    contour.contourCode = L"ABC";
    EXPECT_EQ(Written(contour), L"03 AB 00\n");
    contour.contourCode = L"5";
    EXPECT_EQ(Written(contour), L"03 05 00\n");
}

TEST(ContourData, HundredContoursOutgrowTheirTwoDigits)
{
    ContourData data;
    for (std::int32_t i = 1; i <= 100; ++i) {
        Contour contour(502);
        contour.contourNumber = i;
        data.contours.push_back(contour);
    }
    const std::wstring text = Written(data);
    EXPECT_EQ(text.substr(0, 17), L"CONTOUR_\n502\n100\n");
    EXPECT_EQ(text.substr(17, 10), L"01 00 00\n\n");
    EXPECT_EQ(text.substr(text.size() - 15), L"100 00 00\n\nEND\n");
}

TEST(ContourData, WriteWithAnElementWithoutCurveFails)
{
    ContourData data;
    Contour contour(502);
    GeoData empty(502);
    empty.elementKind = L'S';
    contour.geoData.push_back(empty);
    data.contours.push_back(contour);
    StringArchive s;
    EXPECT_FALSE(data.Write(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(Contour, CopyAndAssignmentKeepTheirOwnElements)
{
    Contour original(600);
    original.contourNumber = 4;
    original.contourCode = L"XY";
    original.geoData.push_back(Segment(600, Point2d(1, 1), Point2d(2, 2)));

    Contour copy(original);
    EXPECT_EQ(copy.version, 600);
    EXPECT_EQ(copy.contourNumber, 4);
    EXPECT_EQ(copy.contourCode, L"XY");
    ASSERT_EQ(copy.geoData.size(), 1u);
    EXPECT_NE(copy.geoData[0].curve.get(), original.geoData[0].curve.get());
    copy.Add(Segment(600, Point2d(2, 2), Point2d(3, 3)));
    EXPECT_EQ(copy.geoData.size(), 2u);
    EXPECT_EQ(original.geoData.size(), 1u);

    Contour assigned(502);
    assigned = original;
    EXPECT_EQ(assigned.version, 600);
    EXPECT_EQ(assigned.contourNumber, 4);
    assigned.Clear();
    EXPECT_TRUE(assigned.geoData.empty());
    EXPECT_EQ(original.geoData.size(), 1u);
}

TEST(ContourData, CopyWorksOnItsOwnContours)
{
    ContourData original;
    original.version = 600;
    original.Add(Contour(600));
    ContourData copy(original);
    copy.Add(Contour(600));
    EXPECT_EQ(copy.version, 600);
    EXPECT_EQ(copy.contours.size(), 2u);
    EXPECT_EQ(original.contours.size(), 1u);
    ContourData assigned;
    assigned = original;
    assigned.Clear();
    EXPECT_EQ(original.contours.size(), 1u);
}

} // namespace
} // namespace ItUnitechnik

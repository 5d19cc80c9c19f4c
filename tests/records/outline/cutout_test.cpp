#include "records/outline/cutout.h"

#include "framework/read_idioms.h"
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "support/test_support.h"
#include "support/written.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

std::wstring Spaces(std::size_t count)
{
    return std::wstring(count, L' ');
}

GeoData Segment(std::int32_t version, Point2d start, Point2d end)
{
    return GeoData(version, L'S', std::make_unique<LineSegment>(version, start, end));
}

using Testing::Written;

Cutout Window(std::int32_t version)
{
    Cutout cutout(version);
    cutout.cutoutNumber = 1;
    cutout.cutoutValue = 12.5;
    cutout.cutoutName = L"Fenster";
    cutout.geoData.push_back(Segment(version, Point2d(0, 0), Point2d(1000, 0)));
    return cutout;
}

TEST(Cutout, Defaults)
{
    Cutout cutout(600);
    EXPECT_EQ(cutout.version, 600);
    EXPECT_EQ(cutout.cutoutNumber, 0);
    EXPECT_EQ(cutout.cutoutValue, 0.0);
    EXPECT_TRUE(cutout.cutoutName.empty());
    EXPECT_TRUE(cutout.geoData.empty());
    CutoutData data;
    EXPECT_EQ(data.version, 502);
    EXPECT_TRUE(data.cutouts.empty());
}

TEST(CutoutData, EmptyRecord)
{
    CutoutData data;
    EXPECT_EQ(Written(data), L"CUTOUT__\n502\n00\nEND\n");
}

TEST(CutoutData, NameIsNotWrittenAtVersion502)
{
    CutoutData data;
    data.cutouts.push_back(Window(502));
    EXPECT_EQ(Written(data), L"CUTOUT__\n502\n01\n01 12.500 01\nS 00000 00000 01000 00000 0000\nEND\n");
}

TEST(CutoutData, NameStandsInFortyPlacesFromVersion600)
{
    CutoutData data;
    data.version = 600;
    data.cutouts.push_back(Window(600));
    EXPECT_EQ(Written(data),
              L"CUTOUT__\n600\n01\n01 12.500 Fenster" + Spaces(33) + L" 01\nS +00000 +00000 +01000 +00000 0000\nEND\n");
}

TEST(Cutout, EmptyNameIsFortyBlanksAndTheBlank)
{
    Cutout cutout(600);
    cutout.cutoutNumber = 2;
    cutout.cutoutValue = 12.5;
    EXPECT_EQ(Written(cutout), L"02 12.500 " + Spaces(41) + L"00\n");
}

TEST(Cutout, ValueOutgrowsItsWidth)
{
    Cutout cutout(502);
    cutout.cutoutValue = 100.0;
    EXPECT_EQ(Written(cutout), L"00 100.000 00\n");
    cutout.cutoutValue = -1.5;
    EXPECT_EQ(Written(cutout), L"00 -1.500 00\n");
    cutout.cutoutValue = 0.0;
    EXPECT_EQ(Written(cutout), L"00 00.000 00\n");
}

TEST(Cutout, LongNameIsCutToForty)
{
    Cutout cutout(600);
    cutout.cutoutName = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwx";
    ASSERT_EQ(cutout.cutoutName.size(), 50u);
    EXPECT_EQ(Written(cutout), L"00 00.000 ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmn 00\n");
}

TEST(CutoutData, ReadsTheNameFromVersion600WithItsBlanks)
{
    StringArchive s(L"CUTOUT__\n600\n01\n01 12.500 Fenster" + Spaces(33) +
                    L" 01\nS +00000 +00000 +01000 +00000 0000\nEND\nNEXT");
    CutoutData data;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.version, 600);
    ASSERT_EQ(data.cutouts.size(), 1u);
    const Cutout& cutout = data.cutouts[0];
    EXPECT_EQ(cutout.version, 600);
    EXPECT_EQ(cutout.cutoutNumber, 1);
    EXPECT_EQ(cutout.cutoutValue, 12.5);
    EXPECT_EQ(cutout.cutoutName, L"Fenster" + Spaces(33));
    ASSERT_EQ(cutout.geoData.size(), 1u);
    ASSERT_NE(cutout.geoData[0].curve, nullptr);
    EXPECT_EQ(cutout.geoData[0].curve->version, 600);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(CutoutData, ReadsNoNameAtVersion502)
{
    StringArchive s(L"CUTOUT__\n502\n01\n01 12.500 00\n\nEND\n");
    CutoutData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.cutouts.size(), 1u);
    EXPECT_TRUE(data.cutouts[0].cutoutName.empty());
    EXPECT_EQ(data.cutouts[0].cutoutValue, 12.5);
    EXPECT_TRUE(data.cutouts[0].geoData.empty());
}

TEST(CutoutData, NameInAVersion502RecordIsNotExpected)
{
    StringArchive s(L"CUTOUT__\n502\n01\n01 12.500 Fenster 00\n\nEND\n");
    CutoutData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(data.cutouts.empty());
}

TEST(CutoutData, WrongTagClearsValid)
{
    StringArchive s(L"CONTOUR_\n502\n00\nEND\n");
    CutoutData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_FALSE(s.archive.fail());
}

TEST(CutoutData, WrongEndClearsValid)
{
    StringArchive s(L"CUTOUT__\n502\n00\nENDE\n");
    CutoutData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(CutoutData, FailureInsideACutoutFailsTheRead)
{
    StringArchive s(L"CUTOUT__\n502\n01\n01 xx 00\n\nEND\n");
    CutoutData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(data.cutouts.empty());
}

TEST(CutoutData, ReadAppends)
{
    StringArchive s(L"CUTOUT__\n502\n01\n01 12.500 00\n\nEND\n");
    CutoutData data;
    data.cutouts.push_back(Cutout(502));
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.cutouts.size(), 2u);
}

TEST(Cutout, CopyAndAssignmentKeepTheirOwnElements)
{
    Cutout original = Window(600);
    Cutout copy(original);
    EXPECT_EQ(copy.cutoutName, L"Fenster");
    EXPECT_EQ(copy.cutoutValue, 12.5);
    ASSERT_EQ(copy.geoData.size(), 1u);
    EXPECT_NE(copy.geoData[0].curve.get(), original.geoData[0].curve.get());
    copy.Add(Segment(600, Point2d(1, 1), Point2d(2, 2)));
    EXPECT_EQ(original.geoData.size(), 1u);

    Cutout assigned(502);
    assigned = original;
    EXPECT_EQ(assigned.version, 600);
    assigned.Clear();
    EXPECT_EQ(original.geoData.size(), 1u);

    CutoutData data;
    data.Add(original);
    CutoutData dataCopy(data);
    dataCopy.Clear();
    EXPECT_EQ(data.cutouts.size(), 1u);
}

TEST(CutoutData, ReadsBackWhatItWrote)
{
    for (std::int16_t version : {std::int16_t{502}, std::int16_t{600}}) {
        CutoutData written;
        written.version = version;
        Cutout window = Window(version);
        window.cutoutName = L"Fenster im Erdgeschoss, links neben Tuer";
        ASSERT_EQ(window.cutoutName.size(), 40u);
        window.geoData.emplace_back(version, L'K', std::make_unique<Circle>(version, Point2d(50, 60), 10));
        Cutout empty(version);
        empty.cutoutNumber = 2;
        empty.cutoutValue = 3.25;
        written.cutouts = {window, empty};

        StringArchive out;
        ASSERT_TRUE(written.Write(out.archive));
        StringArchive in(out.Text());
        CutoutData read;
        EXPECT_TRUE(read.Read(in.archive));
        EXPECT_EQ(read.version, version);
        ASSERT_EQ(read.cutouts.size(), 2u);
        EXPECT_EQ(read.cutouts[0].cutoutNumber, 1);
        EXPECT_EQ(read.cutouts[0].cutoutValue, 12.5);
        // Below 600 the name is not in the file.
        EXPECT_EQ(read.cutouts[0].cutoutName, version < 600 ? L"" : window.cutoutName);
        ASSERT_EQ(read.cutouts[0].geoData.size(), 2u);
        EXPECT_NE(dynamic_cast<LineSegment*>(read.cutouts[0].geoData[0].curve.get()), nullptr);
        auto* circle = dynamic_cast<Circle*>(read.cutouts[0].geoData[1].curve.get());
        ASSERT_NE(circle, nullptr);
        EXPECT_EQ(circle->centre, Point2d(50, 60));
        EXPECT_EQ(read.cutouts[1].cutoutNumber, 2);
        EXPECT_EQ(read.cutouts[1].cutoutValue, 3.25);
        EXPECT_TRUE(read.cutouts[1].geoData.empty());

        StringArchive again;
        ASSERT_TRUE(read.Write(again.archive));
        EXPECT_EQ(again.Text(), out.Text());
    }
}

TEST(CutoutData, ReadsCircleArcAndPolygonFromVersion600)
{
    StringArchive s(L"CUTOUT__\n600\n01\n"
                    L"01 00.500 Rund" +
                    Spaces(36) +
                    L" 03\n"
                    L"K +00100 +00200 00050 00FF\n"
                    L"B -00100 +00200 00050 000 180 255\n"
                    L"P 3 +00000 +00000 +01000 +00000 0001 +01000 +01000 000A\n"
                    L"END\n"
                    L"NEXT");
    CutoutData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.cutouts.size(), 1u);
    const Cutout& cutout = data.cutouts[0];
    EXPECT_EQ(cutout.cutoutValue, 0.5);
    EXPECT_EQ(cutout.cutoutName, L"Rund" + Spaces(36));
    ASSERT_EQ(cutout.geoData.size(), 3u);
    const auto* circle = dynamic_cast<const Circle*>(cutout.geoData[0].curve.get());
    ASSERT_NE(circle, nullptr);
    EXPECT_EQ(dynamic_cast<const Arc*>(cutout.geoData[0].curve.get()), nullptr);
    EXPECT_EQ(circle->centre, Point2d(100, 200));
    EXPECT_EQ(circle->radius, 50);
    EXPECT_EQ(circle->flags, 255);
    const auto* arc = dynamic_cast<const Arc*>(cutout.geoData[1].curve.get());
    ASSERT_NE(arc, nullptr);
    EXPECT_EQ(arc->centre, Point2d(-100, 200));
    EXPECT_EQ(arc->startAngle, 0);
    EXPECT_EQ(arc->endAngle, 180);
    EXPECT_EQ(arc->flags, 0x255);
    const auto* polygon = dynamic_cast<const Polygon*>(cutout.geoData[2].curve.get());
    ASSERT_NE(polygon, nullptr);
    EXPECT_EQ(polygon->version, 600);
    EXPECT_EQ(polygon->points, (std::vector<Point2d>{Point2d(0, 0), Point2d(1000, 0), Point2d(1000, 1000)}));
    EXPECT_EQ(polygon->segmentFlags, (std::vector<int>{1, 10}));
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(CutoutData, AnElementOfUnknownKindIsKeptAndTheRestOfItsLineGoesToTheNext)
{
    StringArchive s(L"CUTOUT__\n502\n01\n01 00.000 02\nZ S 00000 00000 00010 00010 0000\nEND\n");
    CutoutData data;
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.cutouts.size(), 1u);
    ASSERT_EQ(data.cutouts[0].geoData.size(), 2u);
    EXPECT_EQ(data.cutouts[0].geoData[0].elementKind, L'Z');
    EXPECT_EQ(data.cutouts[0].geoData[0].curve, nullptr);
    EXPECT_NE(dynamic_cast<const LineSegment*>(data.cutouts[0].geoData[1].curve.get()), nullptr);
}

TEST(CutoutData, ACountOfCutoutsTooHighFailsTheStream)
{
    StringArchive s(L"CUTOUT__\n502\n03\n01 00.000 00\n\n02 01.000 00\n\nEND\n");
    CutoutData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_TRUE(s.archive.fail());
    ASSERT_EQ(data.cutouts.size(), 2u);
    EXPECT_EQ(data.cutouts[1].cutoutNumber, 2);
    EXPECT_EQ(data.cutouts[1].cutoutValue, 1.0);
}

TEST(CutoutData, ACountOfCutoutsTooLowClearsValidAtTheEnd)
{
    StringArchive s(L"CUTOUT__\n502\n01\n01 00.000 00\n\n02 01.000 00\n\nEND\n");
    CutoutData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_EQ(data.cutouts.size(), 1u);
}

} // namespace
} // namespace ItUnitechnik

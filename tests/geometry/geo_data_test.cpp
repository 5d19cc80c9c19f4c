#include "geometry/geo_data.h"

#include "framework/read_idioms.h"
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

GeoData Segment(std::int32_t version, Point2d start, Point2d end)
{
    return GeoData(version, L'S', std::make_unique<LineSegment>(version, start, end));
}

TEST(GeoData, DefaultHasNoKindAndNoCurve)
{
    GeoData element;
    EXPECT_EQ(element.version, 0);
    EXPECT_EQ(element.elementKind, L'\0');
    EXPECT_EQ(element.curve, nullptr);
    EXPECT_EQ(GeoData(600).version, 600);
}

TEST(GeoData, WritesKindBlankAndCurve)
{
    StringArchive s;
    GeoData element = Segment(502, Point2d(-10, 5), Point2d(20, 30));
    EXPECT_TRUE(element.Write(s.archive));
    EXPECT_EQ(s.Text(), L"S 00000 00005 00020 00030 0000");
}

TEST(GeoData, WritesTheCurveInTheCurvesVersion)
{
    StringArchive s;
    GeoData element(502, L'K', std::make_unique<Circle>(600, Point2d(-1, 2), 3));
    EXPECT_TRUE(element.Write(s.archive));
    EXPECT_EQ(s.Text(), L"K -00001 +00002 00003 0000");
}

TEST(GeoData, WriteWithoutCurveFailsAndLeavesTheArchiveInvalid)
{
    StringArchive s;
    GeoData element(502);
    element.elementKind = L'S';
    EXPECT_FALSE(element.Write(s.archive));
    EXPECT_EQ(s.Text(), L"S ");
    EXPECT_FALSE(s.archive.valid);

    GeoData next = Segment(502, Point2d(1, 1), Point2d(2, 2));
    EXPECT_FALSE(next.Write(s.archive));
}

TEST(GeoData, ReadMakesTheCurveOfEachKindWithItsVersion)
{
    StringArchive s(L"S 00001 00002 00003 00004 0000\n"
                    L"K 00100 00200 00050 0000\n"
                    L"B 00100 00200 00050 000 090 000\n"
                    L"P 2 00001 00002 00003 00004 0000\n");

    GeoData segment(600);
    EXPECT_TRUE(segment.Read(s.archive));
    EXPECT_EQ(segment.elementKind, L'S');
    auto* line = dynamic_cast<LineSegment*>(segment.curve.get());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->version, 600);
    EXPECT_EQ(line->end, Point2d(3, 4));

    GeoData circle(601);
    EXPECT_TRUE(circle.Read(s.archive));
    EXPECT_EQ(circle.elementKind, L'K');
    ASSERT_NE(dynamic_cast<Circle*>(circle.curve.get()), nullptr);
    EXPECT_EQ(dynamic_cast<Arc*>(circle.curve.get()), nullptr);
    EXPECT_EQ(circle.curve->version, 601);
    EXPECT_EQ(dynamic_cast<Circle*>(circle.curve.get())->radius, 50);

    GeoData arc(502);
    EXPECT_TRUE(arc.Read(s.archive));
    EXPECT_EQ(arc.elementKind, L'B');
    auto* arcCurve = dynamic_cast<Arc*>(arc.curve.get());
    ASSERT_NE(arcCurve, nullptr);
    EXPECT_EQ(arcCurve->version, 502);
    EXPECT_EQ(arcCurve->endAngle, 90);

    GeoData polygon(500);
    EXPECT_TRUE(polygon.Read(s.archive));
    EXPECT_EQ(polygon.elementKind, L'P');
    auto* chain = dynamic_cast<Polygon*>(polygon.curve.get());
    ASSERT_NE(chain, nullptr);
    EXPECT_EQ(chain->version, 500);
    EXPECT_EQ(chain->points.size(), 2u);
}

TEST(GeoData, UnknownKindFailsWithTheStreamGood)
{
    StringArchive s(L"X 00001 00002");
    GeoData element(502);
    EXPECT_FALSE(element.Read(s.archive));
    EXPECT_EQ(element.elementKind, L'X');
    EXPECT_EQ(element.curve, nullptr);
    EXPECT_FALSE(s.archive.fail());
    EXPECT_TRUE(s.archive.valid);
    EXPECT_EQ(ReadToken(s.archive), L"00001");
}

TEST(GeoData, KindIsCaseSensitive)
{
    for (const wchar_t* text : {L"s 1 2 3 4 0000\n", L"k 1 2 3 0000", L"b 1 2 3 0 0 0", L"p 0 \n"}) {
        StringArchive s(text);
        GeoData element(502);
        EXPECT_FALSE(element.Read(s.archive)) << Testing::Narrow(text);
        EXPECT_EQ(element.curve, nullptr);
    }
}

TEST(GeoData, ReadFreesTheOldCurveFirstEvenForAnUnknownKind)
{
    StringArchive s(L"K 00100 00200 00050 0000\nZ");
    GeoData element = Segment(502, Point2d(1, 1), Point2d(2, 2));
    EXPECT_TRUE(element.Read(s.archive));
    EXPECT_NE(dynamic_cast<Circle*>(element.curve.get()), nullptr);
    EXPECT_FALSE(element.Read(s.archive));
    EXPECT_EQ(element.curve, nullptr);
}

TEST(GeoData, ReadFailsWhenTheCurveFails)
{
    StringArchive s(L"S 00001 xx");
    GeoData element(502);
    EXPECT_FALSE(element.Read(s.archive));
    EXPECT_NE(element.curve, nullptr);
}

TEST(GeoData, CopyClonesTheCurve)
{
    GeoData original = Segment(600, Point2d(1, 2), Point2d(3, 4));
    GeoData copy(original);
    EXPECT_EQ(copy.version, 600);
    EXPECT_EQ(copy.elementKind, L'S');
    ASSERT_NE(copy.curve, nullptr);
    EXPECT_NE(copy.curve.get(), original.curve.get());
    auto* line = dynamic_cast<LineSegment*>(copy.curve.get());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->start, Point2d(1, 2));
    line->start.x = 99;
    EXPECT_EQ(dynamic_cast<LineSegment*>(original.curve.get())->start.x, 1);
}

TEST(GeoData, CopyOfANullCurveIsNull)
{
    GeoData original(502);
    original.elementKind = L'K';
    GeoData copy(original);
    EXPECT_EQ(copy.curve, nullptr);
    EXPECT_EQ(copy.elementKind, L'K');
    EXPECT_EQ(copy.version, 502);
}

TEST(GeoData, AssignmentReplacesTheCurveByAClone)
{
    GeoData target = Segment(502, Point2d(1, 1), Point2d(2, 2));
    GeoData source(600, L'B', std::make_unique<Arc>(600));
    target = source;
    EXPECT_EQ(target.version, 600);
    EXPECT_EQ(target.elementKind, L'B');
    EXPECT_NE(target.curve.get(), source.curve.get());
    EXPECT_NE(dynamic_cast<Arc*>(target.curve.get()), nullptr);

    GeoData empty(7);
    target = empty;
    EXPECT_EQ(target.curve, nullptr);
    EXPECT_EQ(target.version, 7);
    EXPECT_EQ(target.elementKind, L'\0');
}

TEST(GeoData, SelfAssignmentKeepsTheCurve)
{
    GeoData element = Segment(600, Point2d(5, 6), Point2d(7, 8));
    GeoData& alias = element;
    element = alias;
    auto* line = dynamic_cast<LineSegment*>(element.curve.get());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->start, Point2d(5, 6));
    EXPECT_EQ(line->end, Point2d(7, 8));
}

TEST(GeoData, VectorGrowthKeepsEveryCurveItsOwn)
{
    std::vector<GeoData> elements;
    for (std::int32_t i = 0; i < 40; ++i) {
        elements.push_back(Segment(502, Point2d(i, 0), Point2d(i, 1)));
    }
    elements.insert(elements.begin(), GeoData(502, L'K', std::make_unique<Circle>(502)));
    elements.erase(elements.begin() + 10);
    std::vector<GeoData> copies = elements;
    copies.resize(20);
    elements = copies;
    ASSERT_EQ(elements.size(), 20u);
    EXPECT_NE(dynamic_cast<Circle*>(elements[0].curve.get()), nullptr);
    EXPECT_EQ(dynamic_cast<LineSegment*>(elements[9].curve.get())->start.x, 8);
    EXPECT_EQ(dynamic_cast<LineSegment*>(elements[10].curve.get())->start.x, 10);
    for (std::size_t i = 0; i < elements.size(); ++i) {
        EXPECT_NE(elements[i].curve.get(), copies[i].curve.get());
    }
}

TEST(GeoData, ReadsBackEachKind)
{
    std::vector<GeoData> written;
    auto arc = std::make_unique<Arc>(600);
    arc->centre = Point2d(-5, 5);
    arc->radius = 9;
    arc->startAngle = 30;
    arc->endAngle = 300;
    written.emplace_back(600, L'B', std::move(arc));
    written.emplace_back(600, L'K', std::make_unique<Circle>(600, Point2d(7, -7), 3));
    auto polygon = std::make_unique<Polygon>(600);
    polygon->points = {Point2d(1, 2), Point2d(-3, 4)};
    polygon->segmentFlags = {12};
    written.emplace_back(600, L'P', std::move(polygon));
    written.push_back(Segment(600, Point2d(-1, -2), Point2d(3, 4)));

    StringArchive out;
    for (GeoData& element : written) {
        ASSERT_TRUE(element.Write(out.archive));
        out.archive << L"\n";
    }

    StringArchive in(out.Text());
    std::vector<GeoData> read(4, GeoData(600));
    for (GeoData& element : read) {
        EXPECT_TRUE(element.Read(in.archive));
    }
    auto* readArc = dynamic_cast<Arc*>(read[0].curve.get());
    ASSERT_NE(readArc, nullptr);
    EXPECT_EQ(readArc->centre, Point2d(-5, 5));
    EXPECT_EQ(readArc->radius, 9);
    EXPECT_EQ(readArc->startAngle, 30);
    EXPECT_EQ(readArc->endAngle, 300);
    auto* readCircle = dynamic_cast<Circle*>(read[1].curve.get());
    ASSERT_NE(readCircle, nullptr);
    EXPECT_EQ(readCircle->centre, Point2d(7, -7));
    EXPECT_EQ(readCircle->radius, 3);
    auto* readPolygon = dynamic_cast<Polygon*>(read[2].curve.get());
    ASSERT_NE(readPolygon, nullptr);
    EXPECT_EQ(readPolygon->points, (std::vector<Point2d>{Point2d(1, 2), Point2d(-3, 4)}));
    EXPECT_EQ(readPolygon->segmentFlags, std::vector<std::int32_t>{12});
    auto* readLine = dynamic_cast<LineSegment*>(read[3].curve.get());
    ASSERT_NE(readLine, nullptr);
    EXPECT_EQ(readLine->start, Point2d(-1, -2));
    EXPECT_EQ(readLine->end, Point2d(3, 4));
}

} // namespace
} // namespace ItUnitechnik

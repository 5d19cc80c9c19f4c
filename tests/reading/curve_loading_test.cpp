// The tolerant reading of the outline pieces: each curve is read in the
// layout it is written in, at either form of the coordinates, and a reading
// that stops inside a piece keeps the piece as far as it was read.

#include "reading/tolerant_reading.h"

#include "exports/document.h"
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::HostText;

// The text of a document of this one order.
std::wstring Written(Order& order)
{
    Testing::StringArchive out;
    order.Write(out.archive);
    return out.Text();
}

class CurveLoading : public ::testing::Test {
protected:
    void SetUp() override { theDocument.orders.clear(); }
    void TearDown() override { theDocument.orders.clear(); }

    // An order of `version` whose one contour holds the four sides of the
    // slab, then the pieces added by the test.
    static std::vector<GeoData>& Pieces(std::uint16_t version)
    {
        const double placement[9] = {0, 0, 0, 6000, 0, 0, 0, 2400, 0};
        startOrder(1, 101, placement, version, HostText(u"Slab"), 1.25, true);
        const int32_t outline[10] = {0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0};
        addContour(5, outline);
        return theDocument.orders.back().elementParts.back().contourData.contours.back().geoData;
    }

    static void AddEveryKind(std::vector<GeoData>& pieces)
    {
        const std::int32_t version = pieces.front().version;
        pieces.emplace_back(version, L'S', std::make_unique<LineSegment>(version, Point2d(-5, 7), Point2d(8, -9)));
        pieces.emplace_back(version, L'K', std::make_unique<Circle>(version, Point2d(100, -200), 50));
        auto arc = std::make_unique<Arc>(version);
        arc->centre = Point2d(-300, 400);
        arc->radius = 60;
        arc->startAngle = 45;
        arc->endAngle = 270;
        arc->flags = 10;
        pieces.emplace_back(version, L'B', std::move(arc));
        auto polygon = std::make_unique<Polygon>(version);
        polygon->points = {Point2d(10, 20), Point2d(-30, 40), Point2d(50, 60)};
        polygon->segmentFlags = {0xAB, 2};
        pieces.emplace_back(version, L'P', std::move(polygon));
    }

    // The pieces of the one contour read.
    static const std::vector<GeoData>& ReadPieces(const TolerantDocument& document)
    {
        return document.orders.at(0).elementParts.at(0).contourData.contours.at(0).geoData;
    }
};

TEST_F(CurveLoading, EveryKindReadsBackAtBothFormsOfTheCoordinates)
{
    for (const std::uint16_t version : std::vector<std::uint16_t>{502, 600}) {
        AddEveryKind(Pieces(version));
        const std::wstring text = Written(theDocument.orders.back());
        const TolerantDocument document = ReadTolerantlyText(text);
        ASSERT_TRUE(document.Complete()) << version << ": " << document.stop->expected;
        ASSERT_EQ(document.orders.size(), 1u);
        Order order = document.orders[0];
        EXPECT_EQ(Written(order), text) << version;
        EXPECT_EQ(document.departures.count(Departure::arcFlagsDecimal), 1u) << version;

        const std::vector<GeoData>& pieces = ReadPieces(document);
        ASSERT_EQ(pieces.size(), 8u) << version;
        const auto* line = dynamic_cast<const LineSegment*>(pieces[4].curve.get());
        const auto* circle = dynamic_cast<const Circle*>(pieces[5].curve.get());
        const auto* arc = dynamic_cast<const Arc*>(pieces[6].curve.get());
        const auto* polygon = dynamic_cast<const Polygon*>(pieces[7].curve.get());
        ASSERT_TRUE(line != nullptr && circle != nullptr && arc != nullptr && polygon != nullptr) << version;
        EXPECT_EQ(dynamic_cast<const Arc*>(circle), nullptr);
        // The old form has no room for a sign: a negative coordinate reads as 0.
        const std::int32_t minus = version < 600 ? 0 : -1;
        EXPECT_EQ(line->start, Point2d(5 * minus, 7)) << version;
        EXPECT_EQ(line->end, Point2d(8, 9 * minus)) << version;
        EXPECT_EQ(circle->centre, Point2d(100, 200 * minus)) << version;
        EXPECT_EQ(circle->radius, 50);
        EXPECT_EQ(arc->centre, Point2d(300 * minus, 400)) << version;
        EXPECT_EQ(arc->startAngle, 45);
        EXPECT_EQ(arc->endAngle, 270);
        // The arc's flags are read as the decimal digits they were written in.
        EXPECT_EQ(arc->flags, 10);
        EXPECT_EQ(polygon->points, (std::vector<Point2d>{Point2d(10, 20), Point2d(30 * minus, 40), Point2d(50, 60)}));
        EXPECT_EQ(polygon->segmentFlags, (std::vector<std::int32_t>{0xAB, 2}));
        for (const GeoData& piece : pieces) {
            EXPECT_EQ(piece.curve->version, version);
        }
    }
}

TEST_F(CurveLoading, APolygonCutInsideAPointKeepsEveryPointBegun)
{
    std::vector<GeoData>& pieces = Pieces(600);
    auto polygon = std::make_unique<Polygon>(600);
    polygon->points = {Point2d(10, 20), Point2d(30, 40), Point2d(50, 60)};
    polygon->segmentFlags = {1, 2};
    pieces.emplace_back(600, L'P', std::move(polygon));
    const std::wstring text = Written(theDocument.orders.back());
    const std::wstring line = L"P 3 +00010 +00020 +00030 +00040 0001 +00050 +00060 0002";
    const std::size_t at = text.find(line);
    ASSERT_NE(at, std::wstring::npos);

    // Cut inside the third point's x.
    const TolerantDocument document = ReadTolerantlyText(text.substr(0, at + line.find(L"+00050") + 4));
    ASSERT_FALSE(document.Complete());
    EXPECT_TRUE(document.stop->atEnd);
    EXPECT_EQ(document.stop->record, "CONTOUR_");
    const std::vector<GeoData>& read = ReadPieces(document);
    ASSERT_EQ(read.size(), 5u);
    EXPECT_EQ(read.back().elementKind, L'P');
    const auto* cut = dynamic_cast<const Polygon*>(read.back().curve.get());
    ASSERT_NE(cut, nullptr);
    EXPECT_EQ(cut->points, (std::vector<Point2d>{Point2d(10, 20), Point2d(30, 40), Point2d()}));
    EXPECT_EQ(cut->segmentFlags, std::vector<std::int32_t>{1});
}

TEST_F(CurveLoading, AnArcCutBeforeItsFlagsIsKeptAndNotNoted)
{
    std::vector<GeoData>& pieces = Pieces(600);
    auto arc = std::make_unique<Arc>(600);
    arc->centre = Point2d(1, 2);
    arc->radius = 3;
    arc->startAngle = 4;
    arc->endAngle = 5;
    arc->flags = 6;
    pieces.emplace_back(600, L'B', std::move(arc));
    const std::wstring text = Written(theDocument.orders.back());
    const std::wstring line = L"B +00001 +00002 00003 004 005 006";
    const std::size_t at = text.find(line);
    ASSERT_NE(at, std::wstring::npos);

    const TolerantDocument document = ReadTolerantlyText(text.substr(0, at + line.size() - 3));
    ASSERT_FALSE(document.Complete());
    EXPECT_EQ(document.stop->expected, "a number of at least 3 places");
    EXPECT_EQ(document.departures.count(Departure::arcFlagsDecimal), 0u);
    const auto* cut = dynamic_cast<const Arc*>(ReadPieces(document).back().curve.get());
    ASSERT_NE(cut, nullptr);
    EXPECT_EQ(cut->centre, Point2d(1, 2));
    EXPECT_EQ(cut->radius, 3);
    EXPECT_EQ(cut->startAngle, 4);
    EXPECT_EQ(cut->endAngle, 5);
    EXPECT_EQ(cut->flags, 0);
}

TEST_F(CurveLoading, AnUnknownKindStopsAtTheKindWithoutACurve)
{
    std::vector<GeoData>& pieces = Pieces(600);
    pieces.emplace_back(600, L'S', std::make_unique<LineSegment>(600, Point2d(1, 2), Point2d(3, 4)));
    std::wstring text = Written(theDocument.orders.back());
    const std::size_t at = text.find(L"S +00001 +00002 +00003 +00004 0000");
    ASSERT_NE(at, std::wstring::npos);
    text[at] = L'Q';

    const TolerantDocument document = ReadTolerantlyText(text);
    ASSERT_FALSE(document.Complete());
    EXPECT_EQ(document.stop->expected, "the kind of an outline piece: B, K, P or S");
    EXPECT_EQ(document.stop->record, "CONTOUR_");
    const GeoData& piece = ReadPieces(document).back();
    EXPECT_EQ(piece.elementKind, L'Q');
    EXPECT_EQ(piece.curve.get(), nullptr);
}

} // namespace
} // namespace ItUnitechnik

// Copies and moves of a polygon, and the move of an outline piece, which hands
// its curve over.
#include "geometry/geo_data.h"
#include "geometry/polygon.h"
#include "records/copies_and_moves_test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

namespace ItUnitechnik {
namespace {

using CopiesAndMovesTesting::ExpectCopiesAndMovesOfItsOwn;
using CopiesAndMovesTesting::Kind;
using CopiesAndMovesTesting::Piece;

TEST(CopiesAndMoves, Polygon)
{
    Kind<Polygon> kind{
        [] {
            Polygon polygon(600);
            polygon.points = {Point2d(0, 0), Point2d(100, 0), Point2d(100, 50)};
            polygon.segmentFlags = {1, 2};
            return polygon;
        },
        [] { return Polygon(502); },
        [](Polygon& p) {
            p.PointCollection::Add(Point2d(7, 7));
            p.FlagCollection::Add(3);
        },
        [](const Polygon& p) {
            return std::vector<std::size_t>{p.points.size(), p.segmentFlags.size()};
        },
    };
    kind.expectSameUnwritten = [](Polygon& result, Polygon& original) { EXPECT_EQ(result.version, original.version); };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, AGeoDataMoveHandsItsCurveOver)
{
    static_assert(std::is_nothrow_move_constructible<GeoData>::value, "a vector must move it when it grows");
    GeoData piece = Piece(600, 1, 2, 3, 4);
    const Curve* curve = piece.curve.get();
    GeoData moved(std::move(piece));
    EXPECT_EQ(moved.curve.get(), curve);
    EXPECT_EQ(piece.curve, nullptr);
    EXPECT_EQ(moved.elementKind, L'S');
    EXPECT_EQ(moved.version, 600);
    GeoData assigned(600);
    assigned = std::move(moved);
    EXPECT_EQ(assigned.curve.get(), curve);
    EXPECT_EQ(moved.curve, nullptr);
    GeoData& same = assigned;
    assigned = std::move(same);
    EXPECT_EQ(assigned.curve.get(), curve);
}

} // namespace
} // namespace ItUnitechnik

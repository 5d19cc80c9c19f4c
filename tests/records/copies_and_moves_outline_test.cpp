// Copies and moves of the outline records, the lots and the layers.
#include "records/copies_and_moves_filled_outline.h"
#include "records/copies_and_moves_test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace ItUnitechnik {
namespace {

using CopiesAndMovesTesting::ExpectCopiesAndMovesOfItsOwn;
using CopiesAndMovesTesting::FilledContour;
using CopiesAndMovesTesting::FilledContours;
using CopiesAndMovesTesting::FilledCutout;
using CopiesAndMovesTesting::FilledCutouts;
using CopiesAndMovesTesting::FilledLayer;
using CopiesAndMovesTesting::FilledLot;
using CopiesAndMovesTesting::FilledPart;
using CopiesAndMovesTesting::FilledParts;
using CopiesAndMovesTesting::Kind;
using CopiesAndMovesTesting::Piece;

TEST(CopiesAndMoves, Contour)
{
    Kind<Contour> kind{
        [] { return FilledContour(3); },
        [] { return Contour(502); },
        [](Contour& c) { c.Add(Piece(600, 1, 2, 3, 4)); },
        [](const Contour& c) { return std::vector<std::size_t>{c.geoData.size()}; },
    };
    kind.expectSameUnwritten = [](Contour& result, Contour& original) { EXPECT_EQ(result.version, original.version); };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, ContourData)
{
    ExpectCopiesAndMovesOfItsOwn<ContourData>({
        FilledContours,
        [] { return ContourData(); },
        [](ContourData& d) { d.Add(FilledContour(3)); },
        [](const ContourData& d) { return std::vector<std::size_t>{d.contours.size()}; },
    });
}

TEST(CopiesAndMoves, Cutout)
{
    Kind<Cutout> kind{
        [] { return FilledCutout(3); },
        [] { return Cutout(502); },
        [](Cutout& c) { c.Add(Piece(600, 1, 2, 3, 4)); },
        [](const Cutout& c) { return std::vector<std::size_t>{c.geoData.size()}; },
    };
    kind.expectSameUnwritten = [](Cutout& result, Cutout& original) {
        EXPECT_EQ(result.version, original.version);
        EXPECT_EQ(result.cutoutValue, original.cutoutValue);
    };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, CutoutData)
{
    ExpectCopiesAndMovesOfItsOwn<CutoutData>({
        FilledCutouts,
        [] { return CutoutData(); },
        [](CutoutData& d) { d.Add(FilledCutout(3)); },
        [](const CutoutData& d) { return std::vector<std::size_t>{d.cutouts.size()}; },
    });
}

TEST(CopiesAndMoves, MountingPart)
{
    Kind<MountingPart> kind{
        [] { return FilledPart(3); },
        [] { return MountingPart(502); },
        [](MountingPart& p) { p.Add(Piece(600, 1, 2, 3, 4)); },
        [](const MountingPart& p) { return std::vector<std::size_t>{p.geoData.size()}; },
    };
    kind.expectSameUnwritten = [](MountingPart& result, MountingPart& original) {
        EXPECT_EQ(result.version, original.version);
        EXPECT_EQ(result.partValue1, original.partValue1);
        EXPECT_EQ(result.partValue2, original.partValue2);
    };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, MountingPartData)
{
    ExpectCopiesAndMovesOfItsOwn<MountingPartData>({
        FilledParts,
        [] { return MountingPartData(); },
        [](MountingPartData& d) { d.Add(FilledPart(3)); },
        [](const MountingPartData& d) { return std::vector<std::size_t>{d.parts.size()}; },
    });
}

TEST(CopiesAndMoves, Lot)
{
    ExpectCopiesAndMovesOfItsOwn<Lot>({
        [] { return FilledLot(3); },
        [] { return Lot(); },
        [](Lot& l) {
            l.Add(FilledContour(3));
            l.Add(FilledCutout(3));
        },
        [](const Lot& l) {
            return std::vector<std::size_t>{l.contourData.contours.size(), l.cutoutData.cutouts.size()};
        },
    });
}

TEST(CopiesAndMoves, Layer)
{
    ExpectCopiesAndMovesOfItsOwn<Layer>({
        FilledLayer,
        [] { return Layer(); },
        [](Layer& l) {
            l.Add(FilledLot(3));
            l.Add(FilledPart(3));
        },
        [](const Layer& l) {
            return std::vector<std::size_t>{l.lots.size(), l.mountingPartData.parts.size()};
        },
    });
}

} // namespace
} // namespace ItUnitechnik

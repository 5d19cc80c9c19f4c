// Copies and moves of the reinforcement records.
#include "records/copies_and_moves_filled_reinforcement.h"
#include "records/copies_and_moves_test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace ItUnitechnik {
namespace {

using CopiesAndMovesTesting::ExpectCopiesAndMovesOfItsOwn;
using CopiesAndMovesTesting::FilledAnchorBars;
using CopiesAndMovesTesting::FilledBar;
using CopiesAndMovesTesting::FilledBars;
using CopiesAndMovesTesting::FilledFormPart;
using CopiesAndMovesTesting::FilledFreeForm;
using CopiesAndMovesTesting::FilledGirder;
using CopiesAndMovesTesting::FilledGirders;
using CopiesAndMovesTesting::FilledIron;
using CopiesAndMovesTesting::FilledIrons;
using CopiesAndMovesTesting::FilledMat;
using CopiesAndMovesTesting::FilledReinforcement;
using CopiesAndMovesTesting::FilledSpacers;
using CopiesAndMovesTesting::FilledWeldingPoints;
using CopiesAndMovesTesting::Kind;
using CopiesAndMovesTesting::Written;

TEST(CopiesAndMoves, AnchorBarData)
{
    ExpectCopiesAndMovesOfItsOwn<AnchorBarData>({
        FilledAnchorBars,
        [] { return AnchorBarData(); },
        [](AnchorBarData& d) { d.Add(AnchorBar()); },
        [](const AnchorBarData& d) { return std::vector<std::size_t>{d.bars.size()}; },
    });
}

TEST(CopiesAndMoves, SpacerData)
{
    ExpectCopiesAndMovesOfItsOwn<SpacerData>({
        FilledSpacers,
        [] { return SpacerData(); },
        [](SpacerData& d) { d.Add(SpacerPosition()); },
        [](const SpacerData& d) { return std::vector<std::size_t>{d.positions.size()}; },
    });
}

TEST(CopiesAndMoves, WeldingPointData)
{
    ExpectCopiesAndMovesOfItsOwn<WeldingPointData>({
        FilledWeldingPoints,
        [] { return WeldingPointData(); },
        [](WeldingPointData& d) { d.Add(WeldingPoint()); },
        [](const WeldingPointData& d) { return std::vector<std::size_t>{d.points.size()}; },
    });
}

TEST(CopiesAndMoves, BendingFormPart)
{
    ExpectCopiesAndMovesOfItsOwn<BendingFormPart>({
        [] { return FilledFormPart(3); },
        [] { return BendingFormPart(); },
        [](BendingFormPart& d) { d.Add(BendingFormSegment(5, 5)); },
        [](const BendingFormPart& d) { return std::vector<std::size_t>{d.segments.size()}; },
    });
}

TEST(CopiesAndMoves, BendingFormFree)
{
    ExpectCopiesAndMovesOfItsOwn<BendingFormFree>({
        FilledFreeForm,
        [] { return BendingFormFree(); },
        [](BendingFormFree& d) { d.Add(FilledFormPart(3)); },
        [](const BendingFormFree& d) { return std::vector<std::size_t>{d.parts.size()}; },
    });
}

TEST(CopiesAndMoves, ExternalIronData)
{
    ExpectCopiesAndMovesOfItsOwn<ExternalIronData>({
        FilledIrons,
        [] { return ExternalIronData(); },
        [](ExternalIronData& d) { d.Add(FilledIron(3)); },
        [](const ExternalIronData& d) { return std::vector<std::size_t>{d.irons.size()}; },
    });
}

TEST(CopiesAndMoves, BracedGirder)
{
    ExpectCopiesAndMovesOfItsOwn<BracedGirder>({
        [] { return FilledGirder(4); },
        [] { return BracedGirder(); },
        [](BracedGirder& g) {
            g.ItCollectionImpl<WeldingPointData>::Add(WeldingPoint());
            g.ItCollectionImpl<AnchorBarData>::Add(AnchorBar());
        },
        [](const BracedGirder& g) {
            return std::vector<std::size_t>{g.weldingPoints.points.size(), g.anchorBars.bars.size()};
        },
    });
}

TEST(CopiesAndMoves, BracedGirderData)
{
    ExpectCopiesAndMovesOfItsOwn<BracedGirderData>({
        FilledGirders,
        [] { return BracedGirderData(); },
        [](BracedGirderData& d) { d.Add(FilledGirder(3)); },
        [](const BracedGirderData& d) { return std::vector<std::size_t>{d.girders.size()}; },
    });
}

TEST(CopiesAndMoves, Rodstock)
{
    Kind<Rodstock> kind{
        [] { return FilledBar(4); },
        [] { return Rodstock(600); },
        [](Rodstock& b) {
            b.ItCollectionImpl<SpacerData>::Add(SpacerPosition());
            b.ItCollectionImpl<WeldingPointData>::Add(WeldingPoint());
        },
        [](const Rodstock& b) {
            return std::vector<std::size_t>{b.spacers.positions.size(), b.weldingPoints.points.size()};
        },
    };
    // The coded forms and the version stand in no line of a free-form bar.
    kind.expectSameUnwritten = [](Rodstock& result, Rodstock& original) {
        EXPECT_EQ(result.version, original.version);
        EXPECT_EQ(result.formAngle, original.formAngle);
        EXPECT_EQ(Written(result.firstForm), Written(original.firstForm));
        EXPECT_EQ(Written(result.secondForm), Written(original.secondForm));
    };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, RodstockData)
{
    ExpectCopiesAndMovesOfItsOwn<RodstockData>({
        FilledBars,
        [] { return RodstockData(); },
        [](RodstockData& d) { d.Add(FilledBar(3)); },
        [](const RodstockData& d) { return std::vector<std::size_t>{d.bars.size()}; },
    });
}

TEST(CopiesAndMoves, Steelmat)
{
    ExpectCopiesAndMovesOfItsOwn<Steelmat>({
        [] { return FilledMat(3); },
        [] { return Steelmat(); },
        [](Steelmat& m) {
            m.ItCollectionImpl<RodstockData>::Add(FilledBar(3));
            m.ItCollectionImpl<BracedGirderData>::Add(FilledGirder(3));
        },
        [](const Steelmat& m) {
            return std::vector<std::size_t>{m.rodstocks.bars.size(), m.girders.girders.size()};
        },
    });
}

TEST(CopiesAndMoves, Reinforcement)
{
    Kind<Reinforcement> kind{
        FilledReinforcement,
        [] { return Reinforcement(); },
        [](Reinforcement& r) { r.Add(FilledMat(3)); },
        [](const Reinforcement& r) { return std::vector<std::size_t>{r.mats.size()}; },
    };
    kind.expectSameUnwritten = [](Reinforcement& result, Reinforcement& original) {
        EXPECT_EQ(result.hasExternalIrons, original.hasExternalIrons);
        EXPECT_EQ(result.present, original.present);
    };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

} // namespace
} // namespace ItUnitechnik

// Every copy of every record: a record with each member set to a value of its
// own, none of them a default, is copied and assigned, and the copy holds
// every member; a curve of an outline piece is a curve of its own in the
// copy; and each collection base of the copy works on the copy's own member.
// The members are those of the table of every record's members.
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/edge.h"
#include "geometry/geo_data.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "records/copy_test_support.h"
#include "records/element/element_part.h"
#include "records/order/order.h"
#include "unitechnik/tree/record_fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace ItUnitechnik {
namespace {

using CopyTesting::Collected;
using CopyTesting::Collector;
using CopyTesting::Filler;

template <class R>
R Make()
{
    if constexpr (std::is_constructible_v<R, std::int32_t> && !std::is_default_constructible_v<R>) {
        return R(502);
    } else {
        return R();
    }
}

// Adding through a collection base of the copy changes the copy's member and
// leaves the original's alone.
template <class Base, class R, class Size>
void ExpectOwnCollection(R& original, R& copy, const typename Base::element_type& element, Size size)
{
    const std::size_t originalBefore = size(original);
    const std::size_t copyBefore = size(copy);
    static_cast<Base&>(copy).Add(element);
    EXPECT_EQ(size(copy), copyBefore + 1);
    EXPECT_EQ(size(original), originalBefore);
}

template <class R>
using Over = ItCollectionImpl<std::vector<R>>;

// The collection bases of each record class; none for a record without any.
template <class R>
void ExpectOwnCollections(R&, R&)
{
}

void ExpectOwnCollections(Order& o, Order& c)
{
    ExpectOwnCollection<Over<ElementPart>>(o, c, ElementPart(), [](Order& r) { return r.elementParts.size(); });
}

void ExpectOwnCollections(ElementPart& o, ElementPart& c)
{
    ExpectOwnCollection<Over<ConcreteLayer>>(o, c, ConcreteLayer(502),
                                             [](ElementPart& r) { return r.concreteLayers.size(); });
    ExpectOwnCollection<Over<Contour>>(o, c, Contour(502),
                                       [](ElementPart& r) { return r.contourData.contours.size(); });
    ExpectOwnCollection<Over<Cutout>>(o, c, Cutout(502), [](ElementPart& r) { return r.cutoutData.cutouts.size(); });
    ExpectOwnCollection<Over<MountingPart>>(o, c, MountingPart(502),
                                            [](ElementPart& r) { return r.mountingPartData.parts.size(); });
    ExpectOwnCollection<Over<Rodstock>>(o, c, Rodstock(502), [](ElementPart& r) { return r.rodstockData.bars.size(); });
    ExpectOwnCollection<Over<BracedGirder>>(o, c, BracedGirder(),
                                            [](ElementPart& r) { return r.bracedGirderData.girders.size(); });
    ExpectOwnCollection<Over<ExternalIron>>(o, c, ExternalIron(),
                                            [](ElementPart& r) { return r.externalIronData.irons.size(); });
    ExpectOwnCollection<Over<Layer>>(o, c, Layer(), [](ElementPart& r) { return r.layers.size(); });
}

void ExpectOwnCollections(Layer& o, Layer& c)
{
    ExpectOwnCollection<Over<Lot>>(o, c, Lot(), [](Layer& r) { return r.lots.size(); });
    ExpectOwnCollection<Over<MountingPart>>(o, c, MountingPart(502),
                                            [](Layer& r) { return r.mountingPartData.parts.size(); });
}

void ExpectOwnCollections(Lot& o, Lot& c)
{
    ExpectOwnCollection<Over<Contour>>(o, c, Contour(502), [](Lot& r) { return r.contourData.contours.size(); });
    ExpectOwnCollection<Over<Cutout>>(o, c, Cutout(502), [](Lot& r) { return r.cutoutData.cutouts.size(); });
}

void ExpectOwnCollections(Contour& o, Contour& c)
{
    ExpectOwnCollection<Over<GeoData>>(o, c, GeoData(502), [](Contour& r) { return r.geoData.size(); });
}

void ExpectOwnCollections(Cutout& o, Cutout& c)
{
    ExpectOwnCollection<Over<GeoData>>(o, c, GeoData(502), [](Cutout& r) { return r.geoData.size(); });
}

void ExpectOwnCollections(MountingPart& o, MountingPart& c)
{
    ExpectOwnCollection<Over<GeoData>>(o, c, GeoData(502), [](MountingPart& r) { return r.geoData.size(); });
}

void ExpectOwnCollections(ContourData& o, ContourData& c)
{
    ExpectOwnCollection<Over<Contour>>(o, c, Contour(502), [](ContourData& r) { return r.contours.size(); });
}

void ExpectOwnCollections(CutoutData& o, CutoutData& c)
{
    ExpectOwnCollection<Over<Cutout>>(o, c, Cutout(502), [](CutoutData& r) { return r.cutouts.size(); });
}

void ExpectOwnCollections(MountingPartData& o, MountingPartData& c)
{
    ExpectOwnCollection<Over<MountingPart>>(o, c, MountingPart(502),
                                            [](MountingPartData& r) { return r.parts.size(); });
}

void ExpectOwnCollections(RodstockData& o, RodstockData& c)
{
    ExpectOwnCollection<Over<Rodstock>>(o, c, Rodstock(502), [](RodstockData& r) { return r.bars.size(); });
}

void ExpectOwnCollections(BracedGirderData& o, BracedGirderData& c)
{
    ExpectOwnCollection<Over<BracedGirder>>(o, c, BracedGirder(), [](BracedGirderData& r) { return r.girders.size(); });
}

void ExpectOwnCollections(ExternalIronData& o, ExternalIronData& c)
{
    ExpectOwnCollection<Over<ExternalIron>>(o, c, ExternalIron(), [](ExternalIronData& r) { return r.irons.size(); });
}

void ExpectOwnCollections(Reinforcement& o, Reinforcement& c)
{
    ExpectOwnCollection<Over<Steelmat>>(o, c, Steelmat(), [](Reinforcement& r) { return r.mats.size(); });
}

void ExpectOwnCollections(Steelmat& o, Steelmat& c)
{
    ExpectOwnCollection<ItCollectionImpl<RodstockData>>(o, c, Rodstock(502),
                                                        [](Steelmat& r) { return r.rodstocks.bars.size(); });
    ExpectOwnCollection<ItCollectionImpl<BracedGirderData>>(o, c, BracedGirder(),
                                                            [](Steelmat& r) { return r.girders.girders.size(); });
}

void ExpectOwnCollections(Rodstock& o, Rodstock& c)
{
    ExpectOwnCollection<ItCollectionImpl<SpacerData>>(o, c, SpacerPosition(),
                                                      [](Rodstock& r) { return r.spacers.positions.size(); });
    ExpectOwnCollection<ItCollectionImpl<WeldingPointData>>(o, c, WeldingPoint(),
                                                            [](Rodstock& r) { return r.weldingPoints.points.size(); });
}

void ExpectOwnCollections(BracedGirder& o, BracedGirder& c)
{
    ExpectOwnCollection<ItCollectionImpl<WeldingPointData>>(
        o, c, WeldingPoint(), [](BracedGirder& r) { return r.weldingPoints.points.size(); });
    ExpectOwnCollection<ItCollectionImpl<AnchorBarData>>(o, c, AnchorBar(),
                                                         [](BracedGirder& r) { return r.anchorBars.bars.size(); });
}

void ExpectOwnCollections(AnchorBarData& o, AnchorBarData& c)
{
    ExpectOwnCollection<Over<AnchorBar>>(o, c, AnchorBar(), [](AnchorBarData& r) { return r.bars.size(); });
}

void ExpectOwnCollections(WeldingPointData& o, WeldingPointData& c)
{
    ExpectOwnCollection<Over<WeldingPoint>>(o, c, WeldingPoint(), [](WeldingPointData& r) { return r.points.size(); });
}

void ExpectOwnCollections(SpacerData& o, SpacerData& c)
{
    ExpectOwnCollection<Over<SpacerPosition>>(o, c, SpacerPosition(), [](SpacerData& r) { return r.positions.size(); });
}

void ExpectOwnCollections(BendingFormFree& o, BendingFormFree& c)
{
    ExpectOwnCollection<Over<BendingFormPart>>(o, c, BendingFormPart(),
                                               [](BendingFormFree& r) { return r.parts.size(); });
}

void ExpectOwnCollections(BendingFormPart& o, BendingFormPart& c)
{
    ExpectOwnCollection<Over<BendingFormSegment>>(o, c, BendingFormSegment(),
                                                  [](BendingFormPart& r) { return r.segments.size(); });
}

void ExpectOwnCollections(Polygon& o, Polygon& c)
{
    ExpectOwnCollection<Over<Point2d>>(o, c, Point2d(1, 2), [](Polygon& r) { return r.points.size(); });
    ExpectOwnCollection<Over<std::int32_t>>(o, c, 7, [](Polygon& r) { return r.segmentFlags.size(); });
}

// What a record keeps equal by its own rule, made so after filling.
template <class R>
void Settle(R&)
{
}

void Settle(Order& order)
{
    // The date's version is the order's.
    order.date.version = order.version;
}

template <class R>
class RecordCopy : public ::testing::Test {
};

using Records =
    ::testing::Types<Order, Project, Address, Date, Lot, ElementPart, Layer, ConcreteLayer, Plaster, Contour,
                     ContourData, Cutout, CutoutData, MountingPart, MountingPartData, Reinforcement, Steelmat, Rodstock,
                     RodstockData, BracedGirder, BracedGirderData, ExternalIron, ExternalIronData, BendingForm,
                     BendingFormFree, BendingFormPart, BendingFormSegment, AnchorBar, AnchorBarData,
                     WeldingIntersection, WeldingPoint, WeldingPointData, SpacerPosition, SpacerData, GeoData,
                     LineSegment, Circle, Arc, Polygon, Point2d, Vector2d, Point3d, Vector3d, Edge>;

class RecordName {
public:
    template <class R>
    static std::string GetName(int)
    {
        std::string name = ::testing::internal::GetTypeName<R>();
        const std::size_t colon = name.rfind(':');
        return colon == std::string::npos ? name : name.substr(colon + 1);
    }
};

TYPED_TEST_SUITE(RecordCopy, Records, RecordName);

TYPED_TEST(RecordCopy, EveryMemberIsCopiedAndTheCopyWorksOnItsOwnMembers)
{
    TypeParam original = Make<TypeParam>();
    const Collector defaults = Collected(original);
    Filler filler;
    Tree::Fields(filler, original);
    Settle(original);
    const Collector filled = Collected(original);
    // Nothing was left at its default: each member line differs.
    for (const std::string& line : filled.lines) {
        EXPECT_EQ(std::count(defaults.lines.begin(), defaults.lines.end(), line), 0) << line;
    }

    TypeParam copy(original);
    const Collector copied = Collected(copy);
    EXPECT_EQ(copied.lines, filled.lines);

    TypeParam assigned = Make<TypeParam>();
    assigned = original;
    const Collector assignedLines = Collected(assigned);
    EXPECT_EQ(assignedLines.lines, filled.lines);

    // The curves of the copies are their own.
    for (const void* curve : copied.curves) {
        EXPECT_EQ(filled.curves.count(curve), 0u);
    }
    for (const void* curve : assignedLines.curves) {
        EXPECT_EQ(filled.curves.count(curve), 0u);
    }

    ExpectOwnCollections(original, copy);
    ExpectOwnCollections(original, assigned);
    // The original still holds every member as it was.
    const Collector after = Collected(original);
    EXPECT_EQ(after.lines, filled.lines);
}

} // namespace
} // namespace ItUnitechnik

// The parts of unitechnik render and bom that need no browser: the table of
// the plant's conventions, the geometry of bars and outlines, the fields of a
// record and the grouping of the bill of materials. Every expected number is
// worked out by hand from the records named in each test.

#include "bom/bill_of_materials.h"
#include "example_documents.h"
#include "geometry/arc.h"
#include "geometry/line_segment.h"
#include "support/test_support.h"
#include "svg/field_list.h"
#include "svg/geometry_paths.h"
#include "svg/plant_conventions.h"
#include "tree/record_fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace ItUnitechnik::Drawing {
namespace {

using Testing::TemporaryDirectory;

// The name under which the table of members (tree/record_fields.h) lists the
// member at `address`.
class NameFinder {
public:
    explicit NameFinder(const void* address) : address_(address) {}
    std::string found;

    template <class T>
    void Field(const char* name, T& value)
    {
        if (static_cast<const void*>(&value) == address_) {
            found = name;
        }
    }
    template <class R>
    void Record(const char*, R&)
    {
    }
    template <class R, class Make>
    void Records(const char*, std::vector<R>&, Make)
    {
    }
    template <class A>
    void FixedRecords(const char*, A&)
    {
    }
    void Points(const char*, std::vector<Point2d>&) {}
    void Numbers(const char*, std::vector<int>&) {}
    void Curve(const char*, GeoData&) {}

private:
    const void* address_;
};

template <class R>
std::string TreeName(R& record, const Convention<R>& convention)
{
    NameFinder finder(&(record.*convention.field));
    Tree::Fields(finder, record);
    return finder.found;
}

TEST(PlantConventions, EachMemberIsNamedAsTheRecordTreeNamesIt)
{
    Rodstock bar(600);
    for (const auto* c : {&kPlant.barLength, &kPlant.barDiameter, &kPlant.barRotation}) {
        EXPECT_EQ(TreeName(bar, *c), c->member);
    }
    BendingFormSegment segment;
    EXPECT_EQ(TreeName(segment, kPlant.segmentLength), kPlant.segmentLength.member);
    EXPECT_EQ(TreeName(segment, kPlant.segmentAngle), kPlant.segmentAngle.member);
    BracedGirder girder;
    for (const auto* c : {&kPlant.girderLength, &kPlant.girderHeight, &kPlant.girderType, &kPlant.girderRotation}) {
        EXPECT_EQ(TreeName(girder, *c), c->member);
    }
    Steelmat mat;
    for (const auto* c : {&kPlant.matLength, &kPlant.matWidth, &kPlant.matCornerX, &kPlant.matCornerY}) {
        EXPECT_EQ(TreeName(mat, *c), c->member);
    }
    Arc arc(600);
    EXPECT_EQ(TreeName(arc, kPlant.arcStart), kPlant.arcStart.member);
    EXPECT_EQ(TreeName(arc, kPlant.arcEnd), kPlant.arcEnd.member);
    ExternalIron iron;
    EXPECT_EQ(TreeName(iron, kPlant.ironCount), kPlant.ironCount.member);
    EXPECT_EQ(TreeName(iron, kPlant.ironCode), kPlant.ironCode.member);
}

TEST(PlantConventions, TheBarsLengthAndDiameterAreItsFirstAndSecondSize)
{
    Rodstock bar(600);
    bar.firstSize = 1400;
    bar.secondSize = 12;
    bar.thirdSize = 99;
    EXPECT_EQ(kPlant.barLength.Of(bar), 1400);
    EXPECT_EQ(kPlant.barDiameter.Of(bar), 12);
    BracedGirder girder;
    girder.firstSize = 80;
    girder.lastNumber = 5400;
    EXPECT_EQ(kPlant.girderLength.Of(girder), 5400);
    EXPECT_EQ(kPlant.girderHeight.Of(girder), 80);
}

TEST(PlantConventions, TheReadmeShowsEveryRow)
{
    const std::string readme = Testing::ReadFileBytes(std::string(ITUNITECHNIK_SOURCE_DIR) + "/README.md");
    ASSERT_FALSE(readme.empty());
    const std::vector<ConventionRow> rows = ConventionRows();
    EXPECT_EQ(rows.size(), 17u);
    for (const ConventionRow& row : rows) {
        const std::string line = "| `" + std::string(row.record) + "` | `" + row.member + "` | " + row.meaning + " |";
        EXPECT_NE(readme.find(line), std::string::npos) << line;
    }
}

void ExpectPoint(PointD point, double x, double y)
{
    EXPECT_NEAR(point.x, x, 0.005);
    EXPECT_NEAR(point.y, y, 0.005);
}

Rodstock Straight(std::int32_t x, std::int32_t y, std::int32_t rotation, std::int32_t length)
{
    Rodstock bar(600);
    bar.position = Point2d(x, y);
    bar.rotation = rotation;
    bar.firstSize = length;
    bar.secondSize = 8;
    return bar;
}

TEST(BarPoints, AStraightBarRunsFromItsPositionAlongItsRotationForItsLength)
{
    // The two bars of the example's mat: along x, and a quarter turn across.
    std::vector<PointD> points = BarPoints(Straight(150, 150, 0, 5800));
    ASSERT_EQ(points.size(), 2u);
    ExpectPoint(points[0], 150, 150);
    ExpectPoint(points[1], 5950, 150);
    points = BarPoints(Straight(150, 150, 90, 2200));
    ExpectPoint(points[1], 150, 2350);
    // A quarter turn lands exactly on the grid, not a hair beside it.
    EXPECT_EQ(points[1].x, 150.0);
    // 30 degrees: cos 30 = 0.8660254, sin 30 = 0.5.
    ExpectPoint(BarPoints(Straight(0, 0, 30, 1000))[1], 866.03, 500);
    ExpectPoint(BarPoints(Straight(100, 100, -90, 50))[1], 100, 50);
    ExpectPoint(BarPoints(Straight(100, 100, 180, 50))[1], 50, 100);
    ExpectPoint(BarPoints(Straight(100, 100, 270, 50))[1], 100, 50);
}

TEST(BarPoints, ABentBarFollowsItsSegmentsFromItsRotation)
{
    // The example's hook at (2400, 1000): 250 at 90, 1200 at 0, 250 at -90,
    // 400 at 45, 300 at 0, 150 at -45, 100 at 0. 400 cos 45 = 282.84,
    // 150 cos 45 = 106.07.
    Rodstock bar(600);
    bar.position = Point2d(2400, 1000);
    bar.firstSize = 2650;
    bar.bendingKind = L'2';
    bar.freeForm.buildFromSegments({BendingFormSegment(250, 90), BendingFormSegment(1200, 0),
                                    BendingFormSegment(250, -90), BendingFormSegment(400, 45),
                                    BendingFormSegment(300, 0), BendingFormSegment(150, -45),
                                    BendingFormSegment(100, 0)});
    const std::vector<PointD> points = BarPoints(bar);
    ASSERT_EQ(points.size(), 8u);
    ExpectPoint(points[0], 2400, 1000);
    ExpectPoint(points[1], 2400, 1250);
    ExpectPoint(points[2], 3600, 1250);
    ExpectPoint(points[3], 3600, 1000);
    ExpectPoint(points[4], 3882.84, 1282.84);
    ExpectPoint(points[5], 4182.84, 1282.84);
    ExpectPoint(points[6], 4288.91, 1176.78);
    ExpectPoint(points[7], 4388.91, 1176.78);

    // The whole form turns with the bar: a quarter turn sends the first
    // segment to -x.
    bar.rotation = 90;
    ExpectPoint(BarPoints(bar)[1], 2150, 1000);
}

TEST(BarPoints, ABarOfTwoCodedFormsIsDrawnStraightForItsLength)
{
    Rodstock bar = Straight(0, 0, 0, 700);
    bar.bendingKind = L'1';
    const std::vector<PointD> points = BarPoints(bar);
    ASSERT_EQ(points.size(), 2u);
    ExpectPoint(points[1], 700, 0);
}

GeoData Line(std::int32_t x0, std::int32_t y0, std::int32_t x1, std::int32_t y1)
{
    return GeoData(600, L'S', std::make_unique<LineSegment>(600, Point2d(x0, y0), Point2d(x1, y1)));
}

GeoData ArcPiece(std::int32_t x, std::int32_t y, std::int32_t radius, std::int32_t from, std::int32_t to)
{
    auto arc = std::make_unique<Arc>(600);
    arc->centre = Point2d(x, y);
    arc->radius = radius;
    arc->startAngle = from;
    arc->endAngle = to;
    return GeoData(600, L'B', std::move(arc));
}

TEST(OutlinePath, AClosedChainOfStraightPiecesIsOnePathClosedAtItsStart)
{
    std::vector<GeoData> pieces;
    pieces.push_back(Line(0, 0, 6000, 0));
    pieces.push_back(Line(6000, 0, 6000, 2400));
    pieces.push_back(Line(6000, 2400, 0, 2400));
    pieces.push_back(Line(0, 2400, 0, 0));
    EXPECT_EQ(OutlinePath(pieces), "M 0 0 L 6000 0 L 6000 2400 L 0 2400 L 0 0 Z");
}

TEST(OutlinePath, APieceGivenTheOtherWayRoundIsTakenBackwardsAndALooseOneBeginsAnew)
{
    std::vector<GeoData> pieces;
    pieces.push_back(Line(0, 0, 10, 0));
    pieces.push_back(Line(10, 10, 10, 0));
    pieces.push_back(Line(50, 50, 60, 50));
    EXPECT_EQ(OutlinePath(pieces), "M 0 0 L 10 0 L 10 10 M 50 50 L 60 50");
}

TEST(OutlinePath, AnArcRunsCounterClockwiseFromItsStartToItsEnd)
{
    // The arched slab: from (6000, 2400) over the top to (0, 2400). In the
    // file's coordinates counter-clockwise is SVG's positive sweep, flag 1.
    std::vector<GeoData> pieces;
    pieces.push_back(Line(0, 0, 6000, 0));
    pieces.push_back(Line(6000, 0, 6000, 2400));
    pieces.push_back(ArcPiece(3000, 2400, 3000, 0, 180));
    pieces.push_back(Line(0, 2400, 0, 0));
    EXPECT_EQ(OutlinePath(pieces), "M 0 0 L 6000 0 L 6000 2400 A 3000 3000 0 0 1 0 2400 L 0 0 Z");

    // Reached at its end, the same arc is drawn backwards, clockwise.
    std::vector<GeoData> backwards;
    backwards.push_back(Line(0, 0, 0, 2400));
    backwards.push_back(ArcPiece(3000, 2400, 3000, 0, 180));
    EXPECT_EQ(OutlinePath(backwards), "M 0 0 L 0 2400 A 3000 3000 0 0 0 6000 2400");

    // Three quarters of a circle take the large arc: from (110, 100) at 0
    // degrees to (100, 90) at 270.
    std::vector<GeoData> large;
    large.push_back(ArcPiece(100, 100, 10, 0, 270));
    EXPECT_EQ(OutlinePath(large), "M 110 100 A 10 10 0 1 1 100 90");

    // From 300 to 60 degrees is 120 degrees through 0: (105, 91.34) to
    // (105, 108.66).
    std::vector<GeoData> through;
    through.push_back(ArcPiece(100, 100, 10, 300, 60));
    EXPECT_EQ(OutlinePath(through), "M 105 91.34 A 10 10 0 0 1 105 108.66");
}

TEST(OutlinePath, ACircleIsTwoHalvesClosed)
{
    std::vector<GeoData> pieces;
    pieces.push_back(GeoData(600, L'K', std::make_unique<Circle>(600, Point2d(3000, 3400), 400)));
    EXPECT_EQ(OutlinePath(pieces), "M 3400 3400 A 400 400 0 0 1 2600 3400 A 400 400 0 0 1 3400 3400 Z");
    // An arc from an angle back to the same angle is the whole circle too.
    std::vector<GeoData> whole;
    whole.push_back(ArcPiece(0, 0, 5, 90, 90));
    EXPECT_EQ(OutlinePath(whole), "M 0 5 A 5 5 0 0 1 0 -5 A 5 5 0 0 1 0 5 Z");
}

TEST(OutlinePath, PiecesWithoutACurveOrARadiusAreLeftOut)
{
    std::vector<GeoData> pieces;
    pieces.push_back(GeoData(600));
    pieces.push_back(GeoData(600, L'K', std::make_unique<Circle>(600, Point2d(1, 1), 0)));
    pieces.push_back(Line(0, 0, 5, 0));
    EXPECT_EQ(OutlinePath(pieces), "M 0 0 L 5 0");
}

TEST(OutlineBox, AnArcSpansWhatItRunsThroughNotItsWholeCircle)
{
    std::vector<GeoData> pieces;
    pieces.push_back(ArcPiece(3000, 2400, 3000, 0, 180));
    const BoxD box = OutlineBox(pieces);
    EXPECT_DOUBLE_EQ(box.minX, 0);
    EXPECT_DOUBLE_EQ(box.maxX, 6000);
    EXPECT_DOUBLE_EQ(box.minY, 2400);
    EXPECT_DOUBLE_EQ(box.maxY, 5400);
}

TEST(ArcSweep, IsTakenCounterClockwiseIntoOneTurn)
{
    EXPECT_EQ(ArcSweep(0, 180), 180.0);
    EXPECT_EQ(ArcSweep(270, 90), 180.0);
    EXPECT_EQ(ArcSweep(350, 10), 20.0);
    EXPECT_EQ(ArcSweep(10, 10), 360.0);
    EXPECT_EQ(ArcSweep(0, 360), 360.0);
}

std::string ValueOf(const FieldList& fields, const std::string& name)
{
    const auto found = std::find_if(fields.begin(), fields.end(), [&](const auto& f) { return f.first == name; });
    return found == fields.end() ? "(missing)" : found->second;
}

TEST(FieldList, NamesEveryMemberByItsPathWithoutFill)
{
    TemporaryDirectory directory;
    const std::vector<Order> orders = Testing::ReadBack(Testing::WriteExampleSlab(directory.Path()));
    const ElementPart& element = orders.at(0).elementParts.at(0);

    const FieldList hook = FieldsOf(element.rodstockData.bars.at(1));
    EXPECT_EQ(ValueOf(hook, "firstSize"), "2650");
    EXPECT_EQ(ValueOf(hook, "designation"), "B500B");
    EXPECT_EQ(ValueOf(hook, "extraDesignation"), "hook");
    EXPECT_EQ(ValueOf(hook, "position.x"), "2400");
    EXPECT_EQ(ValueOf(hook, "bendingKind"), "2");
    EXPECT_EQ(ValueOf(hook, "mountFlag"), "true");
    EXPECT_EQ(ValueOf(hook, "freeForm.parts[0].segments[2].angle"), "-90");
    EXPECT_EQ(ValueOf(hook, "freeForm.parts[1].segments[0].length"), "100");
    EXPECT_EQ(ValueOf(hook, "spacers.positions"), "none");

    const FieldList contour = FieldsOf(element.contourData.contours.at(0));
    EXPECT_EQ(ValueOf(contour, "geoData[1].curve"), "LineSegment");
    EXPECT_EQ(ValueOf(contour, "geoData[1].curve.end.y"), "2400");

    // A mat names how many bars and girders it holds; they are items of
    // their own.
    const FieldList mat = FieldsOf(element.reinforcement.mats.at(0));
    EXPECT_EQ(ValueOf(mat, "name"), "Q188A");
    EXPECT_EQ(ValueOf(mat, "rodstocks.bars"), "2 bars");
    EXPECT_EQ(ValueOf(mat, "girders.girders"), "0 girders");

    const FieldList iron = FieldsOf(element.externalIronData.irons.at(0));
    EXPECT_EQ(iron.size(), 5u);
    EXPECT_EQ(ValueOf(iron, "ironValue"), "1.5");
    EXPECT_EQ(ValueOf(iron, "ironText"), "Lifting anchor");
}

TEST(BillOfMaterials, GroupsBarsByDesignationAndDiameterOverLooseBarsMatsAndLayers)
{
    ElementPart element;
    element.version = 600;
    const auto bar = [](const wchar_t* designation, std::int32_t diameter, std::int32_t length) {
        Rodstock b(600);
        b.designation = designation;
        b.secondSize = diameter;
        b.firstSize = length;
        return b;
    };
    element.rodstockData.bars = {bar(L"B500A     ", 10, 1000), bar(L"B500A", 10, 1500), bar(L"B500B", 10, 700)};
    Steelmat mat;
    mat.name = L"          Q257, upper";
    mat.firstDimension = 4000;
    mat.secondDimension = 2000;
    mat.rodstocks.bars = {bar(L"B500A", 8, 4000), bar(L"B500A", 10, 250)};
    element.reinforcement.mats = {mat, mat};
    Layer layer;
    Steelmat layerMat;
    layerMat.name = L"Q188A";
    layerMat.firstDimension = 1000;
    layerMat.secondDimension = 500;
    layerMat.rodstocks.bars = {bar(L"B500A", 8, 1000)};
    layer.reinforcement.mats = {layerMat};
    element.layers = {layer};
    ExternalIron anchor;
    anchor.ironText = L"Anchor";
    anchor.ironCode = 2;
    anchor.ironCount = 4;
    anchor.ironValue = 1.5;
    ExternalIron again = anchor;
    again.ironCount = 3;
    element.externalIronData.irons = {anchor, again};
    MountingPart part(600);
    part.partName = L"Socket box";
    element.mountingPartData.parts = {part, part};
    Order order;
    order.orderNumber = L"A-1";
    element.elementNumberText = L"12";

    const Bom::ElementBill bill = Bom::BillOf(order, element);
    EXPECT_EQ(bill.order, "A-1");
    EXPECT_EQ(bill.element, "12");
    // B500A 8: 4000 twice (two mats alike) and 1000 of the layer's mat.
    // B500A 10: 1000 + 1500 loose, 250 twice in the mats. B500B 10: 700.
    ASSERT_EQ(bill.bars.size(), 3u);
    EXPECT_EQ(bill.bars[0].designation, "B500A");
    EXPECT_EQ(bill.bars[0].diameter, 8);
    EXPECT_EQ(bill.bars[0].count, 3);
    EXPECT_EQ(bill.bars[0].totalLength, 9000);
    EXPECT_EQ(bill.bars[1].designation, "B500A");
    EXPECT_EQ(bill.bars[1].diameter, 10);
    EXPECT_EQ(bill.bars[1].count, 4);
    EXPECT_EQ(bill.bars[1].totalLength, 3000);
    EXPECT_EQ(bill.bars[2].designation, "B500B");
    EXPECT_EQ(bill.bars[2].count, 1);
    EXPECT_EQ(bill.bars[2].totalLength, 700);
    ASSERT_EQ(bill.mats.size(), 2u);
    EXPECT_EQ(bill.mats[0].name, "Q188A");
    EXPECT_EQ(bill.mats[0].count, 1);
    EXPECT_EQ(bill.mats[1].name, "Q257, upper");
    EXPECT_EQ(bill.mats[1].count, 2);
    ASSERT_EQ(bill.irons.size(), 1u);
    EXPECT_EQ(bill.irons[0].count, 7);
    ASSERT_EQ(bill.parts.size(), 1u);
    EXPECT_EQ(bill.parts[0].count, 2);
    EXPECT_TRUE(bill.girders.empty());

    // A name with a comma is quoted in CSV.
    const std::string csv = Bom::BillCsv({bill});
    EXPECT_NE(csv.find("A-1,12,mat,\"Q257, upper\",,,,,4000,2000,2,\n"), std::string::npos) << csv;
    // An empty kind says so in the table.
    EXPECT_NE(Bom::BillText({bill}).find("Braced girders\n  none\n"), std::string::npos);
}

} // namespace
} // namespace ItUnitechnik::Drawing

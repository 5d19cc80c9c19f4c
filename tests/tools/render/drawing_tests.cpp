// The parts of unitechnik render and bom that need no browser: the geometry
// of outlines, the fields of a record and the grouping of the bill of
// materials by what the plant reads. Every expected number is
// worked out by hand from the records named in each test.

#include "bom/bill_of_materials.h"
#include "example_documents.h"
#include "geometry/arc.h"
#include "geometry/line_segment.h"
#include "render/field_list.h"
#include "render/geometry_paths.h"
#include "render/scene.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace ItUnitechnik::Drawing {
namespace {

using Testing::BarSet;
using Testing::TemporaryDirectory;

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

    // The cranked bars: a set of 2, five legs in one line of the form.
    const FieldList cranked = FieldsOf(element.rodstockData.bars.at(1));
    EXPECT_EQ(ValueOf(cranked, "firstSize"), "2");
    EXPECT_EQ(ValueOf(cranked, "thirdSize"), "2900");
    EXPECT_EQ(ValueOf(cranked, "designation"), "500");
    EXPECT_EQ(ValueOf(cranked, "extraDesignation"), "A-102");
    EXPECT_EQ(ValueOf(cranked, "position.x"), "600");
    EXPECT_EQ(ValueOf(cranked, "bendingKind"), "2");
    EXPECT_EQ(ValueOf(cranked, "mountFlag"), "true");
    EXPECT_EQ(ValueOf(cranked, "freeForm.parts[0].segments[2].angle"), "-45");
    EXPECT_EQ(ValueOf(cranked, "freeForm.parts[0].segments[4].length"), "300");
    EXPECT_EQ(ValueOf(cranked, "freeForm.parts[1].segments[0].length"), "(missing)");
    EXPECT_EQ(ValueOf(cranked, "spacers.positions"), "none");

    const FieldList contour = FieldsOf(element.contourData.contours.at(0));
    EXPECT_EQ(ValueOf(contour, "geoData[1].curve"), "LineSegment");
    EXPECT_EQ(ValueOf(contour, "geoData[1].curve.end.y"), "2400");

    // A mat names how many bars and girders it holds; they are items of
    // their own.
    const FieldList mat = FieldsOf(element.reinforcement.mats.at(0));
    EXPECT_EQ(ValueOf(mat, "name"), "Q188A");
    EXPECT_EQ(ValueOf(mat, "rodstocks.bars"), "54 bars");
    EXPECT_EQ(ValueOf(mat, "girders.girders"), "0 girders");

    const FieldList iron = FieldsOf(element.externalIronData.irons.at(0));
    EXPECT_EQ(iron.size(), 5u);
    EXPECT_EQ(ValueOf(iron, "ironValue"), "1.6");
    EXPECT_EQ(ValueOf(iron, "ironText"), "Lifting anchor");
}

// A Q188A mesh of 52 wires, each a set of count 1: 27 of 5800 mm and 25 of
// 2200 mm, all of diameter 6.
TEST(BillOfMaterials, AMeshOf52WiresAddsUpEachWire)
{
    ElementPart element;
    element.version = 600;
    Steelmat mat;
    mat.name = L"Q188A";
    mat.firstDimension = 5800;
    mat.secondDimension = 2200;
    for (int i = 0; i < 27; ++i) {
        mat.rodstocks.bars.push_back(BarSet(L"500", 1, 6, 5800));
    }
    for (int i = 0; i < 25; ++i) {
        mat.rodstocks.bars.push_back(BarSet(L"500", 1, 6, 2200));
    }
    element.reinforcement.mats = {mat};
    const Bom::ElementBill bill = Bom::BillOf(Order{}, element);
    ASSERT_EQ(bill.bars.size(), 1u);
    EXPECT_EQ(bill.bars[0].grade, "500");
    EXPECT_EQ(bill.bars[0].diameter, 6);
    EXPECT_EQ(bill.bars[0].count, 52);
    // 27 x 5800 + 25 x 2200 = 156600 + 55000 = 211600 mm.
    EXPECT_EQ(bill.bars[0].totalLength, 211600);
    // 211.6 m x 6² x 0.0061654 kg/m = 211.6 x 0.2219544 = 46.96555 kg.
    EXPECT_NEAR(bill.bars[0].weight, 46.966, 1e-9);
    EXPECT_NEAR(bill.steelWeight, 46.966, 1e-9);
    ASSERT_EQ(bill.mats.size(), 1u);
    EXPECT_EQ(bill.mats[0].type, "Q188A");
    EXPECT_EQ(bill.mats[0].count, 1);
}

// Loose sets, the wires of two mats alike, a layer's mat, girder groups,
// irons, parts and concrete layers.
TEST(BillOfMaterials, AMixedElementGroupsByGradeAndDiameterAndAddsTheTotals)
{
    ElementPart element;
    element.version = 600;
    // Loose: 12 x Ø10 x 5600 and 5 x Ø10 x 3000 of grade 500, 4 x Ø12 x 1400
    // of B500B.
    element.rodstockData.bars = {BarSet(L"500", 12, 10, 5600, 150), BarSet(L"500       ", 5, 10, 3000, 400),
                                 BarSet(L"B500B", 4, 12, 1400, 200)};
    Steelmat mat;
    mat.name = L"          Q257, upper";
    mat.rodstocks.bars = {BarSet(L"500", 1, 8, 4000), BarSet(L"500", 1, 10, 250)};
    element.reinforcement.mats = {mat, mat};
    Layer layer;
    Steelmat layerMat;
    layerMat.name = L"Q188A";
    layerMat.rodstocks.bars = {BarSet(L"500", 3, 8, 1000, 100)};
    layer.reinforcement.mats = {layerMat};
    element.layers = {layer};
    BracedGirder girder;
    girder.designation = L"KT 800";
    girder.typeNumber = 4;
    girder.firstSize = 5400;
    girder.scaledValue = 8.5;
    BracedGirder shorter = girder;
    shorter.typeNumber = 2;
    shorter.firstSize = 2400;
    shorter.scaledValue = 3.75;
    element.bracedGirderData.girders = {girder, shorter};
    ExternalIron anchor;
    anchor.ironText = L"Lifting anchor";
    anchor.ironCount = 4;
    anchor.ironValue = 1.5;
    ExternalIron again = anchor;
    again.ironCount = 3;
    again.ironValue = 0.75;
    element.externalIronData.irons = {anchor, again};
    MountingPart part(600);
    part.partName = L"Socket box";
    element.mountingPartData.parts = {part, part};
    ConcreteLayer concrete(600);
    concrete.layerNumber = 1;
    concrete.layerKind = 0;
    concrete.layerThickness = 60;
    concrete.layerName = L"C30/37";
    concrete.firstFactor = 2.4;
    concrete.secondFactor = 799.2;
    ConcreteLayer insulation(600);
    insulation.layerNumber = 2;
    insulation.layerKind = 2;
    insulation.layerThickness = 100;
    insulation.layerName = L"EPS";
    insulation.firstFactor = 0.02;
    insulation.secondFactor = 1332;
    element.concreteLayers = {concrete, insulation};
    Order order;
    order.orderNumber = L"A-1";
    element.elementNumberText = L"12";

    const Bom::ElementBill bill = Bom::BillOf(order, element);
    EXPECT_EQ(bill.order, "A-1");
    EXPECT_EQ(bill.element, "12");
    // 500 Ø8: 4000 in each of the two mats and 3 x 1000 in the layer's mat:
    // 5 bars, 11000 mm, 11 m x 0.394586 kg/m = 4.340446 kg.
    // 500 Ø10: 12 x 5600 + 5 x 3000 loose, 250 in each mat: 19 bars,
    // 67200 + 15000 + 500 = 82700 mm, 82.7 m x 0.61654 = 50.987858 kg.
    // B500B Ø12: 4 x 1400 = 5600 mm, 5.6 m x 0.8878176 = 4.97177856 kg.
    ASSERT_EQ(bill.bars.size(), 3u);
    EXPECT_EQ(bill.bars[0].grade, "500");
    EXPECT_EQ(bill.bars[0].diameter, 8);
    EXPECT_EQ(bill.bars[0].count, 5);
    EXPECT_EQ(bill.bars[0].totalLength, 11000);
    EXPECT_NEAR(bill.bars[0].weight, 4.340, 1e-9);
    EXPECT_EQ(bill.bars[1].grade, "500");
    EXPECT_EQ(bill.bars[1].diameter, 10);
    EXPECT_EQ(bill.bars[1].count, 19);
    EXPECT_EQ(bill.bars[1].totalLength, 82700);
    EXPECT_NEAR(bill.bars[1].weight, 50.988, 1e-9);
    EXPECT_EQ(bill.bars[2].grade, "B500B");
    EXPECT_EQ(bill.bars[2].count, 4);
    EXPECT_EQ(bill.bars[2].totalLength, 5600);
    EXPECT_NEAR(bill.bars[2].weight, 4.972, 1e-9);
    // KT 800: 4 of 5400 and 2 of 2400: 6 girders, 26400 mm, 4 x 8.5 + 2 x 3.75
    // = 41.5 kg.
    ASSERT_EQ(bill.girders.size(), 1u);
    EXPECT_EQ(bill.girders[0].type, "KT 800");
    EXPECT_EQ(bill.girders[0].count, 6);
    EXPECT_EQ(bill.girders[0].totalLength, 26400);
    EXPECT_NEAR(bill.girders[0].weight, 41.5, 1e-9);
    ASSERT_EQ(bill.mats.size(), 2u);
    EXPECT_EQ(bill.mats[0].type, "Q188A");
    EXPECT_EQ(bill.mats[0].count, 1);
    EXPECT_EQ(bill.mats[1].type, "Q257, upper");
    EXPECT_EQ(bill.mats[1].count, 2);
    // The irons: 7 pieces, 1.5 + 0.75 kg.
    ASSERT_EQ(bill.irons.size(), 1u);
    EXPECT_EQ(bill.irons[0].count, 7);
    EXPECT_NEAR(bill.irons[0].weight, 2.25, 1e-9);
    ASSERT_EQ(bill.parts.size(), 1u);
    EXPECT_EQ(bill.parts[0].count, 2);
    // 2.4 x 799.2 = 1918.08 kg of concrete, 0.02 x 1332 = 26.64 kg of
    // insulation.
    ASSERT_EQ(bill.layers.size(), 2u);
    EXPECT_EQ(bill.layers[0].kind, "concrete");
    EXPECT_NEAR(bill.layers[0].mass, 1918.08, 1e-9);
    EXPECT_EQ(bill.layers[1].kind, "insulation");
    EXPECT_NEAR(bill.layers[1].mass, 26.64, 1e-9);
    EXPECT_NEAR(bill.concreteMass, 1944.72, 1e-9);
    // Steel: 4.340 + 50.988 + 4.972 + 41.5 + 2.25 = 104.05 kg.
    EXPECT_NEAR(bill.steelWeight, 104.05, 1e-9);

    // A name with a comma is quoted in CSV.
    const std::string csv = Bom::BillCsv({bill});
    EXPECT_NE(csv.find("A-1,12,mat,\"Q257, upper\",,2,,,,\n"), std::string::npos) << csv;
    EXPECT_NE(csv.find("A-1,12,bar,500,10,19,82700,,50.99,\n"), std::string::npos) << csv;
    EXPECT_NE(csv.find("A-1,12,steel,,,,,,104.05,\n"), std::string::npos) << csv;
    const std::string text = Bom::BillText({bill});
    EXPECT_NE(text.find("  500               10     19            82.700        50.99\n"), std::string::npos) << text;
    EXPECT_NE(text.find("Steel 104.05 kg, concrete 1944.72 kg\n"), std::string::npos) << text;
    EXPECT_NE(text.find("File: steel 104.05 kg, concrete 1944.72 kg\n"), std::string::npos) << text;
}

TEST(BillOfMaterials, AnEmptyKindSaysSo)
{
    const Bom::ElementBill bill = Bom::BillOf(Order{}, ElementPart{});
    EXPECT_NE(Bom::BillText({bill}).find("Braced girders\n  none\n"), std::string::npos);
}

} // namespace
} // namespace ItUnitechnik::Drawing

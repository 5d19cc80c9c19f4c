// The findings of 400 on records that only a file can hold: outlines with
// arcs, and girders in a mat. The element's extents take an arc by the part
// of its circle it runs through, and a mat's girders stand from its origin.
#include "exports/document.h"
#include "findings/record_findings.h"
#include "geometry/arc.h"
#include "geometry/line_segment.h"
#include "itunitechnik.h"
#include "support/test_support.h"
#include "tree/flat_records.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool::Check {
namespace {

using Testing::HostText;

GeoData Line(std::int32_t x0, std::int32_t y0, std::int32_t x1, std::int32_t y1)
{
    return GeoData(600, L'S', std::make_unique<LineSegment>(600, Point2d(x0, y0), Point2d(x1, y1)));
}

GeoData ArcPiece(std::int32_t x, std::int32_t y, std::int32_t radius, std::int32_t start, std::int32_t end)
{
    auto arc = std::make_unique<Arc>(600);
    arc->centre = Point2d(x, y);
    arc->radius = radius;
    arc->startAngle = start;
    arc->endAngle = end;
    return GeoData(600, L'B', std::move(arc));
}

// An element of version 600 with this outline, made through the exports.
ElementPart& ElementWith(std::vector<GeoData> pieces)
{
    const double placement[9] = {0, 0, 0, 6000, 0, 0, 0, 2400, 0};
    startOrder(1, 1, placement, 600, HostText(u"Slab"), 1.0, true);
    ElementPart& element = *theDocument.CurrentElement();
    Contour contour(600);
    for (GeoData& piece : pieces) {
        contour.geoData.push_back(std::move(piece));
    }
    element.appendContour(contour);
    return element;
}

void AddBar(std::int32_t x, std::int32_t y)
{
    ItBarBlock bar{};
    bar.extraDesignation = HostText(u"");
    bar.designation = HostText(u"B500B");
    bar.firstSize = 1;    // one bar
    bar.secondSize = 10;  // of 10 mm
    bar.thirdSize = 1000; // 1000 long, along +x
    bar.positionX = x;
    bar.positionY = y;
    addStraightRodstock(&bar);
}

// The messages of the findings of one code.
std::vector<std::string> Messages(Code code)
{
    const Tree::FlatList flat = Tree::Flatten(theDocument.orders);
    const Tree::RecordIndex index(flat);
    std::vector<std::string> messages;
    for (const RecordFinding& finding : TreeFindings(theDocument.orders, index)) {
        if (finding.code == code) {
            messages.push_back(finding.message);
        }
    }
    return messages;
}

class PlantFindings : public testing::Test {
protected:
    void TearDown() override { theDocument.orders.clear(); }
};

TEST_F(PlantFindings, AnArchedElementReachesAsHighAsItsArcAndNoLower)
{
    // A half circle over the slab, counter-clockwise from 0 to 180 degrees:
    // its top at y = 2400 + 3000; the whole circle would reach y = -600.
    ElementWith(
        {Line(0, 0, 6000, 0), Line(6000, 0, 6000, 2400), ArcPiece(3000, 2400, 3000, 0, 180), Line(0, 2400, 0, 0)});
    AddBar(1000, 5000);
    AddBar(1000, -300);
    EXPECT_EQ(Messages(Code::outsideElement),
              std::vector<std::string>{"RODSTOCK orders[0].elementParts[0].rodstockData.bars[1]: bar 1 of 1 reaches "
                                       "(1000, -300), beyond the element's extents (0, 0) to (6000, 5400)"});
}

TEST_F(PlantFindings, AnArcRunsCounterClockwiseThroughZero)
{
    // The right half of a circle about (0, 1200), from 270 through 0 to 90
    // degrees: x from 0 to 1200, where the whole circle would begin at -1200.
    ElementWith({ArcPiece(0, 1200, 1200, 270, 90), Line(0, 2400, 0, 0)});
    AddBar(-600, 1200);
    AddBar(100, 1200);
    EXPECT_EQ(Messages(Code::outsideElement),
              std::vector<std::string>{"RODSTOCK orders[0].elementParts[0].rodstockData.bars[0]: bar 1 of 1 reaches "
                                       "(-600, 1200), beyond the element's extents (0, 0) to (1200, 2400)"});
}

TEST_F(PlantFindings, TheGirdersOfAMatStandFromItsOrigin)
{
    ElementWith({Line(0, 0, 6000, 0), Line(6000, 0, 6000, 2400), Line(6000, 2400, 0, 2400), Line(0, 2400, 0, 0)});
    const std::int32_t position[3] = {100, 100, 0};
    addSteelmat(HostText(u"Q188A"), 5800, 2200, 0, 0, 1, position);
    Steelmat& mat = theDocument.CurrentElement()->reinforcement.mats.back();
    // Two girders 1000 long along +x, 2300 apart: from y = 100 + 100 and
    // y = 100 + 100 + 2300 in the element.
    BracedGirder girder;
    girder.typeNumber = 2;
    girder.firstSize = 1000;
    girder.position = Point2d(0, 100);
    girder.positionZ = 2300;
    mat.girders.appendGirder(girder);
    EXPECT_EQ(Messages(Code::outsideElement),
              std::vector<std::string>{"BRGIRDER orders[0].elementParts[0].reinforcement.mats[0].girders.girders[0]: "
                                       "girder 2 of 2 reaches (100, 2500), beyond the element's extents (0, 0) to "
                                       "(6000, 2400)"});
}

} // namespace
} // namespace ItUnitechnik::Tool::Check

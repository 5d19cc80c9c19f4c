// The scene of an element: the bounds on what it draws of sets and groups
// that no plant would make. Every expected count is worked out by hand from
// the records named in each test.

#include "example_documents.h"
#include "render/scene.h"
#include "tree/element_places.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace ItUnitechnik::Drawing {
namespace {

using Testing::BarSet;

std::size_t Occurrences(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

// Counts and lengths that no plant makes, as a hostile or broken file holds
// them, are drawn with their first members: 10 000 straight bars at most, a
// bent set up to 400 000 points, 1000 girders of a group, a hundred diagonals
// of a lattice.
TEST(Scene, SetsAndGroupsBeyondAnyPlantsAreDrawnWithTheirFirstMembers)
{
    Order order;
    order.elementParts.resize(1);
    ElementPart& element = order.elementParts[0];
    element.version = 600;
    element.rodstockData.bars = {BarSet(L"500", 99999, 10, 3000, 20), BarSet(L"500", 99999, 10, 3000, 20),
                                 BarSet(L"500", 12, 10, 3000, 20)};
    // The second set is bent in 79 999 legs: 80 000 points a bar, 5 bars.
    Rodstock& bent = element.rodstockData.bars[1];
    bent.bendingKind = L'2';
    std::vector<BendingFormSegment> legs;
    for (int i = 0; i < 79999; ++i) {
        legs.emplace_back(10, 0);
    }
    bent.freeForm.buildFromSegments(legs);
    BracedGirder girder;
    girder.typeNumber = 7500;
    girder.firstSize = -2147483647 - 1;
    girder.positionZ = 600;
    element.bracedGirderData.girders = {girder};
    const std::vector<Order> orders = {order};
    const Scene scene = MakeScene(ElementPlaces(orders).at(0));
    std::size_t bars = 0;
    std::size_t girders = 0;
    std::vector<std::size_t> perSet;
    for (const Item& item : scene.items) {
        if (item.kind == "rodstock") {
            perSet.push_back(Occurrences(item.shapes, "M "));
        } else if (item.kind == "bracedgirder") {
            // Each girder: two chords, then its lattice of 101 points.
            girders = Occurrences(item.shapes, "M ") / 3;
            EXPECT_EQ(Occurrences(item.shapes, " L "), 1000u * (2 + 100)) << "a hundred diagonals a girder";
        }
        bars += item.kind == "rodstock" ? 1 : 0;
    }
    EXPECT_EQ(bars, 3u);
    EXPECT_EQ(perSet, (std::vector<std::size_t>{10000, 5, 12}));
    EXPECT_EQ(girders, 1000u);
}

// An element's sets share a million points: 300 sets of 9999 straight bars
// want 19 998 points each, six million in all. The set of 12 bars takes its
// 24 points; the 300 others share the 999 976 left, 3333 points each, which
// is 1666 bars of two points.
TEST(Scene, AnElementsSetsShareAMillionPoints)
{
    Order order;
    order.elementParts.resize(1);
    ElementPart& element = order.elementParts[0];
    element.version = 600;
    element.rodstockData.bars.assign(300, BarSet(L"500", 9999, 10, 3000, 20));
    element.rodstockData.bars.push_back(BarSet(L"500", 12, 10, 3000, 20));
    const std::vector<Order> orders = {order};
    const Scene scene = MakeScene(ElementPlaces(orders).at(0));
    std::vector<std::size_t> perSet;
    for (const Item& item : scene.items) {
        if (item.kind == "rodstock") {
            perSet.push_back(Occurrences(item.shapes, "M "));
        }
    }
    std::vector<std::size_t> expected(300, 1666);
    expected.push_back(12);
    EXPECT_EQ(perSet, expected);
}

} // namespace
} // namespace ItUnitechnik::Drawing

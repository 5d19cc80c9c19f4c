// The extents of an element: the box of its contours, kept up at every
// change through its collections.
#include "records/element/element_part.h"

#include "geometry/line_segment.h"
#include "records/element/element_part_test_support.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <random>
#include <vector>

namespace ItUnitechnik {
namespace {

using ElementPartTesting::AtVersion;
using Testing::StringArchive;

// The pieces of one contour as the test keeps them: x0, y0, x1, y1 each.
using Pieces = std::vector<std::array<std::int32_t, 4>>;

Contour ContourOf(const Pieces& pieces)
{
    Contour contour(502);
    for (const auto& p : pieces) {
        contour.Add(GeoData(502, L'S', std::make_unique<LineSegment>(502, Point2d(p[0], p[1]), Point2d(p[2], p[3]))));
    }
    return contour;
}

Contour Rectangle(std::int32_t x0, std::int32_t y0, std::int32_t x1, std::int32_t y1)
{
    return ContourOf({{x0, y0, x1, y1}});
}

TEST(ElementPartExtents, AnyChangeWithoutAContourGivesOneAndOne)
{
    ElementPart element;
    EXPECT_EQ(element.extentX, 0);
    element.Add(ConcreteLayer());
    EXPECT_EQ(element.extentX, 1);
    EXPECT_EQ(element.extentY, 1);
}

TEST(ElementPartExtents, TheBoxOfAllContours)
{
    ElementPart element;
    element.appendContour(Rectangle(0, 0, 3000, 1500));
    EXPECT_EQ(element.extentX, 3000);
    EXPECT_EQ(element.extentY, 1500);
    element.appendContour(Rectangle(5000, 0, 6000, 1000));
    EXPECT_EQ(element.extentX, 6000);
    EXPECT_EQ(element.extentY, 1500);
    EXPECT_EQ(element.contourData.contours[1].contourNumber, 2);
}

TEST(ElementPartExtents, RemovingTheLastContourGivesOneAndOne)
{
    ElementPart element;
    element.appendContour(Rectangle(-100, -50, 100, 50));
    EXPECT_EQ(element.extentX, 200);
    EXPECT_EQ(element.extentY, 100);
    element.Remove(element.contourData.contours.begin());
    EXPECT_EQ(element.extentX, 1);
    EXPECT_EQ(element.extentY, 1);
}

TEST(ElementPartExtents, ACopyChangesOnlyItself)
{
    ElementPart element;
    element.appendContour(Rectangle(0, 0, 3000, 1500));
    ElementPart copy(element);
    copy.Add(Rectangle(0, 0, 9000, 100));
    EXPECT_EQ(copy.extentX, 9000);
    EXPECT_EQ(copy.contourData.contours.size(), 2u);
    EXPECT_EQ(element.extentX, 3000);
    EXPECT_EQ(element.contourData.contours.size(), 1u);
}

TEST(ElementPartExtents, CutoutsDoNotCount)
{
    ElementPart element;
    element.appendContour(Rectangle(0, 0, 3000, 1500));
    Cutout cutout(502);
    cutout.Add(GeoData(502, L'S', std::make_unique<LineSegment>(502, Point2d(0, 0), Point2d(9000, 9000))));
    element.appendCutout(cutout);
    EXPECT_EQ(element.extentX, 3000);
    EXPECT_EQ(element.cutoutData.cutouts[0].cutoutNumber, 1);
}

// The extents of an outline, worked out here from the end points: the width
// and height of their box in 32-bit unsigned differences, where no point at
// all leaves the inverted box and so 1 and 1.
std::array<std::int32_t, 2> ExtentsOf(const std::vector<Pieces>& outline)
{
    std::int32_t minX = INT32_MAX;
    std::int32_t minY = INT32_MAX;
    std::int32_t maxX = INT32_MIN;
    std::int32_t maxY = INT32_MIN;
    for (const Pieces& pieces : outline) {
        for (const auto& p : pieces) {
            minX = std::min({minX, p[0], p[2]});
            maxX = std::max({maxX, p[0], p[2]});
            minY = std::min({minY, p[1], p[3]});
            maxY = std::max({maxY, p[1], p[3]});
        }
    }
    return {static_cast<std::int32_t>(static_cast<std::uint32_t>(maxX) - static_cast<std::uint32_t>(minX)),
            static_cast<std::int32_t>(static_cast<std::uint32_t>(maxY) - static_cast<std::uint32_t>(minY))};
}

TEST(ElementPartExtents, ALongRunOfChangesKeepsTheBoxOfAllContours)
{
    std::mt19937 random(13);
    auto below = [&random](std::uint32_t n) { return static_cast<std::size_t>(random() % n); };
    auto coordinate = [&random]() { return static_cast<std::int32_t>(random() % 200001) - 100000; };
    auto somePieces = [&]() {
        Pieces pieces(below(4));
        for (auto& p : pieces) {
            p = {coordinate(), coordinate(), coordinate(), coordinate()};
        }
        return pieces;
    };

    ElementPart element;
    std::vector<Pieces> outline; // what the element's contours hold, in order
    // The first change gives an element with no contour 1 and 1; without
    // one the extents keep the constructor's 0.
    element.Add(ConcreteLayer());
    ASSERT_EQ(element.extentX, 1);
    ASSERT_EQ(element.extentY, 1);
    for (int step = 0; step < 600; ++step) {
        SCOPED_TRACE(step);
        const std::size_t count = outline.size();
        switch (below(step % 100 == 99 ? 10 : 9)) {
        case 0: {
            Pieces pieces = somePieces();
            element.appendContour(ContourOf(pieces));
            outline.push_back(pieces);
            break;
        }
        case 1: {
            Pieces pieces = somePieces();
            element.Add(ContourOf(pieces));
            outline.push_back(pieces);
            break;
        }
        case 2: {
            const std::size_t at = below(static_cast<std::uint32_t>(count + 1));
            Pieces pieces = somePieces();
            element.Insert(element.contourData.contours.begin() + static_cast<std::ptrdiff_t>(at), ContourOf(pieces));
            outline.insert(outline.begin() + static_cast<std::ptrdiff_t>(at), pieces);
            break;
        }
        case 3:
            if (count > 0) {
                // A contour of the element itself, inserted again.
                const std::size_t from = below(static_cast<std::uint32_t>(count));
                const std::size_t at = below(static_cast<std::uint32_t>(count + 1));
                element.Insert(element.contourData.contours.begin() + static_cast<std::ptrdiff_t>(at),
                               element.contourData.contours[from]);
                const Pieces copy = outline[from];
                outline.insert(outline.begin() + static_cast<std::ptrdiff_t>(at), copy);
            }
            break;
        case 4:
        case 5:
            if (count > 0) {
                const std::size_t at = below(static_cast<std::uint32_t>(count));
                element.Remove(element.contourData.contours.begin() + static_cast<std::ptrdiff_t>(at));
                outline.erase(outline.begin() + static_cast<std::ptrdiff_t>(at));
            }
            break;
        case 6: {
            const std::size_t first = below(static_cast<std::uint32_t>(count + 1));
            const std::size_t last = first + below(static_cast<std::uint32_t>(count - first + 1));
            element.RemoveRange(element.contourData.contours.begin() + static_cast<std::ptrdiff_t>(first),
                                element.contourData.contours.begin() + static_cast<std::ptrdiff_t>(last));
            outline.erase(outline.begin() + static_cast<std::ptrdiff_t>(first),
                          outline.begin() + static_cast<std::ptrdiff_t>(last));
            break;
        }
        case 7:
            // Changes to the other lists leave the box as it is.
            element.Add(ConcreteLayer());
            element.appendRodstock(Rodstock(502));
            break;
        case 8: {
            Cutout cutout(502);
            cutout.Add(GeoData(502, L'S', std::make_unique<LineSegment>(502, Point2d(-900000, 0), Point2d(900000, 0))));
            element.appendCutout(cutout);
            element.Remove(element.cutoutData.cutouts.begin());
            break;
        }
        default:
            element.ItCollectionImpl<std::vector<Contour>>::Clear();
            outline.clear();
            break;
        }
        const std::array<std::int32_t, 2> expected = ExtentsOf(outline);
        EXPECT_EQ(element.extentX, expected[0]);
        EXPECT_EQ(element.extentY, expected[1]);
        ElementPart recomputed(element);
        recomputed.recomputeExtents();
        EXPECT_EQ(element.extentX, recomputed.extentX);
        EXPECT_EQ(element.extentY, recomputed.extentY);
        ASSERT_EQ(element.contourData.contours.size(), outline.size());
    }
}

TEST(ElementPartExtents, AfterAReadTheNextChangeTakesTheContoursRead)
{
    ElementPart written = AtVersion(600);
    written.elementNumberText = L"7";
    written.contourData.version = 600;
    written.contourData.contours.push_back(ContourOf({{0, 0, 2500, 1200}}));
    // Never changed through a collection: the file says 0 and 0.
    StringArchive s;
    ASSERT_TRUE(written.Write(s.archive));
    StringArchive in(s.Text());
    ElementPart read;
    read.appendContour(ContourOf({{0, 0, 9000, 9000}}));
    read.ItCollectionImpl<std::vector<Contour>>::Clear();
    ASSERT_TRUE(read.Read(in.archive));
    EXPECT_EQ(read.extentX, 0);
    EXPECT_EQ(read.extentY, 0);
    read.Add(ConcreteLayer());
    EXPECT_EQ(read.extentX, 2500);
    EXPECT_EQ(read.extentY, 1200);
}

TEST(ElementPartExtents, AContourPutStraightIntoTheListCountsAtTheNextChange)
{
    ElementPart element;
    element.appendContour(ContourOf({{0, 0, 100, 100}}));
    element.contourData.contours.push_back(ContourOf({{0, 0, 4000, 50}}));
    element.Add(ConcreteLayer());
    EXPECT_EQ(element.extentX, 4000);
    EXPECT_EQ(element.extentY, 100);
}

} // namespace
} // namespace ItUnitechnik

// An element with layers: what it writes and reads in place of its outline
// and reinforcement.
#include "records/element/element_part.h"

#include "framework/read_idioms.h"
#include "geometry/line_segment.h"
#include "records/element/element_part_test_support.h"
#include "records/order/order.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using ElementPartTesting::AtVersion;
using ElementPartTesting::edgeLine;
using ElementPartTesting::lineC;
using ElementPartTesting::lineD;
using ElementPartTesting::lineE;
using ElementPartTesting::longLineA;
using ElementPartTesting::longLineB;
using ElementPartTesting::plasterLine;
using Testing::Blanks;
using Testing::Joined;
using Testing::JoinLines;
using Testing::Lines;
using Testing::StringArchive;

// A default element's own lines at 502, up to its "END".
std::vector<std::wstring> OwnLines502(const std::wstring& extents = L"00000 00000")
{
    return {L"SLABDATE", L"502", longLineA, longLineB, plasterLine, L"00", extents + lineC.substr(11),
            edgeLine,    lineD,  lineE,     L"END"};
}

// An empty layer as written: its block has no irons of its own.
std::vector<std::wstring> EmptyLayerLines(const std::wstring& dataLine = L"0 000000 000000 000000 00")
{
    return {L"LAYER___",
            L"502",
            dataLine,
            L"END",
            L"MOUNPART",
            L"502",
            L"000",
            L"END",
            L"REFORCEM",
            L"502",
            Blanks(10) + L" " + Blanks(4) + L" " + Blanks(8) + L" 0",
            L"END",
            L"END REFORCEM",
            L"END LAYER___"};
}

// A layer as a file has it when it reads: the block carries an empty list of
// irons.
std::vector<std::wstring> ReadableLayerLines(const std::wstring& dataLine)
{
    std::vector<std::wstring> lines = EmptyLayerLines(dataLine);
    const std::vector<std::wstring> irons = {L"EXTIRON_", L"502", L"000", L"END"};
    lines.insert(lines.end() - 2, irons.begin(), irons.end()); // before "END REFORCEM"
    return lines;
}

Contour Square(std::int32_t side)
{
    Contour contour(502);
    contour.Add(GeoData(502, L'S', std::make_unique<LineSegment>(502, Point2d(0, 0), Point2d(side, side))));
    return contour;
}

TEST(ElementPartLayers, WithALayerTheContoursAreNotWrittenAtAll)
{
    ElementPart element;
    element.appendContour(Square(3000));
    element.appendContour(Square(1000));
    element.appendCutout(Cutout(502));
    element.layers.push_back(Layer());
    StringArchive s;
    EXPECT_TRUE(element.Write(s.archive));
    const std::vector<std::wstring> expected =
        Joined(Joined(OwnLines502(L"03000 03000"), EmptyLayerLines()), {L"END SLABDATE"});
    EXPECT_EQ(Lines(s.Text()), expected);
}

TEST(ElementPartLayers, WithALayerNoReinforcementRecordIsWrittenEither)
{
    for (std::int16_t version : {std::int16_t{502}, std::int16_t{600}}) {
        ElementPart element = AtVersion(version);
        element.reinforcement.present = true;
        element.hasExternalIron = true;
        element.appendRodstock(Rodstock(version));
        element.bracedGirderData.girders.push_back(BracedGirder());
        Layer first;
        first.layerValue1 = 1;
        Layer second;
        second.layerValue1 = 2;
        element.layers.push_back(first);
        element.layers.push_back(second);
        StringArchive s;
        EXPECT_TRUE(element.Write(s.archive));
        const std::vector<std::wstring> lines = Lines(s.Text());
        const std::vector<std::wstring> layers =
            Joined(Joined(EmptyLayerLines(L"1 000000 000000 000000 00"), EmptyLayerLines(L"2 000000 000000 000000 00")),
                   {L"END SLABDATE"});
        ASSERT_GT(lines.size(), layers.size());
        EXPECT_EQ(lines[lines.size() - layers.size() - 1], L"END") << version;
        EXPECT_EQ(std::vector<std::wstring>(lines.end() - static_cast<std::ptrdiff_t>(layers.size()), lines.end()),
                  layers)
            << version;
    }
}

TEST(ElementPartLayers, TheLayersAreTheEighthCollection)
{
    ElementPart element;
    element.Add(Layer());
    EXPECT_EQ(element.layers.size(), 1u);
    // Any change through a collection of the element recomputes its extents.
    EXPECT_EQ(element.extentX, 1);
    EXPECT_EQ(element.extentY, 1);
    element.Insert(element.layers.begin(), Layer());
    element.Remove(element.layers.begin());
    EXPECT_EQ(element.layers.size(), 1u);
    element.RemoveRange(element.layers.begin(), element.layers.end());
    EXPECT_TRUE(element.layers.empty());
}

TEST(ElementPartLayers, ACopyWorksOnItsOwnLayers)
{
    ElementPart element;
    element.Add(Layer());
    ElementPart copy(element);
    copy.Add(Layer());
    EXPECT_EQ(element.layers.size(), 1u);
    EXPECT_EQ(copy.layers.size(), 2u);
    ElementPart assigned;
    assigned = copy;
    static_cast<ItCollectionImpl<std::vector<Layer>>&>(assigned).Clear();
    EXPECT_TRUE(assigned.layers.empty());
    EXPECT_EQ(copy.layers.size(), 2u);
}

TEST(ElementPartLayers, ReadsLayersUpToTheClosingTag)
{
    const std::vector<std::wstring> lines =
        Joined(Joined(Joined(OwnLines502(), ReadableLayerLines(L"1 000011 000012 000013 00")),
                      ReadableLayerLines(L"2 000021 000022 000023 00")),
               {L"END SLABDATE", L"NEXT"});
    StringArchive s(JoinLines(lines));
    ElementPart element;
    EXPECT_TRUE(element.Read(s.archive));
    EXPECT_TRUE(s.archive.valid);
    ASSERT_EQ(element.layers.size(), 2u);
    EXPECT_EQ(element.layers[0].layerValue1, 1);
    EXPECT_EQ(element.layers[0].layerValue3, 12);
    EXPECT_EQ(element.layers[1].layerValue1, 2);
    EXPECT_EQ(element.layers[1].layerValue4, 23);
    EXPECT_TRUE(element.layers[1].reinforcement.present);
    // Nothing of the outline or reinforcement is read beside the layers.
    EXPECT_TRUE(element.contourData.contours.empty());
    EXPECT_FALSE(element.reinforcement.present);
    EXPECT_FALSE(element.hasExternalIron);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(ElementPartLayers, ALayerThatFailsEndsTheLayersAndTheClosingTagFails)
{
    // The second layer counts two lots and has one: it fails, the element
    // goes back to its start and finds "LAYER___" where it wants its closing
    // tag.
    std::vector<std::wstring> broken = ReadableLayerLines(L"2 000000 000000 000000 02");
    const std::vector<std::wstring> lot = {
        L"LOT_____",    L"502",      L"00 " + Blanks(8) + L" 0.000    00.000 000000 000000 000000 000",
        L"END",         L"CONTOUR_", L"502",
        L"00",          L"END",      L"CUTOUT__",
        L"502",         L"00",       L"END",
        L"END LOT_____"};
    broken.insert(broken.begin() + 4, lot.begin(), lot.end());
    const std::vector<std::wstring> lines = Joined(
        Joined(Joined(OwnLines502(), ReadableLayerLines(L"1 000000 000000 000000 00")), broken), {L"END SLABDATE"});
    StringArchive s(JoinLines(lines));
    ElementPart element;
    EXPECT_FALSE(element.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    ASSERT_EQ(element.layers.size(), 1u);
    EXPECT_EQ(element.layers[0].layerValue1, 1);
    EXPECT_EQ(ReadToken(s.archive), L"502");
}

TEST(ElementPartLayers, WithoutALayerTheOutlineIsReadAsBefore)
{
    const std::vector<std::wstring> lines =
        Joined(OwnLines502(), {L"CONTOUR_", L"502",      L"01",          L"01 00 01", L"S 00000 00000 00100 00200 0000",
                               L"END",      L"CUTOUT__", L"502",         L"00",       L"END",
                               L"MOUNPART", L"502",      L"000",         L"END",      L"RODSTOCK",
                               L"502",      L"000",      L"END",         L"BRGIRDER", L"502",
                               L"000",      L"END",      L"END SLABDATE"});
    StringArchive s(JoinLines(lines));
    ElementPart element;
    EXPECT_TRUE(element.Read(s.archive));
    EXPECT_TRUE(element.layers.empty());
    ASSERT_EQ(element.contourData.contours.size(), 1u);
    EXPECT_EQ(element.contourData.contours[0].geoData.size(), 1u);
    // The extents are what the file says, not the box of the contour.
    EXPECT_EQ(element.extentX, 0);
    EXPECT_FALSE(element.hasExternalIron);
}

TEST(ElementPartLayers, AnOrderWithALayeredElementReadsBack)
{
    Order order;
    ElementPart element;
    Layer layer;
    layer.layerValue2 = 42;
    layer.lotCount = 1;
    layer.Add(Lot());
    layer.reinforcement.hasExternalIrons = true;
    element.Add(layer);
    order.Add(element);
    StringArchive out;
    ASSERT_TRUE(order.Write(out.archive));
    StringArchive in(out.Text());
    Order read;
    EXPECT_TRUE(read.Read(in.archive));
    ASSERT_EQ(read.elementParts.size(), 1u);
    ASSERT_EQ(read.elementParts[0].layers.size(), 1u);
    EXPECT_EQ(read.elementParts[0].layers[0].layerValue2, 42);
    EXPECT_EQ(read.elementParts[0].layers[0].lots.size(), 1u);
    StringArchive again;
    read.Write(again.archive);
    EXPECT_EQ(again.Text(), out.Text());
}

} // namespace
} // namespace ItUnitechnik

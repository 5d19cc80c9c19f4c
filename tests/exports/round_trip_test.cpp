// The round trip over a matrix of documents built through the exports (and,
// for layers and lots, through the records): each is written, read back into
// orders, and where it reads back, written again to the same text. Where
// writer and reader are known not to agree, the case says so and why.

#include "exports/document.h"

#include "geometry/line_segment.h"
#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::HostText;
using Testing::StringArchive;

// What a document holds beside its one rectangular contour.
enum Content : unsigned {
    kCutouts = 1u << 0,       // two openings
    kPartsWithout = 1u << 1,  // a mounted part with no outline pieces
    kPartsWith = 1u << 2,     // a mounted part with two pieces
    kMats = 1u << 3,          // two mats, a bar in the second
    kLooseBars = 1u << 4,     // a straight and a free-form bar
    kGirders = 1u << 5,       // two girders
    kIrons = 1u << 6,         // two external irons
    kLayers = 1u << 7,        // a layer with a lot; its block has irons of its own
    kLayersNoIrons = 1u << 8, // a layer whose block has none
    kLotText20 = 1u << 9,     // the lot's last text set
};

enum class Outcome {
    kSameText,    // reads back, and the read orders write the same text
    kChangedText, // reads back, but the text written again differs
    kOrderHead,   // the order's own lines do not read back (503 to 599)
    kElementLost, // the order reads, the element does not
};

struct Case {
    Case(const char* caseName, int caseVersion, unsigned caseContent, Outcome caseOutcome)
        : name(caseName), version(static_cast<uint16_t>(caseVersion)), content(caseContent), outcome(caseOutcome)
    {
    }
    const char* name;
    uint16_t version;
    unsigned content;
    Outcome outcome;
};

std::ostream& operator<<(std::ostream& out, const Case& c)
{
    return out << c.name << " at " << c.version;
}

void Start(uint16_t version)
{
    const double placement[9] = {0, 0, 0, 6000, 0, 0, 0, 2400, 0};
    startOrder(3, 101, placement, version, HostText(u"Slab"), 1.25, true);
}

ElementPart& Element()
{
    return theDocument.orders.back().elementParts.back();
}

Contour LotContour(int16_t version)
{
    Contour contour(version);
    contour.contourNumber = 1;
    contour.Add(GeoData(version, L'S', std::make_unique<LineSegment>(version, Point2d(0, 0), Point2d(3000, 0))));
    contour.Add(GeoData(version, L'S', std::make_unique<LineSegment>(version, Point2d(3000, 0), Point2d(3000, 1200))));
    return contour;
}

// A layer as a read file would give it: one lot with a contour, an empty
// list of parts and a block.
Layer MakeLayer(int16_t version, bool blockIrons, bool lotText20)
{
    Layer layer;
    layer.version = version;
    layer.layerValue1 = 1;
    layer.layerValue2 = 2000;
    layer.layerValue3 = 30;
    layer.layerValue4 = 4;
    layer.lotCount = 1;
    Lot lot;
    lot.version = version;
    lot.lotNumber = 1;
    lot.lotText = L"LOT-A";
    lot.lotReal1 = 2.5;
    lot.lotCode2 = L"XY";
    lot.lotReal2 = 12.25;
    lot.lotValue1 = 100;
    lot.lotValue2 = 200;
    lot.lotValue3 = 300;
    lot.lotValue4 = 4;
    if (lotText20) {
        lot.lotText20 = L"Upper shell";
    }
    lot.contourData.version = version;
    lot.contourData.contours.push_back(LotContour(version));
    lot.cutoutData.version = version;
    layer.lots.push_back(lot);
    layer.mountingPartData.version = version;
    layer.reinforcement.version = version;
    layer.reinforcement.externalIrons.version = version;
    layer.reinforcement.hasExternalIrons = blockIrons;
    return layer;
}

void Build(const Case& c)
{
    Start(c.version);
    const int32_t outline[10] = {0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0};
    addContour(5, outline);
    if (c.content & kCutouts) {
        ItCutoutBlock block{};
        block.cutoutName = HostText(u"Stair");
        block.cutoutValue = 1.25;
        block.pointCount = 5;
        const int32_t stair[10] = {1000, 500, 2200, 500, 2200, 1700, 1000, 1700, 1000, 500};
        addCutout(&block, stair);
        block.cutoutName = HostText(u"Duct");
        block.cutoutValue = 0.5;
        block.pointCount = 3;
        const int32_t duct[6] = {4000, 800, 4600, 800, 4600, 1400};
        addCutout(&block, duct);
    }
    if (c.content & kPartsWithout) {
        const int32_t values[2] = {12, 34};
        addSet(3, HostText(u"Marker"), 2, values);
    }
    if (c.content & kPartsWith) {
        const int32_t values[10] = {7, 5, 500, 300, 800, 300, 800, 300, 800, 900};
        addSet(3, HostText(u"Anchor plate"), 10, values);
    }
    if (c.content & kMats) {
        const int32_t first[3] = {100, 50, 0};
        const int32_t second[3] = {120, 70, 160};
        addSteelmat(HostText(u"Q188A"), 2350, 5900, 1, 0, 1, first);
        addSteelmat(HostText(u"Q257A"), 2350, 5900, 0, 1, 2, second);
        const int32_t position[3] = {150, 200, 5};
        addCFSRodstock(1, HostText(u"B500B"), 2300, 10, 0, position, 40, 90, HostText(u"U1"), 1, 2, 3, 4, 0);
    }
    if (c.content & kLooseBars) {
        ItBarBlock bar{};
        bar.designation = HostText(u"BSt 500 S");
        bar.positionX = 500;
        bar.positionY = 600;
        bar.positionZ = 30;
        bar.firstSize = 5800;
        bar.secondSize = 12;
        bar.rodKind = 1;
        addStraightRodstock(&bar);
        bar.extraDesignation = HostText(u"HOOK");
        bar.auxFourth = 40;
        bar.auxFirst = 1;
        bar.segmentCount = 7;
        bar.bendingCode = 2;
        const ItFreeFormSegment segments[7] = {{200, 90, {0, 0}},  {1000, -90, {0, 0}}, {150, 45, {0, 0}},
                                               {300, 0, {0, 0}},   {400, -45, {0, 0}},  {500, 135, {0, 0}},
                                               {250, -180, {0, 0}}};
        addFreeFormRodstock(&bar, segments);
    }
    if (c.content & kGirders) {
        const int32_t girders[20] = {800,  4500, 100,  200,  30, 90,  5,  7, 1500,   12,
                                     1000, 3800, -150, 2000, 0,  -45, 12, 3, 123456, 99999};
        addSet(5, HostText(u"KT 812"), 20, girders);
    }
    if (c.content & kIrons) {
        addExtIron(2, 10, 1.5, HostText(u"Anchor"));
        addExtIron(3, 4, 0.25, HostText(u"Lifting loop"));
    }
    if (c.content & (kLayers | kLayersNoIrons)) {
        Element().layers.push_back(
            MakeLayer(static_cast<int16_t>(c.version), (c.content & kLayers) != 0, (c.content & kLotText20) != 0));
    }
}

std::wstring Written(std::vector<Order>& orders)
{
    StringArchive out;
    for (Order& order : orders) {
        EXPECT_TRUE(order.Write(out.archive));
    }
    return out.Text();
}

class RoundTrip : public ::testing::TestWithParam<Case> {
protected:
    void SetUp() override { theDocument.orders.clear(); }
    void TearDown() override { theDocument.orders.clear(); }
};

TEST_P(RoundTrip, AsTheFormatSays)
{
    const Case& c = GetParam();
    Build(c);
    const std::wstring text = Written(theDocument.orders);

    StringArchive in(text);
    std::vector<Order> read(1);
    const bool ok = read[0].Read(in.archive);

    switch (c.outcome) {
    case Outcome::kSameText:
        EXPECT_TRUE(ok);
        ASSERT_EQ(read[0].elementParts.size(), 1u);
        EXPECT_EQ(Written(read), text);
        break;
    case Outcome::kChangedText:
        EXPECT_TRUE(ok);
        ASSERT_EQ(read[0].elementParts.size(), 1u);
        EXPECT_NE(Written(read), text);
        break;
    case Outcome::kOrderHead:
        EXPECT_FALSE(ok);
        EXPECT_TRUE(read[0].elementParts.empty());
        break;
    case Outcome::kElementLost:
        EXPECT_FALSE(ok);
        EXPECT_TRUE(read[0].elementParts.empty());
        break;
    }
}

// The reasons behind the cases that do not read back, one record at a time.

TEST(RoundTripReasons, APartWithPiecesSwallowsTheEndOfItsList)
{
    theDocument.orders.clear();
    Build(Case("part with pieces", 600, kPartsWith, Outcome::kElementLost));
    const std::wstring text = Written(theDocument.orders);
    theDocument.orders.clear();
    StringArchive in(text.substr(text.find(L"MOUNPART\n")));
    MountingPartData parts;
    EXPECT_FALSE(parts.Read(in.archive));
    // The part itself was read; after its last piece the skip took the
    // "END" line, and the next record's tag stood where "END" should.
    EXPECT_EQ(parts.parts.size(), 1u);
    EXPECT_FALSE(in.archive.valid);
}

TEST(RoundTripReasons, ALayerWhoseBlockHasNoIronsMissesItsClosingLine)
{
    Layer layer = MakeLayer(600, false, false);
    StringArchive out;
    ASSERT_TRUE(layer.Write(out.archive));
    ASSERT_NE(out.Text().find(L"END REFORCEM\nEND LAYER___\n"), std::wstring::npos);
    StringArchive in(out.Text() + L"END SLABDATE\n");
    Layer back;
    // The block looks for irons of its own, goes back, drops its
    // "END REFORCEM" line and finds "END LAYER___" in its place.
    EXPECT_FALSE(back.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
    EXPECT_EQ(back.lots.size(), 1u);
}

TEST(RoundTripReasons, TheLotsLastTextComesBackWithABlankInFront)
{
    Layer layer = MakeLayer(600, true, true);
    StringArchive out;
    ASSERT_TRUE(layer.Write(out.archive));
    StringArchive in(out.Text());
    Layer back;
    ASSERT_TRUE(back.Read(in.archive));
    ASSERT_EQ(back.lots.size(), 1u);
    // The blank in front of the field is its first character now; the
    // field's last blank stayed in the stream.
    EXPECT_EQ(back.lots[0].lotText20, L" Upper shell" + Testing::Blanks(8));
}

TEST(RoundTripReasons, From503To599TheOrdersLinesDoNotReadBack)
{
    for (const int version : {502, 503, 599, 600}) {
        theDocument.orders.clear();
        Build(Case("contour", version, 0, Outcome::kSameText));
        StringArchive in(Written(theDocument.orders));
        theDocument.orders.clear();
        Order order;
        // The writer ends the order's line 3 with its short text; the reader
        // takes a further text of 40 characters there and loses its place.
        EXPECT_EQ(order.Read(in.archive), version == 502 || version == 600) << version;
    }
}

constexpr unsigned kOutline = kCutouts | kPartsWithout;
constexpr unsigned kLoose = kLooseBars | kGirders | kIrons;

std::vector<Case> Matrix()
{
    std::vector<Case> cases;
    for (const int version : {499, 501, 502, 600}) {
        // The versions whose order lines read back.
        cases.push_back({"contour", version, 0, Outcome::kSameText});
        cases.push_back({"openings and a part without pieces", version, kOutline, Outcome::kSameText});
        cases.push_back({"loose bars, girders and irons", version, kOutline | kLoose, Outcome::kSameText});
        cases.push_back({"layer whose block has irons", version, kLayers, Outcome::kSameText});
        // A part's outline swallows the "END" of the parts.
        cases.push_back({"part with pieces", version, kPartsWith, Outcome::kElementLost});
        // A block without irons of its own drops its closing line.
        cases.push_back({"mats", version, kMats, Outcome::kElementLost});
        cases.push_back({"layer whose block has no irons", version, kLayersNoIrons, Outcome::kElementLost});
    }
    // Below 600 the block alone is written, which still does not read back;
    // from 600 the loose bars come first, and the reader looks for the block
    // first.
    cases.push_back({"mats and loose bars", 502, kMats | kLoose, Outcome::kElementLost});
    cases.push_back({"mats and loose bars", 600, kMats | kLoose, Outcome::kElementLost});
    // The lot's last text comes back with a blank in front.
    cases.push_back({"layer with a lot text", 502, kLayers | kLotText20, Outcome::kSameText});
    cases.push_back({"layer with a lot text", 600, kLayers | kLotText20, Outcome::kChangedText});
    for (const int version : {503, 599}) {
        cases.push_back({"contour", version, 0, Outcome::kOrderHead});
        cases.push_back({"loose bars, girders and irons", version, kOutline | kLoose, Outcome::kOrderHead});
        cases.push_back({"layer whose block has irons", version, kLayers, Outcome::kOrderHead});
    }
    return cases;
}

std::string CaseName(const ::testing::TestParamInfo<Case>& info)
{
    std::string name;
    for (const char* p = info.param.name; *p != 0; ++p) {
        const char ch = *p;
        if ((ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z') || (ch >= '0' && ch <= '9')) {
            name += ch;
        } else if (!name.empty() && name.back() != '_') {
            name += '_';
        }
    }
    return name + "_" + std::to_string(info.param.version);
}

INSTANTIATE_TEST_SUITE_P(Documents, RoundTrip, ::testing::ValuesIn(Matrix()), CaseName);

} // namespace
} // namespace ItUnitechnik

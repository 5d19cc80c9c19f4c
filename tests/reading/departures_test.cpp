// One case for each departure of the tolerant reading: a document the
// records' own Read refuses, or reads to other bytes, and that the tolerant
// reading reads back to the same bytes, noting the departure.

#include "reading/tolerant_reading.h"

#include "exports/document.h"
#include "geometry/arc.h"
#include "geometry/line_segment.h"
#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::HostText;
using Testing::StringArchive;

std::wstring Written(std::vector<Order>& orders)
{
    StringArchive out;
    for (Order& order : orders) {
        order.Write(out.archive);
    }
    return out.Text();
}

// What the records' own Read makes of the text: false when an order does not
// read, else whether the orders read write the same text again.
bool RecordsReadBack(const std::wstring& text, std::size_t orderCount)
{
    StringArchive in(text);
    std::vector<Order> read(orderCount);
    for (Order& order : read) {
        if (!order.Read(in.archive)) {
            return false;
        }
    }
    return Written(read) == text;
}

class Departures : public ::testing::Test {
protected:
    void SetUp() override { theDocument.orders.clear(); }
    void TearDown() override { theDocument.orders.clear(); }

    static void Start(uint16_t version)
    {
        const double placement[9] = {0, 0, 0, 6000, 0, 0, 0, 2400, 0};
        startOrder(1, 101, placement, version, HostText(u"Slab"), 1.25, true);
        const int32_t outline[10] = {0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0};
        addContour(5, outline);
    }

    static ElementPart& Element() { return theDocument.orders.back().elementParts.back(); }

    // The records refuse the document; the tolerant reading reads it to the
    // same text and names the departure.
    static void ExpectDeparture(Departure departure)
    {
        const std::wstring text = Written(theDocument.orders);
        EXPECT_FALSE(RecordsReadBack(text, theDocument.orders.size())) << DepartureName(departure);
        const TolerantDocument document = ReadTolerantlyText(text);
        ASSERT_TRUE(document.Complete()) << DepartureName(departure) << ": line " << document.stop->line << ", column "
                                         << document.stop->column << ": " << document.stop->expected;
        std::vector<Order> orders = document.orders;
        EXPECT_EQ(Written(orders), text) << DepartureName(departure);
        EXPECT_EQ(document.departures.count(departure), 1u) << DepartureName(departure);
    }
};

TEST_F(Departures, EveryDepartureHasAName)
{
    for (const DepartureInfo& info : kDepartures) {
        EXPECT_STRNE(info.name, "");
        EXPECT_STREQ(DepartureName(info.departure), info.name);
    }
}

TEST_F(Departures, ASignBehindFillZeros)
{
    Start(600);
    setThicknesses(-5, 0); // "00-5" in a field of four
    ExpectDeparture(Departure::signBehindZeros);
}

TEST_F(Departures, TheOrdersLineFrom503)
{
    Start(503);
    ExpectDeparture(Departure::orderLineFrom503);
}

TEST_F(Departures, AnOrderNumberOfOneCharacter)
{
    Start(502);
    theDocument.orders.back().orderNumber = L"A";
    ExpectDeparture(Departure::orderNumberUntrimmed);
}

TEST_F(Departures, TheOrdersTextOnItsOwnLine)
{
    Start(600);
    theDocument.orders.back().orderText40 = L"Delivery on Monday";
    ExpectDeparture(Departure::orderTextOwnLine);
}

TEST_F(Departures, AnOrderWithoutElements)
{
    Order order;
    order.version = 600;
    order.date.version = 600;
    theDocument.orders.push_back(order);
    ExpectDeparture(Departure::orderWithoutElements);
}

TEST_F(Departures, AMountedPartWithPieces)
{
    Start(600);
    const int32_t values[6] = {7, 5, 500, 300, 800, 300};
    addSet(3, HostText(u"Anchor plate"), 6, values);
    ExpectDeparture(Departure::partWithPieces);
}

TEST_F(Departures, ABlockWithoutIronsOfItsOwn)
{
    Start(502);
    const int32_t position[3] = {100, 50, 0};
    addSteelmat(HostText(u"Q188A"), 2350, 5900, 1, 0, 1, position);
    ExpectDeparture(Departure::blockWithoutIrons);
}

TEST_F(Departures, LooseBarsBeforeTheBlockAndIronsBehindIt)
{
    Start(600);
    ItBarBlock bar{};
    bar.designation = HostText(u"D12");
    bar.firstSize = 5800;
    addStraightRodstock(&bar);
    const int32_t position[3] = {100, 50, 0};
    addSteelmat(HostText(u"Q188A"), 2350, 5900, 1, 0, 1, position);
    addExtIron(2, 10, 1.5, HostText(u"Anchor"));
    ExpectDeparture(Departure::reinforcementInWriterOrder);
}

TEST_F(Departures, TheLotsLastText)
{
    Start(600);
    Layer layer;
    layer.version = 600;
    layer.reinforcement.hasExternalIrons = true;
    Lot lot;
    lot.version = 600;
    lot.lotText20 = L"Upper shell";
    layer.lots.push_back(lot);
    Element().layers.push_back(layer);
    ExpectDeparture(Departure::lotTextBehindBlank);
}

TEST_F(Departures, AWeldingListsFlagBesideItsCount)
{
    Start(600);
    ItBarBlock bar{};
    bar.designation = HostText(u"D12");
    addStraightRodstock(&bar);
    Rodstock& stored = Element().rodstockData.bars.back();
    stored.hasWeldingPoints = true;
    stored.weldingPoints.points.emplace_back();
    ExpectDeparture(Departure::weldingFlagBesideCount);
}

TEST_F(Departures, AnArcsFlagsInDecimal)
{
    Start(600);
    auto arc = std::make_unique<Arc>(600);
    arc->centre = Point2d(3000, 1200);
    arc->radius = 500;
    arc->flags = 10; // written 010, taken as hexadecimal 16 by the records
    Element().contourData.contours.back().geoData.emplace_back(600, L'B', std::move(arc));
    ExpectDeparture(Departure::arcFlagsDecimal);
}

TEST_F(Departures, ALineFeedInsideAText)
{
    Start(600);
    setSlabInfoFields(HostText(u"first\nsecond"), HostText(u""), HostText(u""), HostText(u""));
    ExpectDeparture(Departure::textsByPlace);
}

TEST_F(Departures, ABlankInsideACode)
{
    Start(600);
    Element().codeA3 = L"A B";
    ExpectDeparture(Departure::textsByPlace);
}

TEST_F(Departures, LinesThatLostTheirTrailingBlanks)
{
    Start(600);
    theDocument.orders.back().project.projectText1 = L"Riverside";
    // A bar whose line ends in its bending kind, a blank.
    ItBarBlock bar{};
    bar.designation = HostText(u"D12");
    addStraightRodstock(&bar);
    Element().rodstockData.bars.back().bendingKind = L' ';
    const std::wstring text = Written(theDocument.orders);
    std::wstring stripped;
    for (wchar_t c : text) {
        if (c == L'\n') {
            while (!stripped.empty() && stripped.back() == L' ') {
                stripped.pop_back();
            }
        }
        stripped += c;
    }
    ASSERT_NE(stripped.find(L"\nRiverside\n"), std::wstring::npos);
    ASSERT_NE(text.find(L" 00 \n"), std::wstring::npos);
    ASSERT_EQ(stripped.find(L" 00 \n"), std::wstring::npos);
    EXPECT_FALSE(RecordsReadBack(stripped, 1));
    const TolerantDocument document = ReadTolerantlyText(stripped);
    ASSERT_TRUE(document.Complete()) << "line " << document.stop->line << ", column " << document.stop->column << ": "
                                     << document.stop->expected;
    std::vector<Order> orders = document.orders;
    EXPECT_EQ(Written(orders), text);
    EXPECT_EQ(document.departures.count(Departure::trailingBlanksLost), 1u);
    ASSERT_EQ(document.orders.at(0).elementParts.at(0).rodstockData.bars.size(), 1u);
    EXPECT_EQ(document.orders[0].elementParts[0].rodstockData.bars[0].bendingKind, L' ');
}

} // namespace
} // namespace ItUnitechnik

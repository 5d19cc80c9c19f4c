#include "exports/document.h"

#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <string>

namespace ItUnitechnik {
namespace {

const it_char16* C(const std::u16string& text)
{
    return Testing::HostText(text.c_str());
}

// The 19 texts of setProjectData, kept alive for the call.
struct ProjectTexts {
    ProjectTexts()
    {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            texts[i] = u"T" + std::u16string(1, static_cast<char16_t>(u'a' + i));
        }
        texts[IT_PROJECT_ORDER_NUMBER] = u"ORD-9";
        texts[IT_PROJECT_DATE] = u"31/12/2024";
    }
    std::array<const it_char16*, IT_PROJECT_TEXT_COUNT> Pointers() const
    {
        std::array<const it_char16*, IT_PROJECT_TEXT_COUNT> pointers{};
        for (std::size_t i = 0; i < texts.size(); ++i) {
            pointers[i] = C(texts[i]);
        }
        return pointers;
    }
    std::array<std::u16string, IT_PROJECT_TEXT_COUNT> texts;
};

class SettersTest : public ::testing::Test {
protected:
    void SetUp() override { theDocument.orders.clear(); }
    void TearDown() override { theDocument.orders.clear(); }

    static void Start(uint16_t version, bool clear = true)
    {
        const double placement[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};
        startOrder(1, 1, placement, version, C(u"E"), 0.0, clear);
    }
    static ElementPart& Element() { return theDocument.orders.back().elementParts.back(); }
};

TEST_F(SettersTest, ProjectDataFillsEveryOrder)
{
    Start(502);
    Start(600, false);
    const ProjectTexts texts;
    setProjectData(texts.Pointers().data());
    for (const Order& order : theDocument.orders) {
        EXPECT_EQ(order.orderNumber, L"ORD-9");
        EXPECT_EQ(order.orderText5, L"Tb");
        EXPECT_EQ(order.orderText4, L"Tc");
        EXPECT_EQ(order.orderText8, L"Td");
        EXPECT_EQ(order.project.projectText1, L"Te");
        EXPECT_EQ(order.project.projectText4, L"Th");
        EXPECT_EQ(order.firstAddress.addressText1, L"Ti");
        EXPECT_EQ(order.firstAddress.addressText4, L"Tl");
        EXPECT_EQ(order.secondAddress.addressText1, L"Tm");
        EXPECT_EQ(order.secondAddress.addressText4, L"Tp");
        EXPECT_EQ(order.orderText2, L"Tr");
        EXPECT_EQ(order.orderText40, L"Ts");
        EXPECT_EQ(order.date.day, 31);
        EXPECT_EQ(order.date.month, 12);
        EXPECT_EQ(order.date.year, 2024);
        EXPECT_EQ(order.date.version, order.version);
    }
}

TEST_F(SettersTest, AnEmptyOrderNumberBecomes12345678AndOnlyThatOne)
{
    Start(502);
    ProjectTexts texts;
    texts.texts[IT_PROJECT_ORDER_NUMBER] = u"";
    texts.texts[IT_PROJECT_ORDER_TEXT5] = u"";
    setProjectData(texts.Pointers().data());
    EXPECT_EQ(theDocument.orders[0].orderNumber, L"12345678");
    EXPECT_EQ(theDocument.orders[0].orderText5, L"");
}

TEST_F(SettersTest, WithoutOrdersNothingHappens)
{
    const ProjectTexts texts;
    setProjectData(texts.Pointers().data());
    setThicknesses(1, 2);
    setDoubleWallGap(3);
    addLayer(1, 0.2, 1, 1, C(u"L"));
    setSlabInfoFields(C(u"a"), C(u"b"), C(u"c"), C(u"d"));
    EXPECT_TRUE(theDocument.orders.empty());
}

// What the date text throws where the order's date is made from it.
template <class Exception>
std::string Thrown(const std::u16string& date)
{
    try {
        Date made(std::wstring(date.begin(), date.end()), 502);
    } catch (const Exception& e) {
        return e.what();
    } catch (...) {
        return "another exception";
    }
    return "nothing";
}

TEST_F(SettersTest, BadDatesThrowNothingOutOfTheExportAndLeaveTheOrdersPartlyFilled)
{
    Start(502);
    Start(502, false);
    Start(502, false);
    // A first call fills all three orders completely.
    const ProjectTexts good;
    setProjectData(good.Pointers().data());

    // The date itself refuses these texts.
    EXPECT_EQ(Thrown<std::invalid_argument>(u"1.2.2024"), "invalid stoi argument");
    EXPECT_EQ(Thrown<std::invalid_argument>(u"  .  .    "), "invalid stoi argument");
    EXPECT_EQ(Thrown<std::invalid_argument>(u"ab.cd.efgh"), "invalid stoi argument");
    EXPECT_EQ(Thrown<std::out_of_range>(u"1.2."), "invalid string position");
    EXPECT_EQ(Thrown<std::out_of_range>(u"12"), "invalid string position");

    // Through the export nothing is thrown. The failing order has its number
    // and first three texts set again, the rest as before; with the first
    // order failing, the later ones are untouched.
    for (const char16_t* date : {u"1.2.2024", u"  .  .    ", u"ab.cd.efgh", u"1.2.", u"12", u""}) {
        ProjectTexts changed;
        changed.texts[IT_PROJECT_ORDER_NUMBER] = u"NEW";
        changed.texts[IT_PROJECT_ORDER_TEXT5] = u"NEW5";
        changed.texts[IT_PROJECT_TEXT1] = u"NEWPROJECT";
        changed.texts[IT_PROJECT_DATE] = date;
        EXPECT_NO_THROW(setProjectData(changed.Pointers().data()));
        EXPECT_EQ(theDocument.orders[0].orderNumber, L"NEW");
        EXPECT_EQ(theDocument.orders[0].orderText5, L"NEW5");
        EXPECT_EQ(theDocument.orders[0].project.projectText1, L"Te");
        EXPECT_EQ(theDocument.orders[0].date.year, 2024);
        EXPECT_EQ(theDocument.orders[1].orderNumber, L"ORD-9");
    }
}

TEST_F(SettersTest, DatesByPosition)
{
    Start(600);
    ProjectTexts texts;
    texts.texts[IT_PROJECT_DATE] = u"01.2.2024";
    setProjectData(texts.Pointers().data());
    EXPECT_EQ(theDocument.orders[0].date.day, 1);
    EXPECT_EQ(theDocument.orders[0].date.month, 2);
    EXPECT_EQ(theDocument.orders[0].date.year, 24);
}

TEST_F(SettersTest, SlabInfoThicknessesAndGap)
{
    Start(600);
    setSlabInfoFields(C(u"a"), C(u"b"), C(u"c"), C(u"d"));
    setThicknesses(200, 150);
    setDoubleWallGap(60);
    EXPECT_EQ(Element().slabInfo1, L"a");
    EXPECT_EQ(Element().slabInfo4, L"d");
    EXPECT_EQ(Element().thickness, 200);
    EXPECT_EQ(Element().secondThickness, 150);
    EXPECT_EQ(Element().doubleWallGap, 60);
}

TEST_F(SettersTest, AddLayerRoundsToMillimetresAndSums)
{
    Start(600);
    addLayer(2, 0.2, 1.5, 2.0, C(u"C30"));
    ASSERT_EQ(Element().concreteLayers.size(), 1u);
    const ConcreteLayer& layer = Element().concreteLayers[0];
    EXPECT_EQ(layer.version, 600);
    EXPECT_EQ(layer.layerNumber, 1);
    EXPECT_EQ(layer.layerKind, 2);
    EXPECT_EQ(layer.layerThickness, 200);
    EXPECT_EQ(layer.layerName, L"C30");
    EXPECT_EQ(layer.firstFactor, 1.5);
    EXPECT_EQ(layer.secondFactor, 2.0);
    EXPECT_EQ(layer.layerText20, L"");
    EXPECT_EQ(Element().thickness, 200);
    EXPECT_EQ(Element().secondThickness, 200);
    EXPECT_EQ(Element().layerProductSum, 3.0);
}

TEST_F(SettersTest, HalvesOfAMillimetreRoundAwayFromZero)
{
    Start(502);
    addLayer(1, 0.0625, 1, 1, C(u"A"));
    addLayer(1, 0.0625, 1, 1, C(u"B"));
    EXPECT_EQ(Element().concreteLayers[0].layerThickness, 63);
    EXPECT_EQ(Element().concreteLayers[1].layerThickness, 63);
    EXPECT_EQ(Element().concreteLayers[1].layerNumber, 2);
    EXPECT_EQ(Element().thickness, 126);
    EXPECT_EQ(Element().layerProductSum, 2.0);
}

TEST_F(SettersTest, AddLayerOverwritesTheSecondThickness)
{
    Start(502);
    setThicknesses(200, 150);
    addLayer(1, 0.05, 1, 1, C(u"A"));
    EXPECT_EQ(Element().thickness, 250);
    EXPECT_EQ(Element().secondThickness, 250);
}

} // namespace
} // namespace ItUnitechnik

// Documents built through the exports, written and read back into orders.
// Where writer and reader do not agree, the test shows where the reader
// stops.

#include "exports/document.h"

#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik {
namespace {

using Testing::HostText;
using Testing::StringArchive;

class ReadBackTest : public ::testing::Test {
protected:
    void SetUp() override { theDocument.orders.clear(); }
    void TearDown() override { theDocument.orders.clear(); }

    static void Start(uint16_t version)
    {
        const double placement[9] = {0, 0, 0, 6000, 0, 0, 0, 2400, 0};
        startOrder(1, 101, placement, version, HostText(u"Slab"), 1.25, true);
    }
    static ElementPart& Element() { return theDocument.orders.back().elementParts.back(); }

    static void AddMat()
    {
        const int32_t position[3] = {100, 200, 0};
        addSteelmat(HostText(u"Q188A"), 2400, 6000, 1, 0, 1, position);
        const int32_t barPosition[3] = {10, 20, 0};
        addCFSRodstock(1, HostText(u"B500"), 2300, 10, 0, barPosition, 35, 0, HostText(u"P1"), 1, 0, 0, 0, 0);
    }

    static void AddLooseBar()
    {
        ItBarBlock bar{};
        bar.designation = HostText(u"B500");
        bar.firstSize = 1400;
        bar.secondSize = 12;
        addStraightRodstock(&bar);
    }

    static std::wstring DocumentText()
    {
        StringArchive out;
        for (Order& order : theDocument.orders) {
            EXPECT_TRUE(order.Write(out.archive));
        }
        return out.Text();
    }
};

TEST_F(ReadBackTest, LooseBarsAndMatsAt600DoNotReadBack)
{
    Start(600);
    AddLooseBar();
    AddMat();
    const std::wstring text = DocumentText();
    // The writer puts the loose bars in front of the block.
    ASSERT_LT(text.find(L"\nRODSTOCK\n"), text.find(L"\nREFORCEM\n"));

    StringArchive in(text);
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    // The reader looked for the block first, rewound, read the loose bars,
    // and then met "REFORCEM" where only girders or irons may stand: the
    // element is dropped.
    EXPECT_TRUE(read.elementParts.empty());
}

TEST_F(ReadBackTest, ABlockFollowedByTheElementsIronsDoesNotReadBack)
{
    Start(600);
    AddMat();
    const std::wstring text = DocumentText();
    // startOrder asks for the element's irons: their record follows the block.
    ASSERT_NE(text.find(L"END REFORCEM\nEXTIRON_\n600\n000\nEND\nEND SLABDATE\n"), std::wstring::npos);

    StringArchive in(text);
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_TRUE(read.elementParts.empty());

    // The block alone: after the mats it looks for irons of its own, finds
    // "END REFORCEM", goes back, drops that line and compares the next one.
    const std::size_t at = text.find(L"REFORCEM\n");
    StringArchive block(text.substr(at));
    Reinforcement reinforcement;
    EXPECT_FALSE(reinforcement.Read(block.archive));
    EXPECT_FALSE(block.archive.valid);
    EXPECT_EQ(reinforcement.mats.size(), 1u);
    EXPECT_FALSE(reinforcement.hasExternalIrons);
}

TEST_F(ReadBackTest, ABlockWithWellFormedIronsOfItsOwnReadsBack)
{
    Start(600);
    AddMat();
    // Irons of the block itself, as only a read file would give them; the
    // element's own irons are left out, so "END SLABDATE" follows the block.
    Element().reinforcement.hasExternalIrons = true;
    Element().hasExternalIron = false;
    const std::wstring text = DocumentText();
    ASSERT_NE(text.find(L"END STEELMAT\nEXTIRON_\n600\n000\nEND\nEND REFORCEM\nEND SLABDATE\n"), std::wstring::npos);

    StringArchive in(text);
    Order read;
    EXPECT_TRUE(read.Read(in.archive));
    ASSERT_EQ(read.elementParts.size(), 1u);
    const ElementPart& element = read.elementParts[0];
    EXPECT_TRUE(element.reinforcement.present);
    EXPECT_TRUE(element.reinforcement.hasExternalIrons);
    ASSERT_EQ(element.reinforcement.mats.size(), 1u);
    ASSERT_EQ(element.reinforcement.mats[0].rodstocks.bars.size(), 1u);
    EXPECT_EQ(element.reinforcement.mats[0].rodstocks.bars[0].firstSize, 2300);

    // Written again, the read order gives the same text.
    StringArchive again;
    EXPECT_TRUE(read.Write(again.archive));
    EXPECT_EQ(again.Text(), text);
}

TEST_F(ReadBackTest, BelowVersion600TheBlockStandsAloneAndStillDoesNotReadBack)
{
    Start(502);
    AddLooseBar();
    AddMat();
    addExtIron(1, 1, 1.0, HostText(u"I"));
    const std::wstring text = DocumentText();
    // With a block, nothing else of the reinforcement is written: the one
    // bar list is the mat's, inside the block.
    const std::size_t bars = text.find(L"\nRODSTOCK\n");
    EXPECT_GT(bars, text.find(L"\nSTEELMAT\n"));
    EXPECT_EQ(text.find(L"\nRODSTOCK\n", bars + 1), std::wstring::npos);
    EXPECT_NE(text.find(L"END REFORCEM\nEND SLABDATE\n"), std::wstring::npos);
    EXPECT_EQ(text.find(L"EXTIRON_"), std::wstring::npos);

    // The block drops its own "END REFORCEM" after looking for its irons and
    // compares "END SLABDATE" with it.
    StringArchive in(text);
    Order read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_TRUE(read.elementParts.empty());
}

TEST_F(ReadBackTest, LooseBarsGirdersAndIronsAt600ReadBack)
{
    Start(600);
    AddLooseBar();
    const int32_t girder[10] = {800, 4500, 100, 200, 30, 90, 5, 7, 1500, 12};
    addSet(5, HostText(u"KT 800"), 10, girder);
    addExtIron(2, 10, 1.5, HostText(u"Anchor"));
    const std::wstring text = DocumentText();

    StringArchive in(text);
    Order read;
    EXPECT_TRUE(read.Read(in.archive));
    ASSERT_EQ(read.elementParts.size(), 1u);
    const ElementPart& element = read.elementParts[0];
    EXPECT_EQ(element.rodstockData.bars.size(), 1u);
    EXPECT_EQ(element.bracedGirderData.girders.size(), 1u);
    ASSERT_EQ(element.externalIronData.irons.size(), 1u);
    EXPECT_TRUE(element.hasExternalIron);
    EXPECT_FALSE(element.reinforcement.present);

    StringArchive again;
    EXPECT_TRUE(read.Write(again.archive));
    EXPECT_EQ(again.Text(), text);
}

} // namespace
} // namespace ItUnitechnik

#include "records/element/layer.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::Blanks;
using Testing::Joined;
using Testing::JoinLines;
using Testing::Lines;
using Testing::StringArchive;

std::vector<std::wstring> Written(Layer layer)
{
    StringArchive s;
    EXPECT_TRUE(layer.Write(s.archive));
    return Lines(s.Text());
}

// The data line of an untouched reinforcement block: ten, four and eight
// blanks, then the flag.
const std::wstring blockLine = Blanks(10) + L" " + Blanks(4) + L" " + Blanks(8) + L" 0";

// An empty lot at 502, as written.
const std::vector<std::wstring> emptyLot = {
    L"LOT_____",    L"502",      L"00 " + Blanks(8) + L" 0.000    00.000 000000 000000 000000 000",
    L"END",         L"CONTOUR_", L"502",
    L"00",          L"END",      L"CUTOUT__",
    L"502",         L"00",       L"END",
    L"END LOT_____"};

// The parts list and the block of an empty layer, and its closing tag.
const std::vector<std::wstring> emptyTail = {L"MOUNPART", L"502",    L"000", L"END",          L"REFORCEM",
                                             L"502",      blockLine, L"END", L"END REFORCEM", L"END LAYER___"};

// A layer's text as a file would have it: the block carries an empty list of
// irons of its own, without which it does not read.
std::wstring LayerText(const std::wstring& dataLine, const std::vector<std::wstring>& lots)
{
    std::vector<std::wstring> lines = Joined({L"LAYER___", L"502", dataLine, L"END"}, lots);
    return JoinLines(Joined(lines, {L"MOUNPART", L"502", L"000", L"END", L"REFORCEM", L"502", blockLine, L"END",
                                    L"EXTIRON_", L"502", L"000", L"END", L"END REFORCEM", L"END LAYER___"}));
}

TEST(LayerWrite, EmptyLayerWritesItsFourLinesThenItsPartsAndBlock)
{
    const std::vector<std::wstring> expected =
        Joined({L"LAYER___", L"502", L"0 000000 000000 000000 00", L"END"}, emptyTail);
    EXPECT_EQ(Written(Layer()), expected);
}

TEST(LayerWrite, NumbersAreNotCut)
{
    Layer layer;
    layer.version = 600;
    layer.layerValue1 = 3;
    layer.layerValue2 = 123456;
    layer.layerValue3 = 7;
    layer.layerValue4 = 1234567;
    layer.lotCount = 123;
    const std::vector<std::wstring> lines = Written(layer);
    EXPECT_EQ(lines[1], L"600");
    EXPECT_EQ(lines[2], L"3 123456 000007 1234567 123");
}

TEST(LayerWrite, ALotCountOfTwoWithOneLotWritesTwoAndOneLot)
{
    Layer layer;
    layer.lotCount = 2;
    layer.Add(Lot());
    const std::vector<std::wstring> expected =
        Joined(Joined({L"LAYER___", L"502", L"0 000000 000000 000000 02", L"END"}, emptyLot), emptyTail);
    EXPECT_EQ(Written(layer), expected);
}

TEST(LayerWrite, TheLotsAreWrittenWhateverTheCountSays)
{
    Layer layer;
    Lot first;
    first.lotNumber = 1;
    Lot second;
    second.lotNumber = 2;
    layer.Add(first);
    layer.Add(second);
    std::vector<std::wstring> secondLot = emptyLot;
    secondLot[2] = L"02" + secondLot[2].substr(2);
    std::vector<std::wstring> firstLot = emptyLot;
    firstLot[2] = L"01" + firstLot[2].substr(2);
    const std::vector<std::wstring> expected = Joined(
        Joined(Joined({L"LAYER___", L"502", L"0 000000 000000 000000 00", L"END"}, firstLot), secondLot), emptyTail);
    EXPECT_EQ(Written(layer), expected);
}

TEST(LayerWrite, PartsAndBlockFollowTheLots)
{
    Layer layer;
    layer.mountingPartData.version = 600;
    layer.reinforcement.version = 503;
    layer.reinforcement.matFlag = 1;
    const std::vector<std::wstring> lines = Written(layer);
    const std::vector<std::wstring> expected = {L"LAYER___",
                                                L"502",
                                                L"0 000000 000000 000000 00",
                                                L"END",
                                                L"MOUNPART",
                                                L"600",
                                                L"000",
                                                L"END",
                                                L"REFORCEM",
                                                L"503",
                                                Blanks(10) + L" " + Blanks(4) + L" " + Blanks(8) + L" 1",
                                                L"END",
                                                L"END REFORCEM",
                                                L"END LAYER___"};
    EXPECT_EQ(lines, expected);
}

TEST(LayerWrite, ReturnsTrueOnABadStream)
{
    StringArchive s;
    s.archive.setstate(std::ios_base::badbit);
    Layer layer;
    EXPECT_TRUE(layer.Write(s.archive));
    EXPECT_EQ(s.Text(), L"");
}

TEST(LayerCopy, CopiesWorkOnTheirOwnLotsAndParts)
{
    Layer layer;
    layer.layerValue2 = 5;
    layer.lotCount = 1;
    layer.Add(Lot());
    layer.Add(MountingPart(502));
    layer.reinforcement.matFlag = 1;
    Layer copy(layer);
    copy.Add(Lot());
    copy.Add(MountingPart(502));
    EXPECT_EQ(copy.layerValue2, 5);
    EXPECT_EQ(copy.lotCount, 1);
    EXPECT_EQ(copy.reinforcement.matFlag, 1);
    EXPECT_EQ(layer.lots.size(), 1u);
    EXPECT_EQ(layer.mountingPartData.parts.size(), 1u);
    EXPECT_EQ(copy.lots.size(), 2u);
    EXPECT_EQ(copy.mountingPartData.parts.size(), 2u);

    Layer assigned;
    assigned = copy;
    assigned.Remove(assigned.lots.begin());
    static_cast<ItCollectionImpl<std::vector<MountingPart>>&>(assigned).Clear();
    EXPECT_EQ(assigned.lots.size(), 1u);
    EXPECT_TRUE(assigned.mountingPartData.parts.empty());
    EXPECT_EQ(copy.lots.size(), 2u);
    EXPECT_EQ(copy.mountingPartData.parts.size(), 2u);

    Layer& same = assigned;
    assigned = same;
    EXPECT_EQ(assigned.lots.size(), 1u);
    EXPECT_EQ(assigned.layerValue2, 5);
}

TEST(LayerRead, ReadsItsLineItsLotsItsPartsAndItsBlock)
{
    std::vector<std::wstring> lot = emptyLot;
    lot[2] = L"04" + lot[2].substr(2);
    StringArchive s(LayerText(L"3 000010 000020 000030 01", lot) + L"NEXT\n");
    Layer layer;
    EXPECT_TRUE(layer.Read(s.archive));
    EXPECT_TRUE(Healthy(s.archive));
    EXPECT_EQ(layer.version, 502);
    EXPECT_EQ(layer.layerValue1, 3);
    EXPECT_EQ(layer.layerValue2, 10);
    EXPECT_EQ(layer.layerValue3, 20);
    EXPECT_EQ(layer.layerValue4, 30);
    EXPECT_EQ(layer.lotCount, 1);
    ASSERT_EQ(layer.lots.size(), 1u);
    EXPECT_EQ(layer.lots[0].lotNumber, 4);
    EXPECT_TRUE(layer.mountingPartData.parts.empty());
    EXPECT_TRUE(layer.reinforcement.present);
    EXPECT_TRUE(layer.reinforcement.hasExternalIrons);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(LayerRead, ACountOfZeroReadsNoLot)
{
    StringArchive s(LayerText(L"0 000000 000000 000000 00", {}));
    Layer layer;
    EXPECT_TRUE(layer.Read(s.archive));
    EXPECT_EQ(layer.lotCount, 0);
    EXPECT_TRUE(layer.lots.empty());
}

TEST(LayerRead, ACountOfTwoWithOneLotTakesTheNextRecordForTheSecondAndFails)
{
    StringArchive s(LayerText(L"0 000000 000000 000000 02", emptyLot));
    Layer layer;
    EXPECT_FALSE(layer.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_EQ(layer.lotCount, 2);
    EXPECT_EQ(layer.lots.size(), 1u);
}

TEST(LayerRead, ALotThatFailsIsNotKept)
{
    std::vector<std::wstring> broken = emptyLot;
    broken[12] = L"END LOT____";
    StringArchive s(LayerText(L"0 000000 000000 000000 02", Joined(broken, emptyLot)));
    Layer layer;
    EXPECT_FALSE(layer.Read(s.archive));
    // The second lot was read all the same but, with `valid` cleared by the
    // first, was not kept either.
    EXPECT_TRUE(layer.lots.empty());
    EXPECT_FALSE(s.archive.valid);
}

TEST(LayerRead, ABlockWithoutIronsTakesTheClosingLineAndTheLayerFails)
{
    StringArchive s(JoinLines(Joined({L"LAYER___", L"502", L"0 000000 000000 000000 00", L"END"}, emptyTail)));
    Layer layer;
    EXPECT_FALSE(layer.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(LayerRead, AWrongStartTagClearsValid)
{
    StringArchive s(L"END SLABDATE\n");
    Layer layer;
    EXPECT_FALSE(layer.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_FALSE(s.archive.fail());
    EXPECT_EQ(ReadLine(s.archive), L" SLABDATE");
}

TEST(LayerRead, AWrongEndClearsValid)
{
    StringArchive s(L"LAYER___\n502\n0 000000 000000 000000 00\nEMD\n");
    Layer layer;
    EXPECT_FALSE(layer.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(LayerRead, AWrongClosingLineClearsValid)
{
    std::wstring text = LayerText(L"0 000000 000000 000000 00", {});
    text.replace(text.find(L"END LAYER___"), 12, L"END LAYER__");
    StringArchive s(text);
    Layer layer;
    EXPECT_FALSE(layer.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(LayerRead, AFailingPartsListFailsTheLayer)
{
    std::wstring text = LayerText(L"0 000000 000000 000000 00", {});
    text.replace(text.find(L"MOUNPART"), 8, L"MOUNTING");
    StringArchive s(text);
    Layer layer;
    EXPECT_FALSE(layer.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_FALSE(layer.reinforcement.present);
}

TEST(LayerRead, ACountThatCannotBeParsedFailsTheStream)
{
    StringArchive s(LayerText(L"0 000000 000000 000000 xx", {}));
    Layer layer;
    EXPECT_FALSE(layer.Read(s.archive));
    EXPECT_TRUE(s.archive.fail());
}

TEST(LayerRead, AWrittenLayerWithIronsInItsBlockReadsBack)
{
    Layer written;
    written.version = 600;
    written.layerValue1 = 1;
    written.layerValue4 = 999999;
    written.lotCount = 1;
    Lot lot;
    lot.version = 600;
    lot.lotText = L"one";
    written.Add(lot);
    written.reinforcement.hasExternalIrons = true;
    StringArchive out;
    written.Write(out.archive);
    StringArchive in(out.Text());
    Layer read;
    EXPECT_TRUE(read.Read(in.archive));
    EXPECT_EQ(read.version, 600);
    EXPECT_EQ(read.layerValue1, 1);
    EXPECT_EQ(read.layerValue4, 999999);
    ASSERT_EQ(read.lots.size(), 1u);
    EXPECT_EQ(read.lots[0].lotText, L"one" + Blanks(17));
}

} // namespace
} // namespace ItUnitechnik

// The reinforcement block read back from what it wrote and from files, and
// where its reading stops.
#include "records/reinforcement/reinforcement.h"

#include "framework/read_idioms.h"
#include "records/reinforcement/braced_girder.h"
#include "records/reinforcement/reinforcement_test_support.h"
#include "records/reinforcement/rodstock.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <ios>
#include <string>

namespace ItUnitechnik {
namespace {

using ReinforcementTesting::firstMat502;
using ReinforcementTesting::somewhere;
using ReinforcementTesting::untouchedTextLine;
using Testing::StringArchive;

TEST(Reinforcement, BlockWithWellFormedIronsReadsBack)
{
    Reinforcement block;
    block.version = 600;
    block.matFlag = 1;
    block.firstText = L"first";
    block.appendSteelmat(L"ABCDE", 3000, 1200, 1, 0, 2, somewhere);
    block.appendSteelmat(L"FGHIJ", 3100, 1300, 0, 1, 3, somewhere);
    Rodstock bar(600);
    block.mats[1].rodstocks.appendRodstock(bar);
    block.hasExternalIrons = true;
    block.externalIrons.version = 600;
    ExternalIron iron;
    iron.ironCode = 2;
    iron.ironCount = 10;
    iron.ironValue = 1.5;
    iron.ironText = L"Anchor";
    block.externalIrons.appendIron(iron);
    StringArchive out;
    ASSERT_TRUE(block.Write(out.archive));

    StringArchive in(out.Text());
    Reinforcement back;
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_TRUE(in.archive.valid);
    EXPECT_TRUE(back.present);
    EXPECT_TRUE(back.hasExternalIrons);
    EXPECT_EQ(back.version, 600);
    EXPECT_EQ(back.firstText, L"first     ");
    EXPECT_EQ(back.secondText, L"    ");
    EXPECT_EQ(back.thirdText, L"        ");
    EXPECT_EQ(back.matFlag, 1);
    ASSERT_EQ(back.mats.size(), 2u);
    EXPECT_EQ(back.mats[0].name, L"               ABCDE");
    EXPECT_EQ(back.mats[0].matKind, 2);
    EXPECT_EQ(back.mats[1].number, 2);
    EXPECT_EQ(back.mats[1].rodstocks.bars.size(), 1u);
    EXPECT_EQ(back.externalIrons.version, 600);
    ASSERT_EQ(back.externalIrons.irons.size(), 1u);
    EXPECT_EQ(back.externalIrons.irons[0].ironText, L"                        Anchor");
}

TEST(Reinforcement, BlockWithoutIronsDoesNotReadBack)
{
    Reinforcement block;
    block.appendSteelmat(L"", 3000, 1200, 1, 0, 1, somewhere);
    StringArchive out;
    ASSERT_TRUE(block.Write(out.archive));

    StringArchive in(out.Text());
    Reinforcement back;
    EXPECT_FALSE(back.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
    EXPECT_FALSE(back.present);
    EXPECT_FALSE(back.hasExternalIrons);
    EXPECT_EQ(back.mats.size(), 1u); // the mats were read before the closing line failed
}

TEST(Reinforcement, BlockWithoutIronsReadsWhenASecondClosingLineFollows)
{
    StringArchive in(L"REFORCEM\n502\n" + untouchedTextLine + L"\nEND\nEND REFORCEM\nEND REFORCEM\n");
    Reinforcement back;
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_TRUE(back.present);
    EXPECT_FALSE(back.hasExternalIrons);
    EXPECT_TRUE(back.mats.empty());
}

TEST(Reinforcement, BlockFollowedByAnIronRecordDoesNotReadBack)
{
    // What an element writes when it holds a block and its own irons.
    Reinforcement block;
    block.version = 600;
    block.present = true;
    block.appendSteelmat(L"", 3000, 1200, 1, 0, 1, somewhere);
    ExternalIronData elementIrons;
    elementIrons.version = 600;
    StringArchive out;
    ASSERT_TRUE(block.Write(out.archive));
    ASSERT_TRUE(elementIrons.Write(out.archive));

    StringArchive in(out.Text() + L"END SLABDATE\n");
    Reinforcement back;
    EXPECT_FALSE(back.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
    EXPECT_FALSE(back.present);
    EXPECT_FALSE(back.hasExternalIrons);
}

TEST(Reinforcement, BarsAndBlockAt600DoNotReadBackInTheReadersOrder)
{
    // Bars are written before the block, but the reader looks for the block
    // first; after the bars it meets the block where it looks for girders
    // and irons.
    RodstockData bars;
    bars.version = 600;
    Rodstock bar(600);
    bars.appendRodstock(bar);
    Reinforcement block;
    block.version = 600;
    block.present = true;
    block.appendSteelmat(L"", 3000, 1200, 1, 0, 1, somewhere);
    StringArchive out;
    ASSERT_TRUE(bars.Write(out.archive));
    ASSERT_TRUE(block.Write(out.archive));

    StringArchive in(out.Text() + L"END SLABDATE\n");
    Archive& ar = in.archive;
    std::streampos start = ar.tellg();
    Reinforcement readBlock;
    EXPECT_FALSE(readBlock.Read(ar));
    ar.clear();
    ar.seekg(start);
    ar.valid = true;

    RodstockData readBars;
    EXPECT_TRUE(readBars.Read(ar));
    EXPECT_EQ(readBars.bars.size(), 1u);

    start = ar.tellg();
    BracedGirderData readGirders;
    EXPECT_FALSE(readGirders.Read(ar));
    ar.clear();
    ar.seekg(start);
    ar.valid = true;

    ExternalIronData readIrons;
    EXPECT_FALSE(readIrons.Read(ar));
    EXPECT_FALSE(ar.valid);
}

TEST(Reinforcement, MatsEndAtTheFirstThingThatIsNoMat)
{
    StringArchive in(L"REFORCEM\n502\n" + untouchedTextLine + L"\nEND\n" + firstMat502 + L"\n" +
                     L"EXTIRON_\n502\n000\nEND\nEND REFORCEM\n");
    Reinforcement back;
    EXPECT_TRUE(back.Read(in.archive));
    ASSERT_EQ(back.mats.size(), 1u);
    EXPECT_EQ(back.mats[0].firstDimension, 3000);
    EXPECT_TRUE(back.hasExternalIrons);
    EXPECT_TRUE(back.externalIrons.irons.empty());
}

TEST(Reinforcement, BrokenMatEndsTheListWithoutFailingTheBlock)
{
    StringArchive in(L"REFORCEM\n502\n" + untouchedTextLine + L"\nEND\n" + firstMat502 + L"\n" + L"STEELMAT XX\n" +
                     L"END REFORCEM\n");
    Reinforcement back;
    // Both rewinds put the stream at the start of the broken mat's line,
    // which the closing test then skips.
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_TRUE(back.present);
    ASSERT_EQ(back.mats.size(), 1u);
    EXPECT_FALSE(back.hasExternalIrons);
}

TEST(Reinforcement, AMatBrokenByParsingEndsTheLoopWhereItStopped)
{
    StringArchive in(L"REFORCEM\n502\n" + untouchedTextLine + L"\nEND\n" + firstMat502 + L"\n" +
                     L"STEELMAT\n502\nXX\n" + L"END REFORCEM\n");
    Reinforcement back;
    // A failure by parsing leaves the stream where it stopped, in the "XX"
    // line: the seek back does nothing, only the state is cleared. The irons'
    // tag test fails on "XX" and rewinds to that place, the closing skip drops
    // the rest of the line, and the closing tag follows.
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_TRUE(in.archive.valid);
    ASSERT_EQ(back.mats.size(), 1u);
    EXPECT_FALSE(back.hasExternalIrons);
}

TEST(Reinforcement, ReadAddsToTheMatsItHas)
{
    Reinforcement back;
    back.appendSteelmat(L"old", 1, 1, 0, 0, 1, somewhere);
    StringArchive in(L"REFORCEM\n502\n" + untouchedTextLine + L"\nEND\n" + firstMat502 + L"\n" +
                     L"EXTIRON_\n502\n000\nEND\nEND REFORCEM\n");
    EXPECT_TRUE(back.Read(in.archive));
    ASSERT_EQ(back.mats.size(), 2u);
    EXPECT_EQ(back.mats[0].name, L"old");
    EXPECT_EQ(back.mats[1].number, 1);
}

TEST(Reinforcement, WrongTagClearsValidAndReadsNothingMore)
{
    StringArchive in(L"REFORCEMX\n600\n");
    Reinforcement back;
    EXPECT_FALSE(back.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
    EXPECT_EQ(back.version, 502);
}

TEST(Reinforcement, MissingEndAfterTheTextLineClearsValid)
{
    StringArchive in(L"REFORCEM\n600\n" + untouchedTextLine + L"\nSTEELMAT\n");
    Reinforcement back;
    EXPECT_FALSE(back.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
    EXPECT_EQ(back.version, 600);
    EXPECT_FALSE(back.present);
}

TEST(Reinforcement, TextFieldsKeepTheirBlanks)
{
    StringArchive in(L"REFORCEM\n503\n"
                     L"AB        "
                     L" "
                     L"CD  "
                     L" "
                     L"EFG     "
                     L" 1\n"
                     L"END\n"
                     L"EXTIRON_\n503\n000\nEND\nEND REFORCEM\n");
    Reinforcement back;
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_EQ(back.version, 503);
    EXPECT_EQ(back.firstText, L"AB        ");
    EXPECT_EQ(back.secondText, L"CD  ");
    EXPECT_EQ(back.thirdText, L"EFG     ");
    EXPECT_EQ(back.matFlag, 1);
}

TEST(Reinforcement, ReadsABlockWithAMatAndItsOwnIronsFromAFile)
{
    StringArchive in(L"REFORCEM\n600\n"
                     L"first" +
                     std::wstring(5, L' ') + L" sec  third" + std::wstring(3, L' ') +
                     L" 1\n"
                     L"END\n"
                     L"STEELMAT\n600\n"
                     L"01 +00010 -00020 +00030 1 0 " +
                     std::wstring(15, L' ') + L"ABCDE 03000 01200 2\n" + std::wstring(20, L' ') + L"\n" +
                     std::wstring(20, L' ') +
                     L"\n"
                     L"END\n"
                     L"RODSTOCK\n600\n000\nEND\n"
                     L"BRGIRDER\n600\n000\nEND\n"
                     L"END STEELMAT\n"
                     L"EXTIRON_\n600\n001\n"
                     L"001 02 00010 001.500 " +
                     std::wstring(24, L' ') +
                     L"Anchor\n"
                     L"END\n"
                     L"END REFORCEM\n"
                     L"NEXT");
    Reinforcement block;
    EXPECT_TRUE(block.Read(in.archive));
    EXPECT_TRUE(block.present);
    EXPECT_TRUE(block.hasExternalIrons);
    EXPECT_EQ(block.version, 600);
    EXPECT_EQ(block.firstText, L"first     ");
    EXPECT_EQ(block.secondText, L"sec ");
    EXPECT_EQ(block.thirdText, L"third   ");
    EXPECT_EQ(block.matFlag, 1);
    ASSERT_EQ(block.mats.size(), 1u);
    EXPECT_EQ(block.mats[0].name, std::wstring(15, L' ') + L"ABCDE");
    EXPECT_EQ(block.mats[0].matKind, 2);
    EXPECT_EQ(block.externalIrons.version, 600);
    ASSERT_EQ(block.externalIrons.irons.size(), 1u);
    EXPECT_EQ(block.externalIrons.irons[0].ironCount, 10);
    EXPECT_EQ(ReadToken(in.archive), L"NEXT");
}

} // namespace
} // namespace ItUnitechnik

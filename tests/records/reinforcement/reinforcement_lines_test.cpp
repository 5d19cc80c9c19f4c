// The lines of the reinforcement block, its defaults, its mats and its own
// irons, a write that fails, and its copies.
#include "records/reinforcement/reinforcement.h"

#include "records/reinforcement/reinforcement_test_support.h"
#include "support/test_support.h"
#include "support/written.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ios>
#include <string>

namespace ItUnitechnik {
namespace {

using ReinforcementTesting::firstMat502;
using ReinforcementTesting::somewhere;
using ReinforcementTesting::untouchedTextLine;
using Testing::StringArchive;

using Testing::Written;

TEST(Reinforcement, Defaults)
{
    Reinforcement block;
    EXPECT_EQ(block.version, 502);
    EXPECT_EQ(block.matFlag, 0);
    EXPECT_EQ(block.externalIrons.version, 502);
    EXPECT_FALSE(block.hasExternalIrons);
    EXPECT_FALSE(block.present);
    EXPECT_TRUE(block.mats.empty());
}

TEST(Reinforcement, UntouchedBlock)
{
    Reinforcement block;
    EXPECT_EQ(untouchedTextLine.size(), 26u); // 10 + 1 + 4 + 1 + 8 + 2
    EXPECT_EQ(Written(block), L"REFORCEM\n502\n" + untouchedTextLine + L"\nEND\nEND REFORCEM\n");
}

TEST(Reinforcement, TextsAreCutToTheirPlaces)
{
    Reinforcement block;
    block.firstText = L"ABCDEFGHIJKL";
    block.secondText = L"WXYZQ";
    block.thirdText = L"123456789";
    block.matFlag = 1;
    EXPECT_EQ(Written(block), L"REFORCEM\n502\nABCDEFGHIJ WXYZ 12345678 1\nEND\nEND REFORCEM\n");
}

TEST(Reinforcement, ShortTextsAreLeftAligned)
{
    Reinforcement block;
    block.firstText = L"A";
    block.secondText = L"B";
    block.thirdText = L"C";
    EXPECT_EQ(Written(block), L"REFORCEM\n502\nA          B    C        0\nEND\nEND REFORCEM\n");
}

TEST(Reinforcement, AppendedMatsAreNumberedOneAndTwo)
{
    Reinforcement block;
    EXPECT_EQ(block.appendSteelmat(L"first", 3000, 1200, 1, 0, 1, somewhere), 1);
    EXPECT_EQ(block.appendSteelmat(L"second", 3000, 1200, 1, 0, 1, somewhere), 2);
    ASSERT_EQ(block.mats.size(), 2u);
    EXPECT_EQ(block.mats[0].number, 1);
    EXPECT_EQ(block.mats[0].name, L"first");
    EXPECT_EQ(block.mats[1].number, 2);
    EXPECT_EQ(block.mats[1].name, L"second");
}

TEST(Reinforcement, AppendedMatTakesTheArgumentsAndTheVersion)
{
    Reinforcement block;
    block.version = 600;
    const std::int32_t position[3] = {10, -20, 30};
    block.appendSteelmat(L"M", 2500, 1100, -7, 0, 65537, position);
    block.appendSteelmat(L"N", 1, 2, 0, 2, 3, position);
    ASSERT_EQ(block.mats.size(), 2u);
    const Steelmat& mat = block.mats[0];
    EXPECT_EQ(mat.version, 600);
    EXPECT_EQ(mat.rodstocks.version, 600);
    EXPECT_EQ(mat.girders.version, 600);
    EXPECT_EQ(mat.firstDimension, 2500);
    EXPECT_EQ(mat.secondDimension, 1100);
    EXPECT_TRUE(mat.firstFlag);
    EXPECT_FALSE(mat.secondFlag);
    EXPECT_EQ(mat.matKind, 65537);
    EXPECT_EQ(mat.positionX, 10);
    EXPECT_EQ(mat.positionY, -20);
    EXPECT_EQ(mat.positionZ, 30);
    EXPECT_FALSE(block.mats[1].firstFlag);
    EXPECT_TRUE(block.mats[1].secondFlag);
    // appending fills no member of the block itself
    EXPECT_FALSE(block.present);
    EXPECT_EQ(block.matFlag, 0);
}

TEST(Reinforcement, MatsAreWrittenWithALineEndEach)
{
    Reinforcement block;
    block.present = true;
    block.matFlag = 1;
    block.appendSteelmat(L"", 3000, 1200, 1, 0, 1, somewhere);
    block.appendSteelmat(L"ABCDE", 3000, 1200, 5, 0, 65537, somewhere);
    EXPECT_EQ(Written(block), L"REFORCEM\n502\n"
                              L"          "
                              L" "
                              L"    "
                              L" "
                              L"        "
                              L" 1\n"
                              L"END\n" +
                                  firstMat502 + L"\n" + L"STEELMAT\n502\n" + L"02 +00001 +00002 +00003 1 0 " +
                                  L"               ABCDE" + L" 03000 01200 1\n" + L"END\n" +
                                  L"RODSTOCK\n502\n000\nEND\n" + L"BRGIRDER\n502\n000\nEND\n" + L"END STEELMAT\n" +
                                  L"END REFORCEM\n");
}

TEST(Reinforcement, OwnIronsAreWrittenAtThreeDigitVersions)
{
    Reinforcement block;
    block.hasExternalIrons = true;
    EXPECT_EQ(Written(block),
              L"REFORCEM\n502\n" + untouchedTextLine + L"\nEND\n" + L"EXTIRON_\n502\n000\nEND\n" + L"END REFORCEM\n");
}

TEST(Reinforcement, OwnIronsStayOutAtVersionFive)
{
    Reinforcement block;
    block.version = 5;
    block.hasExternalIrons = true;
    EXPECT_EQ(Written(block), L"REFORCEM\n005\n" + untouchedTextLine + L"\nEND\nEND REFORCEM\n");
    block.version = 6;
    EXPECT_EQ(Written(block),
              L"REFORCEM\n006\n" + untouchedTextLine + L"\nEND\n" + L"EXTIRON_\n502\n000\nEND\n" + L"END REFORCEM\n");
}

TEST(Reinforcement, OwnIronsStayOutWhenNotRead)
{
    Reinforcement block;
    ExternalIron iron;
    block.externalIrons.appendIron(iron);
    EXPECT_EQ(Written(block), L"REFORCEM\n502\n" + untouchedTextLine + L"\nEND\nEND REFORCEM\n");
}

TEST(Reinforcement, WriteOnAFailedStreamRunsToItsEndAndReportsIt)
{
    Reinforcement block;
    block.appendSteelmat(L"", 1, 1, 0, 0, 1, somewhere);
    StringArchive s;
    s.archive.setstate(std::ios_base::badbit);
    EXPECT_FALSE(block.Write(s.archive));
    EXPECT_TRUE(s.Text().empty());
}

TEST(Reinforcement, CopyCarriesEveryMemberAndIsDeep)
{
    Reinforcement block;
    block.version = 600;
    block.present = true;
    block.hasExternalIrons = true;
    block.matFlag = 1;
    block.thirdText = L"t";
    block.appendSteelmat(L"M", 1, 1, 0, 0, 1, somewhere);
    ExternalIron iron;
    block.externalIrons.appendIron(iron);
    Reinforcement copy(block);
    copy.Add(Steelmat());
    copy.mats[0].name = L"changed";
    copy.externalIrons.irons.clear();
    EXPECT_TRUE(copy.present);
    EXPECT_TRUE(copy.hasExternalIrons);
    EXPECT_EQ(copy.version, 600);
    EXPECT_EQ(copy.matFlag, 1);
    EXPECT_EQ(copy.thirdText, L"t");
    EXPECT_EQ(copy.mats.size(), 2u);
    EXPECT_EQ(block.mats.size(), 1u);
    EXPECT_EQ(block.mats[0].name, L"M");
    EXPECT_EQ(block.externalIrons.irons.size(), 1u);

    Reinforcement assigned;
    assigned = copy;
    assigned.Clear();
    EXPECT_TRUE(assigned.mats.empty());
    EXPECT_EQ(copy.mats.size(), 2u);
    EXPECT_TRUE(assigned.present);
}

} // namespace
} // namespace ItUnitechnik

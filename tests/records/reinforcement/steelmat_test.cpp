#include "records/reinforcement/steelmat.h"

#include "framework/read_idioms.h"
#include "support/test_support.h"
#include "support/written.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

using Testing::Written;

// number, three positions, two flags, blank, name (20 blanks), blank, two
// dimensions and the kind 1.
const std::wstring defaultDataLine = L"00 +00000 +00000 +00000 0 0 "
                                     L"                    "
                                     L" 00000 00000 1";

const std::wstring emptyLists502 = L"RODSTOCK\n502\n000\nEND\n"
                                   L"BRGIRDER\n502\n000\nEND\n";

Steelmat MatAt(std::int16_t version)
{
    Steelmat mat;
    mat.version = version;
    mat.rodstocks.version = version;
    mat.girders.version = version;
    return mat;
}

TEST(Steelmat, Defaults)
{
    Steelmat mat;
    EXPECT_EQ(mat.version, 502);
    EXPECT_EQ(mat.number, 0);
    EXPECT_EQ(mat.matKind, 1);
    EXPECT_EQ(mat.rodstocks.version, 502);
    EXPECT_EQ(mat.girders.version, 502);
    EXPECT_FALSE(mat.firstFlag);
}

TEST(Steelmat, EmptyMatAt502)
{
    Steelmat mat;
    EXPECT_EQ(defaultDataLine.size(), 62u); // 28 + 20 + 14
    EXPECT_EQ(Written(mat), L"STEELMAT\n502\n" + defaultDataLine + L"\nEND\n" + emptyLists502 + L"END STEELMAT");
}

TEST(Steelmat, EmptyMatAt600HasTwoLinesOfTwentyBlanks)
{
    Steelmat mat = MatAt(600);
    EXPECT_EQ(Written(mat), L"STEELMAT\n600\n" + defaultDataLine + L"\n" + L"                    \n" +
                                L"                    \n" + L"END\n" + L"RODSTOCK\n600\n000\nEND\n" +
                                L"BRGIRDER\n600\n000\nEND\n" + L"END STEELMAT");
}

TEST(Steelmat, ExtraTextsAreLeftAlignedAndCut)
{
    Steelmat mat = MatAt(600);
    mat.extraTextA = L"first";
    mat.extraTextB = L"ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    EXPECT_EQ(Written(mat), L"STEELMAT\n600\n" + defaultDataLine + L"\n" + L"first               \n" +
                                L"ABCDEFGHIJKLMNOPQRST\n" + L"END\n" + L"RODSTOCK\n600\n000\nEND\n" +
                                L"BRGIRDER\n600\n000\nEND\n" + L"END STEELMAT");
}

TEST(Steelmat, ExtraTextsStayOutBelow600)
{
    Steelmat mat = MatAt(503);
    mat.extraTextA = L"first";
    EXPECT_EQ(Written(mat), L"STEELMAT\n503\n" + defaultDataLine + L"\nEND\n" + L"RODSTOCK\n503\n000\nEND\n" +
                                L"BRGIRDER\n503\n000\nEND\n" + L"END STEELMAT");
}

TEST(Steelmat, ShortNameStandsAtTheRightEnd)
{
    Steelmat mat;
    mat.number = 1;
    mat.positionX = 1;
    mat.positionY = 2;
    mat.positionZ = -3;
    mat.firstFlag = true;
    mat.name = L"ABCDE";
    mat.firstDimension = 3000;
    mat.secondDimension = 1200;
    mat.matKind = 2;
    EXPECT_EQ(Written(mat), L"STEELMAT\n502\n"
                            L"01 +00001 +00002 -00003 1 0 "
                            L"               ABCDE"
                            L" 03000 01200 2\n"
                            L"END\n" +
                                emptyLists502 + L"END STEELMAT");
}

TEST(Steelmat, LongNameIsCutToTwenty)
{
    Steelmat mat;
    mat.name = L"ABCDEFGHIJKLMNOPQRSTUVWXY";
    EXPECT_EQ(Written(mat), L"STEELMAT\n502\n"
                            L"00 +00000 +00000 +00000 0 0 "
                            L"ABCDEFGHIJKLMNOPQRST"
                            L" 00000 00000 1\n"
                            L"END\n" +
                                emptyLists502 + L"END STEELMAT");
}

TEST(Steelmat, KindIsWrittenFromItsLowSixteenBits)
{
    Steelmat mat;
    mat.matKind = 65537;
    EXPECT_EQ(Written(mat), L"STEELMAT\n502\n"
                            L"00 +00000 +00000 +00000 0 0 "
                            L"                    "
                            L" 00000 00000 1\n"
                            L"END\n" +
                                emptyLists502 + L"END STEELMAT");
    mat.matKind = 65535;
    EXPECT_EQ(Written(mat), L"STEELMAT\n502\n"
                            L"00 +00000 +00000 +00000 0 0 "
                            L"                    "
                            L" 00000 00000 -1\n"
                            L"END\n" +
                                emptyLists502 + L"END STEELMAT");
}

TEST(Steelmat, BarsAndGirdersAreWrittenInside)
{
    Steelmat mat;
    Rodstock bar(502);
    mat.rodstocks.appendRodstock(bar);
    BracedGirder girder;
    girder.thirdCode = L"000";
    mat.girders.appendGirder(girder);
    EXPECT_EQ(Written(mat), L"STEELMAT\n502\n" + defaultDataLine + L"\nEND\n" + L"RODSTOCK\n502\n001\n" +
                                L"001 000 0     00000 000 00000 +00000 +00000 +00000 +000            0\n" +
                                L"000 000 000 00000 00000 00000 000\n" + L"END\n" + L"BRGIRDER\n502\n001\n" +
                                L"001 000 00000            00000 +00000 +00000 +00000 +000 0\n" +
                                L"000 000 000 00.000 00 000 00000 000\n" + L"END\n" + L"END STEELMAT");
}

TEST(Steelmat, ShortNameReadsBackTwentyWide)
{
    Steelmat mat;
    mat.number = 3;
    mat.positionX = -150;
    mat.secondFlag = true;
    mat.name = L"ABCDE";
    mat.firstDimension = 2400;
    mat.matKind = 4;
    StringArchive out;
    ASSERT_TRUE(mat.Write(out.archive));

    StringArchive in(out.Text() + L"\n");
    Steelmat back;
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_EQ(back.number, 3);
    EXPECT_EQ(back.positionX, -150);
    EXPECT_FALSE(back.firstFlag);
    EXPECT_TRUE(back.secondFlag);
    EXPECT_EQ(back.name, L"               ABCDE");
    EXPECT_EQ(back.name.size(), 20u);
    EXPECT_EQ(back.firstDimension, 2400);
    EXPECT_EQ(back.matKind, 4);
}

TEST(Steelmat, ReadsItsVersionTextLinesAndLists)
{
    Steelmat mat = MatAt(600);
    mat.extraTextA = L"upper";
    mat.extraTextB = L"lower";
    Rodstock bar(600);
    bar.designation = L"B500A";
    mat.rodstocks.appendRodstock(bar);
    mat.rodstocks.appendRodstock(bar);
    BracedGirder girder;
    girder.thirdCode = L"000";
    girder.typeNumber = 8;
    mat.girders.appendGirder(girder);
    StringArchive out;
    ASSERT_TRUE(mat.Write(out.archive));

    StringArchive in(out.Text() + L"\n");
    Steelmat back; // its own version is 502: the one in the file decides
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_EQ(back.version, 600);
    EXPECT_EQ(back.extraTextA, L"upper               ");
    EXPECT_EQ(back.extraTextB, L"lower               ");
    EXPECT_EQ(back.rodstocks.version, 600);
    ASSERT_EQ(back.rodstocks.bars.size(), 2u);
    EXPECT_EQ(back.rodstocks.bars[1].number, 2);
    EXPECT_EQ(back.rodstocks.bars[1].designation, L"B500A     ");
    ASSERT_EQ(back.girders.girders.size(), 1u);
    EXPECT_EQ(back.girders.girders[0].typeNumber, 8);
}

TEST(Steelmat, WrongTagClearsValid)
{
    StringArchive s(L"END REFORCEM\n");
    Steelmat mat;
    EXPECT_FALSE(mat.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(Steelmat, MissingEndAfterTheDataLineClearsValid)
{
    StringArchive s(L"STEELMAT\n502\n" + defaultDataLine + L"\nRODSTOCK\n502\n000\nEND\n");
    Steelmat mat;
    EXPECT_FALSE(mat.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
}

TEST(Steelmat, MissingBarListFailsTheMat)
{
    StringArchive s(L"STEELMAT\n502\n" + defaultDataLine + L"\nEND\nBRGIRDER\n502\n000\nEND\nEND STEELMAT\n");
    Steelmat mat;
    EXPECT_FALSE(mat.Read(s.archive));
    EXPECT_FALSE(s.archive.valid); // cleared by the bar list's tag test
}

TEST(Steelmat, ClosingLineMustMatchExactly)
{
    StringArchive s(L"STEELMAT\n502\n" + defaultDataLine + L"\nEND\n" + emptyLists502 + L"END STEELMAT \n");
    Steelmat mat;
    EXPECT_FALSE(mat.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);

    StringArchive good(L"STEELMAT\n502\n" + defaultDataLine + L"\nEND\n" + emptyLists502 + L"END STEELMAT\r\n");
    Steelmat other;
    EXPECT_TRUE(other.Read(good.archive));
}

TEST(Steelmat, CopyIsDeepAndViewsItsOwnLists)
{
    Steelmat mat = MatAt(600);
    mat.name = L"M";
    Rodstock bar(600);
    mat.rodstocks.appendRodstock(bar);
    Steelmat copy(mat);
    copy.ItCollectionImpl<RodstockData>::Add(Rodstock(600));
    copy.ItCollectionImpl<BracedGirderData>::Add(BracedGirder());
    EXPECT_EQ(copy.version, 600);
    EXPECT_EQ(copy.name, L"M");
    EXPECT_EQ(copy.rodstocks.version, 600);
    EXPECT_EQ(copy.rodstocks.bars.size(), 2u);
    EXPECT_EQ(copy.girders.girders.size(), 1u);
    EXPECT_EQ(mat.rodstocks.bars.size(), 1u);
    EXPECT_TRUE(mat.girders.girders.empty());

    Steelmat assigned;
    assigned = copy;
    assigned.ItCollectionImpl<RodstockData>::Clear();
    EXPECT_TRUE(assigned.rodstocks.bars.empty());
    EXPECT_EQ(copy.rodstocks.bars.size(), 2u);
}

TEST(Steelmat, ReadsAMatOfVersion600FromAFile)
{
    StringArchive s(L"STEELMAT\n600\n"
                    L"01 +00010 -00020 +00030 1 0 " +
                    std::wstring(15, L' ') + L"ABCDE 03000 01200 2\n" + std::wstring(20, L' ') +
                    L"\n"
                    L"lower" +
                    std::wstring(15, L' ') +
                    L"\n"
                    L"END\n"
                    L"RODSTOCK\n600\n000\nEND\n"
                    L"BRGIRDER\n600\n000\nEND\n"
                    L"END STEELMAT\n"
                    L"NEXT");
    Steelmat mat;
    EXPECT_TRUE(mat.Read(s.archive));
    EXPECT_EQ(mat.version, 600);
    EXPECT_EQ(mat.number, 1);
    EXPECT_EQ(mat.positionX, 10);
    EXPECT_EQ(mat.positionY, -20);
    EXPECT_EQ(mat.positionZ, 30);
    EXPECT_TRUE(mat.firstFlag);
    EXPECT_FALSE(mat.secondFlag);
    EXPECT_EQ(mat.name, std::wstring(15, L' ') + L"ABCDE");
    EXPECT_EQ(mat.firstDimension, 3000);
    EXPECT_EQ(mat.secondDimension, 1200);
    EXPECT_EQ(mat.matKind, 2);
    EXPECT_EQ(mat.extraTextA, std::wstring(20, L' '));
    EXPECT_EQ(mat.extraTextB, L"lower" + std::wstring(15, L' '));
    EXPECT_EQ(mat.rodstocks.version, 600);
    EXPECT_EQ(mat.girders.version, 600);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(Steelmat, AFlagOtherThanZeroOrOneFailsTheStream)
{
    StringArchive s(L"STEELMAT\n502\n"
                    L"01 +00010 -00020 +00030 2 0 " +
                    std::wstring(15, L' ') +
                    L"ABCDE 03000 01200 2\n"
                    L"END\n" +
                    emptyLists502 + L"END STEELMAT\n");
    Steelmat mat;
    EXPECT_FALSE(mat.Read(s.archive));
    EXPECT_TRUE(s.archive.fail());
}

} // namespace
} // namespace ItUnitechnik

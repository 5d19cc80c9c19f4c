#include "framework/read_idioms.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

TEST(GetText, TakesAtMostTheWidthAndKeepsBlanks)
{
    StringArchive s(L"AB  CDEF\nX");
    std::wstring text;
    GetText(s.archive, 4, text);
    EXPECT_EQ(text, L"AB  ");
    GetText(s.archive, 10, text);
    EXPECT_EQ(text, L"CDEF");
    EXPECT_TRUE(Healthy(s.archive));
    GetText(s.archive, 3, text); // stands before the line feed: nothing to take
    EXPECT_TRUE(s.archive.fail());
}

TEST(SkipCharAndSkipLine, DropWhatTheyRead)
{
    StringArchive s(L"AB rest of line\nNEXT");
    SkipChar(s.archive);
    EXPECT_EQ(ReadToken(s.archive), L"B");
    SkipLine(s.archive);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(ReadLine, CutsAtTheLastCarriageReturn)
{
    StringArchive s(L"END HEADER__\r\nA\rB\rC\nlast");
    EXPECT_EQ(ReadLine(s.archive), L"END HEADER__");
    EXPECT_EQ(ReadLine(s.archive), L"A\rB");
    EXPECT_EQ(ReadLine(s.archive), L"last");
    EXPECT_TRUE(Healthy(s.archive));
    ReadLine(s.archive);
    EXPECT_FALSE(Healthy(s.archive));
}

TEST(ReadRestOfLine, KeepsTheCarriageReturn)
{
    StringArchive s(L"text\r\n");
    EXPECT_EQ(ReadRestOfLine(s.archive), L"text\r");
}

TEST(SkipWs, TextFieldsStartingWithABlank)
{
    StringArchive s(L"1  AB");
    int number = 0;
    s.archive >> number;
    ClearSkipWs(s.archive);
    std::wstring text;
    SkipChar(s.archive);
    GetText(s.archive, 3, text);
    EXPECT_EQ(text, L" AB");
    SetSkipWs(s.archive);
    EXPECT_TRUE(s.archive.flags() & std::ios_base::skipws);
}

TEST(Matches, LengthAndEveryCharacter)
{
    EXPECT_TRUE(Matches(L"END", L"END"));
    EXPECT_FALSE(Matches(L"END ", L"END"));
    EXPECT_FALSE(Matches(L"EN", L"END"));
    EXPECT_FALSE(Matches(L"END HEADER__ ", L"END HEADER__"));
}

TEST(Trim, BothEnds)
{
    std::wstring text = L" \tAB C\n ";
    Trim(text);
    EXPECT_EQ(text, L"AB C");
}

TEST(Trim, AllBlanksBecomeEmpty)
{
    std::wstring text = L"   ";
    Trim(text);
    EXPECT_EQ(text, L"");
    text.clear();
    Trim(text);
    EXPECT_EQ(text, L"");
}

TEST(Trim, ASignificantCharacterOnlyAtIndexZeroEmptiesTheText)
{
    std::wstring seven = L"7";
    Trim(seven);
    EXPECT_EQ(seven, L"");
    std::wstring sevenBlanks = L"7   ";
    Trim(sevenBlanks);
    EXPECT_EQ(sevenBlanks, L"");
    std::wstring blankSeven = L" 7";
    Trim(blankSeven);
    EXPECT_EQ(blankSeven, L"7");
    std::wstring twoCharacters = L"AB";
    Trim(twoCharacters);
    EXPECT_EQ(twoCharacters, L"AB");
}

TEST(Trim, CarriageReturnIsNotInTheSet)
{
    std::wstring text = L"AB\r";
    Trim(text);
    EXPECT_EQ(text, L"AB\r");
}

TEST(ExpectToken, TakesTheTagAndKeepsValid)
{
    StringArchive s(L"  RODSTOCK\n502");
    EXPECT_TRUE(ExpectToken(s.archive, L"RODSTOCK"));
    EXPECT_TRUE(s.archive.valid);
    int version = 0;
    s.archive >> version;
    EXPECT_EQ(version, 502);
}

TEST(ExpectToken, AnyOtherTokenClearsValid)
{
    for (const wchar_t* text : {L"RODSTOCKS", L"RODSTOC", L"BRGIRDER", L""}) {
        StringArchive s(text);
        EXPECT_FALSE(ExpectToken(s.archive, L"RODSTOCK")) << Testing::Narrow(text);
        EXPECT_FALSE(s.archive.valid);
    }
}

TEST(ExpectLine, TakesTheWholeLine)
{
    StringArchive s(L"END STEELMAT\r\nNEXT");
    EXPECT_TRUE(ExpectLine(s.archive, L"END STEELMAT"));
    EXPECT_TRUE(s.archive.valid);
    EXPECT_EQ(ReadToken(s.archive), L"NEXT");
}

TEST(ExpectLine, ALineWithMoreOnItClearsValid)
{
    StringArchive s(L"END STEELMAT \nEND STEELMAT\n");
    EXPECT_FALSE(ExpectLine(s.archive, L"END STEELMAT"));
    EXPECT_FALSE(s.archive.valid);
}

TEST(Healthy, BadThenFailThenValid)
{
    StringArchive s;
    EXPECT_TRUE(Healthy(s.archive));
    s.archive.valid = false;
    EXPECT_FALSE(Healthy(s.archive));
    s.archive.valid = true;
    s.archive.setstate(std::ios_base::failbit);
    EXPECT_FALSE(Healthy(s.archive));
}

TEST(Archive, StartsAsTheFormatNeedsIt)
{
    StringArchive s;
    EXPECT_TRUE(s.archive.valid);
    EXPECT_FALSE(s.archive.spareFlag);
    EXPECT_TRUE(s.archive.flags() & std::ios_base::skipws);
    EXPECT_EQ(s.archive.exceptions(), std::ios_base::goodbit);
}

// A record of one number on a line of its own, for the optional reads.
struct NumberLine {
    int value = 0;
    bool Read(Archive& ar)
    {
        ar >> value;
        SkipLine(ar);
        return Healthy(ar);
    }
};

TEST(Rewind, GoesBackAndForgetsTheFailure)
{
    StringArchive s(L"FIRST 12 x");
    EXPECT_EQ(ReadToken(s.archive), L"FIRST");
    const std::streampos at = s.archive.tellg();
    s.archive.valid = false;
    Rewind(s.archive, at);
    EXPECT_TRUE(s.archive.valid);
    int number = 0;
    s.archive >> number;
    EXPECT_EQ(number, 12);
    s.archive >> number; // fails on "x"
    EXPECT_TRUE(s.archive.fail());
    Rewind(s.archive, at);
    EXPECT_TRUE(s.archive.valid);
    EXPECT_FALSE(s.archive.fail());
}

TEST(ReadOrRewind, ARecordThatReadsStaysRead)
{
    StringArchive s(L"7\nEND\n");
    NumberLine line;
    EXPECT_TRUE(ReadOrRewind(s.archive, line));
    EXPECT_EQ(line.value, 7);
    EXPECT_EQ(ReadToken(s.archive), L"END");
}

TEST(ReadOrRewind, ARecordThatDoesNotReadLeavesTheStreamWhereItWas)
{
    StringArchive s(L"END\n");
    NumberLine line;
    s.archive.valid = false; // a failure before the try is forgotten too
    EXPECT_FALSE(ReadOrRewind(s.archive, line));
    EXPECT_TRUE(s.archive.valid);
    EXPECT_FALSE(s.archive.fail());
    EXPECT_EQ(ReadToken(s.archive), L"END");
}

TEST(ReadWhileThere, ReadsUpToTheFirstRecordThatDoesNotRead)
{
    StringArchive s(L"1\n2\n3\nEND\n");
    std::vector<NumberLine> lines;
    ReadWhileThere(s.archive, lines);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].value, 1);
    EXPECT_EQ(lines[2].value, 3);
    EXPECT_TRUE(Healthy(s.archive));
    EXPECT_EQ(ReadToken(s.archive), L"END");
}

TEST(ReadWhileThere, NoneThereIsNoFailure)
{
    StringArchive s(L"END\n");
    std::vector<NumberLine> lines;
    ReadWhileThere(s.archive, lines);
    EXPECT_TRUE(lines.empty());
    EXPECT_TRUE(Healthy(s.archive));
    EXPECT_EQ(ReadToken(s.archive), L"END");
}

TEST(ReadFlag, EveryCharacterButZeroSetsIt)
{
    StringArchive s(L"10 2X");
    EXPECT_TRUE(ReadFlag(s.archive));
    EXPECT_FALSE(ReadFlag(s.archive));
    EXPECT_TRUE(ReadFlag(s.archive)); // white space skipped before it
    EXPECT_TRUE(ReadFlag(s.archive));
    EXPECT_TRUE(Healthy(s.archive));
    EXPECT_FALSE(ReadFlag(s.archive)); // nothing left: the stream fails
    EXPECT_TRUE(s.archive.fail());
}

// A record that only counts the times it is asked to read.
struct CountedRead {
    int reads = 0;
    bool Read(Archive& /*ar*/)
    {
        ++reads;
        return true;
    }
};

TEST(ReadInTurn, EachReadsUntilTheFirstThatFails)
{
    StringArchive s(L"1\n2\nx\n4\n");
    NumberLine first;
    NumberLine second;
    EXPECT_TRUE(ReadInTurn(s.archive, first, second));
    EXPECT_EQ(first.value, 1);
    EXPECT_EQ(second.value, 2);
    NumberLine third; // meets the "x": the stream fails
    CountedRead fourth;
    EXPECT_FALSE(ReadInTurn(s.archive, third, fourth));
    EXPECT_EQ(fourth.reads, 0); // never asked to read
}

} // namespace
} // namespace ItUnitechnik

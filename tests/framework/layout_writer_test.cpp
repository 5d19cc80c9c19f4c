#include "framework/layout_writer.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

// A record of one field: a number two places wide.
struct Entry {
    std::uint32_t value = 0;
    bool Write(Archive& ar) { return WriteLayout(ar, *this); }
};

template <class IO>
void Layout(IO& io, Entry& entry)
{
    io.UInt(2, entry.value, "value");
}

std::vector<Entry> Entries(std::initializer_list<std::uint32_t> values)
{
    std::vector<Entry> entries;
    for (std::uint32_t value : values) {
        entries.push_back(Entry{value});
    }
    return entries;
}

TEST(LayoutWriter, ACountThenLinesWriteAListRecord)
{
    StringArchive s;
    std::vector<Entry> entries = Entries({7, 42});
    LayoutWriter io(s.archive);
    io.Tag("LISTTAG_");
    io.EndLine();
    const std::size_t count = io.Count(3, entries, "entries");
    io.EndLine();
    io.Lines(count, entries);
    io.Tag("END");
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(s.Text(), L"LISTTAG_\n\n002\n07\n42\nEND\n");
}

TEST(LayoutWriter, OwnLinesEndTheLineBeforeEachEntry)
{
    StringArchive s;
    std::vector<Entry> pieces = Entries({3, 14, 15});
    LayoutWriter io(s.archive);
    io.Literal("OUTLINE ");
    io.OwnLines(io.Count(2, pieces, "pieces"), pieces);
    EXPECT_EQ(s.Text(), L"OUTLINE 03\n03\n14\n15");
}

TEST(LayoutWriter, OwnLinesWithNoEntryStillEndTheLine)
{
    StringArchive s;
    std::vector<Entry> pieces;
    LayoutWriter io(s.archive);
    io.Literal("OUTLINE ");
    io.OwnLines(io.Count(2, pieces, "pieces"), pieces);
    EXPECT_EQ(s.Text(), L"OUTLINE 00\n");
}

TEST(LayoutWriter, ARunPutsABlankBeforeEachEntryAndARowBetweenThem)
{
    StringArchive s;
    std::vector<Entry> run = Entries({1, 2});
    std::array<Entry, 3> row{Entry{4}, Entry{5}, Entry{6}};
    LayoutWriter io(s.archive);
    io.Run(run.size(), run);
    io.Literal("|");
    io.Row(row);
    EXPECT_EQ(s.Text(), L" 01 02|04 05 06");
}

TEST(LayoutWriter, AFlagIsADigitAndAMemberMayBeWrittenInAnotherWidthOrNotBelowZero)
{
    StringArchive s;
    bool flag = true;
    std::int32_t wide = 0x12345;
    std::int32_t negative = -42;
    LayoutWriter io(s.archive);
    io.UInt(1, flag, "flag");
    io.Blank();
    io.UInt(5, As<std::int16_t>(wide), "wide");
    io.Blank();
    io.UInt(5, NotBelowZero{negative}, "negative");
    io.Constant(L'0');
    EXPECT_EQ(s.Text(), L"1 09029 000000");
    EXPECT_EQ(negative, -42);
}

TEST(LayoutWriter, PresentAndLineGoesOnAreTheWritersOwnConditions)
{
    StringArchive s;
    LayoutWriter io(s.archive);
    EXPECT_TRUE(io.Present(true, "ANYTAG__"));
    EXPECT_FALSE(io.Present(false, "ANYTAG__"));
    EXPECT_TRUE(io.LineGoesOn(true));
    EXPECT_FALSE(io.LineGoesOn(false));
    EXPECT_EQ(s.Text(), L"");
}

} // namespace
} // namespace ItUnitechnik

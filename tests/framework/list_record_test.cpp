#include "framework/list_record.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

// An entry of one field: a number two places wide, on a line of its own.
struct Entry {
    std::int16_t version = 0; // handed on by the list
    std::uint32_t value = 0;

    bool Write(Archive& ar)
    {
        ar << UInt(2, value, "value");
        return Healthy(ar);
    }
    bool Read(Archive& ar)
    {
        ar >> value;
        return Healthy(ar);
    }
};

std::vector<Entry> Entries(std::initializer_list<std::uint32_t> values)
{
    std::vector<Entry> entries;
    for (std::uint32_t value : values) {
        entries.push_back(Entry{0, value});
    }
    return entries;
}

TEST(WriteList, WritesTagVersionCountEntriesAndEnd)
{
    StringArchive s;
    std::vector<Entry> entries = Entries({7, 42});
    EXPECT_TRUE(WriteList(s.archive, &entries, 600, {"LISTTAG_", 3, "entries"}, entries));
    EXPECT_EQ(s.Text(), L"LISTTAG_\n600\n002\n07\n42\nEND\n");
}

TEST(WriteList, TheCountTakesItsOwnWidth)
{
    StringArchive s;
    std::vector<Entry> entries;
    EXPECT_TRUE(WriteList(s.archive, &entries, 502, {"LISTTAG_", 2, "entries"}, entries));
    EXPECT_EQ(s.Text(), L"LISTTAG_\n502\n00\nEND\n");
}

TEST(WritePieces, TheCountEndsNoLineAndEachPieceStandsOnALineOfItsOwn)
{
    StringArchive s;
    std::vector<Entry> pieces = Entries({3, 14, 15});
    s.archive << Literal("OUTLINE ");
    WritePieces(s.archive, pieces);
    EXPECT_EQ(s.Text(), L"OUTLINE 03\n03\n14\n15");
}

TEST(WritePieces, AnOutlineWithNoPieceStillEndsItsLine)
{
    StringArchive s;
    std::vector<Entry> pieces;
    s.archive << Literal("OUTLINE ");
    WritePieces(s.archive, pieces);
    EXPECT_EQ(s.Text(), L"OUTLINE 00\n");
}

TEST(ReadList, ReadsWhatWriteListWrote)
{
    StringArchive s(L"LISTTAG_\n601\n002\n07\n42\nEND\n");
    std::int16_t version = 0;
    std::vector<Entry> entries;
    EXPECT_TRUE(ReadList(
        s.archive, L"LISTTAG_", version,
        [&] {
            return Entry{version, 0};
        },
        entries));
    EXPECT_EQ(version, 601);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].version, 601);
    EXPECT_EQ(entries[0].value, 7u);
    EXPECT_EQ(entries[1].value, 42u);
}

TEST(ReadList, AnotherTagReadsNothingAndSpoilsTheArchive)
{
    StringArchive s(L"OTHERTAG\n601\n000\nEND\n");
    std::int16_t version = 0;
    std::vector<Entry> entries;
    EXPECT_FALSE(ReadList(
        s.archive, L"LISTTAG_", version, [] { return Entry{}; }, entries));
    EXPECT_EQ(version, 0);
    EXPECT_FALSE(s.archive.valid);
}

TEST(ReadList, AWrongEndSpoilsTheArchiveOrOnlyTheList)
{
    const std::wstring text = L"LISTTAG_\n600\n001\n07\nENDE\n";
    {
        StringArchive s(text);
        std::int16_t version = 0;
        std::vector<Entry> entries;
        EXPECT_FALSE(ReadList(
            s.archive, L"LISTTAG_", version, [] { return Entry{}; }, entries));
        EXPECT_FALSE(s.archive.valid);
        EXPECT_EQ(entries.size(), 1u);
    }
    {
        StringArchive s(text);
        std::int16_t version = 0;
        std::vector<Entry> entries;
        EXPECT_FALSE(ReadList(
            s.archive, L"LISTTAG_", version, [] { return Entry{}; }, entries, WrongEnd::failsList));
        EXPECT_TRUE(s.archive.valid);
        EXPECT_EQ(entries.size(), 1u);
    }
}

TEST(ReadList, EntriesThatDoNotReadAreNotKept)
{
    StringArchive s(L"LISTTAG_\n600\n003\n07\nxx\n");
    std::int16_t version = 0;
    std::vector<Entry> entries;
    EXPECT_FALSE(ReadList(
        s.archive, L"LISTTAG_", version, [] { return Entry{}; }, entries));
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].value, 7u);
}

} // namespace
} // namespace ItUnitechnik

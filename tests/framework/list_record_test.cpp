#include "framework/list_record.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

// An entry of one field: a number, on a line of its own.
struct Entry {
    std::int16_t version = 0; // handed on by the list
    std::uint32_t value = 0;

    bool Read(Archive& ar)
    {
        ar >> value;
        return Healthy(ar);
    }
};

TEST(ReadList, ReadsTagVersionCountEntriesAndEnd)
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

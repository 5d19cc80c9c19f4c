#include "records/reinforcement/external_iron.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

ExternalIron Iron(std::int32_t number, std::int32_t code, std::int32_t count, double value, const std::wstring& text)
{
    ExternalIron iron;
    iron.ironNumber = number;
    iron.ironCode = code;
    iron.ironCount = count;
    iron.ironValue = value;
    iron.ironText = text;
    return iron;
}

// 001 02 00010 001.500, a blank, 24 blanks and the six letters.
const wchar_t* const anchorLine = L"001 02 00010 001.500 "
                                  L"                        "
                                  L"Anchor";

TEST(ExternalIron, DefaultsAreCodeOneAndZeros)
{
    ExternalIron iron;
    EXPECT_EQ(iron.ironNumber, 0);
    EXPECT_EQ(iron.ironCode, 1);
    EXPECT_EQ(iron.ironCount, 0);
    EXPECT_EQ(iron.ironValue, 0.0);
    EXPECT_TRUE(iron.ironText.empty());
}

TEST(ExternalIron, AnchorLineHasItsTextAtTheRightEnd)
{
    ExternalIron iron = Iron(1, 2, 10, 1.5, L"Anchor");
    StringArchive s;
    EXPECT_TRUE(iron.Write(s.archive));
    EXPECT_EQ(std::wstring(anchorLine).size(), 51u);
    EXPECT_EQ(s.Text(), anchorLine);
}

TEST(ExternalIron, LongTextIsCutToThirty)
{
    ExternalIron iron = Iron(3, 1, 0, 0.0, L"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
    StringArchive s;
    EXPECT_TRUE(iron.Write(s.archive));
    EXPECT_EQ(s.Text(), L"003 01 00000 000.000 ABCDEFGHIJKLMNOPQRSTUVWXYZ0123");
}

TEST(ExternalIron, EmptyTextIsThirtyBlanksAndReadsBackAsThem)
{
    ExternalIron iron = Iron(1, 1, 0, 0.0, L"");
    StringArchive s;
    EXPECT_TRUE(iron.Write(s.archive));
    // 21 places of numbers and blanks, then 30 blanks
    EXPECT_EQ(s.Text(), L"001 01 00000 000.000 "
                        L"                              ");

    StringArchive in(s.Text() + L"\n");
    ExternalIron back;
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_EQ(back.ironText, L"                              ");
    EXPECT_EQ(back.ironText.size(), 30u);
}

TEST(ExternalIron, ValueIsRoundedToThreeDecimalsAndNeverCut)
{
    StringArchive s;
    ExternalIron rounded = Iron(1, 1, 1, 12.3456, L"X");
    EXPECT_TRUE(rounded.Write(s.archive));
    StringArchive wide;
    ExternalIron large = Iron(1, 1, 1, 1234.5, L"X");
    EXPECT_TRUE(large.Write(wide.archive));
    EXPECT_EQ(s.Text(), L"001 01 00001 012.346                              X");
    EXPECT_EQ(wide.Text(), L"001 01 00001 1234.500                              X");
}

TEST(ExternalIron, ReadsTheTextWithItsPadding)
{
    StringArchive s(std::wstring(anchorLine) + L"\r\n");
    ExternalIron iron;
    EXPECT_TRUE(iron.Read(s.archive));
    EXPECT_EQ(iron.ironNumber, 1);
    EXPECT_EQ(iron.ironCode, 2);
    EXPECT_EQ(iron.ironCount, 10);
    EXPECT_DOUBLE_EQ(iron.ironValue, 1.5);
    EXPECT_EQ(iron.ironText, L"                        Anchor");
}

TEST(ExternalIronData, EmptyRecord)
{
    ExternalIronData data;
    StringArchive s;
    EXPECT_TRUE(data.Write(s.archive));
    EXPECT_EQ(s.Text(), L"EXTIRON_\n502\n000\nEND\n");
}

TEST(ExternalIronData, VersionIsWrittenAsItStands)
{
    ExternalIronData data;
    data.version = 600;
    StringArchive s;
    EXPECT_TRUE(data.Write(s.archive));
    EXPECT_EQ(s.Text(), L"EXTIRON_\n600\n000\nEND\n");
}

TEST(ExternalIronData, RecordWithTheAnchorIron)
{
    ExternalIronData data;
    ExternalIron iron = Iron(0, 2, 10, 1.5, L"Anchor");
    data.appendIron(iron);
    StringArchive s;
    EXPECT_TRUE(data.Write(s.archive));
    EXPECT_EQ(s.Text(), std::wstring(L"EXTIRON_\n502\n001\n") + anchorLine + L"\nEND\n");
}

TEST(ExternalIronData, AppendNumbersOneTwoThree)
{
    ExternalIronData data;
    ExternalIron iron = Iron(77, 1, 0, 0.0, L"");
    data.appendIron(iron);
    EXPECT_EQ(iron.ironNumber, 1);
    data.appendIron(iron);
    EXPECT_EQ(iron.ironNumber, 2);
    data.appendIron(iron);
    EXPECT_EQ(iron.ironNumber, 3);
    ASSERT_EQ(data.irons.size(), 3u);
    EXPECT_EQ(data.irons[0].ironNumber, 1);
    EXPECT_EQ(data.irons[2].ironNumber, 3);
}

TEST(ExternalIronData, ReadsBack)
{
    StringArchive s(std::wstring(L"EXTIRON_\n600\n002\n") + anchorLine + L"\n002 01 00003 000.250 " +
                    std::wstring(26, L' ') + L"Hook\nEND\n");
    ExternalIronData data;
    EXPECT_TRUE(data.Read(s.archive));
    EXPECT_EQ(data.version, 600);
    ASSERT_EQ(data.irons.size(), 2u);
    EXPECT_EQ(data.irons[0].ironText, L"                        Anchor");
    EXPECT_EQ(data.irons[1].ironNumber, 2);
    EXPECT_EQ(data.irons[1].ironCount, 3);
    EXPECT_DOUBLE_EQ(data.irons[1].ironValue, 0.25);
    EXPECT_EQ(data.irons[1].ironText, L"                          Hook");
}

TEST(ExternalIronData, ReadAppendsToWhatIsThere)
{
    ExternalIronData data;
    data.Add(Iron(1, 1, 1, 1.0, L"old"));
    StringArchive s(std::wstring(L"EXTIRON_\n502\n001\n") + anchorLine + L"\nEND\n");
    EXPECT_TRUE(data.Read(s.archive));
    ASSERT_EQ(data.irons.size(), 2u);
    EXPECT_EQ(data.irons[0].ironText, L"old");
    EXPECT_EQ(data.irons[1].ironCode, 2);
}

TEST(ExternalIronData, WrongTagClearsValid)
{
    StringArchive s(L"EXTIRONX\n502\n000\nEND\n");
    ExternalIronData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_FALSE(s.archive.valid);
    EXPECT_EQ(data.version, 502);

    StringArchive shortTag(L"EXTIRON\n600\n000\nEND\n");
    EXPECT_FALSE(data.Read(shortTag.archive));
    EXPECT_FALSE(shortTag.archive.valid);
}

TEST(ExternalIronData, WrongEndClearsValid)
{
    StringArchive s(L"EXTIRON_\n600\n000\nEND REFORCEM\n");
    ExternalIronData data;
    EXPECT_TRUE(data.Read(s.archive)); // the token is END: the rest of the line is not looked at
    StringArchive wrong(L"EXTIRON_\n600\n000\nENDE\n");
    ExternalIronData other;
    EXPECT_FALSE(other.Read(wrong.archive));
    EXPECT_FALSE(wrong.archive.valid);
    EXPECT_EQ(other.version, 600);
}

TEST(ExternalIronData, FailedItemStopsTheAppends)
{
    StringArchive s(std::wstring(L"EXTIRON_\n502\n003\n") + anchorLine + L"\nXYZ\n" + anchorLine + L"\nEND\n");
    ExternalIronData data;
    EXPECT_FALSE(data.Read(s.archive));
    EXPECT_EQ(data.irons.size(), 1u);
}

TEST(ExternalIronData, CopyIsDeep)
{
    ExternalIronData data;
    data.version = 600;
    data.Add(Iron(1, 1, 1, 1.0, L"a"));
    ExternalIronData copy(data);
    copy.Add(Iron(2, 1, 1, 1.0, L"b"));
    copy.irons[0].ironText = L"changed";
    EXPECT_EQ(copy.version, 600);
    EXPECT_EQ(data.irons.size(), 1u);
    EXPECT_EQ(data.irons[0].ironText, L"a");
}

} // namespace
} // namespace ItUnitechnik

#include "framework/document_file_buffer.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cwchar>
#include <locale>
#include <string>
#include <utility>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::ReadFileBytes;
using Testing::TemporaryDirectory;
using Testing::Wide;

TEST(DocumentFileBuffer, OneBytePerCharacterAndCrLf)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    {
        DocumentFileBuffer buffer(Wide(path));
        ASSERT_TRUE(buffer.IsOpen());
        Archive ar(&buffer);
        ar << Text(4, L"A\u00E9\u00FF") << EndLine << Tag("END");
        EXPECT_TRUE(Healthy(ar));
    }
    EXPECT_EQ(ReadFileBytes(path), std::string("A\xE9\xFF \r\nEND\r\n"));
}

TEST(DocumentFileBuffer, ALineFeedInsideATextBecomesCrLf)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    {
        DocumentFileBuffer buffer(Wide(path));
        Archive ar(&buffer);
        ar << Text(5, L"A\nB") << EndLine;
    }
    EXPECT_EQ(ReadFileBytes(path), std::string("A\r\nB  \r\n"));
}

TEST(DocumentFileBuffer, ACharacterAboveFFBreaksTheRestOfTheFile)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    {
        DocumentFileBuffer buffer(Wide(path));
        Archive ar(&buffer);
        ar << Tag("FIRST") << Text(6, L"AB\u0100CD") << EndLine;
        EXPECT_TRUE(ar.bad());
        EXPECT_FALSE(Healthy(ar));
        ar << Tag("LATER");
    }
    EXPECT_EQ(ReadFileBytes(path), std::string("FIRST\r\nAB"));
}

// The lines written through a buffer whose put area holds `areaSize`
// characters, each line ended by the line end; the bytes of the file, and
// whether the stream was still healthy at the end.
std::pair<std::string, bool> WrittenThrough(std::size_t areaSize, const std::vector<std::wstring>& lines)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    bool healthy = false;
    {
        DocumentFileBuffer buffer(Wide(path), areaSize);
        Archive ar(&buffer);
        for (const std::wstring& line : lines) {
            ar << RText(static_cast<int>(line.size()), line) << EndLine;
        }
        healthy = Healthy(ar);
    }
    return {ReadFileBytes(path), healthy};
}

// Areas smaller than a line, around every boundary of these lines, and
// larger than the whole file.
const std::size_t areaSizes[] = {
    1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 17, DocumentFileBuffer::defaultAreaSize, 1 << 20};

TEST(DocumentFileBuffer, TheSameBytesThroughAreasOfAnySize)
{
    for (std::size_t areaSize : areaSizes) {
        SCOPED_TRACE(areaSize);
        const auto [bytes, healthy] = WrittenThrough(areaSize, {L"HEADER__", L"0012 A\u00E9B", L"", L"END"});
        EXPECT_EQ(bytes, std::string("HEADER__\r\n0012 A\xE9"
                                     "B\r\n\r\nEND\r\n"));
        EXPECT_TRUE(healthy);
    }
}

TEST(DocumentFileBuffer, ACharacterAboveFFAtTheStartWritesNothing)
{
    for (std::size_t areaSize : areaSizes) {
        SCOPED_TRACE(areaSize);
        const auto [bytes, healthy] = WrittenThrough(areaSize, {L"\u0100AB", L"CD"});
        EXPECT_EQ(bytes, std::string());
        EXPECT_FALSE(healthy);
    }
}

TEST(DocumentFileBuffer, ACharacterAboveFFInTheMiddleKeepsWhatCameBefore)
{
    for (std::size_t areaSize : areaSizes) {
        SCOPED_TRACE(areaSize);
        const auto [bytes, healthy] = WrittenThrough(areaSize, {L"AB", L"C\u20ACD", L"EF"});
        EXPECT_EQ(bytes, std::string("AB\r\nC"));
        EXPECT_FALSE(healthy);
    }
}

TEST(DocumentFileBuffer, ACharacterAboveFFAtTheBoundaryOfTheArea)
{
    // With areas of three, four and five characters the character above
    // U+00FF stands first in an area, last in one, or inside one.
    for (std::size_t areaSize : {std::size_t{3}, std::size_t{4}, std::size_t{5}}) {
        SCOPED_TRACE(areaSize);
        const auto first = WrittenThrough(areaSize, {L"ABC", L"\u0100", L"D"});
        EXPECT_EQ(first.first, std::string("ABC\r\n"));
        EXPECT_FALSE(first.second);
        const auto last = WrittenThrough(areaSize, {L"ABCD\u0100"});
        EXPECT_EQ(last.first, std::string("ABCD"));
        EXPECT_FALSE(last.second);
    }
}

// A line is made into bytes in one pass over all its characters; what comes
// out must not depend on where in the line the odd character stands.
TEST(DocumentFileBuffer, ACharacterAboveFFAtEveryPlaceOfALongLine)
{
    const std::size_t length = 70;
    for (std::size_t place = 0; place < length; ++place) {
        SCOPED_TRACE(place);
        std::wstring line(length, L'A');
        line[place] = L'\u0100';
        const auto [bytes, healthy] = WrittenThrough(DocumentFileBuffer::defaultAreaSize, {L"FIRST", line, L"LAST"});
        EXPECT_EQ(bytes, "FIRST\r\n" + std::string(place, 'A'));
        EXPECT_FALSE(healthy);
    }
}

TEST(DocumentFileBuffer, ALineFeedAtEveryPlaceOfALongLine)
{
    const std::size_t length = 70;
    for (std::size_t place = 0; place < length; ++place) {
        SCOPED_TRACE(place);
        std::wstring line(length, L'\u00E9');
        line[place] = L'\n';
        const auto [bytes, healthy] = WrittenThrough(DocumentFileBuffer::defaultAreaSize, {line, L"END"});
        EXPECT_EQ(bytes, std::string(place, '\xE9') + "\r\n" + std::string(length - 1 - place, '\xE9') + "\r\nEND\r\n");
        EXPECT_TRUE(healthy);
    }
}

#if WCHAR_MAX > 0xFFFF
// Where wchar_t is 32 bits wide, a character beyond the 16-bit range, and
// where it is signed, a negative one: both count as above U+00FF.
TEST(DocumentFileBuffer, ACharacterBeyondSixteenBitsOrNegativeBreaksTheFile)
{
    for (const wchar_t odd : {static_cast<wchar_t>(0x10041), static_cast<wchar_t>(WCHAR_MIN)}) {
        SCOPED_TRACE(static_cast<long long>(odd));
        std::wstring line = L"ABCDEFGHIJKLMNOPQRSTUVWXYZ";
        line[20] = odd;
        const auto [bytes, healthy] = WrittenThrough(DocumentFileBuffer::defaultAreaSize, {L"FIRST", line});
        EXPECT_EQ(bytes, std::string("FIRST\r\nABCDEFGHIJKLMNOPQRST"));
        EXPECT_FALSE(healthy);
    }
}
#endif

TEST(DocumentFileBuffer, TheStreamGoesBadByTheEndOfTheLine)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    DocumentFileBuffer buffer(Wide(path));
    Archive ar(&buffer);
    ar << Text(3, L"A\u0100B");
    ar << EndLine;
    EXPECT_TRUE(ar.bad());
    ar << Tag("LATER");
    buffer.Close();
    EXPECT_EQ(ReadFileBytes(path), std::string("A"));
}

TEST(DocumentFileBuffer, TheSameCharacterIsKeptInAStringBuffer)
{
    Testing::StringArchive s;
    s.archive << Text(3, L"A\u0100") << EndLine;
    EXPECT_EQ(s.Text(), L"A\u0100 \n");
    EXPECT_TRUE(Healthy(s.archive));
}

TEST(DocumentFileBuffer, CutsAnExistingFile)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    {
        DocumentFileBuffer buffer(Wide(path));
        Archive ar(&buffer);
        ar << Tag("A LONGER FIRST CONTENT");
    }
    {
        DocumentFileBuffer buffer(Wide(path));
        Archive ar(&buffer);
        ar << Tag("B");
    }
    EXPECT_EQ(ReadFileBytes(path), std::string("B\r\n"));
}

TEST(DocumentFileBuffer, AMissingDirectoryCreatesNothingAndTheFirstWriteFails)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("missing/a.txt");
    DocumentFileBuffer buffer(Wide(path));
    EXPECT_FALSE(buffer.IsOpen());
    Archive ar(&buffer);
    EXPECT_TRUE(Healthy(ar));
    ar << Tag("HEADER__");
    EXPECT_TRUE(ar.bad());
    EXPECT_FALSE(Testing::FileExists(path));
}

// A host on Linux shares our C++ runtime and may change the global locale; the
// numbers of the file must not move by one byte.
class CommaDecimalPoint : public std::numpunct<wchar_t> {
protected:
    wchar_t do_decimal_point() const override { return L','; }
    wchar_t do_thousands_sep() const override { return L'.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(Archive, IgnoresACommaDecimalGlobalLocale)
{
    auto writeNumbers = []() {
        Testing::StringArchive s;
        s.archive << Real(4, 3, 1234.5) << Blank << UInt(7, 1234567) << Blank << SInt(6, -1234567) << Blank
                  << Real(2, 1, -0.25);
        return s.Text();
    };
    const std::wstring before = writeNumbers();
    const std::locale previous = std::locale::global(std::locale(std::locale::classic(), new CommaDecimalPoint));
    const std::wstring during = writeNumbers();
    double read = 0;
    Testing::StringArchive in(L"12.5");
    in.archive >> read;
    std::locale::global(previous);
    EXPECT_EQ(before, L"1234.500 1234567 -1234567 -0.2");
    EXPECT_EQ(during, before);
    EXPECT_EQ(read, 12.5);
}

} // namespace
} // namespace ItUnitechnik

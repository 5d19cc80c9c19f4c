#include "platform/platform.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#ifdef _WIN32
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
#include <objbase.h>
#endif

namespace ItUnitechnik {
namespace {

using Platform::AllocateHostBlock;
using Platform::FreeHostBlock;
using Platform::OutputFile;
using Platform::ToUtf8;
using Platform::WriteAlternateStream;
using Testing::FileExists;
using Testing::ReadFileBytes;
using Testing::TemporaryDirectory;
using Testing::Wide;

std::wstring Units(std::initializer_list<unsigned> units)
{
    std::wstring text;
    for (unsigned unit : units) {
        text += static_cast<wchar_t>(unit);
    }
    return text;
}

TEST(ToUtf8, EmptyTextGivesEmptyString)
{
    EXPECT_EQ(ToUtf8(std::wstring()), std::string());
}

TEST(ToUtf8, AsciiStaysByteForByte)
{
    EXPECT_EQ(ToUtf8(L"C:\\x\\a.txt:order1"), std::string("C:\\x\\a.txt:order1"));
}

TEST(ToUtf8, CountHoldsNoTerminator)
{
    EXPECT_EQ(ToUtf8(L"abc").size(), 3u);
}

TEST(ToUtf8, ZeroInsideTheTextIsKept)
{
    EXPECT_EQ(ToUtf8(Units({'a', 0, 'b'})), std::string("a\0b", 3));
}

TEST(ToUtf8, LatinLetterTakesTwoBytes)
{
    EXPECT_EQ(ToUtf8(Units({0xE9})), std::string("\xC3\xA9"));
    EXPECT_EQ(ToUtf8(Units({0xFF})), std::string("\xC3\xBF"));
}

TEST(ToUtf8, CharacterAboveLatinTakesThreeBytes)
{
    EXPECT_EQ(ToUtf8(Units({0x20AC})), std::string("\xE2\x82\xAC"));
    EXPECT_EQ(ToUtf8(Units({0xFFFD})), std::string("\xEF\xBF\xBD"));
}

TEST(ToUtf8, SurrogatePairIsOneCharacterOfFourBytes)
{
    EXPECT_EQ(ToUtf8(Units({0xD83D, 0xDE00})), std::string("\xF0\x9F\x98\x80"));
}

TEST(ToUtf8, LoneSurrogateBecomesReplacementCharacter)
{
    EXPECT_EQ(ToUtf8(Units({'a', 0xD800, 'b'})), std::string("a\xEF\xBF\xBD"
                                                             "b"));
    EXPECT_EQ(ToUtf8(Units({0xDC00})), std::string("\xEF\xBF\xBD"));
}

TEST(OutputFile, WritesTheBytesAsGiven)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    {
        OutputFile file(Wide(path));
        ASSERT_TRUE(file.IsOpen());
        // No text mode underneath: a line feed stays one byte.
        EXPECT_TRUE(file.Write("A\r\nB\n\0\xFF", 7));
    }
    EXPECT_EQ(ReadFileBytes(path), std::string("A\r\nB\n\0\xFF", 7));
}

TEST(OutputFile, CutsAnExistingFile)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    {
        OutputFile file(Wide(path));
        EXPECT_TRUE(file.Write("a longer first content", 22));
    }
    {
        OutputFile file(Wide(path));
        EXPECT_TRUE(file.Write("ab", 2));
    }
    EXPECT_EQ(ReadFileBytes(path), std::string("ab"));
}

TEST(OutputFile, OpeningAloneLeavesAnEmptyFile)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    {
        OutputFile file(Wide(path));
        EXPECT_TRUE(file.IsOpen());
    }
    EXPECT_TRUE(FileExists(path));
    EXPECT_EQ(ReadFileBytes(path), std::string());
}

TEST(OutputFile, InMissingDirectoryIsNotOpenAndWritesNothing)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("missing/a.txt");
    OutputFile file(Wide(path));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_FALSE(file.Write("abc", 3));
    EXPECT_FALSE(FileExists(path));
}

TEST(OutputFile, OthersMayReadWhileItIsOpen)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    OutputFile file(Wide(path));
    ASSERT_TRUE(file.IsOpen());
    ASSERT_TRUE(file.Write("abc", 3));
    EXPECT_EQ(ReadFileBytes(path), std::string("abc"));
}

TEST(OutputFile, OthersMayWriteWhileItIsOpen)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    OutputFile first(Wide(path));
    ASSERT_TRUE(first.IsOpen());
    OutputFile second(Wide(path));
    EXPECT_TRUE(second.IsOpen());
    EXPECT_TRUE(second.Write("xy", 2));
}

TEST(OutputFile, MovingHandsTheFileOver)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    OutputFile first(Wide(path));
    OutputFile second(std::move(first));
    EXPECT_FALSE(first.IsOpen());
    EXPECT_FALSE(first.Write("no", 2));
    ASSERT_TRUE(second.IsOpen());
    EXPECT_TRUE(second.Write("yes", 3));
    OutputFile third;
    EXPECT_FALSE(third.IsOpen());
    third = std::move(second);
    EXPECT_FALSE(second.IsOpen());
    EXPECT_TRUE(third.Write("!", 1));
    third.Close();
    EXPECT_FALSE(third.IsOpen());
    third.Close();
    EXPECT_EQ(ReadFileBytes(path), std::string("yes!"));
}

TEST(WriteAlternateStream, WritesTheBlockBesideTheFile)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    {
        OutputFile file(Wide(path));
        ASSERT_TRUE(file.Write("main\r\n", 6));
    }
    const std::string block = std::string("legacy") + '\0' + std::string(33, ' ');
    ASSERT_EQ(block.size(), 40u);
    WriteAlternateStream(ToUtf8(Wide(path)) + ":order1", block.data(), block.size());
    EXPECT_EQ(ReadFileBytes(path + ":order1"), block);
    EXPECT_EQ(ReadFileBytes(path), std::string("main\r\n"));
    EXPECT_FALSE(FileExists(path + ":order0"));
}

TEST(WriteAlternateStream, DoesNotCutAnExistingStream)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    {
        OutputFile file(Wide(path));
        ASSERT_TRUE(file.IsOpen());
    }
    const std::string name = ToUtf8(Wide(path)) + ":order2";
    const std::string first(40, 'X');
    WriteAlternateStream(name, first.data(), first.size());
    WriteAlternateStream(name, "abc", 3);
    EXPECT_EQ(ReadFileBytes(path + ":order2"), "abc" + std::string(37, 'X'));
}

TEST(WriteAlternateStream, InMissingDirectoryIsPassedOver)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("missing/a.txt");
    WriteAlternateStream(ToUtf8(Wide(path)) + ":order0", "abc", 3);
    EXPECT_FALSE(FileExists(path + ":order0"));
    EXPECT_FALSE(FileExists(path));
}

TEST(HostBlock, CanBeFilledAndGivenBack)
{
    const std::size_t bytes = 2 * (5 + 1);
    void* block = AllocateHostBlock(bytes);
    ASSERT_NE(block, nullptr);
    std::memcpy(block, "a\0b\0c\0d\0e\0\0\0", bytes);
    EXPECT_EQ(std::memcmp(block, "a\0b\0c\0d\0e\0\0\0", bytes), 0);
#ifdef _WIN32
    // The host frees it with CoTaskMemFree: it must come from that allocator.
    IMalloc* allocator = nullptr;
    ASSERT_TRUE(SUCCEEDED(::CoGetMalloc(1, &allocator)));
    EXPECT_EQ(allocator->DidAlloc(block), 1);
    allocator->Release();
#endif
    FreeHostBlock(block);
    FreeHostBlock(nullptr);
}

} // namespace
} // namespace ItUnitechnik

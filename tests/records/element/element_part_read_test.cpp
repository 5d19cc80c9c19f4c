// An element read back from what it wrote, and from what it wrote with a
// fault put in.
#include "records/element/element_part.h"

#include "records/element/element_part_test_support.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace ItUnitechnik {
namespace {

using ElementPartTesting::AtVersion;
using ElementPartTesting::ExpectCommonMembers;
using ElementPartTesting::Filled;
using ElementPartTesting::ReadBack;
using Testing::Blanks;
using Testing::StringArchive;

TEST(ElementPartRead, ReadsBackAt502)
{
    const ElementPart written = Filled(502);
    const ElementPart read = ReadBack(written);
    ExpectCommonMembers(written, read);
    EXPECT_EQ(read.codeA4, L"4444");
    EXPECT_EQ(read.valueC11, 3);
    EXPECT_EQ(read.valueC12, 4);
    EXPECT_EQ(read.firstEdge, written.firstEdge);
    // The element text comes back with the blanks of its right-aligned field.
    EXPECT_EQ(read.elementText30, Blanks(20) + L"Floor slab");
}

TEST(ElementPartRead, ReadsBackAt600)
{
    const ElementPart written = Filled(600);
    const ElementPart read = ReadBack(written);
    ExpectCommonMembers(written, read);
    EXPECT_EQ(read.elementNumberText, L"34");
    EXPECT_EQ(read.textA40, Blanks(15) + L"forty characters are here");
    // Never written from 600: the pair stays absent.
    EXPECT_EQ(read.valueC11, -1);
    EXPECT_EQ(read.valueC12, -1);
    EXPECT_EQ(read.fourthPoint, written.fourthPoint);
    EXPECT_EQ(read.valueF1, 77);
    EXPECT_EQ(read.slabInfo1, Blanks(15) + L"first");
    EXPECT_EQ(read.slabInfo2, Blanks(14) + L"second");
}

TEST(ElementPartRead, TheNumberComesFromTheTextFrom600)
{
    for (const auto& [text, number] :
         std::vector<std::pair<std::wstring, int>>{{L"12A", 12}, {L"X9", 0}, {L"70000", 4464}, {L"-5", -5}}) {
        ElementPart element = Filled(600);
        element.elementNumberText = text;
        const ElementPart read = ReadBack(element);
        EXPECT_EQ(read.elementNumber, number) << std::string(text.begin(), text.end());
    }
}

TEST(ElementPartRead, AWrongStartTagClearsValid)
{
    StringArchive in(L"SLABDATX\n502\n");
    ElementPart element;
    EXPECT_FALSE(element.Read(in.archive));
    EXPECT_FALSE(in.archive.valid);
}

TEST(ElementPartRead, AWrongEndLeavesValidSoTheOrderKeepsTheElement)
{
    ElementPart written = Filled(502);
    StringArchive out;
    written.Write(out.archive);
    std::wstring text = out.Text();
    text.replace(text.find(L"\nEND\n"), 5, L"\nEMD\n");
    StringArchive in(text);
    ElementPart read;
    EXPECT_FALSE(read.Read(in.archive));
    EXPECT_TRUE(in.archive.valid);
}

TEST(ElementPartRead, From600MissingOutlineListsArePassedOver)
{
    // The number text must not be empty: the reader takes it as a token.
    ElementPart element = AtVersion(600);
    element.elementNumberText = L"1";
    StringArchive out;
    element.Write(out.archive);
    std::wstring text = out.Text();
    const std::wstring cutouts = L"CUTOUT__\n502\n00\nEND\n";
    text.erase(text.find(cutouts), cutouts.size());
    StringArchive in(text);
    ElementPart read;
    EXPECT_TRUE(read.Read(in.archive));

    // Below 600 the same gap fails the element.
    ElementPart old = AtVersion(502);
    StringArchive oldOut;
    old.Write(oldOut.archive);
    std::wstring oldText = oldOut.Text();
    oldText.erase(oldText.find(cutouts), cutouts.size());
    StringArchive oldIn(oldText);
    ElementPart oldRead;
    EXPECT_FALSE(oldRead.Read(oldIn.archive));
}

TEST(ElementPartRead, AContourListWithAWrongClosingTokenIsTakenAsRead)
{
    // The list's own Read fails, but it leaves the stream and `valid` as
    // they were, and only they decide for the element.
    for (const std::int16_t version : {std::int16_t{502}, std::int16_t{600}}) {
        ElementPart element = AtVersion(version);
        element.elementNumberText = L"1";
        element.contourData.Add(Contour(502));
        StringArchive out;
        ASSERT_TRUE(element.Write(out.archive));
        std::wstring text = out.Text();
        const std::wstring closing = L"END\nCUTOUT__";
        const std::size_t at = text.find(closing);
        ASSERT_NE(at, std::wstring::npos);
        text.replace(at, 3, L"EXT");
        StringArchive in(text);
        ElementPart read;
        EXPECT_TRUE(read.Read(in.archive)) << version;
        EXPECT_TRUE(in.archive.valid);
        EXPECT_EQ(read.contourData.contours.size(), 1u);
    }
}

} // namespace
} // namespace ItUnitechnik

// The tolerant reading: every golden file reads back and is written again to
// the same bytes; a file cut off, a bare line end and bytes behind the last
// order are told where they stand.

#include "reading/tolerant_reading.h"

#include "exports/document.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::DescribeDifference;
using Testing::ReadFileBytes;
using Testing::TemporaryDirectory;

// The bytes the library writes for these orders.
std::string Written(const std::vector<Order>& orders)
{
    TemporaryDirectory directory;
    Document document;
    document.orders = orders;
    const std::string path = directory.File("written.uni");
    document.Save(std::wstring(path.begin(), path.end()));
    return ReadFileBytes(path);
}

std::vector<std::string> GoldenDocuments()
{
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ITUNITECHNIK_GOLDEN_DIR)) {
        const std::string name = entry.path().filename().string();
        // The summaries are no files of the format.
        if (entry.is_regular_file() && name.rfind("summary", 0) != 0) {
            paths.push_back(entry.path().string());
        }
    }
    return paths;
}

TEST(TolerantReading, EveryGoldenFileReadsBackToTheSameBytes)
{
    const std::vector<std::string> paths = GoldenDocuments();
    ASSERT_GE(paths.size(), 15u);
    for (const std::string& path : paths) {
        const std::string bytes = ReadFileBytes(path);
        const TolerantDocument document = ReadTolerantly(bytes);
        ASSERT_TRUE(document.Complete()) << path << ": " << document.stop->expected << " at line "
                                         << document.stop->line << ", column " << document.stop->column;
        EXPECT_TRUE(document.bareLineEnds.empty()) << path;
        EXPECT_EQ(DescribeDifference(bytes, Written(document.orders)), "") << path;
    }
}

TEST(TolerantReading, AnEmptyFileIsAnEmptyDocument)
{
    const TolerantDocument document = ReadTolerantly("");
    EXPECT_TRUE(document.Complete());
    EXPECT_TRUE(document.orders.empty());
}

std::string Golden(const char* name)
{
    return ReadFileBytes(std::string(ITUNITECHNIK_GOLDEN_DIR) + "/" + name);
}

TEST(TolerantReading, AFileCutOffByACharacterItCannotTakeReadsAsFarAsItGoes)
{
    TemporaryDirectory directory;
    const std::string path = directory.File("cut.uni");
    theDocument.orders.clear();
    const double placement[9] = {0, 0, 0, 6000, 0, 0, 0, 2400, 0};
    startOrder(1, 101, placement, 600, Testing::HostText(u"Slab"), 1.25, true);
    // The writer stops at the first character above U+00FF.
    setSlabInfoFields(Testing::HostText(u"North"), Testing::HostText(u"Ab\u0100c"), Testing::HostText(u""),
                      Testing::HostText(u""));
    endDocument(reinterpret_cast<const it_char16*>(std::u16string(path.begin(), path.end()).c_str()));
    theDocument.orders.clear();
    const std::string bytes = ReadFileBytes(path);
    // Twenty places at the right end: sixteen blanks, then "Ab" and no more.
    ASSERT_EQ(bytes.substr(bytes.size() - 20), "\r\n" + std::string(16, ' ') + "Ab");

    const TolerantDocument document = ReadTolerantly(bytes);
    ASSERT_FALSE(document.Complete());
    EXPECT_TRUE(document.stop->atEnd);
    EXPECT_FALSE(document.trailingData);
    EXPECT_EQ(document.stop->record, "SLABDATE");
    // The second slab information line is the last line of the file; the
    // field stops after its 20 places would have begun.
    std::size_t lines = 1;
    for (char c : bytes) {
        lines += c == '\n' ? 1 : 0;
    }
    EXPECT_EQ(document.stop->line, lines);
    EXPECT_EQ(document.stop->column, 1u);
    ASSERT_EQ(document.orders.size(), 1u);
    ASSERT_EQ(document.orders[0].elementParts.size(), 1u);
    EXPECT_EQ(document.orders[0].elementParts[0].slabInfo1, std::wstring(15, L' ') + L"North");
}

TEST(TolerantReading, ABareLineFeedIsTakenAndNoted)
{
    std::string bytes = Golden("orders/one-502.txt");
    const std::size_t third = bytes.find("\r\n", bytes.find("\r\n") + 2);
    bytes.erase(third, 1);
    const TolerantDocument document = ReadTolerantly(bytes);
    EXPECT_TRUE(document.Complete());
    EXPECT_EQ(document.bareLineEnds, std::vector<std::size_t>{2});
}

TEST(TolerantReading, BytesBehindTheLastOrderAreTrailingData)
{
    const std::string whole = Golden("orders/two-600-501.txt");
    const TolerantDocument document = ReadTolerantly(whole + "END\r\n");
    ASSERT_FALSE(document.Complete());
    EXPECT_TRUE(document.trailingData);
    EXPECT_EQ(document.orders.size(), 2u);
    EXPECT_EQ(document.stop->column, 1u);
    EXPECT_EQ(document.stop->expected, "\"HEADER__\" or the end of the file");
}

TEST(TolerantReading, AFieldThatIsNotThereIsToldByLineAndColumn)
{
    std::string bytes = Golden("orders/one-502.txt");
    // The version's line: "502" becomes "5x2".
    bytes[bytes.find("502") + 1] = 'x';
    const TolerantDocument document = ReadTolerantly(bytes);
    ASSERT_FALSE(document.Complete());
    EXPECT_FALSE(document.trailingData);
    EXPECT_EQ(document.stop->line, 2u);
    EXPECT_EQ(document.stop->column, 1u);
    EXPECT_EQ(document.stop->expected, "a number of at least 3 places");
    EXPECT_EQ(document.stop->record, "HEADER__");
}

} // namespace
} // namespace ItUnitechnik

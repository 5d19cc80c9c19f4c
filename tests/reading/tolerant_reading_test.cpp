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

} // namespace
} // namespace ItUnitechnik

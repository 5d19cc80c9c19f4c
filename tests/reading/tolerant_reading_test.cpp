// The tolerant reading: every golden file reads back and is written again to
// the same bytes, and so does every golden file whose lines lost their
// trailing blanks, whose last line lost its end or whose lines end in bare
// line feeds; a file cut off, a bare line end and bytes behind the last order
// are told where they stand.

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
        // The writer's own lines need none of the departures of other hands.
        EXPECT_EQ(document.departures.count(Departure::trailingBlanksLost), 0u) << path;
        EXPECT_EQ(document.departures.count(Departure::noFinalLineEnd), 0u) << path;
        EXPECT_EQ(document.departures.count(Departure::bareLineFeeds), 0u) << path;
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

// The golden files as other hands pass them on: each file with lines, and the
// same file changed line by line.
struct Changed {
    std::string path;
    std::string original;
    std::string changed;
};

std::vector<Changed> GoldenFilesChanged(std::string (*change)(const std::string&))
{
    std::vector<Changed> files;
    for (const std::string& path : GoldenDocuments()) {
        const std::string bytes = ReadFileBytes(path);
        if (bytes.find("\r\n") != std::string::npos) {
            files.push_back(Changed{path, bytes, change(bytes)});
        }
    }
    return files;
}

// Every blank in front of a CR LF dropped, as an editor drops them.
std::string WithoutTrailingBlanks(const std::string& bytes)
{
    std::string out;
    for (char c : bytes) {
        if (c == '\r') {
            while (!out.empty() && out.back() == ' ') {
                out.pop_back();
            }
        }
        out += c;
    }
    return out;
}

std::string WithoutLastLineEnd(const std::string& bytes)
{
    return bytes.substr(0, bytes.size() - 2);
}

std::string WithBareLineFeeds(const std::string& bytes)
{
    std::string out;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (!(bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n')) {
            out += bytes[i];
        }
    }
    return out;
}

// The file read whole to the records of the original, which the writer
// writes again to the original's bytes.
void ExpectSameRecords(const Changed& file, const TolerantDocument& document)
{
    ASSERT_TRUE(document.Complete()) << file.path << ": " << document.stop->expected << " at line "
                                     << document.stop->line << ", column " << document.stop->column;
    EXPECT_EQ(DescribeDifference(file.original, Written(document.orders)), "") << file.path;
}

TEST(TolerantReading, EveryGoldenFileWithoutItsTrailingBlanksReadsToTheSameRecords)
{
    const std::vector<Changed> files = GoldenFilesChanged(WithoutTrailingBlanks);
    ASSERT_GE(files.size(), 15u);
    for (const Changed& file : files) {
        // Every golden file has lines that end in blanks: in its third line
        // at the least.
        ASSERT_LT(file.changed.size(), file.original.size()) << file.path;
        const TolerantDocument document = ReadTolerantly(file.changed);
        ExpectSameRecords(file, document);
        EXPECT_EQ(document.departures.count(Departure::trailingBlanksLost), 1u) << file.path;
        EXPECT_TRUE(document.bareLineEnds.empty()) << file.path;
    }
}

TEST(TolerantReading, EveryGoldenFileWithoutItsLastLineEndReadsWhole)
{
    const std::vector<Changed> files = GoldenFilesChanged(WithoutLastLineEnd);
    ASSERT_GE(files.size(), 15u);
    for (const Changed& file : files) {
        ASSERT_EQ(file.changed + "\r\n", file.original) << file.path;
        const TolerantDocument document = ReadTolerantly(file.changed);
        ExpectSameRecords(file, document);
        EXPECT_EQ(document.departures.count(Departure::noFinalLineEnd), 1u) << file.path;
        EXPECT_EQ(document.departures.count(Departure::trailingBlanksLost), 0u) << file.path;
    }
}

TEST(TolerantReading, EveryGoldenFileWithBareLineFeedsReadsToTheSameRecords)
{
    const std::vector<Changed> files = GoldenFilesChanged(WithBareLineFeeds);
    ASSERT_GE(files.size(), 15u);
    for (const Changed& file : files) {
        const TolerantDocument document = ReadTolerantly(file.changed);
        ExpectSameRecords(file, document);
        EXPECT_EQ(document.departures.count(Departure::bareLineFeeds), 1u) << file.path;
        // Every line: line 1, 2, ... up to the last.
        std::vector<std::size_t> lines;
        for (std::size_t at = file.original.find("\r\n"); at != std::string::npos;
             at = file.original.find("\r\n", at + 2)) {
            lines.push_back(lines.size() + 1);
        }
        EXPECT_EQ(document.bareLineEnds, lines) << file.path;
    }
}

// All three at once, as a file edited where lines end in a line feed.
std::string AsEditedElsewhere(const std::string& bytes)
{
    return WithBareLineFeeds(WithoutTrailingBlanks(WithoutLastLineEnd(bytes)));
}

TEST(TolerantReading, EveryGoldenFileEditedElsewhereReadsToTheSameRecords)
{
    for (const Changed& file : GoldenFilesChanged(AsEditedElsewhere)) {
        const TolerantDocument document = ReadTolerantly(file.changed);
        ExpectSameRecords(file, document);
        EXPECT_EQ(document.departures.count(Departure::trailingBlanksLost), 1u) << file.path;
        EXPECT_EQ(document.departures.count(Departure::noFinalLineEnd), 1u) << file.path;
        EXPECT_EQ(document.departures.count(Departure::bareLineFeeds), 1u) << file.path;
    }
}

TEST(TolerantReading, ATextCutShortByItsLineEndReadsAsItsFieldWithBlanks)
{
    const std::string whole = Golden("slab/slab-502.txt");
    ASSERT_NE(whole.find("\r\nBlock C             \r\n"), std::string::npos);
    ASSERT_NE(whole.find("\r\n70565   \r\n"), std::string::npos);
    const TolerantDocument document = ReadTolerantly(WithoutTrailingBlanks(whole));
    ASSERT_TRUE(document.Complete()) << document.stop->expected << " at line " << document.stop->line;
    ASSERT_EQ(document.orders.size(), 1u);
    const Order& order = document.orders[0];
    // Twenty places, eight places: the text and the blanks behind it.
    EXPECT_EQ(order.project.projectText2, L"Block C             ");
    EXPECT_EQ(order.firstAddress.addressText3, L"70565   ");
    // The line's last blank and forty places, all of them lost.
    EXPECT_EQ(order.legacyText40, std::wstring(40, L' '));

    // A text line left empty: the field's twenty blanks.
    const std::string blank = Golden("orders/one-502.txt");
    ASSERT_EQ(blank.substr(blank.find("\r\n", blank.find("502\r\n") + 5) + 2, 22), std::string(20, ' ') + "\r\n");
    const TolerantDocument empty = ReadTolerantly(WithoutTrailingBlanks(blank));
    ASSERT_TRUE(empty.Complete()) << empty.stop->expected << " at line " << empty.stop->line;
    EXPECT_EQ(empty.orders.at(0).project.projectText1, L"                    ");
}

TEST(TolerantReading, ANumberCutShortByItsLineEndStillStops)
{
    // Numbers are filled with zeros, never with blanks: "502" cut to "50"
    // is no lost blank.
    std::string bytes = WithoutTrailingBlanks(Golden("orders/one-502.txt"));
    bytes.erase(bytes.find("502\r\n") + 2, 1);
    const TolerantDocument document = ReadTolerantly(bytes);
    ASSERT_FALSE(document.Complete());
    EXPECT_EQ(document.stop->line, 2u);
    EXPECT_EQ(document.stop->column, 1u);
    EXPECT_EQ(document.stop->expected, "a number of at least 3 places");
}

TEST(TolerantReading, AFileCutOffBeforeAnEmptyLineHasNoLineEndMissing)
{
    // A free form without parts ends its line and leaves an empty one; the
    // file cut off behind the first of the two line ends stops there, and
    // the line it ends in is not taken for a last line without its end.
    const std::string whole = Golden("reinforced/reinforced-600.txt");
    const std::size_t form = whole.find("\r\n    00\r\n\r\n");
    ASSERT_NE(form, std::string::npos);
    const TolerantDocument document = ReadTolerantly(whole.substr(0, form + 10));
    ASSERT_FALSE(document.Complete());
    EXPECT_TRUE(document.stop->atEnd);
    EXPECT_EQ(document.stop->line, 98u);
    EXPECT_EQ(document.stop->column, 1u);
    EXPECT_EQ(document.stop->expected, "the end of the line");
    EXPECT_EQ(document.departures.count(Departure::noFinalLineEnd), 0u);
}

} // namespace
} // namespace ItUnitechnik

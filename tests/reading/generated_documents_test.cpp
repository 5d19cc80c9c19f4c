// Documents made through every export with random but valid values, at
// versions from 0 to 65535 with the edges where the layout changes: each file
// reads back tolerantly and is written again to the same bytes.

#include "reading/tolerant_reading.h"

#include "exports/document.h"
#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::DescribeDifference;
using Testing::ReadFileBytes;
using Testing::TemporaryDirectory;

class Generator {
public:
    explicit Generator(std::uint32_t seed) : random_(seed) {}

    int Between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    bool Chance(int percent) { return Between(1, 100) <= percent; }
    double Real() { return Between(-2000000, 20000000) / 1000.0; }

    // A host's text: blanks, digits, letters, Latin-1 letters, now and then a
    // line feed or a carriage return; never a character the file cannot take.
    std::u16string Text(int longest)
    {
        static const char16_t kinds[] = u" 0123456789ABCDEFXYZabcxyz-./\u00e4\u00f6\u00fc\u00df\u00ff";
        std::u16string text;
        const int length = Between(0, longest);
        for (int i = 0; i < length; ++i) {
            if (Chance(2)) {
                text += Chance(50) ? u'\n' : u'\r';
            } else {
                text += kinds[Between(0, static_cast<int>(sizeof(kinds) / sizeof(kinds[0])) - 2)];
            }
        }
        return text;
    }

    const it_char16* Host(std::u16string text)
    {
        texts_.push_back(std::move(text));
        return reinterpret_cast<const it_char16*>(texts_.back().c_str());
    }

    std::int32_t Coordinate() { return Chance(20) ? Between(-50000, 0) : Between(0, 200000); }

    void Reset() { texts_.clear(); }

private:
    std::mt19937 random_;
    // A deque: a text handed out keeps its place while more are added.
    std::deque<std::u16string> texts_{};
};

uint16_t Version(Generator& g, int index)
{
    static const int edges[] = {0, 1, 5, 499, 500, 501, 502, 503, 599, 600, 601, 999, 1000, 32767, 32768, 65535};
    const int count = static_cast<int>(sizeof(edges) / sizeof(edges[0]));
    return static_cast<uint16_t>(index < count * 3 ? edges[index % count] : g.Between(0, 65535));
}

void ProjectData(Generator& g)
{
    std::vector<const it_char16*> texts(IT_PROJECT_TEXT_COUNT);
    for (int i = 0; i < IT_PROJECT_TEXT_COUNT; ++i) {
        texts[i] = g.Host(g.Text(45));
    }
    // The date is read by its places: two digits, a dot, two, a dot, four.
    char16_t date[11];
    const int day = g.Between(1, 31);
    const int month = g.Between(1, 12);
    const int year = g.Between(0, 9999);
    const std::string digits = (day < 10 ? "0" : "") + std::to_string(day) + "." + (month < 10 ? "0" : "") +
                               std::to_string(month) + "." + std::string(4 - std::to_string(year).size(), '0') +
                               std::to_string(year);
    for (int i = 0; i < 10; ++i) {
        date[i] = static_cast<char16_t>(digits[static_cast<std::size_t>(i)]);
    }
    date[10] = 0;
    texts[IT_PROJECT_DATE] = g.Host(date);
    setProjectData(texts.data());
}

std::vector<int32_t> Points(Generator& g, int count)
{
    std::vector<int32_t> points;
    for (int i = 0; i < 2 * count; ++i) {
        points.push_back(g.Coordinate());
    }
    return points;
}

void Outline(Generator& g)
{
    for (int n = g.Between(0, 3); n > 0; --n) {
        const int count = g.Between(0, 8);
        const std::vector<int32_t> points = Points(g, count);
        addContour(count, points.data());
    }
    for (int n = g.Between(0, 2); n > 0; --n) {
        ItCutoutBlock block{};
        block.cutoutName = g.Host(g.Text(50));
        block.cutoutValue = g.Real();
        block.pointCount = static_cast<uint16_t>(g.Between(0, 6));
        const std::vector<int32_t> points = Points(g, block.pointCount);
        addCutout(&block, points.data());
    }
    for (int n = g.Between(0, 2); n > 0; --n) {
        std::vector<int32_t> values = {g.Between(-999, 99999), g.Between(-99999, 99999)};
        const std::vector<int32_t> pieces = Points(g, 2 * g.Between(0, 3));
        values.insert(values.end(), pieces.begin(), pieces.end());
        addSet(3, g.Host(g.Text(45)), static_cast<int32_t>(values.size()), values.data());
    }
    for (int n = g.Between(0, 2); n > 0; --n) {
        std::vector<int32_t> values;
        // Whole groups of ten: the export reads ten for every group begun.
        const int count = 10 * g.Between(1, 3);
        for (int i = 0; i < count; ++i) {
            values.push_back(g.Chance(20) ? g.Between(-99999, 0) : g.Between(0, 999999));
        }
        addSet(5, g.Host(g.Text(12)), static_cast<int32_t>(values.size()), values.data());
    }
}

ItBarBlock Bar(Generator& g)
{
    ItBarBlock bar{};
    bar.extraDesignation = g.Host(g.Text(12));
    bar.designation = g.Host(g.Text(12));
    bar.auxFourth = g.Between(-9999, 99999);
    bar.auxFifth = g.Between(-9999, 99999);
    bar.auxSixth = g.Between(-9999, 99999);
    bar.thirdSize = g.Between(-9999, 99999);
    bar.positionX = g.Coordinate();
    bar.positionY = g.Coordinate();
    bar.positionZ = g.Between(-999, 999);
    bar.firstSize = static_cast<uint16_t>(g.Between(0, 65535));
    bar.secondSize = static_cast<uint16_t>(g.Between(0, 65535));
    bar.rotation = static_cast<int16_t>(g.Between(-32768, 32767));
    bar.auxFirst = static_cast<uint16_t>(g.Between(0, 65535));
    bar.rodKind = static_cast<uint8_t>(g.Between(0, 255));
    bar.notMounted = static_cast<uint8_t>(g.Between(0, 1));
    bar.bendingCode = static_cast<uint8_t>(g.Between(0, 9));
    return bar;
}

void Reinforcement(Generator& g)
{
    for (int n = g.Between(0, 2); n > 0; --n) {
        const int32_t position[3] = {g.Coordinate(), g.Coordinate(), g.Between(-999, 999)};
        addSteelmat(g.Host(g.Text(25)), g.Between(0, 99999), g.Between(-999, 99999), g.Between(0, 2), g.Between(0, 2),
                    g.Between(-70000, 70000), position);
        for (int bars = g.Between(0, 3); bars > 0; --bars) {
            static const int codes[] = {0, 1, 10, 11, 20, 100, 110, 120, 200, 999};
            // The third number is the bar's sixth value: the export reads three.
            const int32_t at[3] = {g.Coordinate(), g.Coordinate(), 0};
            addCFSRodstock(g.Between(0, 12), g.Host(g.Text(12)), g.Between(0, 99999), g.Between(0, 999),
                           g.Between(-999, 99999), at, g.Between(-999, 999), g.Between(-999, 999), g.Host(g.Text(12)),
                           g.Between(0, 1), g.Between(0, 999), g.Between(0, 99999), g.Between(-999, 99999),
                           codes[g.Between(0, 9)]);
        }
    }
    for (int n = g.Between(0, 2); n > 0; --n) {
        const ItBarBlock bar = Bar(g);
        addStraightRodstock(&bar);
    }
    for (int n = g.Between(0, 2); n > 0; --n) {
        ItBarBlock bar = Bar(g);
        bar.segmentCount = static_cast<uint16_t>(g.Between(0, 13));
        std::vector<ItFreeFormSegment> segments(bar.segmentCount);
        for (ItFreeFormSegment& segment : segments) {
            segment.length = g.Between(-999, 999999);
            segment.angle = static_cast<int16_t>(g.Between(-360, 360));
        }
        addFreeFormRodstock(&bar, segments.data());
    }
    for (int n = g.Between(0, 3); n > 0; --n) {
        addExtIron(g.Between(-9, 99), g.Between(-999, 999999), g.Real(), g.Host(g.Text(35)));
    }
}

void Build(Generator& g, int index)
{
    for (int orders = g.Between(1, 3); orders > 0; --orders) {
        const double placement[9] = {g.Real(), g.Real(), g.Real(), g.Real(), g.Real(),
                                     g.Real(), g.Real(), g.Real(), g.Real()};
        startOrder(static_cast<uint16_t>(g.Between(0, 65535)), g.Between(-100000, 100000), placement, Version(g, index),
                   g.Host(g.Text(35)), g.Real(), orders == 1 ? 1 : 0);
        ProjectData(g);
        setSlabInfoFields(g.Host(g.Text(22)), g.Host(g.Text(22)), g.Host(g.Text(22)), g.Host(g.Text(22)));
        setThicknesses(g.Between(-999, 99999), g.Between(-999, 99999));
        setDoubleWallGap(g.Between(-99, 9999));
        for (int n = g.Between(0, 3); n > 0; --n) {
            addLayer(static_cast<uint16_t>(g.Between(0, 120)), g.Between(0, 1500) / 1000.0, g.Real(), g.Real(),
                     g.Host(g.Text(25)));
        }
        Outline(g);
        Reinforcement(g);
    }
}

TEST(GeneratedDocuments, ReadBackTolerantlyToTheSameBytes)
{
    Generator g(20261123);
    TemporaryDirectory directory;
    const std::string path = directory.File("generated.uni");
    int departures = 0;
    for (int index = 0; index < 600; ++index) {
        g.Reset();
        Build(g, index);
        endDocument(reinterpret_cast<const it_char16*>(std::u16string(path.begin(), path.end()).c_str()));
        const std::string bytes = ReadFileBytes(path);
        const TolerantDocument document = ReadTolerantly(bytes);
        ASSERT_TRUE(document.Complete()) << "document " << index << ": line " << document.stop->line << ", column "
                                         << document.stop->column << ": " << document.stop->expected;
        Document again;
        again.orders = document.orders;
        const std::string pathAgain = directory.File("again.uni");
        again.Save(std::wstring(pathAgain.begin(), pathAgain.end()));
        ASSERT_EQ(DescribeDifference(bytes, ReadFileBytes(pathAgain)), "") << "document " << index;
        departures += static_cast<int>(document.departures.size());
    }
    // The matrix reaches the places where the records' Read would refuse.
    EXPECT_GT(departures, 600);
    theDocument.orders.clear();
}

} // namespace
} // namespace ItUnitechnik

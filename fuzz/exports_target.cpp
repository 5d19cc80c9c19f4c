// The exports driven as a host would drive them, from the fuzzer's bytes:
// each step picks an export and its arguments. The buffers are well formed
// (every count matches its array, every text is terminated), the values are
// anything. The document is written and summed up at the end.
#include "exports/document.h"
#include "fuzz/fuzz_input.h"
#include "itunitechnik.h"

#include <array>
#include <string>
#include <vector>

namespace {

using ItUnitechnik::Fuzzing::FuzzInput;

const it_char16* C(const std::u16string& text)
{
    return reinterpret_cast<const it_char16*>(text.c_str());
}

std::int32_t Value(FuzzInput& in)
{
    return in.Take<std::int32_t>();
}

std::vector<std::int32_t> Values(FuzzInput& in, std::size_t count)
{
    std::vector<std::int32_t> values(count);
    for (std::int32_t& value : values) {
        value = Value(in);
    }
    return values;
}

std::uint16_t Version(FuzzInput& in)
{
    static const std::uint16_t versions[] = {0, 5, 499, 500, 501, 502, 503, 599, 600, 601};
    const auto selector = in.Take<std::uint8_t>();
    return selector < 200 ? versions[selector % 10] : in.Take<std::uint16_t>();
}

ItBarBlock Bar(FuzzInput& in, const std::u16string& extra, const std::u16string& designation)
{
    ItBarBlock bar{};
    bar.extraDesignation = C(extra);
    bar.designation = C(designation);
    bar.auxFourth = Value(in);
    bar.auxFifth = Value(in);
    bar.auxSixth = Value(in);
    bar.thirdSize = Value(in);
    bar.positionX = Value(in);
    bar.positionY = Value(in);
    bar.positionZ = Value(in);
    bar.firstSize = in.Take<std::uint16_t>();
    bar.secondSize = in.Take<std::uint16_t>();
    bar.rotation = in.Take<std::int16_t>();
    bar.auxFirst = in.Take<std::uint16_t>();
    bar.rodKind = in.Take<std::uint8_t>();
    bar.notMounted = in.Take<std::uint8_t>();
    bar.bendingCode = in.Take<std::uint8_t>() % 4;
    return bar;
}

void Step(FuzzInput& in)
{
    switch (in.Take<std::uint8_t>() % 16) {
    case 0: {
        double placement[9];
        for (double& coordinate : placement) {
            coordinate = in.Take<double>();
        }
        const auto orderValue = in.Take<std::uint16_t>();
        const auto number = Value(in);
        const auto version = Version(in);
        const std::u16string text = in.Text(40);
        startOrder(orderValue, number, placement, version, C(text), in.Take<double>(),
                   (in.Take<std::uint8_t>() & 1) != 0);
        break;
    }
    case 1: {
        std::array<std::u16string, IT_PROJECT_TEXT_COUNT> texts;
        std::array<const it_char16*, IT_PROJECT_TEXT_COUNT> pointers{};
        for (std::size_t i = 0; i < texts.size(); ++i) {
            texts[i] = i == IT_PROJECT_DATE ? in.NarrowText(12) : in.Text(30);
            pointers[i] = C(texts[i]);
        }
        setProjectData(pointers.data());
        break;
    }
    case 2: {
        const std::u16string a = in.Text(40), b = in.Text(40), c = in.Text(40), d = in.Text(40);
        setSlabInfoFields(C(a), C(b), C(c), C(d));
        break;
    }
    case 3:
        setThicknesses(Value(in), Value(in));
        break;
    case 4:
        setDoubleWallGap(Value(in));
        break;
    case 5: {
        const auto kind = in.Take<std::uint16_t>();
        const double thickness = in.Take<double>();
        const double first = in.Take<double>();
        const double second = in.Take<double>();
        const std::u16string name = in.Text(30);
        addLayer(kind, thickness, first, second, C(name));
        break;
    }
    case 6: {
        // At least one point: the first is read even for a count of 0.
        const auto count = static_cast<std::int32_t>(in.Count(64));
        const std::vector<std::int32_t> points = Values(in, 2 * static_cast<std::size_t>(count > 0 ? count : 1));
        addContour(count, points.data());
        break;
    }
    case 7: {
        const std::u16string name = in.Text(20);
        ItCutoutBlock block{};
        block.cutoutName = C(name);
        block.cutoutValue = in.Take<double>();
        block.pointCount = static_cast<std::uint16_t>(in.Count(64));
        const std::vector<std::int32_t> points =
            Values(in, 2 * static_cast<std::size_t>(block.pointCount > 0 ? block.pointCount : 1));
        addCutout(&block, points.data());
        break;
    }
    case 8: {
        const auto selector = in.Take<std::uint8_t>();
        const std::int32_t kind = selector < 120 ? 3 : selector < 240 ? 5 : Value(in);
        const std::u16string name = in.Text(20);
        const auto count = static_cast<std::int32_t>(in.Count(120)) - 2;
        // What the export reads: two values and whole pieces of four for a
        // mounting part, whole groups of ten for girders.
        std::size_t read = 2;
        if (kind == 3 && count > 2) {
            read = 2 + 4 * ((static_cast<std::size_t>(count) - 3) / 4 + 1);
        } else if (kind == 5 && count > 0) {
            read = 10 * ((static_cast<std::size_t>(count) + 9) / 10);
        }
        const std::vector<std::int32_t> values = Values(in, read);
        addSet(kind, C(name), count, values.data());
        break;
    }
    case 9: {
        const std::u16string name = in.Text(30);
        const std::vector<std::int32_t> values = Values(in, 8);
        addSteelmat(C(name), values[0], values[1], values[2], values[3], values[4], values.data() + 5);
        break;
    }
    case 10: {
        const std::u16string designation = in.Text(12);
        const std::u16string extra = in.Text(12);
        const std::vector<std::int32_t> v = Values(in, 14);
        addCFSRodstock(v[0], C(designation), v[1], v[2], v[3], v.data() + 4, v[7], v[8], C(extra), v[9], v[10], v[11],
                       v[12], v[13] % 1000);
        break;
    }
    case 11: {
        const std::u16string extra = in.Text(12);
        const std::u16string designation = in.Text(12);
        const ItBarBlock bar = Bar(in, extra, designation);
        addStraightRodstock(&bar);
        break;
    }
    case 12: {
        const std::u16string extra = in.Text(12);
        const std::u16string designation = in.Text(12);
        ItBarBlock bar = Bar(in, extra, designation);
        std::vector<ItFreeFormSegment> segments(in.Count(40));
        for (ItFreeFormSegment& segment : segments) {
            segment.length = Value(in);
            segment.angle = in.Take<std::int16_t>();
        }
        bar.segmentCount = static_cast<std::uint16_t>(segments.size());
        addFreeFormRodstock(&bar, segments.empty() ? nullptr : segments.data());
        break;
    }
    case 13: {
        const auto code = Value(in);
        const auto count = Value(in);
        const double value = in.Take<double>();
        const std::u16string text = in.Text(30);
        addExtIron(code, count, value, C(text));
        break;
    }
    case 14:
        freeFullReinforcementString(getFullReinforcementString());
        break;
    default:
        endDocument(C(u"/dev/null"));
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ItUnitechnik::theDocument.orders.clear();
    FuzzInput in(data, size);
    for (int steps = 0; steps < 64 && !in.Empty(); ++steps) {
        Step(in);
    }
    endDocument(C(u"/dev/null"));
    freeFullReinforcementString(getFullReinforcementString());
    ItUnitechnik::theDocument.orders.clear();
    return 0;
}

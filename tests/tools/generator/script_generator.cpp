#include "generator/script_generator.h"

#include "generator/random_values.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <utility>

// The calls of the scripts, each with its random values (random_values.h).
namespace ItUnitechnik::Testing {
namespace {

using Generator::Count;
using Generator::Date;
using Generator::Integers;
using Generator::Json;
using Generator::kInt16;
using Generator::kInt32;
using Generator::kUInt16;
using Generator::kUInt8;
using Generator::kWholeFileBendingCode;
using Generator::Random;
using Generator::Range;
using Generator::Text;

const Range kCoordinates{-2000, 14000};

Json StartOrder(Random& random, std::uint16_t version, bool clear)
{
    Json call;
    call["call"] = "startOrder";
    call["orderValue"] = random.Value({0, 99}, kUInt16);
    call["elementNumberArg"] = random.Value({1, 9999}, kInt32);
    Json placement = Json::array();
    for (int i = 0; i < 9; ++i) {
        placement.push_back(random.Chance(90) ? random.Decimal(-12000, 12000, 1) : random.Decimal(-3e9, 3e9, 0));
    }
    call["placement"] = placement;
    call["version"] = version;
    call["elementTextArg"] = Text(random, 40);
    call["elementMeasureArg"] = random.Decimal(0, 99, 3);
    call["clearDocument"] = clear;
    return call;
}

Json ProjectData(Random& random)
{
    Json texts = Json::array();
    const std::int64_t count = random.Between(17, 19);
    for (std::int64_t i = 0; i < count; ++i) {
        texts.push_back(i == 16 ? Date(random) : Text(random, 45));
    }
    return Json{{"call", "setProjectData"}, {"texts", texts}};
}

Json SlabInfo(Random& random)
{
    Json call{{"call", "setSlabInfoFields"}};
    for (const char* key : {"slabInfo1", "slabInfo2", "slabInfo3", "slabInfo4"}) {
        if (random.Chance(85)) {
            call[key] = Text(random, 25);
        }
    }
    return call;
}

Json Layer(Random& random)
{
    return Json{{"call", "addLayer"},
                {"layerKind", random.Value({0, 9}, kUInt16)},
                {"thicknessMetres", random.Decimal(0, 0.5, 3)},
                {"firstFactor", random.Decimal(0, 10, 3)},
                {"secondFactor", random.Decimal(0, 3000, 1)},
                {"layerName", Text(random, 25)}};
}

Json Contour(Random& random)
{
    Json call{{"call", "addContour"}};
    const auto points = static_cast<std::size_t>(random.Between(0, 12));
    Count(random, call, "pointCount", static_cast<std::int64_t>(points));
    call["points"] = Integers(random, 2 * points, kCoordinates);
    return call;
}

Json Cutout(Random& random)
{
    Json block{{"cutoutName", Text(random, 45)}, {"cutoutValue", random.Decimal(0, 99, 3)}};
    const auto points = static_cast<std::size_t>(random.Between(0, 8));
    Count(random, block, "pointCount", static_cast<std::int64_t>(points));
    return Json{{"call", "addCutout"}, {"block", block}, {"points", Integers(random, 2 * points, kCoordinates)}};
}

Json MountedPart(Random& random)
{
    Json call{{"call", "addSet"}, {"setKind", 3}, {"setName", Text(random, 45)}};
    const auto values = static_cast<std::size_t>(2 + 4 * random.Between(0, 4));
    Count(random, call, "valueCount", static_cast<std::int64_t>(values));
    call["values"] = Integers(random, values, {0, 12000});
    return call;
}

Json Girders(Random& random)
{
    Json call{{"call", "addSet"}, {"setKind", 5}, {"setName", Text(random, 12)}};
    const auto values = static_cast<std::size_t>(10 * random.Between(1, 3));
    Count(random, call, "valueCount", static_cast<std::int64_t>(values));
    call["values"] = Integers(random, values, {-500, 9999});
    return call;
}

Json OtherSet(Random& random)
{
    std::int64_t kind = random.Value({0, 9}, kInt32);
    if (kind == 3 || kind == 5) {
        kind = 4;
    }
    return Json{{"call", "addSet"},
                {"setKind", kind},
                {"setName", Text(random, 10)},
                {"valueCount", random.Value({0, 20}, kInt32)},
                {"values", Integers(random, 2, {0, 100})}};
}

Json Steelmat(Random& random)
{
    return Json{{"call", "addSteelmat"},
                {"name", Text(random, 25)},
                {"firstDimension", random.Value({0, 12000}, kInt32)},
                {"secondDimension", random.Value({0, 12000}, kInt32)},
                {"firstFlag", random.Value({0, 1}, kInt32)},
                {"secondFlag", random.Value({0, 1}, kInt32)},
                {"matKind", random.Value({0, 9}, kInt32)},
                {"position", Integers(random, 3, {0, 12000})}};
}

Json CfsRodstock(Random& random)
{
    static const std::vector<std::int64_t> codes = {0, 10, 20, 100, 110, 120, 200, 210};
    return Json{{"call", "addCFSRodstock"},
                {"rodKind", random.Value({0, 9}, kInt32)},
                {"designation", Text(random, 12)},
                {"firstSize", random.Value({0, 12000}, kInt32)},
                {"secondSize", random.Value({6, 40}, kInt32)},
                {"thirdSize", random.Value({0, 999}, kInt32)},
                {"position", Integers(random, 3, {0, 12000})},
                {"positionZ", random.Value({0, 400}, kInt32)},
                {"rotation", random.Value({-180, 180}, kInt32)},
                {"extraDesignation", Text(random, 12)},
                {"mountFlag", random.Value({0, 2}, kInt32)},
                {"auxFirst", random.Value({0, 99}, kInt32)},
                {"auxFourth", random.Value({0, 999}, kInt32)},
                {"auxFifth", random.Value({0, 999}, kInt32)},
                {"flagsCode", random.Chance(80) ? random.Pick(codes) : random.Value({0, 999}, kInt32)}};
}

Json Bar(Random& random)
{
    Json bar;
    bar["extraDesignation"] = Text(random, 12);
    bar["designation"] = Text(random, 12);
    for (const char* key : {"auxFourth", "auxFifth", "auxSixth", "thirdSize"}) {
        bar[key] = random.Value({0, 999}, kInt32);
    }
    for (const char* key : {"positionX", "positionY", "positionZ"}) {
        bar[key] = random.Value({0, 12000}, kInt32);
    }
    bar["firstSize"] = random.Value({0, 12000}, kUInt16);
    bar["secondSize"] = random.Value({6, 40}, kUInt16);
    bar["rotation"] = random.Value({-180, 180}, kInt16);
    bar["auxFirst"] = random.Value({0, 99}, kUInt16);
    bar["rodKind"] = random.Value({0, 9}, kUInt8);
    bar["notMounted"] = random.Value({0, 1}, kUInt8);
    return bar;
}

Json StraightRodstock(Random& random)
{
    Json bar = Bar(random);
    bar["segmentCount"] = random.Value({0, 9}, kUInt16);
    bar["bendingCode"] = random.Value({0, 9}, kUInt8);
    return Json{{"call", "addStraightRodstock"}, {"bar", bar}};
}

Json FreeFormRodstock(Random& random)
{
    Json bar = Bar(random);
    const bool freeForm = random.Chance(70);
    bar["bendingCode"] = freeForm ? 2 : random.Value({0, 9}, kWholeFileBendingCode);
    Json segments = Json::array();
    const std::int64_t count = freeForm ? random.Between(0, 13) : random.Between(0, 2);
    for (std::int64_t i = 0; i < count; ++i) {
        segments.push_back(
            Json{{"length", random.Value({0, 3000}, kInt32)}, {"angle", random.Value({-180, 180}, kInt16)}});
    }
    Count(random, bar, "segmentCount", count);
    return Json{{"call", "addFreeFormRodstock"}, {"bar", bar}, {"segments", segments}};
}

Json ExtIron(Random& random)
{
    return Json{{"call", "addExtIron"},
                {"ironCode", random.Value({0, 99}, kInt32)},
                {"ironCount", random.Value({0, 999}, kInt32)},
                {"ironValue", random.Decimal(0, 999, 3)},
                {"ironText", Text(random, 35)}};
}

std::vector<Json> OrderCalls(Random& random)
{
    std::vector<Json> calls = {ProjectData(random), SlabInfo(random),
                               Json{{"call", "setThicknesses"},
                                    {"thickness", random.Value({0, 999}, kInt32)},
                                    {"secondThickness", random.Value({0, 999}, kInt32)}},
                               Json{{"call", "setDoubleWallGap"}, {"doubleWallGap", random.Value({0, 300}, kInt32)}}};
    // Every adder at least once.
    using Maker = Json (*)(Random&);
    const std::vector<std::pair<Maker, int>> adders = {
        {Layer, 3},    {Contour, 2},     {Cutout, 2},           {MountedPart, 2},      {Girders, 2},
        {Steelmat, 2}, {CfsRodstock, 3}, {StraightRodstock, 2}, {FreeFormRodstock, 2}, {ExtIron, 3}};
    for (const auto& [make, most] : adders) {
        const std::int64_t count = random.Between(1, most);
        for (std::int64_t i = 0; i < count; ++i) {
            calls.push_back(make(random));
        }
    }
    if (random.Chance(30)) {
        calls.push_back(OtherSet(random));
    }
    while (random.Chance(30)) {
        calls.push_back(Json{{"call", "getFullReinforcementString"}});
    }
    random.Shuffle(calls);
    return calls;
}

} // namespace

const std::vector<std::uint16_t>& EdgeVersions()
{
    static const std::vector<std::uint16_t> versions = {0, 5, 499, 500, 501, 502, 503, 599, 600, 601, 65535};
    return versions;
}

std::string GeneratedScriptName(std::size_t number)
{
    char name[32];
    std::snprintf(name, sizeof name, "script-%04zu", number);
    return name;
}

std::string GenerateScript(std::uint64_t seed, std::size_t number)
{
    Random random(seed ^ (0x9E3779B97F4A7C15ULL * (number + 1)));
    const std::vector<std::uint16_t>& edges = EdgeVersions();
    std::vector<Json> calls;
    const std::int64_t orders = random.Between(1, 3);
    for (std::int64_t order = 0; order < orders; ++order) {
        std::uint16_t version = 0;
        if (order == 0 && number < edges.size()) {
            version = edges[number];
        } else {
            version = random.Chance(50) ? random.Pick(edges) : static_cast<std::uint16_t>(random.Between(0, 65535));
        }
        calls.push_back(StartOrder(random, version, order == 0 || random.Chance(20)));
        for (Json& call : OrderCalls(random)) {
            calls.push_back(std::move(call));
        }
    }
    calls.push_back(Json{{"call", "endDocument"}, {"path", GeneratedScriptName(number) + ".uni"}});

    std::string text = "{\n  \"calls\": [\n";
    for (std::size_t i = 0; i < calls.size(); ++i) {
        text += "    " + calls[i].dump() + (i + 1 < calls.size() ? ",\n" : "\n");
    }
    return text + "  ]\n}\n";
}

std::vector<std::string> GenerateScripts(const std::string& directory, std::uint64_t seed, std::size_t count)
{
    std::vector<std::string> paths;
    for (std::size_t number = 0; number < count; ++number) {
        const std::string path = directory + "/" + GeneratedScriptName(number) + ".json";
        std::ofstream out(path, std::ios::binary);
        out << GenerateScript(seed, number);
        if (!out) {
            throw std::runtime_error("cannot write " + path);
        }
        paths.push_back(path);
    }
    return paths;
}

} // namespace ItUnitechnik::Testing

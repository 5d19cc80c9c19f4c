#include "build/call_table.h"

#include "build/call_keys.h"
#include "itunitechnik.h"

#include <algorithm>
#include <string>

namespace ItUnitechnik::Tool::Script {

const IntegerType kUInt8{"uint8_t", 0, 255};
const IntegerType kInt16{"int16_t", -32768, 32767};
const IntegerType kUInt16{"uint16_t", 0, 65535};
const IntegerType kInt32{"int32_t", -2147483647LL - 1, 2147483647LL};

namespace {

using namespace Table;

std::vector<CallSpec> MakeTable()
{
    std::vector<CallSpec> table;

    table.push_back(CallSpec{
        "startOrder",
        {Integer("orderValue", kUInt16), Integer("elementNumberArg", kInt32), Reals("placement", 9),
         Integer("version", kUInt16), Text("elementTextArg"), Real("elementMeasureArg"), Boolean("clearDocument")},
        {},
        nullptr,
        nullptr,
        [](const Arguments& a) {
            return Result(startOrder(U16(a, "orderValue"), I32(a, "elementNumberArg"), a.Reals("placement").data(),
                                     U16(a, "version"), Str(a, "elementTextArg"), a.Real("elementMeasureArg"),
                                     a.Boolean("clearDocument")));
        }});

    table.push_back(CallSpec{"endDocument", {Text("path")}, {}, "path", nullptr, [](const Arguments& a) {
                                 return Result(endDocument(Str(a, "path")));
                             }});

    table.push_back(CallSpec{
        "setProjectData", {Texts("texts", IT_PROJECT_TEXT_COUNT)}, {}, nullptr, CheckDate, [](const Arguments& a) {
            const std::vector<HostText>& texts = a.Texts("texts");
            const it_char16* pointers[IT_PROJECT_TEXT_COUNT];
            for (std::size_t i = 0; i < IT_PROJECT_TEXT_COUNT; ++i) {
                pointers[i] = texts[i].c_str();
            }
            setProjectData(pointers);
            return Nothing();
        }});

    table.push_back(CallSpec{"setSlabInfoFields",
                             {Text("slabInfo1"), Text("slabInfo2"), Text("slabInfo3"), Text("slabInfo4")},
                             {},
                             nullptr,
                             nullptr,
                             [](const Arguments& a) {
                                 setSlabInfoFields(Str(a, "slabInfo1"), Str(a, "slabInfo2"), Str(a, "slabInfo3"),
                                                   Str(a, "slabInfo4"));
                                 return Nothing();
                             }});

    table.push_back(CallSpec{"setThicknesses",
                             {Integer("thickness", kInt32), Integer("secondThickness", kInt32)},
                             {},
                             nullptr,
                             nullptr,
                             [](const Arguments& a) {
                                 setThicknesses(I32(a, "thickness"), I32(a, "secondThickness"));
                                 return Nothing();
                             }});

    table.push_back(
        CallSpec{"setDoubleWallGap", {Integer("doubleWallGap", kInt32)}, {}, nullptr, nullptr, [](const Arguments& a) {
                     setDoubleWallGap(I32(a, "doubleWallGap"));
                     return Nothing();
                 }});

    table.push_back(CallSpec{"addLayer",
                             {Integer("layerKind", kUInt16), Real("thicknessMetres"), Real("firstFactor"),
                              Real("secondFactor"), Text("layerName")},
                             {},
                             nullptr,
                             nullptr,
                             [](const Arguments& a) {
                                 addLayer(U16(a, "layerKind"), a.Real("thicknessMetres"), a.Real("firstFactor"),
                                          a.Real("secondFactor"), Str(a, "layerName"));
                                 return Nothing();
                             }});

    table.push_back(CallSpec{"addContour",
                             {Integer("pointCount", kInt32), Integers("points", 0)},
                             {{"pointCount", "points", 2, "points", "integers", ContourPointsRead}},
                             nullptr,
                             nullptr,
                             [](const Arguments& a) {
                                 addContour(I32(a, "pointCount"), IntegerData(a.Integers("points")));
                                 return Nothing();
                             }});

    table.push_back(CallSpec{"addCutout",
                             {Block("block", {Text("cutoutName"), Real("cutoutValue"), Integer("pointCount", kUInt16)}),
                              Integers("points", 0)},
                             {{"block.pointCount", "points", 2, "points", "integers", CutoutPointsRead}},
                             nullptr,
                             nullptr,
                             [](const Arguments& a) {
                                 ItCutoutBlock block{};
                                 block.cutoutName = Str(a, "block.cutoutName");
                                 block.cutoutValue = a.Real("block.cutoutValue");
                                 block.pointCount = U16(a, "block.pointCount");
                                 addCutout(&block, IntegerData(a.Integers("points")));
                                 return Nothing();
                             }});

    table.push_back(
        CallSpec{"addSet",
                 {Integer("setKind", kInt32), Text("setName"), Integer("valueCount", kInt32), Integers("values", 0)},
                 {{"valueCount", "values", 1, "values", "integers", SetValuesRead}},
                 nullptr,
                 nullptr,
                 [](const Arguments& a) {
                     return Result(addSet(I32(a, "setKind"), Str(a, "setName"), I32(a, "valueCount"),
                                          IntegerData(a.Integers("values"))));
                 }});

    table.push_back(CallSpec{"addSteelmat",
                             {Text("name"), Integer("firstDimension", kInt32), Integer("secondDimension", kInt32),
                              Integer("firstFlag", kInt32), Integer("secondFlag", kInt32), Integer("matKind", kInt32),
                              Integers("position", 3)},
                             {},
                             nullptr,
                             nullptr,
                             [](const Arguments& a) {
                                 return Result(addSteelmat(Str(a, "name"), I32(a, "firstDimension"),
                                                           I32(a, "secondDimension"), I32(a, "firstFlag"),
                                                           I32(a, "secondFlag"), I32(a, "matKind"),
                                                           a.Integers("position").data()));
                             }});

    table.push_back(CallSpec{"addCFSRodstock",
                             {Integer("rodKind", kInt32), Text("designation"), Integer("firstSize", kInt32),
                              Integer("secondSize", kInt32), Integer("thirdSize", kInt32), Integers("position", 3),
                              Integer("positionZ", kInt32), Integer("rotation", kInt32), Text("extraDesignation"),
                              Integer("mountFlag", kInt32), Integer("auxFirst", kInt32), Integer("auxFourth", kInt32),
                              Integer("auxFifth", kInt32), Integer("flagsCode", kInt32)},
                             {},
                             nullptr,
                             nullptr,
                             [](const Arguments& a) {
                                 return Result(addCFSRodstock(
                                     I32(a, "rodKind"), Str(a, "designation"), I32(a, "firstSize"),
                                     I32(a, "secondSize"), I32(a, "thirdSize"), a.Integers("position").data(),
                                     I32(a, "positionZ"), I32(a, "rotation"), Str(a, "extraDesignation"),
                                     I32(a, "mountFlag"), I32(a, "auxFirst"), I32(a, "auxFourth"), I32(a, "auxFifth"),
                                     I32(a, "flagsCode")));
                             }});

    table.push_back(
        CallSpec{"addStraightRodstock", {Block("bar", BarFields())}, {}, nullptr, nullptr, [](const Arguments& a) {
                     const ItBarBlock bar = BarBlock(a);
                     addStraightRodstock(&bar);
                     return Nothing();
                 }});

    table.push_back(
        CallSpec{"addFreeFormRodstock",
                 {Block("bar", BarFields()), Blocks("segments", {Integer("length", kInt32), Integer("angle", kInt16)})},
                 {{"bar.segmentCount", "segments", 1, "segments", "segments", SegmentsRead}},
                 nullptr,
                 nullptr,
                 [](const Arguments& a) {
                     const ItBarBlock bar = BarBlock(a);
                     std::vector<ItFreeFormSegment> segments;
                     for (const std::vector<std::int64_t>& entry : a.Blocks("segments")) {
                         ItFreeFormSegment segment{};
                         segment.length = static_cast<std::int32_t>(entry[0]);
                         segment.angle = static_cast<std::int16_t>(entry[1]);
                         segments.push_back(segment);
                     }
                     if (segments.empty()) {
                         // A valid pointer even when the export reads no entry.
                         segments.push_back(ItFreeFormSegment{});
                     }
                     addFreeFormRodstock(&bar, segments.data());
                     return Nothing();
                 }});

    table.push_back(CallSpec{
        "addExtIron",
        {Integer("ironCode", kInt32), Integer("ironCount", kInt32), Real("ironValue"), Text("ironText")},
        {},
        nullptr,
        nullptr,
        [](const Arguments& a) {
            return Result(addExtIron(I32(a, "ironCode"), I32(a, "ironCount"), a.Real("ironValue"), Str(a, "ironText")));
        }});

    table.push_back(CallSpec{"getFullReinforcementString", {}, {}, nullptr, nullptr, [](const Arguments&) {
                                 return Outcome{std::nullopt, TakeFullReinforcementString()};
                             }});
    return table;
}

} // namespace

const std::vector<CallSpec>& CallTable()
{
    static const std::vector<CallSpec> table = MakeTable();
    return table;
}

const CallSpec* FindCall(std::string_view name)
{
    for (const CallSpec& callEntry : CallTable()) {
        if (callEntry.name == name) {
            return &callEntry;
        }
    }
    return nullptr;
}

HostText TakeFullReinforcementString()
{
    it_char16* text = getFullReinforcementString();
    HostText copy = text != nullptr ? HostText(text) : HostText();
    freeFullReinforcementString(text);
    return copy;
}

} // namespace ItUnitechnik::Tool::Script

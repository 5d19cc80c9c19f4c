#include "build/call_keys.h"

#include "records/order/date.h"

#include <exception>

namespace ItUnitechnik::Tool::Script::Table {
namespace {

// What the exports read for a count. A chain of outline pieces reads every
// point, and the first one even for a count of 1 or below.
std::int64_t PointsRead(std::int64_t pointCount)
{
    return std::max<std::int64_t>(2 * pointCount, 2);
}

} // namespace

KeySpec Integer(const char* name, const IntegerType& type)
{
    return KeySpec{name, ValueKind::Integer, &type, 0, {}};
}

KeySpec Real(const char* name)
{
    return KeySpec{name, ValueKind::Real, nullptr, 0, {}};
}

KeySpec Boolean(const char* name)
{
    return KeySpec{name, ValueKind::Boolean, nullptr, 0, {}};
}

KeySpec Text(const char* name)
{
    return KeySpec{name, ValueKind::Text, nullptr, 0, {}};
}

KeySpec Texts(const char* name, std::size_t most)
{
    return KeySpec{name, ValueKind::Texts, nullptr, most, {}};
}

// A list of 32-bit integers; `length` 0 when a count states it.
KeySpec Integers(const char* name, std::size_t length)
{
    return KeySpec{name, ValueKind::Integers, &kInt32, length, {}};
}

KeySpec Reals(const char* name, std::size_t length)
{
    return KeySpec{name, ValueKind::Reals, nullptr, length, {}};
}

KeySpec Block(const char* name, std::vector<KeySpec> fields)
{
    return KeySpec{name, ValueKind::Block, nullptr, 0, std::move(fields)};
}

KeySpec Blocks(const char* name, std::vector<KeySpec> fields)
{
    return KeySpec{name, ValueKind::Blocks, nullptr, 0, std::move(fields)};
}

// ItBarBlock, field by field in the order of the struct; the bytes that are
// never read are no keys.
std::vector<KeySpec> BarFields()
{
    return {Text("extraDesignation"),       Text("designation"),
            Integer("auxFourth", kInt32),   Integer("auxFifth", kInt32),
            Integer("auxSixth", kInt32),    Integer("thirdSize", kInt32),
            Integer("positionX", kInt32),   Integer("positionY", kInt32),
            Integer("positionZ", kInt32),   Integer("firstSize", kUInt16),
            Integer("secondSize", kUInt16), Integer("rotation", kInt16),
            Integer("auxFirst", kUInt16),   Integer("segmentCount", kUInt16),
            Integer("rodKind", kUInt8),     Integer("notMounted", kUInt8),
            Integer("bendingCode", kUInt8)};
}

// The arguments as the exports take them; the table's ranges were checked
// when the call was read, so every narrowing below keeps the value.
std::uint8_t U8(const Arguments& a, const std::string& key)
{
    return static_cast<std::uint8_t>(a.Integer(key));
}

std::int16_t I16(const Arguments& a, const std::string& key)
{
    return static_cast<std::int16_t>(a.Integer(key));
}

std::uint16_t U16(const Arguments& a, const std::string& key)
{
    return static_cast<std::uint16_t>(a.Integer(key));
}

std::int32_t I32(const Arguments& a, const std::string& key)
{
    return static_cast<std::int32_t>(a.Integer(key));
}

const it_char16* Str(const Arguments& a, const std::string& key)
{
    return a.Text(key).c_str();
}

// A list the export may not read at all still goes as a valid pointer.
const std::int32_t* IntegerData(const std::vector<std::int32_t>& values)
{
    static const std::int32_t none[1] = {0};
    return values.empty() ? none : values.data();
}

Outcome Result(std::int32_t result)
{
    return Outcome{result, std::nullopt};
}

Outcome Nothing()
{
    return Outcome{};
}

ItBarBlock BarBlock(const Arguments& a)
{
    ItBarBlock bar{};
    bar.extraDesignation = Str(a, "bar.extraDesignation");
    bar.designation = Str(a, "bar.designation");
    bar.auxFourth = I32(a, "bar.auxFourth");
    bar.auxFifth = I32(a, "bar.auxFifth");
    bar.auxSixth = I32(a, "bar.auxSixth");
    bar.thirdSize = I32(a, "bar.thirdSize");
    bar.positionX = I32(a, "bar.positionX");
    bar.positionY = I32(a, "bar.positionY");
    bar.positionZ = I32(a, "bar.positionZ");
    bar.firstSize = U16(a, "bar.firstSize");
    bar.secondSize = U16(a, "bar.secondSize");
    bar.rotation = I16(a, "bar.rotation");
    bar.auxFirst = U16(a, "bar.auxFirst");
    bar.segmentCount = U16(a, "bar.segmentCount");
    bar.rodKind = U8(a, "bar.rodKind");
    bar.notMounted = U8(a, "bar.notMounted");
    bar.bendingCode = U8(a, "bar.bendingCode");
    return bar;
}

std::int64_t ContourPointsRead(const Arguments& a)
{
    return PointsRead(a.Integer("pointCount"));
}

std::int64_t CutoutPointsRead(const Arguments& a)
{
    return PointsRead(a.Integer("block.pointCount"));
}

// A mounted part (kind 3) reads its two values and whole pieces of four; the
// girders (kind 5) read whole groups of ten; any other kind reads nothing.
std::int64_t SetValuesRead(const Arguments& a)
{
    const std::int64_t count = a.Integer("valueCount");
    switch (a.Integer("setKind")) {
    case 3:
        return count > 2 ? 2 + 4 * ((count - 3) / 4 + 1) : 2;
    case 5:
        return count < 1 ? 0 : 10 * ((count + 9) / 10);
    default:
        return 0;
    }
}

// The segments are read only for the bending code of a free form.
std::int64_t SegmentsRead(const Arguments& a)
{
    return a.Integer("bar.bendingCode") == 2 ? a.Integer("bar.segmentCount") : 0;
}

// setProjectData reads the date by position and throws when it cannot: such
// a date is refused before any call runs.
std::optional<Refusal> CheckDate(const Arguments& a)
{
    const HostText& text = a.Texts("texts")[IT_PROJECT_DATE];
    try {
        const Date date(std::wstring(text.begin(), text.end()), 600);
        (void)date;
    } catch (const std::exception& e) {
        return Refusal{"texts[" + std::to_string(IT_PROJECT_DATE) + "]", "setProjectData cannot read the date \"" +
                                                                             HostToUtf8(text) + "\" (" + e.what() +
                                                                             "); write it as dd.mm.yyyy"};
    }
    return std::nullopt;
}

} // namespace ItUnitechnik::Tool::Script::Table

#pragma once

#include "build/call_table.h"

#include "itunitechnik.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What the call table is written with: the keys of a call, the arguments as
// the exports take them, and how much of a list an export reads for its count.
namespace ItUnitechnik::Tool::Script::Table {

KeySpec Integer(const char* name, const IntegerType& type);

KeySpec Real(const char* name);

KeySpec Boolean(const char* name);

KeySpec Text(const char* name);

KeySpec Texts(const char* name, std::size_t most);

// A list of 32-bit integers; `length` 0 when a count states it.
KeySpec Integers(const char* name, std::size_t length);

KeySpec Reals(const char* name, std::size_t length);

KeySpec Block(const char* name, std::vector<KeySpec> fields);

KeySpec Blocks(const char* name, std::vector<KeySpec> fields);

// ItBarBlock, field by field in the order of the struct; the bytes that are
// never read are no keys.
std::vector<KeySpec> BarFields();

// The arguments as the exports take them; the table's ranges were checked
// when the call was read, so every narrowing below keeps the value.
std::uint8_t U8(const Arguments& a, const std::string& key);

std::int16_t I16(const Arguments& a, const std::string& key);

std::uint16_t U16(const Arguments& a, const std::string& key);

std::int32_t I32(const Arguments& a, const std::string& key);

const it_char16* Str(const Arguments& a, const std::string& key);

// A list the export may not read at all still goes as a valid pointer.
const std::int32_t* IntegerData(const std::vector<std::int32_t>& values);

Outcome Result(std::int32_t result);

Outcome Nothing();

ItBarBlock BarBlock(const Arguments& a);

std::int64_t ContourPointsRead(const Arguments& a);

std::int64_t CutoutPointsRead(const Arguments& a);

// A mounted part (kind 3) reads its two values and whole pieces of four; the
// girders (kind 5) read whole groups of ten; any other kind reads nothing.
std::int64_t SetValuesRead(const Arguments& a);

// The segments are read only for the bending code of a free form.
std::int64_t SegmentsRead(const Arguments& a);

// setProjectData reads the date by position and throws when it cannot: such
// a date is refused before any call runs.
std::optional<Refusal> CheckDate(const Arguments& a);

} // namespace ItUnitechnik::Tool::Script::Table

#pragma once

#include "build/call_table.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <string>

// How the messages of a bad script name its places and values.
namespace ItUnitechnik::Tool::Script {

// "call 3 (addContour)"
std::string CallPlace(std::size_t index, const std::string& name);

// "call 3 (addContour), key \"points\""
std::string KeyPlace(std::size_t index, const std::string& name, const std::string& key);

// "unknown key \"block.name\"": a member of a block that its entry does not
// name.
std::string UnknownKey(const std::string& path, const std::string& name);

// The kind of a JSON value: "a string", "an array", "null".
std::string Found(const nlohmann::json& value);

// What a key of the kind takes: "an array of integers".
std::string Expected(ValueKind kind);

// Whether the value is of the JSON kind the key takes; its range and length
// are read later.
bool KindFits(ValueKind kind, const nlohmann::json& value);

// "int16_t (-32768 to 32767)"
std::string Range(const IntegerType& type);

} // namespace ItUnitechnik::Tool::Script

#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace ItUnitechnik::Tool {

// The JSON of an input file. Comments (// and /* */) are allowed; a key that
// stands twice in one object is refused, since one of the two would be lost
// without a word. Throws BadInput with the line and column of a syntax error,
// or the place of a doubled key.
nlohmann::json ParseJsonText(const std::string& text);

} // namespace ItUnitechnik::Tool

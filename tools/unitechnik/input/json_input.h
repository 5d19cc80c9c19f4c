#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <string>

namespace ItUnitechnik::Tool {

// The deepest that arrays and objects may nest in an input file. A call
// script nests five deep and a dumped document at most fourteen; a file of
// brackets alone is refused early and in little memory.
inline constexpr std::size_t kMostNesting = 256;

// The JSON of an input file. Comments (// and /* */) are allowed; a key that
// stands twice in one object is refused, since one of the two would be lost
// without a word, and so is nesting deeper than kMostNesting. Throws BadInput
// with the line and column of a syntax error or of a number beyond a double,
// the place of a doubled key, or the depth.
nlohmann::json ParseJsonText(const std::string& text);

} // namespace ItUnitechnik::Tool

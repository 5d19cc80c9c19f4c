#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstddef>
#include <string>

namespace ItUnitechnik::Tool {

// The deepest that arrays and objects may nest in an input file. A call
// script nests five deep and a dumped document about twenty; the limit keeps
// a file of brackets from costing memory by the square of its depth.
inline constexpr std::size_t kMostNesting = 256;

// The JSON of an input file. Comments (// and /* */) are allowed; a key that
// stands twice in one object is refused, since one of the two would be lost
// without a word, and so is nesting deeper than kMostNesting. Throws BadInput
// with the line and column of a syntax error, or the place of a doubled key
// or of the array or object one too deep.
nlohmann::json ParseJsonText(const std::string& text);

} // namespace ItUnitechnik::Tool

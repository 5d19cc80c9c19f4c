#pragma once

#include "tree/written_places.h"

#include <string>
#include <vector>

namespace ItUnitechnik::Tool::Check {

// Where each entry of a call script's "calls" begins: the line and column
// (from 1, in characters) of its first character. The JSON parser keeps no
// places, so the text is scanned again here; it must be a script that the
// parser took (comments allowed). A text it cannot follow gives fewer places
// than calls.
std::vector<Place> CallPlaces(const std::string& text);

} // namespace ItUnitechnik::Tool::Check

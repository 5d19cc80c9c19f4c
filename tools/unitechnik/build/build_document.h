#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace ItUnitechnik::Tool {

// Writes a dumped document, {"document": {"orders": [...]}} as dump --json
// prints it, through the records' own Write to `path`: the same bytes as the
// file it was dumped from. A document that does not fit the records is a
// BadInput naming the value's path; a file that cannot be written, a
// FileError.
void BuildDocument(const nlohmann::json& input, const std::string& path);

} // namespace ItUnitechnik::Tool

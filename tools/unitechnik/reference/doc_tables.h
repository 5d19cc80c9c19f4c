#pragma once

#include <string>

// The tables of the documentation that the tool's own code defines, made from
// that code, so that a test can compare them with the pages.
namespace ItUnitechnik::Tool::Reference {

// The calls of a script and their keys, as a Markdown table: one row per
// entry of the call table, its keys with their types, and what a count of
// the call counts, which key names a file and whether the call is checked
// before any call runs.
std::string CallsTable();

// The codes of check and convert, one line each: "UT101 text-cut".
std::string CodeList();

} // namespace ItUnitechnik::Tool::Reference

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik::Testing {

// Random but valid call scripts for unitechnik build, from a seed. Each
// script holds one to three orders, each with every setter and every adder
// at least once, and ends with an endDocument to "<name>.uni" in the current
// directory. Script n of a seed is the same whatever the count.
//
// Versions: the first scripts take the versions where the layout changes,
// 0, 5, 499, 500, 501, 502, 503, 599, 600, 601 and 65535, in turn; after
// them an order takes one of these or any version from 0 to 65535. Values
// fit their C types, most of them in the sizes of real elements and some at
// the ends of their types; counts are given, left out, larger than their
// lists (padded) or smaller. Texts hold printable characters up to U+00FF and
// the bending codes of free-form bars stay below 208, so that each file is
// whole (a character above U+00FF ends it), and the dates are valid.

// The versions every run of the generator goes through first.
const std::vector<std::uint16_t>& EdgeVersions();

// The name of script n: "script-0042".
std::string GeneratedScriptName(std::size_t number);

// The JSON text of script n of the seed.
std::string GenerateScript(std::uint64_t seed, std::size_t number);

// Writes `count` scripts, <name>.json, into `directory` (which must exist)
// and gives back their paths.
std::vector<std::string> GenerateScripts(const std::string& directory, std::uint64_t seed, std::size_t count);

} // namespace ItUnitechnik::Testing

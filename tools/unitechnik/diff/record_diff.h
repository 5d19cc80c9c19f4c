#pragma once

#include "tree/flat_records.h"
#include "tree/written_places.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <string>
#include <vector>

// The differences of two documents as records, not lines: records added and
// removed, and for a record in both each member whose value differs. The
// entries of a list are paired by their content, running numbers aside, so
// that a record taken out of the middle shows as removed and not as every
// record behind it changed.
namespace ItUnitechnik::Tool::Diff {

struct Change {
    enum class Kind { added, removed, changed };
    Kind kind = Kind::changed;
    std::string pathA;  // the record in the first document ("" when added)
    std::string pathB;  // the record in the second ("" when removed)
    std::string member; // a changed member, from its record
    std::string oldValue;
    std::string newValue;
    std::size_t lineA = 0; // where the record or member stands in each file
    std::size_t lineB = 0;
};

// One document: its records and where they stand in its file.
struct Side {
    const Tree::FlatList& orders;
    const Check::WrittenDocument& written;
};

std::vector<Change> Compare(const Side& a, const Side& b);

// A:LINE: B:LINE: changed PATH.MEMBER: OLD -> NEW; A:LINE: removed PATH;
// B:LINE: added PATH.
std::string ChangeLine(const Change& change, const std::string& fileA, const std::string& fileB);
nlohmann::ordered_json ChangesJson(const std::vector<Change>& changes, const std::string& fileA,
                                   const std::string& fileB);

} // namespace ItUnitechnik::Tool::Diff

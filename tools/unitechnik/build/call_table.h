#pragma once

#include "build/arguments.h"
#include "text/unicode.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The call table: one entry per export of the library, with the keys a call
// script gives it (the parameter names of itunitechnik.h), their types and
// ranges, the lists whose length a count states and how much of them the
// export reads for that count, and the call of the export itself. Reading a
// script, running it and checking it all take their knowledge from here.
namespace ItUnitechnik::Tool::Script {

enum class ValueKind {
    Integer,  // a JSON integer within the C type's range
    Real,     // any JSON number (a double)
    Boolean,  // true or false
    Text,     // a string: UTF-8 in JSON, 16-bit code units for the export
    Texts,    // an array of strings
    Integers, // a flat array of 32-bit integers
    Reals,    // a flat array of doubles
    Block,    // an object with the fields of a struct
    Blocks    // an array of such objects
};

// An integer parameter's C type and its range.
struct IntegerType {
    const char* name;
    std::int64_t least;
    std::int64_t most;
};

extern const IntegerType kUInt8;
extern const IntegerType kInt16;
extern const IntegerType kUInt16;
extern const IntegerType kInt32;

struct KeySpec {
    std::string name;
    ValueKind kind;
    // Integer, and each entry of Integers: the C type.
    const IntegerType* type = nullptr;
    // Texts: the most entries; Integers and Reals: the length the export
    // reads whatever the call (a shorter list is padded with zeros, a longer
    // one refused); 0 for a list whose length a count states.
    std::size_t length = 0;
    // Block and Blocks: the struct's fields, all Integer, Real or Text.
    std::vector<KeySpec> fields;
};

// A list whose length is stated by a count (a key of the call, or a field of
// one of its blocks: "block.pointCount").
struct CountedList {
    std::string count;
    std::string list;
    // Entries of the list per unit of the count (2 for points: x and y); a
    // missing count is the list's length divided by this.
    std::int64_t entriesPerUnit;
    const char* unitName;  // what the count counts: "points"
    const char* entryName; // what the list holds: "integers"
    // The entries of the list the export reads with the call's values: what a
    // shorter list is padded to, and what a check of counts compares with.
    std::int64_t (*reads)(const Arguments& arguments);
};

// What a call gave back: the export's integer result, and for
// getFullReinforcementString the text.
struct Outcome {
    std::optional<std::int64_t> result;
    std::optional<HostText> text;
};

// A value the export would fail on although its type fits: the key and why.
struct Refusal {
    std::string key;
    std::string reason;
};

struct CallSpec {
    std::string name;
    std::vector<KeySpec> keys;
    std::vector<CountedList> counted;
    // The key of the path of the file the call writes, if it writes one.
    const char* pathKey = nullptr;
    // A check beyond the types, run once the call is read.
    std::optional<Refusal> (*check)(const Arguments& arguments) = nullptr;
    Outcome (*invoke)(const Arguments& arguments) = nullptr;
};

// Every export that a script may call, in the order of the header.
const std::vector<CallSpec>& CallTable();

// The entry of an export, or null.
const CallSpec* FindCall(std::string_view name);

// The export that no script calls, since a script holds no pointer: the tool
// gives every result of getFullReinforcementString back through it itself.
inline constexpr std::string_view kFreeCall = "freeFullReinforcementString";

// The text of getFullReinforcementString, given back to the library at once.
HostText TakeFullReinforcementString();

} // namespace ItUnitechnik::Tool::Script

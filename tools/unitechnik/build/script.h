#pragma once

#include "build/arguments.h"
#include "build/call_table.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool::Script {

// A call script is {"calls": [...]}: each call an object whose "call" is the
// export's name and whose other keys are its parameters (see the call table).

// The most zeros that padding may add in a whole script: lists shorter than
// a count states are padded up to what the export reads, and a count that
// would need more is refused rather than making gigabytes of zeros.
inline constexpr std::int64_t kMostPadding = 1000000;

// A count given in the script that states more than its list holds: the
// export reads zeros for the rest, as the padded list holds them.
struct Padding {
    const CountedList* counted;
    std::int64_t count;  // as given
    std::int64_t length; // entries of the list as given
    std::int64_t reads;  // entries the export reads for the count
};

struct Call {
    std::size_t index; // in the script's "calls", from 0
    const CallSpec* callEntry;
    Arguments arguments;
    std::vector<Padding> padded; // the lists padded behind a count that was given
};

// Every call of a script, checked whole before any of them runs: every key
// known, every value of its type and range, every default in place and every
// list padded to what its export reads. Throws BadInput naming the call's
// index, name and key.
std::vector<Call> ReadCalls(const nlohmann::json& script);

// -o FILE: the last endDocument writes to `path`; a script that has none gets
// one at its end.
void RedirectLastDocument(std::vector<Call>& calls, const std::string& path);

// Each call that writes a file names one: throws BadInput otherwise.
void CheckPaths(const std::vector<Call>& calls);

} // namespace ItUnitechnik::Tool::Script

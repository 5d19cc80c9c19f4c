#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

// What `check` finds, and `convert` reports with the same codes: each finding
// has a stable code, a place (a file's line and column, or a script call's
// line and column in the JSON) and a message, and prints as a compiler's
// diagnostic does.
namespace ItUnitechnik::Tool::Check {

enum class Code {
    textCut,             // UT101
    numberTooWide,       // UT102
    unwritableCharacter, // UT103
    negativeCoordinate,  // UT104
    countBeyondData,     // UT105
    noElementContent,    // UT106
    unreadableLine,      // UT201
    lineEnd,             // UT202
    cutOff,              // UT203
    trailingData,        // UT204
    recordLeftOut,       // UT301
    barWithoutSize,      // UT401
    barsStacked,         // UT402
    outsideElement,      // UT403
    outsideMat,          // UT404
};

// "UT101" and "text-cut".
const char* CodeId(Code code);
const char* CodeName(Code code);
// A code by its id or its name; nothing for neither.
std::optional<Code> FindCode(const std::string& text);
// Every id and name, for a message that lists them.
std::string KnownCodes();

struct Finding {
    std::string path; // the input as given on the command line
    std::size_t line = 0;
    std::size_t column = 0;
    Code code = Code::textCut;
    std::string message;
    // More for --json: the call and key of a script, the record and member.
    nlohmann::ordered_json details = nlohmann::ordered_json::object();
};

// PATH:LINE:COLUMN: UT101 text-cut: MESSAGE
std::string FindingLine(const Finding& finding);
// The findings as one JSON array, each with path, line, column, code, name,
// message and its details.
nlohmann::ordered_json FindingsJson(const std::vector<Finding>& findings);

// The findings whose code is not among the left-out ones.
std::vector<Finding> Without(std::vector<Finding> findings, const std::set<Code>& ignored);

// Prints the findings, one line each or as one JSON array.
void PrintFindings(const std::vector<Finding>& findings, bool json);

} // namespace ItUnitechnik::Tool::Check

#include "findings/findings.h"

#include <array>
#include <cstdio>
#include <utility>

namespace ItUnitechnik::Tool::Check {
namespace {

struct CodeInfo {
    Code code;
    const char* id;
    const char* name;
};

// Codes are never renumbered: a new one comes after the last of its hundred.
constexpr std::array<CodeInfo, 15> kCodes{{
    {Code::textCut, "UT101", "text-cut"},
    {Code::numberTooWide, "UT102", "number-too-wide"},
    {Code::unwritableCharacter, "UT103", "unwritable-character"},
    {Code::negativeCoordinate, "UT104", "negative-coordinate"},
    {Code::countBeyondData, "UT105", "count-beyond-data"},
    {Code::noElementContent, "UT106", "no-element-content"},
    {Code::unreadableLine, "UT201", "unreadable-line"},
    {Code::lineEnd, "UT202", "line-end"},
    {Code::cutOff, "UT203", "cut-off"},
    {Code::trailingData, "UT204", "trailing-data"},
    {Code::recordLeftOut, "UT301", "record-left-out"},
    {Code::barWithoutSize, "UT401", "bar-without-size"},
    {Code::barsStacked, "UT402", "bars-stacked"},
    {Code::outsideElement, "UT403", "outside-element"},
    {Code::outsideMat, "UT404", "outside-mat"},
}};

const CodeInfo& Info(Code code)
{
    for (const CodeInfo& info : kCodes) {
        if (info.code == code) {
            return info;
        }
    }
    return kCodes[0];
}

} // namespace

const char* CodeId(Code code)
{
    return Info(code).id;
}

const char* CodeName(Code code)
{
    return Info(code).name;
}

std::optional<Code> FindCode(const std::string& text)
{
    for (const CodeInfo& info : kCodes) {
        if (text == info.id || text == info.name) {
            return info.code;
        }
    }
    return std::nullopt;
}

std::string KnownCodes()
{
    std::string known;
    for (const CodeInfo& info : kCodes) {
        known += (known.empty() ? "" : ", ") + std::string(info.id) + " " + info.name;
    }
    return known;
}

std::string FindingLine(const Finding& finding)
{
    return finding.path + ":" + std::to_string(finding.line) + ":" + std::to_string(finding.column) + ": " +
           CodeId(finding.code) + " " + CodeName(finding.code) + ": " + finding.message;
}

nlohmann::ordered_json FindingsJson(const std::vector<Finding>& findings)
{
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const Finding& finding : findings) {
        nlohmann::ordered_json entry;
        entry["path"] = finding.path;
        entry["line"] = finding.line;
        entry["column"] = finding.column;
        entry["code"] = CodeId(finding.code);
        entry["name"] = CodeName(finding.code);
        entry["message"] = finding.message;
        for (const auto& [key, value] : finding.details.items()) {
            entry[key] = value;
        }
        list.push_back(std::move(entry));
    }
    return list;
}

std::vector<Finding> Without(std::vector<Finding> findings, const std::set<Code>& ignored)
{
    std::vector<Finding> kept;
    for (Finding& finding : findings) {
        if (ignored.count(finding.code) == 0) {
            kept.push_back(std::move(finding));
        }
    }
    return kept;
}

void PrintFindings(const std::vector<Finding>& findings, bool json)
{
    std::string text;
    if (json) {
        text = FindingsJson(findings).dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
    } else {
        for (const Finding& finding : findings) {
            text += FindingLine(finding) + "\n";
        }
    }
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

} // namespace ItUnitechnik::Tool::Check

#include "findings/record_findings.h"

#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "plant/plan_box.h"
#include "plant/plant_view.h"
#include "platform/platform.h"
#include "records/element/element_part.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <set>
#include <type_traits>

namespace ItUnitechnik::Tool::Check {
namespace {

// The names the records give the counts of their lists.
bool IsCount(const std::string& member)
{
    static const std::set<std::string> counts{"bars",         "concreteLayers", "contours",  "cutouts",
                                              "elementParts", "geoData",        "girders",   "irons",
                                              "parts",        "points",         "positions", "segments"};
    return counts.count(member) > 0;
}

std::string CodePoint(const std::wstring& text, std::size_t at)
{
    // Through the unsigned type of the same width: a wchar_t is signed on some
    // platforms, and a code unit is never negative.
    using Unit = std::make_unsigned_t<wchar_t>;
    unsigned long value = static_cast<Unit>(text[at]);
    // A pair of 16-bit units is one character.
    if (value >= 0xD800 && value < 0xDC00 && at + 1 < text.size()) {
        const unsigned long low = static_cast<Unit>(text[at + 1]);
        if (low >= 0xDC00 && low < 0xE000) {
            value = 0x10000 + ((value - 0xD800) << 10) + (low - 0xDC00);
        }
    }
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "U+%04lX", value);
    return buffer;
}

std::string Places(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " place" : " places");
}

} // namespace

std::vector<RecordFinding> FieldFindings(const WrittenDocument& written, const Tree::RecordIndex& index)
{
    std::vector<RecordFinding> findings;
    for (const WrittenEvent& event : written.events) {
        RecordFinding finding;
        finding.tag = event.tag;
        finding.name = event.member;
        finding.member = event.member;
        finding.list = IsCount(event.member);
        finding.written = event.place;
        // The innermost record the tree knows; a point written through a copy
        // of itself is known by the point.
        for (auto record = event.records.rbegin(); record != event.records.rend(); ++record) {
            if (const auto where = index.Find(*record)) {
                finding.record = *record;
                finding.path = where->path;
                finding.name = Tree::Joined(where->prefix, event.member);
                break;
            }
        }
        const std::string subject = event.tag + " " + finding.name + ": ";
        switch (event.problem) {
        case FieldProblem::textCut: {
            const std::wstring dropped = event.value.substr(std::min(event.written.size(), event.value.size()));
            if (dropped.find_first_not_of(L' ') == std::wstring::npos) {
                continue; // only the blanks that fill a field
            }
            finding.code = Code::textCut;
            finding.text = event.value;
            finding.message = subject + Tree::ShownValue(event.value) + " is cut to its " +
                              Places(static_cast<std::size_t>(event.width)) + ": " + Tree::ShownValue(event.written);
            break;
        }
        case FieldProblem::numberTooWide: {
            const std::size_t needed = event.written.size();
            const std::size_t width = static_cast<std::size_t>(event.width);
            finding.code = Code::numberTooWide;
            finding.message = subject + Platform::ToUtf8(event.written) + " needs " + Places(needed) +
                              ", its field has " + std::to_string(width) +
                              ": every later column of the line moves by " + std::to_string(needed - width);
            break;
        }
        case FieldProblem::unwritableCharacter: {
            std::size_t at = 0;
            while (at < event.written.size() && static_cast<unsigned long>(event.written[at]) <= 0xFF) {
                ++at;
            }
            finding.code = Code::unwritableCharacter;
            finding.text = event.value;
            finding.message = subject + (at < event.written.size() ? CodePoint(event.written, at) : "a character") +
                              " in " + Tree::ShownValue(event.value) +
                              " cannot be written: a document file ends before it, though endDocument reports "
                              "success";
            break;
        }
        }
        findings.push_back(std::move(finding));
    }
    return findings;
}

std::optional<Place> PlaceOf(const RecordFinding& finding, const WrittenDocument& written)
{
    if (finding.written) {
        return finding.written;
    }
    if (!finding.whole) {
        if (const auto field = written.Field(finding.record, finding.member)) {
            return field;
        }
    }
    return written.RecordStart(finding.record);
}

} // namespace ItUnitechnik::Tool::Check

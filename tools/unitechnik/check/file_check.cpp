#include "check/file_check.h"

#include "findings/record_findings.h"
#include "reading/tolerant_reading.h"
#include "tree/flat_records.h"
#include "tree/written_places.h"

#include <algorithm>
#include <tuple>

namespace ItUnitechnik::Tool::Check {
namespace {

Finding At(const std::string& path, Place place, Code code, std::string message)
{
    Finding finding;
    finding.path = path;
    finding.line = place.line;
    finding.column = place.column;
    finding.code = code;
    finding.message = std::move(message);
    return finding;
}

// Where each bare line feed stands: its line and its column.
std::vector<Place> BareLineFeeds(const std::string& bytes, const std::vector<std::size_t>& lines)
{
    std::vector<Place> places;
    std::size_t line = 1;
    std::size_t column = 1;
    for (const char byte : bytes) {
        if (byte == '\n') {
            if (std::binary_search(lines.begin(), lines.end(), line)) {
                places.push_back(Place{line, column});
            }
            ++line;
            column = 1;
        } else {
            ++column;
        }
    }
    return places;
}

} // namespace

std::optional<Finding> StopFinding(const std::string& path, const TolerantDocument& document)
{
    if (!document.stop) {
        return std::nullopt;
    }
    const ReadStop& at = *document.stop;
    const Place place{at.line, at.column};
    if (document.trailingData) {
        return At(path, place, Code::trailingData, "bytes after the last order");
    }
    if (at.atEnd) {
        return At(path, place, Code::cutOff,
                  "the file ends inside " + (at.record.empty() ? std::string("a record") : at.record) + ": expected " +
                      at.expected);
    }
    return At(path, place, Code::unreadableLine,
              "expected " + at.expected + (at.record.empty() ? std::string() : " in " + at.record));
}

std::vector<Finding> CheckFile(const std::string& path, const std::string& bytes)
{
    TolerantDocument document = ReadTolerantly(bytes);
    std::vector<Finding> findings;

    // Once a file, at the first such line, with the count: a file written
    // where lines end in a bare line feed ends all of them so.
    const std::vector<Place> bare = BareLineFeeds(bytes, document.bareLineEnds);
    if (!bare.empty()) {
        findings.push_back(At(path, bare.front(), Code::lineEnd,
                              bare.size() == 1 ? std::string("1 line ends in a bare line feed")
                                               : std::to_string(bare.size()) + " lines end in a bare line feed"));
    }
    if (document.Complete() && document.departures.count(Departure::noFinalLineEnd) != 0) {
        // Where the last line's end is missing.
        const std::size_t lastFeed = bytes.rfind('\n');
        const std::size_t lastLine = lastFeed == std::string::npos ? 0 : lastFeed + 1;
        const Place end{static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1,
                        bytes.size() - lastLine + 1};
        findings.push_back(At(path, end, Code::lineEnd, "the last line has no line end"));
    }

    std::optional<Place> stop;
    if (std::optional<Finding> stopped = StopFinding(path, document)) {
        stop = Place{stopped->line, stopped->column};
        findings.push_back(std::move(*stopped));
    }
    // Of a document read only in part, what stands before the stop.
    const auto beforeStop = [&stop](const Place& place) { return !stop || place < *stop; };

    const WrittenDocument written = WriteInMemory(document.orders, true);
    const Tree::FlatList flat = Tree::Flatten(document.orders);
    const Tree::RecordIndex records(flat);
    for (const RecordFinding& finding : FieldFindings(written, records)) {
        if (finding.written && beforeStop(*finding.written)) {
            Finding found = At(path, *finding.written, finding.code, finding.message);
            found.details["record"] = finding.path;
            found.details["member"] = finding.name;
            findings.push_back(std::move(found));
        }
    }
    for (const RecordFinding& finding : TreeFindings(document.orders, records)) {
        const std::optional<Place> place = PlaceOf(finding, written);
        if (!place || !beforeStop(*place)) {
            continue;
        }
        // An element read only in part may have lost its contour to the stop.
        if (finding.code == Code::noElementContent && stop) {
            const std::optional<Place> end = written.RecordEnd(finding.record);
            if (!end || !(*end < *stop)) {
                continue;
            }
        }
        Finding found = At(path, *place, finding.code, finding.message);
        found.details["record"] = finding.path;
        if (!finding.whole) {
            found.details["member"] = finding.name;
        }
        findings.push_back(std::move(found));
    }

    std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
        return std::tie(a.line, a.column) < std::tie(b.line, b.column);
    });
    return findings;
}

} // namespace ItUnitechnik::Tool::Check

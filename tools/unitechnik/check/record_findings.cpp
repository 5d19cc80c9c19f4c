#include "check/record_findings.h"

#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "records/element/element_part.h"
#include "tree/tree_json.h"

#include <cstdio>
#include <set>

namespace ItUnitechnik::Tool::Check {
namespace {

std::string Joined(const std::string& prefix, const std::string& name)
{
    return prefix.empty() ? name : prefix + "." + name;
}

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
    unsigned long value = static_cast<unsigned long>(text[at]);
    // A pair of 16-bit units is one character.
    if (value >= 0xD800 && value < 0xDC00 && at + 1 < text.size()) {
        const auto low = static_cast<unsigned long>(text[at + 1]);
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
                finding.name = Joined(where->prefix, event.member);
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
            finding.message = subject + Tree::Utf8(event.written) + " needs " + Places(needed) + ", its field has " +
                              std::to_string(width) + ": every later column of the line moves by " +
                              std::to_string(needed - width);
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

namespace {

class Walk {
public:
    Walk(const Tree::RecordIndex& index, std::vector<RecordFinding>& out) : index_(index), out_(out) {}

    void Orders(std::vector<Order>& orders)
    {
        for (Order& order : orders) {
            for (ElementPart& element : order.elementParts) {
                Element(element);
            }
        }
    }

private:
    void Element(ElementPart& element)
    {
        bool contour = !element.contourData.contours.empty();
        for (Layer& layer : element.layers) {
            for (Lot& lot : layer.lots) {
                contour = contour || !lot.contourData.contours.empty();
            }
        }
        if (!contour) {
            Add(Code::noElementContent, "SLABDATE", &element, "contourData.contours", "0");
        }

        // What the element writes, and nothing else: its layers alone when
        // it has any; below 600 a block of mats instead of loose bars and
        // girders.
        if (!element.layers.empty()) {
            for (Layer& layer : element.layers) {
                for (Lot& lot : layer.lots) {
                    Contours(lot.contourData);
                    Cutouts(lot.cutoutData);
                }
                Parts(layer.mountingPartData);
                Mats(layer.reinforcement);
            }
            return;
        }
        Contours(element.contourData);
        Cutouts(element.cutoutData);
        Parts(element.mountingPartData);
        if (element.version >= 600 || !element.reinforcement.present) {
            Bars(element.rodstockData);
            Girders(element.bracedGirderData);
        }
        if (element.reinforcement.present) {
            Mats(element.reinforcement);
        }
    }

    void Contours(ContourData& data)
    {
        for (Contour& contour : data.contours) {
            Outline(contour.geoData, "CONTOUR_");
        }
    }

    void Cutouts(CutoutData& data)
    {
        for (Cutout& cutout : data.cutouts) {
            Outline(cutout.geoData, "CUTOUT__");
        }
    }

    void Parts(MountingPartData& data)
    {
        for (MountingPart& part : data.parts) {
            Outline(part.geoData, "MOUNPART");
            // The position stands in the file from 600 on.
            if (part.version >= 600) {
                Coordinate("MOUNPART", &part, "position.x", part.position.x, false);
                Coordinate("MOUNPART", &part, "position.y", part.position.y, false);
            }
        }
    }

    void Bars(RodstockData& data)
    {
        for (Rodstock& bar : data.bars) {
            Coordinate("RODSTOCK", &bar, "position.x", bar.position.x, false);
            Coordinate("RODSTOCK", &bar, "position.y", bar.position.y, false);
        }
    }

    void Girders(BracedGirderData& data)
    {
        for (BracedGirder& girder : data.girders) {
            Coordinate("BRGIRDER", &girder, "position.x", girder.position.x, false);
            Coordinate("BRGIRDER", &girder, "position.y", girder.position.y, false);
        }
    }

    void Mats(Reinforcement& block)
    {
        for (Steelmat& mat : block.mats) {
            Bars(mat.rodstocks);
            Girders(mat.girders);
        }
    }

    void Outline(std::vector<GeoData>& pieces, const char* tag)
    {
        for (GeoData& piece : pieces) {
            if (piece.curve == nullptr) {
                continue;
            }
            // Below 600 a point has no room for a sign and is written as 0.
            const bool asZero = piece.curve->version < 600;
            if (auto* arc = dynamic_cast<Arc*>(piece.curve.get())) {
                Point(tag, arc->centre, asZero);
            } else if (auto* circle = dynamic_cast<Circle*>(piece.curve.get())) {
                Point(tag, circle->centre, asZero);
            } else if (auto* line = dynamic_cast<LineSegment*>(piece.curve.get())) {
                Point(tag, line->start, asZero);
                Point(tag, line->end, asZero);
            } else if (auto* polygon = dynamic_cast<Polygon*>(piece.curve.get())) {
                for (Point2d& point : polygon->points) {
                    Point(tag, point, asZero);
                }
            }
        }
    }

    void Point(const char* tag, Point2d& point, bool asZero)
    {
        Coordinate(tag, &point, "x", point.x, asZero);
        Coordinate(tag, &point, "y", point.y, asZero);
    }

    void Coordinate(const char* tag, const void* record, const char* member, std::int32_t value, bool asZero)
    {
        if (value >= 0) {
            return;
        }
        RecordFinding& finding = Add(Code::negativeCoordinate, tag, record, member, std::to_string(value));
        finding.message = finding.tag + " " + finding.name + " is " + finding.value + ", below zero";
        if (asZero) {
            finding.writtenAsZero = true;
            finding.message += "; below version 600 the file holds 0 there";
        }
    }

    RecordFinding& Add(Code code, const char* tag, const void* record, const std::string& member, std::string value)
    {
        RecordFinding finding;
        finding.code = code;
        finding.tag = tag;
        finding.record = record;
        finding.member = member;
        finding.name = member;
        finding.value = std::move(value);
        if (const auto where = index_.Find(record)) {
            finding.path = where->path;
            finding.name = Joined(where->prefix, member);
        }
        if (code == Code::noElementContent) {
            finding.list = true;
            finding.message = finding.tag + " " + finding.path + " has no contour";
        }
        out_.push_back(std::move(finding));
        return out_.back();
    }

    const Tree::RecordIndex& index_;
    std::vector<RecordFinding>& out_;
};

} // namespace

std::vector<RecordFinding> TreeFindings(std::vector<Order>& orders, const Tree::RecordIndex& index)
{
    std::vector<RecordFinding> findings;
    Walk(index, findings).Orders(orders);
    return findings;
}

std::optional<Place> PlaceOf(const RecordFinding& finding, const WrittenDocument& written)
{
    if (finding.written) {
        return finding.written;
    }
    if (const auto field = written.Field(finding.record, finding.member)) {
        return field;
    }
    return written.RecordStart(finding.record);
}

} // namespace ItUnitechnik::Tool::Check

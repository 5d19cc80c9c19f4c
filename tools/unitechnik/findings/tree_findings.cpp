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

namespace ItUnitechnik::Tool::Check {

namespace {

using Plant::PlanPoint;

using Plant::PlanBox;

// The file holds whole millimetres, and a bar turned by other than a quarter
// ends between two of them: half a millimetre beyond a box is still in it.
constexpr double kTolerance = 0.5;

bool Beyond(PlanPoint point, const PlanBox& box)
{
    return point.x < box.minX - kTolerance || point.x > box.maxX + kTolerance || point.y < box.minY - kTolerance ||
           point.y > box.maxY + kTolerance;
}

// Widens the box by what an outline covers.
void WidenByOutline(PlanBox& box, const std::vector<GeoData>& pieces)
{
    box.Widen(Plant::OutlineBox(pieces));
}

// Millimetres as the file holds them, or to a tenth between them.
std::string Mm(double value)
{
    const double whole = std::round(value);
    char buffer[32];
    if (std::abs(value - whole) < 0.05) {
        std::snprintf(buffer, sizeof buffer, "%.0f", whole == 0.0 ? 0.0 : whole);
    } else {
        std::snprintf(buffer, sizeof buffer, "%.1f", value);
    }
    return buffer;
}

std::string PointText(PlanPoint point)
{
    return "(" + Mm(point.x) + ", " + Mm(point.y) + ")";
}

std::string BoxText(const PlanBox& box)
{
    return PointText({box.minX, box.minY}) + " to " + PointText({box.maxX, box.maxY});
}

// A member of a set or group that reaches beyond a box, and the first of
// its points that does.
struct Reaching {
    std::int32_t member = 0; // from 0
    PlanPoint point;
};

std::optional<PlanPoint> FirstBeyond(const std::vector<PlanPoint>& points, const PlanBox& box)
{
    for (const PlanPoint& point : points) {
        if (Beyond(point, box)) {
            return point;
        }
    }
    return std::nullopt;
}

// The first of `count` members that reaches beyond the box; `shape` gives
// member i in plan. The members are one shape moved i x pitch along a line,
// so those in the box are one run of neighbours: when the first member is
// in it, the run ends before the first one outside, which halving finds
// without drawing every member.
template <class Shape>
std::optional<Reaching> FirstReaching(std::int32_t count, const Shape& shape, const PlanBox& box)
{
    if (const std::optional<PlanPoint> point = FirstBeyond(shape(0), box)) {
        return Reaching{0, *point};
    }
    if (!FirstBeyond(shape(count - 1), box)) {
        return std::nullopt;
    }
    std::int32_t inside = 0;
    std::int32_t outside = count - 1;
    while (outside - inside > 1) {
        const std::int32_t middle = inside + (outside - inside) / 2;
        (FirstBeyond(shape(middle), box) ? outside : inside) = middle;
    }
    return Reaching{outside, *FirstBeyond(shape(outside), box)};
}

class Walk {
public:
    Walk(const Tree::RecordIndex& index, std::vector<RecordFinding>& out) : index_(index), out_(out) {}

    void Orders(const std::vector<Order>& orders)
    {
        for (const Order& order : orders) {
            for (const ElementPart& element : order.elementParts) {
                Element(element);
            }
        }
    }

private:
    void Element(const ElementPart& element)
    {
        bool contour = !element.contourData.contours.empty();
        for (const Layer& layer : element.layers) {
            for (const Lot& lot : layer.lots) {
                contour = contour || !lot.contourData.contours.empty();
            }
        }
        if (!contour) {
            Add(Code::noElementContent, "SLABDATE", &element, "contourData.contours", "0");
        }

        // The element's extents: the box of its contours. Without one there
        // is nothing to be beyond; UT106 tells that already.
        PlanBox box;
        for (const Contour& each : element.contourData.contours) {
            WidenByOutline(box, each.geoData);
        }
        for (const Layer& layer : element.layers) {
            for (const Lot& lot : layer.lots) {
                for (const Contour& each : lot.contourData.contours) {
                    WidenByOutline(box, each.geoData);
                }
            }
        }
        extents_ = box.Empty() ? std::nullopt : std::optional<PlanBox>(box);

        // What the element writes, and nothing else: its layers alone when
        // it has any; below 600 a block of mats instead of loose bars and
        // girders.
        if (!element.layers.empty()) {
            for (const Layer& layer : element.layers) {
                for (const Lot& lot : layer.lots) {
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

    void Contours(const ContourData& data)
    {
        for (const Contour& contour : data.contours) {
            Outline(contour.geoData, "CONTOUR_");
        }
    }

    void Cutouts(const CutoutData& data)
    {
        for (const Cutout& cutout : data.cutouts) {
            Outline(cutout.geoData, "CUTOUT__");
        }
    }

    void Parts(const MountingPartData& data)
    {
        for (const MountingPart& part : data.parts) {
            Outline(part.geoData, "MOUNPART");
            // The position stands in the file from 600 on.
            if (part.version >= 600) {
                Coordinate("MOUNPART", &part, "position.x", part.position.x, false);
                Coordinate("MOUNPART", &part, "position.y", part.position.y, false);
            }
            PlanBox footprint;
            WidenByOutline(footprint, part.geoData);
            if (extents_ && !footprint.Empty() &&
                (Beyond({footprint.minX, footprint.minY}, *extents_) ||
                 Beyond({footprint.maxX, footprint.maxY}, *extents_))) {
                Whole(Code::outsideElement, "MOUNPART", &part, Plant::kPart.name.row.member,
                      Tree::ShownValue(Plant::kPart.name(part)) + ": its footprint " + BoxText(footprint) +
                          " reaches beyond the element's extents " + BoxText(*extents_));
            }
        }
    }

    // The element's own bars stand from (0, 0), a mat's from the mat's
    // origin; `mat` is the mat's area in the element.
    void Bars(const RodstockData& data, Plant::Origin origin = {}, const PlanBox* mat = nullptr)
    {
        for (const Rodstock& bar : data.bars) {
            Coordinate("RODSTOCK", &bar, "position.x", bar.position.x, false);
            Coordinate("RODSTOCK", &bar, "position.y", bar.position.y, false);
            const Plant::BarSet set = Plant::BarSetOf(bar, origin);
            Size(bar, set);
            if (set.count <= 0) {
                continue;
            }
            const auto shape = [&set](std::int32_t i) { return Plant::BarInPlan(set, i); };
            if (extents_) {
                Reach(Code::outsideElement, "RODSTOCK", &bar, Plant::kBar.x.row.member, "bar", set.count, shape,
                      *extents_, "the element's extents ");
            }
            if (mat != nullptr) {
                Reach(Code::outsideMat, "RODSTOCK", &bar, Plant::kBar.x.row.member, "bar", set.count, shape, *mat,
                      "its mat, ");
            }
        }
    }

    // UT401 and UT402: what a plant needs to cut and lay a set of bars.
    void Size(const Rodstock& bar, const Plant::BarSet& set)
    {
        std::string zero;
        const char* first = nullptr;
        std::string firstValue;
        const auto look = [&](const Plant::Row& row, std::int32_t value) {
            if (value > 0) {
                return;
            }
            zero += std::string(zero.empty() ? "" : " and ") + row.name + " (" + row.member + ") is " +
                    std::to_string(value);
            if (first == nullptr) {
                first = row.member;
                firstValue = std::to_string(value);
            }
        };
        look(Plant::kBar.count.row, set.count);
        look(Plant::kBar.diameter.row, set.diameter);
        look(Plant::kBar.length.row, set.length);
        if (first != nullptr) {
            RecordFinding& finding = Add(Code::barWithoutSize, "RODSTOCK", &bar, first, firstValue);
            finding.keyed = false;
            finding.message = "RODSTOCK " + zero + ": a set of bars needs a count, a diameter and a length";
        }
        if (set.count >= 2 && set.pitch == 0) {
            const Plant::Row& pitch = Plant::kBar.pitch.row;
            const Plant::Row& count = Plant::kBar.count.row;
            const std::string bars = std::to_string(set.count);
            RecordFinding& finding = Add(Code::barsStacked, "RODSTOCK", &bar, pitch.member, "0");
            finding.keyed = false;
            finding.message = "RODSTOCK " + std::string(pitch.name) + " (" + pitch.member + ") is 0 with " +
                              count.name + " (" + count.member + ") " + bars + ": the " + bars +
                              " bars lie on one another";
        }
    }

    void Girders(const BracedGirderData& data, Plant::Origin origin = {})
    {
        for (const BracedGirder& girder : data.girders) {
            Coordinate("BRGIRDER", &girder, "position.x", girder.position.x, false);
            Coordinate("BRGIRDER", &girder, "position.y", girder.position.y, false);
            const Plant::GirderGroup group = Plant::GirderGroupOf(girder, origin);
            if (extents_ && group.count > 0) {
                Reach(
                    Code::outsideElement, "BRGIRDER", &girder, Plant::kGirder.x.row.member, "girder", group.count,
                    [&group](std::int32_t i) { return Plant::GirderInPlan(group, i); }, *extents_,
                    "the element's extents ");
            }
        }
    }

    void Mats(const Reinforcement& block)
    {
        for (const Steelmat& mat : block.mats) {
            const Plant::Mat view = Plant::MatOf(mat);
            PlanBox area;
            area.Widen(PlanPoint{static_cast<double>(view.x), static_cast<double>(view.y)});
            area.Widen(PlanPoint{static_cast<double>(view.x) + view.length, static_cast<double>(view.y) + view.width});
            Bars(mat.rodstocks, {view.x, view.y}, &area);
            Girders(mat.girders, {view.x, view.y});
        }
    }

    // UT403 and UT404 of a set or group: its first member beyond the box.
    template <class Shape>
    void Reach(Code code, const char* tag, const void* record, const char* made, const char* what, std::int32_t count,
               const Shape& shape, const PlanBox& box, const std::string& boxName)
    {
        if (const std::optional<Reaching> reaching = FirstReaching(count, shape, box)) {
            Whole(code, tag, record, made,
                  std::string(what) + " " + std::to_string(reaching->member + 1) + " of " + std::to_string(count) +
                      " reaches " + PointText(reaching->point) + ", beyond " + boxName + BoxText(box));
        }
    }

    // A finding of the record as a whole; `made` is a member the record is
    // made with, by which a script's check finds the call that made it.
    void Whole(Code code, const char* tag, const void* record, const char* made, const std::string& message)
    {
        RecordFinding& finding = Add(code, tag, record, made, "");
        finding.whole = true;
        finding.keyed = false;
        finding.message = finding.tag + " " + finding.path + ": " + message;
    }

    void Outline(const std::vector<GeoData>& pieces, const char* tag)
    {
        for (const GeoData& piece : pieces) {
            if (piece.curve == nullptr) {
                continue;
            }
            // Below 600 a point has no room for a sign and is written as 0.
            const bool asZero = piece.curve->version < 600;
            if (const auto* arc = dynamic_cast<const Arc*>(piece.curve.get())) {
                Point(tag, arc->centre, asZero);
            } else if (const auto* circle = dynamic_cast<const Circle*>(piece.curve.get())) {
                Point(tag, circle->centre, asZero);
            } else if (const auto* line = dynamic_cast<const LineSegment*>(piece.curve.get())) {
                Point(tag, line->start, asZero);
                Point(tag, line->end, asZero);
            } else if (const auto* polygon = dynamic_cast<const Polygon*>(piece.curve.get())) {
                for (const Point2d& point : polygon->points) {
                    Point(tag, point, asZero);
                }
            }
        }
    }

    void Point(const char* tag, const Point2d& point, bool asZero)
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
            finding.name = Tree::Joined(where->prefix, member);
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
    std::optional<PlanBox> extents_; // of the element being walked
};

} // namespace

std::vector<RecordFinding> TreeFindings(const std::vector<Order>& orders, const Tree::RecordIndex& index)
{
    std::vector<RecordFinding> findings;
    Walk(index, findings).Orders(orders);
    return findings;
}

} // namespace ItUnitechnik::Tool::Check

#include "plant/plan_box.h"

#include "geometry/arc.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "plant/plant_meanings.h"

#include <algorithm>
#include <cmath>

namespace ItUnitechnik::Plant {

namespace {

PlanPoint PointOf(const Point2d& point)
{
    return {static_cast<double>(point.x), static_cast<double>(point.y)};
}

} // namespace

void PlanBox::Widen(PlanPoint point)
{
    minX = std::min(minX, point.x);
    minY = std::min(minY, point.y);
    maxX = std::max(maxX, point.x);
    maxY = std::max(maxY, point.y);
}

void PlanBox::Widen(const PlanBox& other)
{
    if (!other.Empty()) {
        Widen(PlanPoint{other.minX, other.minY});
        Widen(PlanPoint{other.maxX, other.maxY});
    }
}

PlanPoint CirclePoint(const Circle& circle, double degrees)
{
    const PlanPoint along = Direction(degrees);
    const double radius = static_cast<double>(circle.radius);
    return {static_cast<double>(circle.centre.x) + radius * along.x,
            static_cast<double>(circle.centre.y) + radius * along.y};
}

double ArcSweep(std::int32_t startAngle, std::int32_t endAngle)
{
    double sweep = std::fmod(static_cast<double>(endAngle) - static_cast<double>(startAngle), 360.0);
    if (sweep <= 0.0) {
        sweep += 360.0;
    }
    return sweep;
}

PlanBox OutlineBox(const std::vector<GeoData>& pieces)
{
    PlanBox box;
    for (const GeoData& piece : pieces) {
        if (const auto* arc = dynamic_cast<const Arc*>(piece.curve.get())) {
            if (arc->radius <= 0) {
                continue;
            }
            const double start = static_cast<double>(kArc.start(*arc));
            const double sweep = ArcSweep(kArc.start(*arc), kArc.end(*arc));
            box.Widen(CirclePoint(*arc, start));
            box.Widen(CirclePoint(*arc, start + sweep));
            // The quarter points that the arc passes.
            for (int quarter = 0; quarter < 4; ++quarter) {
                double past = std::fmod(90.0 * quarter - start, 360.0);
                if (past < 0.0) {
                    past += 360.0;
                }
                if (past <= sweep) {
                    box.Widen(CirclePoint(*arc, 90.0 * quarter));
                }
            }
        } else if (const auto* circle = dynamic_cast<const Circle*>(piece.curve.get())) {
            if (circle->radius > 0) {
                const double r = static_cast<double>(circle->radius);
                box.Widen(PlanPoint{circle->centre.x - r, circle->centre.y - r});
                box.Widen(PlanPoint{circle->centre.x + r, circle->centre.y + r});
            }
        } else if (const auto* line = dynamic_cast<const LineSegment*>(piece.curve.get())) {
            box.Widen(PointOf(line->start));
            box.Widen(PointOf(line->end));
        } else if (const auto* polygon = dynamic_cast<const Polygon*>(piece.curve.get())) {
            for (const Point2d& point : polygon->points) {
                box.Widen(PointOf(point));
            }
        }
    }
    return box;
}

} // namespace ItUnitechnik::Plant

#pragma once

#include "geometry/circle.h"
#include "geometry/geo_data.h"
#include "plant/plant_view.h"

#include <cstdint>
#include <limits>
#include <vector>

// Boxes in plan, in the element's millimetres: what an outline covers, as
// the drawing frames it and the checks hold bars and girders against it.
namespace ItUnitechnik::Plant {

// Empty until widened.
struct PlanBox {
    double minX = std::numeric_limits<double>::infinity();
    double minY = std::numeric_limits<double>::infinity();
    double maxX = -std::numeric_limits<double>::infinity();
    double maxY = -std::numeric_limits<double>::infinity();

    bool Empty() const { return minX > maxX || minY > maxY; }
    double Width() const { return Empty() ? 0.0 : maxX - minX; }
    double Height() const { return Empty() ? 0.0 : maxY - minY; }
    void Widen(PlanPoint point);
    void Widen(const PlanBox& other);
};

// The point of a circle at `degrees`, counter-clockwise from +x.
PlanPoint CirclePoint(const Circle& circle, double degrees);

// How far an arc runs from its start, in degrees: (end - start) taken into
// (0, 360]; an end equal to the start is the whole circle.
double ArcSweep(std::int32_t startAngle, std::int32_t endAngle);

// The box of an outline's pieces: an arc by the part of its circle it runs
// through, not by the whole circle. Pieces without a curve or with no radius
// cover nothing.
PlanBox OutlineBox(const std::vector<GeoData>& pieces);

} // namespace ItUnitechnik::Plant

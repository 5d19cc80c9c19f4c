#pragma once

#include "geometry/circle.h"
#include "geometry/geo_data.h"

#include <limits>
#include <string>
#include <vector>

// The records' geometry as the drawing needs it: points in the file's own
// coordinates (millimetres, y up), and SVG path data of them. Whatever the
// plant reads in a member (which is a bar's length, in which sense an arc
// runs) comes from the table in plant/plant_meanings.h.
namespace ItUnitechnik::Drawing {

struct PointD {
    double x = 0.0;
    double y = 0.0;
};

// Two points closer than half a millimetre on both axes are one.
bool SamePoint(PointD a, PointD b);

struct BoxD {
    double minX = std::numeric_limits<double>::infinity();
    double minY = std::numeric_limits<double>::infinity();
    double maxX = -std::numeric_limits<double>::infinity();
    double maxY = -std::numeric_limits<double>::infinity();

    bool Empty() const { return minX > maxX || minY > maxY; }
    double Width() const { return Empty() ? 0.0 : maxX - minX; }
    double Height() const { return Empty() ? 0.0 : maxY - minY; }
    void Widen(PointD point);
    void Widen(const BoxD& other);
};

// The point `length` away from `from` in the direction `degrees`,
// counter-clockwise from the x axis. Quarter turns are exact.
PointD Along(PointD from, double degrees, double length);

// The point of a circle at `degrees`, counter-clockwise from the x axis.
PointD CirclePoint(const Circle& circle, double degrees);

// How far an arc runs from its start, in degrees: (end - start) taken into
// (0, 360]; an end equal to the start is the whole circle.
double ArcSweep(std::int32_t startAngle, std::int32_t endAngle);

// The pieces of one outline as SVG path data, in order. A piece that begins
// where the one before ended goes on from there (a straight piece or an arc
// given the other way round is taken backwards), any other begins anew; a
// run that comes back to its first point is closed. Pieces without a curve
// or with no radius are left out.
std::string OutlinePath(const std::vector<GeoData>& pieces);

// The box of what OutlinePath draws: an arc by its own extent, not that of
// its whole circle.
BoxD OutlineBox(const std::vector<GeoData>& pieces);

// "M x y L x y ..." through the points.
std::string PolylinePath(const std::vector<PointD>& points);

// The drawn width of a braced girder in plan, in mm: no member of the
// record carries it.
inline constexpr double kGirderDrawnWidth = 80.0;

// A girder drawn in plan from the start of its axis along its direction for
// its length: its two chords, kGirderDrawnWidth apart, and the lattice
// between them, as two pieces of path data.
struct GirderPaths {
    std::string chords;
    std::string lattice;
};
GirderPaths GirderDrawing(PointD start, double direction, double length);

} // namespace ItUnitechnik::Drawing

#pragma once

#include "geometry/circle.h"
#include "geometry/geo_data.h"
#include "plant/plan_box.h"

#include <string>
#include <vector>

// The records' geometry as the drawing needs it: points in the file's own
// coordinates (millimetres, y up), and SVG path data of them. Whatever the
// plant reads in a member (which is a bar's length, in which sense an arc
// runs) comes from the table in plant/plant_meanings.h.
namespace ItUnitechnik::Drawing {

// The plan's points and boxes, as the plant's geometry has them.
using PointD = Plant::PlanPoint;
using BoxD = Plant::PlanBox;

// Two points closer than half a millimetre on both axes are one.
bool SamePoint(PointD a, PointD b);

// The point `length` away from `from` in the direction `degrees`,
// counter-clockwise from the x axis. Quarter turns are exact.
PointD Along(PointD from, double degrees, double length);

using Plant::ArcSweep;
using Plant::CirclePoint;
using Plant::OutlineBox;

// The pieces of one outline as SVG path data, in order. A piece that begins
// where the one before ended goes on from there (a straight piece or an arc
// given the other way round is taken backwards), any other begins anew; a
// run that comes back to its first point is closed. Pieces without a curve
// or with no radius are left out.
std::string OutlinePath(const std::vector<GeoData>& pieces);

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

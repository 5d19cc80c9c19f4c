#pragma once

#include "plant/plant_meanings.h"

#include <cstdint>
#include <string>
#include <vector>

// The records as the plant reads them: bar sets, girder groups, mats, parts
// and layers by their meanings, every value taken through the table of
// plant_meanings.h. Coordinates are the element's millimetres: the bars and
// girders of a mat are moved by the mat's origin here, once, with the 32-bit
// wrap-around of all arithmetic on coordinates.
namespace ItUnitechnik::Plant {

struct PlanPoint {
    double x = 0.0;
    double y = 0.0;
};

// One leg of a bent bar: its length and the turn to the next leg.
struct Leg {
    std::int32_t length = 0;
    std::int32_t turn = 0;
};

struct BarSet {
    std::int32_t count = 0;
    std::int32_t diameter = 0;
    std::int32_t length = 0;
    std::int32_t pitch = 0;
    std::int32_t x = 0; // in the element's coordinates, a mat's origin added
    std::int32_t y = 0;
    std::int32_t z = 0;
    std::int32_t rotation = 0;
    std::wstring grade;
    std::wstring article;
    std::int32_t spacerType = 0;
    std::int32_t spacerStart = 0;
    std::int32_t spacerPitch = 0;
    std::vector<Leg> legs; // of a free-form bar (bending kind '2'); empty for a straight one
};

struct GirderGroup {
    std::int32_t count = 0;
    std::wstring type;
    std::int32_t length = 0;
    std::int32_t x = 0; // in the element's coordinates, a mat's origin added
    std::int32_t y = 0;
    std::int32_t spacing = 0;
    std::int32_t rotation = 0;
    std::int32_t height = 0;
    std::int32_t chordDiameter = 0;
    double weight = 0.0; // kg, one girder
    std::int32_t installationHeight = 0;
};

struct Mat {
    std::wstring type;
    std::int32_t length = 0;
    std::int32_t width = 0;
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t z = 0;
    std::vector<BarSet> bars;
    std::vector<GirderGroup> girders;
};

struct Part {
    std::wstring name;
    std::int32_t height = 0;
    std::int32_t installationHeight = 0;
};

struct ConcreteLayerView {
    std::int16_t kind = 0;
    std::int32_t thickness = 0; // mm
    std::wstring name;
    double unitWeight = 0.0;                            // kg/dm³
    double volume = 0.0;                                // dm³
    double Mass() const { return unitWeight * volume; } // kg
};

struct Iron {
    std::int32_t count = 0;
    double weight = 0.0; // kg, the pieces together
    std::wstring name;
    std::int32_t code = 0;
};

// A mat's origin, for the bars and girders it holds; the element's own
// stand at (0, 0).
struct Origin {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

BarSet BarSetOf(const Rodstock& bar, Origin origin = {});
GirderGroup GirderGroupOf(const BracedGirder& girder, Origin origin = {});
Mat MatOf(const Steelmat& mat);
Part PartOf(const MountingPart& part);
ConcreteLayerView LayerOf(const ConcreteLayer& layer);
Iron IronOf(const ExternalIron& iron);

// Where member i of a set or group starts: i times the pitch along the
// normal (-sin a, cos a) of the direction a. Quarter turns are exact.
PlanPoint MemberStart(std::int32_t x, std::int32_t y, std::int32_t rotation, std::int32_t pitch, std::int32_t i);

// The unit vector of a direction in degrees, counter-clockwise from +x;
// quarter turns exact.
PlanPoint Direction(double degrees);

// Bar i of a set in plan, from its start: one point more than it has legs
// (two for a straight bar), each leg its length x cos(the turns before it)
// along the bars' direction.
std::vector<PlanPoint> BarInPlan(const BarSet& set, std::int32_t i);

// Girder i of a group in plan: the two ends of its axis.
std::vector<PlanPoint> GirderInPlan(const GirderGroup& group, std::int32_t i);

// A layer's kind as the plant names it: "concrete" (0), "insulation" (2),
// else the number.
std::string LayerKindName(std::int16_t kind);

// Σ count x length of a set, mm.
std::int64_t TotalLength(const BarSet& set);
// kg, from the diameter: d² x 0.0061654 kg per metre.
double Weight(const BarSet& set);

} // namespace ItUnitechnik::Plant

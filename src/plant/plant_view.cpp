#include "plant/plant_view.h"

#include "geometry/point.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace ItUnitechnik::Plant {

BarSet BarSetOf(const Rodstock& bar, Origin origin)
{
    BarSet set;
    set.count = kBar.count(bar);
    set.diameter = kBar.diameter(bar);
    set.length = kBar.length(bar);
    set.pitch = kBar.pitch(bar);
    set.x = WrappingAdd(origin.x, kBar.x(bar));
    set.y = WrappingAdd(origin.y, kBar.y(bar));
    set.z = kBar.z(bar);
    set.rotation = kBar.rotation(bar);
    set.grade = kBar.grade(bar);
    set.article = kBar.article(bar);
    set.spacerType = kBar.spacerType(bar);
    set.spacerStart = kBar.spacerStart(bar);
    set.spacerPitch = kBar.spacerPitch(bar);
    if (bar.bendingKind == L'2') {
        for (const BendingFormPart& part : bar.freeForm.parts) {
            for (const BendingFormSegment& segment : part.segments) {
                set.legs.push_back({kSegment.length(segment), kSegment.turn(segment)});
            }
        }
    }
    return set;
}

GirderGroup GirderGroupOf(const BracedGirder& girder, Origin origin)
{
    GirderGroup group;
    group.count = kGirder.count(girder);
    group.type = kGirder.type(girder);
    group.length = kGirder.length(girder);
    group.x = WrappingAdd(origin.x, kGirder.x(girder));
    group.y = WrappingAdd(origin.y, kGirder.y(girder));
    group.spacing = kGirder.spacing(girder);
    group.rotation = kGirder.rotation(girder);
    group.height = kGirder.height(girder);
    group.chordDiameter = kGirder.chordDiameter(girder);
    group.weight = kGirder.weight(girder);
    group.installationHeight = kGirder.installationHeight(girder);
    return group;
}

Mat MatOf(const Steelmat& mat)
{
    Mat view;
    view.type = kMat.type(mat);
    view.length = kMat.length(mat);
    view.width = kMat.width(mat);
    view.x = kMat.x(mat);
    view.y = kMat.y(mat);
    view.z = kMat.z(mat);
    const Origin origin{view.x, view.y};
    for (const Rodstock& bar : mat.rodstocks.bars) {
        view.bars.push_back(BarSetOf(bar, origin));
    }
    for (const BracedGirder& girder : mat.girders.girders) {
        view.girders.push_back(GirderGroupOf(girder, origin));
    }
    return view;
}

Part PartOf(const MountingPart& part)
{
    return {kPart.name(part), kPart.height(part), kPart.installationHeight(part)};
}

ConcreteLayerView LayerOf(const ConcreteLayer& layer)
{
    return {kLayer.kind(layer), kLayer.thickness(layer), kLayer.name(layer), kLayer.unitWeight(layer),
            kLayer.volume(layer)};
}

Iron IronOf(const ExternalIron& iron)
{
    return {kIron.count(iron), kIron.weight(iron), kIron.name(iron), kIron.code(iron)};
}

namespace {

// pi/180 in two parts: the first has 32 bits, so that it times a whole number
// of degrees up to 45 is exact; the second is the rest.
constexpr double kRadiansPerDegree = 0x1.1df46a26p-6;
constexpr double kRadiansPerDegreeRest = -0x1.ac58dd47c4e82p-39;

// The series of (sin x / x - 1) / x² and of (cos x - 1 + x²/2) / x⁴ in
// z = x², highest power first, for |x| <= pi/4, where the terms left out are
// below 1e-19.
constexpr double kSineSeries[] = {
    1.0 / 355687428096000.0, -1.0 / 1307674368000.0, 1.0 / 6227020800.0, -1.0 / 39916800.0,
    1.0 / 362880.0,          -1.0 / 5040.0,          1.0 / 120.0,        -1.0 / 6.0};
constexpr double kCosineSeries[] = {
    -1.0 / 6402373705728000.0, 1.0 / 20922789888000.0, -1.0 / 87178291200.0, 1.0 / 479001600.0,
    -1.0 / 3628800.0,          1.0 / 40320.0,          -1.0 / 720.0,         1.0 / 24.0};

template <std::size_t N>
double Horner(const double (&coefficients)[N], double z)
{
    double sum = 0.0;
    for (const double coefficient : coefficients) {
        sum = sum * z + coefficient;
    }
    return sum;
}

// The cosine and sine of WITHIN degrees, 0 <= WITHIN < 90.
PlanPoint FirstQuarter(double within)
{
    const bool complement = within > 45.0;
    if (complement) {
        within = 90.0 - within;
    }
    // x + dx radians, and z + dz = x² exactly (Dekker's product).
    const double high = within * kRadiansPerDegree;
    const double low = within * kRadiansPerDegreeRest;
    const double x = high + low;
    const double dx = low - (x - high);
    const double z = x * x;
    const double split = 134217729.0 * x; // 2^27 + 1
    const double xHigh = split - (split - x);
    const double xLow = x - xHigh;
    const double dz = ((xHigh * xHigh - z) + 2.0 * xHigh * xLow) + xLow * xLow;
    // The small terms summed first, the large one added last.
    const double sine = x + (dx * (1.0 - 0.5 * z) + x * z * Horner(kSineSeries, z) - x * dz / 6.0);
    const double half = 0.5 * z;
    const double rest = 1.0 - half;
    const double cosine = rest + (((1.0 - rest) - half) + (z * z * Horner(kCosineSeries, z) - 0.5 * dz - x * dx));
    return complement ? PlanPoint{sine, cosine} : PlanPoint{cosine, sine};
}

// ALONG turned by QUARTER quarter turns; + 0.0 makes a zero +0, so that no
// coordinate is written as -0.
PlanPoint Turned(const PlanPoint& along, int quarter)
{
    switch (quarter) {
    case 0:
        return {along.x + 0.0, along.y + 0.0};
    case 1:
        return {-along.y + 0.0, along.x + 0.0};
    case 2:
        return {-along.x + 0.0, -along.y + 0.0};
    default:
        return {along.y + 0.0, -along.x + 0.0};
    }
}

} // namespace

PlanPoint Direction(double degrees)
{
    // Worked out with + and * alone, not by the C library's sin and cos: those
    // differ in the last bit between libraries (the browser's and the host's),
    // and a drawing or a finding must be the same on every platform. The turn
    // is reduced in degrees, where a whole number stays exact: 405 points where
    // 45 does, and whole quarter turns come out exact, so that bars at 0, 90,
    // 180 and 270 degrees stand on whole millimetres. For whole degrees the
    // result is the true sine and cosine rounded, or one ulp beside it. Each
    // + and * is rounded on its own: no target built here fuses them.
    if (std::fabs(degrees) < 2147483648.0 && degrees == std::floor(degrees)) {
        // Whole degrees, nearly every call: the first quarter's from a table
        // made once, the same numbers as below.
        static const std::array<PlanPoint, 90> kWholeDegrees = [] {
            std::array<PlanPoint, 90> table{};
            for (std::size_t d = 0; d < table.size(); ++d) {
                table[d] = FirstQuarter(static_cast<double>(d));
            }
            return table;
        }();
        const std::int64_t turn = (static_cast<std::int64_t>(degrees) % 360 + 360) % 360;
        return Turned(kWholeDegrees[static_cast<std::size_t>(turn % 90)], static_cast<int>(turn / 90));
    }
    double turn = std::fmod(degrees, 360.0);
    if (std::isnan(turn)) {
        return {turn, turn};
    }
    if (turn < 0.0) {
        turn += 360.0;
    }
    const int quarter = std::min(3, static_cast<int>(turn / 90.0));
    return Turned(FirstQuarter(turn - 90.0 * quarter), quarter);
}

PlanPoint MemberStart(std::int32_t x, std::int32_t y, std::int32_t rotation, std::int32_t pitch, std::int32_t i)
{
    const PlanPoint along = Direction(static_cast<double>(rotation));
    const double offset = static_cast<double>(i) * static_cast<double>(pitch);
    // The normal (-sin a, cos a): the direction turned a quarter to the left.
    return {static_cast<double>(x) - offset * along.y, static_cast<double>(y) + offset * along.x};
}

std::vector<PlanPoint> BarInPlan(const BarSet& set, std::int32_t i)
{
    const PlanPoint along = Direction(static_cast<double>(set.rotation));
    std::vector<PlanPoint> points{MemberStart(set.x, set.y, set.rotation, set.pitch, i)};
    const auto step = [&](double planLength) {
        const PlanPoint& from = points.back();
        points.push_back({from.x + planLength * along.x, from.y + planLength * along.y});
    };
    if (set.legs.empty()) {
        step(static_cast<double>(set.length));
        return points;
    }
    double turned = 0.0; // the turns of the legs before this one, degrees
    for (const Leg& leg : set.legs) {
        step(static_cast<double>(leg.length) * Direction(turned).x);
        turned += static_cast<double>(leg.turn);
    }
    return points;
}

std::vector<PlanPoint> GirderInPlan(const GirderGroup& group, std::int32_t i)
{
    const PlanPoint start = MemberStart(group.x, group.y, group.rotation, group.spacing, i);
    const PlanPoint along = Direction(static_cast<double>(group.rotation));
    const double length = static_cast<double>(group.length);
    return {start, {start.x + length * along.x, start.y + length * along.y}};
}

std::string LayerKindName(std::int16_t kind)
{
    switch (kind) {
    case 0:
        return "concrete";
    case 2:
        return "insulation";
    default:
        return std::to_string(kind);
    }
}

std::int64_t TotalLength(const BarSet& set)
{
    return static_cast<std::int64_t>(set.count) * set.length;
}

double Weight(const BarSet& set)
{
    const double diameter = static_cast<double>(set.diameter);
    return static_cast<double>(TotalLength(set)) / 1000.0 * diameter * diameter * kSteelKgPerMetrePerMm2;
}

} // namespace ItUnitechnik::Plant

#include "plant/plant_view.h"

#include "geometry/point.h"

#include <cmath>

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

PlanPoint Direction(double degrees)
{
    // Whole quarter turns come out exact, so that bars at 0, 90, 180 and 270
    // degrees stand on whole millimetres.
    const double turns = degrees / 90.0;
    if (turns == std::floor(turns)) {
        const long quarter = static_cast<long>(std::fmod(std::fmod(turns, 4.0) + 4.0, 4.0));
        static constexpr PlanPoint kQuarters[] = {{1.0, 0.0}, {0.0, 1.0}, {-1.0, 0.0}, {0.0, -1.0}};
        return kQuarters[quarter];
    }
    constexpr double kPi = 3.14159265358979323846;
    const double radians = degrees * kPi / 180.0;
    return {std::cos(radians), std::sin(radians)};
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

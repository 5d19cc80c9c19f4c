#pragma once

#include "plant/plant_view.h"
#include "records/element/element_part.h"
#include "render/geometry_paths.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Which records of an element the drawing goes through, and how many members
// of each set and group it draws: the bounds that keep a hostile file's
// counts from holding the drawing up.
namespace ItUnitechnik::Drawing {

// Every record of an element that the drawing knows, with the prefix of its
// id: the element's own, then those of each layer (and its lots).
template <class Visitor>
void Walk(const ElementPart& element, const std::string& prefix, Visitor& visitor)
{
    const auto outline = [&](const ContourData& contours, const CutoutData& cutouts, const std::string& at) {
        for (const Contour& contour : contours.contours) {
            visitor.Outline(at, contour);
        }
        for (const Cutout& cutout : cutouts.cutouts) {
            visitor.Opening(at, cutout);
        }
    };
    const auto block = [&](const Reinforcement& reinforcement, const std::string& at) {
        for (const Steelmat& mat : reinforcement.mats) {
            visitor.Mat(at, mat);
        }
        if (reinforcement.hasExternalIrons) {
            for (const ExternalIron& iron : reinforcement.externalIrons.irons) {
                visitor.Iron(at + "reinforcement-", iron);
            }
        }
    };

    outline(element.contourData, element.cutoutData, prefix);
    for (std::size_t l = 0; l < element.layers.size(); ++l) {
        const Layer& layer = element.layers[l];
        const std::string at = prefix + "layer-" + std::to_string(l + 1) + "-";
        for (const Lot& lot : layer.lots) {
            outline(lot.contourData, lot.cutoutData, at + "lot-" + std::to_string(lot.lotNumber) + "-");
        }
    }
    block(element.reinforcement, prefix);
    for (std::size_t l = 0; l < element.layers.size(); ++l) {
        block(element.layers[l].reinforcement, prefix + "layer-" + std::to_string(l + 1) + "-");
    }
    for (const BracedGirder& girder : element.bracedGirderData.girders) {
        visitor.Girder(prefix, girder);
    }
    for (const Rodstock& bar : element.rodstockData.bars) {
        visitor.Bar(prefix, bar);
    }
    for (const MountingPart& part : element.mountingPartData.parts) {
        visitor.Part(prefix, part);
    }
    for (std::size_t l = 0; l < element.layers.size(); ++l) {
        for (const MountingPart& part : element.layers[l].mountingPartData.parts) {
            visitor.Part(prefix + "layer-" + std::to_string(l + 1) + "-", part);
        }
    }
    for (const ExternalIron& iron : element.externalIronData.irons) {
        visitor.Iron(prefix, iron);
    }
}

// A set or group is drawn with its first members up to these bounds: counts
// and legs that no plant would make must not hold the drawing up. A set of
// 10 000 straight bars is drawn whole; a bent one with fewer, so that no set
// makes more than the points below.
inline constexpr std::int32_t kMostBars = 10000;
inline constexpr std::size_t kMostPointsOfASet = 400000;
inline constexpr std::int32_t kMostGirders = 1000;
// The sets and groups of an element draw this many points at most, so that
// an element of thousands of such sets still draws in seconds, in a browser
// too: where they want more, each is drawn with its first members up to an
// even share (at least its first one), and a set that wants less than its
// share leaves the rest to the others.
inline constexpr std::size_t kMostPointsOfAnElement = 1000000;
// A girder: two chords of two points each and a lattice of up to 101.
inline constexpr std::size_t kPointsOfAGirder = 105;

PointD Drawn(const Plant::PlanPoint& point);

// The bars of SET drawn within a SHARE of points.
std::int32_t DrawnBars(const Plant::BarSet& set, std::size_t share);

// Each bar of the set in plan, as many as its SHARE of points holds.
template <class Visit>
void ForEachBar(const Plant::BarSet& set, std::size_t share, Visit visit)
{
    const std::int32_t drawn = DrawnBars(set, share);
    for (std::int32_t i = 0; i < drawn; ++i) {
        std::vector<PointD> points;
        for (const Plant::PlanPoint& point : Plant::BarInPlan(set, i)) {
            points.push_back(Drawn(point));
        }
        visit(points);
    }
}

// Each girder of the group in plan, as many as its SHARE of points holds:
// the start of its axis.
template <class Visit>
void ForEachGirder(const Plant::GirderGroup& group, std::size_t share, Visit visit)
{
    const auto byPoints = static_cast<std::int32_t>(std::max<std::size_t>(1, share / kPointsOfAGirder));
    const std::int32_t drawn = std::clamp(group.count, 0, std::min(kMostGirders, byPoints));
    for (std::int32_t i = 0; i < drawn; ++i) {
        visit(Drawn(Plant::GirderInPlan(group, i).front()));
    }
}

BoxD GirderBox(const Plant::GirderGroup& group, std::size_t share);
BoxD BarBox(const Plant::BarSet& set, std::size_t share);

// The most points of any one set or group of ELEMENT: where all of them
// want more than the element's points, the level that shares those out,
// each set taking what it wants up to the level.
std::size_t PointsOfASet(const ElementPart& element, const std::string& prefix);

} // namespace ItUnitechnik::Drawing

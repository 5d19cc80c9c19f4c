#include "render/drawn_sets.h"

namespace ItUnitechnik::Drawing {

namespace {

// A straight bar has two points, a bent one one more than its legs.
std::size_t PointsOfABar(const Plant::BarSet& set)
{
    return std::max<std::size_t>(2, set.legs.size() + 1);
}

// The points each set and group would be drawn with by their own bounds,
// those of mats included.
class PointsWanted {
public:
    std::vector<std::size_t> points;

    void Outline(const std::string&, const Contour&) {}
    void Opening(const std::string&, const Cutout&) {}
    void Part(const std::string&, const MountingPart&) {}
    void Bar(const std::string&, const Rodstock& bar) { Set(Plant::BarSetOf(bar)); }
    void Girder(const std::string&, const BracedGirder& girder) { Group(Plant::GirderGroupOf(girder)); }
    void Mat(const std::string&, const Steelmat& record)
    {
        const Plant::Mat mat = Plant::MatOf(record);
        for (const Plant::BarSet& set : mat.bars) {
            Set(set);
        }
        for (const Plant::GirderGroup& group : mat.girders) {
            Group(group);
        }
    }
    void Iron(const std::string&, const ExternalIron&) {}

private:
    void Set(const Plant::BarSet& set)
    {
        points.push_back(static_cast<std::size_t>(DrawnBars(set, kMostPointsOfASet)) * PointsOfABar(set));
    }
    void Group(const Plant::GirderGroup& group)
    {
        points.push_back(static_cast<std::size_t>(std::clamp(group.count, 0, kMostGirders)) * kPointsOfAGirder);
    }
};

} // namespace

PointD Drawn(const Plant::PlanPoint& point)
{
    return {point.x, point.y};
}

std::int32_t DrawnBars(const Plant::BarSet& set, std::size_t share)
{
    const std::size_t pointsOfABar = PointsOfABar(set);
    const auto byPoints = static_cast<std::int32_t>(std::max<std::size_t>(1, share / pointsOfABar));
    return std::clamp(set.count, 0, std::min(kMostBars, byPoints));
}

BoxD GirderBox(const Plant::GirderGroup& group, std::size_t share)
{
    BoxD box;
    const double direction = static_cast<double>(group.rotation);
    ForEachGirder(group, share, [&](PointD start) {
        for (const PointD& point : {start, Along(start, direction, static_cast<double>(group.length))}) {
            box.Widen(Along(point, direction + 90.0, kGirderDrawnWidth / 2.0));
            box.Widen(Along(point, direction - 90.0, kGirderDrawnWidth / 2.0));
        }
    });
    return box;
}

BoxD BarBox(const Plant::BarSet& set, std::size_t share)
{
    BoxD box;
    ForEachBar(set, share, [&](const std::vector<PointD>& points) {
        for (const PointD& point : points) {
            box.Widen(point);
        }
    });
    return box;
}

std::size_t PointsOfASet(const ElementPart& element, const std::string& prefix)
{
    PointsWanted wanted;
    Walk(element, prefix, wanted);
    std::sort(wanted.points.begin(), wanted.points.end());
    std::size_t left = kMostPointsOfAnElement;
    for (std::size_t i = 0; i < wanted.points.size(); ++i) {
        const std::size_t level = left / (wanted.points.size() - i);
        if (wanted.points[i] > level) {
            return std::min(level, kMostPointsOfASet);
        }
        left -= wanted.points[i];
    }
    return kMostPointsOfASet;
}

} // namespace ItUnitechnik::Drawing

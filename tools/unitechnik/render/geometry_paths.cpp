#include "render/geometry_paths.h"

#include "geometry/arc.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "plant/plant_meanings.h"
#include "plant/plant_view.h"
#include "render/markup_text.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ItUnitechnik::Drawing {

namespace {

PointD PointOf(const Point2d& point)
{
    return {static_cast<double>(point.x), static_cast<double>(point.y)};
}

// Path data, piece by piece, knowing where the pen stands.
class PathBuilder {
public:
    const std::string& Data() const { return data_; }

    bool At(PointD point) const { return open_ && SamePoint(at_, point); }

    void MoveTo(PointD point)
    {
        Append("M " + Pair(point));
        at_ = point;
        start_ = point;
        pieces_ = 0;
        open_ = true;
    }

    void LineTo(PointD point)
    {
        Append("L " + Pair(point));
        Moved(point);
    }

    // An arc of a circle of radius r to `point`; `counterClockwise` in the
    // file's coordinates, where y points up.
    void ArcTo(double radius, bool large, bool counterClockwise, PointD point)
    {
        // In the file's coordinates the positive sense of SVG's sweep flag is
        // from x towards y: counter-clockwise on a drawing with y up.
        Append("A " + Number(radius) + " " + Number(radius) + " 0 " + (large ? "1" : "0") + " " +
               (counterClockwise ? "1" : "0") + " " + Pair(point));
        Moved(point);
    }

private:
    static std::string Pair(PointD point) { return Number(point.x) + " " + Number(point.y); }

    void Append(const std::string& command)
    {
        if (!data_.empty()) {
            data_ += ' ';
        }
        data_ += command;
    }

    void Moved(PointD point)
    {
        at_ = point;
        ++pieces_;
        if (SamePoint(at_, start_)) {
            // Back at the first point: the run is closed, and the pen stands
            // there for a piece that goes on from it.
            Append("Z");
            at_ = start_;
            pieces_ = 0;
        }
    }

    std::string data_;
    PointD at_;
    PointD start_;
    int pieces_ = 0;
    bool open_ = false;
};

void WholeCircle(PathBuilder& path, const Circle& circle, double fromDegrees)
{
    const PointD first = CirclePoint(circle, fromDegrees);
    if (!path.At(first)) {
        path.MoveTo(first);
    }
    const double radius = static_cast<double>(circle.radius);
    path.ArcTo(radius, false, true, CirclePoint(circle, fromDegrees + 180.0));
    path.ArcTo(radius, false, true, first);
}

void AddPiece(PathBuilder& path, const Curve* curve)
{
    if (const auto* arc = dynamic_cast<const Arc*>(curve)) {
        if (arc->radius <= 0) {
            return;
        }
        const double sweep = ArcSweep(Plant::kArc.start(*arc), Plant::kArc.end(*arc));
        const double start = static_cast<double>(Plant::kArc.start(*arc));
        if (sweep >= 360.0) {
            WholeCircle(path, *arc, start);
            return;
        }
        const PointD first = CirclePoint(*arc, start);
        const PointD last = CirclePoint(*arc, start + sweep);
        const double radius = static_cast<double>(arc->radius);
        if (path.At(last) && !path.At(first)) {
            path.ArcTo(radius, sweep > 180.0, false, first);
            return;
        }
        if (!path.At(first)) {
            path.MoveTo(first);
        }
        path.ArcTo(radius, sweep > 180.0, true, last);
    } else if (const auto* circle = dynamic_cast<const Circle*>(curve)) {
        if (circle->radius > 0) {
            WholeCircle(path, *circle, 0.0);
        }
    } else if (const auto* line = dynamic_cast<const LineSegment*>(curve)) {
        const PointD a = PointOf(line->start);
        const PointD b = PointOf(line->end);
        if (path.At(b) && !path.At(a)) {
            path.LineTo(a);
            return;
        }
        if (!path.At(a)) {
            path.MoveTo(a);
        }
        path.LineTo(b);
    } else if (const auto* polygon = dynamic_cast<const Polygon*>(curve)) {
        if (polygon->points.empty()) {
            return;
        }
        std::vector<PointD> points;
        for (const Point2d& point : polygon->points) {
            points.push_back(PointOf(point));
        }
        if (path.At(points.back()) && !path.At(points.front())) {
            std::reverse(points.begin(), points.end());
        }
        if (!path.At(points.front())) {
            path.MoveTo(points.front());
        }
        for (std::size_t i = 1; i < points.size(); ++i) {
            path.LineTo(points[i]);
        }
    }
}

} // namespace

bool SamePoint(PointD a, PointD b)
{
    return std::fabs(a.x - b.x) < 0.5 && std::fabs(a.y - b.y) < 0.5;
}

PointD Along(PointD from, double degrees, double length)
{
    const Plant::PlanPoint along = Plant::Direction(degrees);
    return {from.x + length * along.x, from.y + length * along.y};
}

std::string OutlinePath(const std::vector<GeoData>& pieces)
{
    PathBuilder path;
    for (const GeoData& piece : pieces) {
        AddPiece(path, piece.curve.get());
    }
    return path.Data();
}

std::string PolylinePath(const std::vector<PointD>& points)
{
    // Appended piece by piece: no text in between to make and drop, which
    // in a drawing of millions of points counts (the browser's most).
    std::string data;
    for (std::size_t i = 0; i < points.size(); ++i) {
        data += i == 0 ? "M " : " L ";
        data += Number(points[i].x);
        data += ' ';
        data += Number(points[i].y);
    }
    return data;
}

GirderPaths GirderDrawing(PointD start, double direction, double length)
{
    const PointD end = Along(start, direction, length);
    const double half = kGirderDrawnWidth / 2.0;
    const auto side = [&](PointD point, double offset) { return Along(point, direction + 90.0, offset); };

    GirderPaths paths;
    paths.chords =
        PolylinePath({side(start, half), side(end, half)}) + " " + PolylinePath({side(start, -half), side(end, -half)});
    // The diagonals of the lattice, one every 100 mm or so, and no more than
    // a hundred however long the girder.
    const double perLength = std::fabs(length) / 100.0;
    const int steps = perLength >= 100.0 ? 100 : std::max(1, static_cast<int>(std::lround(perLength)));
    std::vector<PointD> lattice;
    for (int i = 0; i <= steps; ++i) {
        const PointD onAxis = Along(start, direction, length * i / steps);
        lattice.push_back(side(onAxis, i % 2 == 0 ? half : -half));
    }
    paths.lattice = PolylinePath(lattice);
    return paths;
}

} // namespace ItUnitechnik::Drawing

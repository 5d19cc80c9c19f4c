#pragma once

#include "geometry/curve.h"

namespace ItUnitechnik {

// The straight piece, kind 'S': the only curve the adders make.
class LineSegment : public CurveOf<LineSegment> {
public:
    explicit LineSegment(std::int32_t formatVersion);
    LineSegment(std::int32_t formatVersion, const Point2d& startPoint, const Point2d& endPoint);

    bool Read(Archive& ar) override;
    BoundingBox boundingBox() const override;

    template <class F>
    void eachPoint(F f)
    {
        f(start);
        f(end);
    }

    Point2d start;          // first two fields
    Point2d end;            // next two fields
    std::int32_t flags = 0; // last field, four hexadecimal digits; only stored
};

template <class IO>
void Layout(IO& io, LineSegment& segment)
{
    CoordinatesLayout(io, segment.version, segment.start);
    io.Blank();
    CoordinatesLayout(io, segment.version, segment.end);
    io.Blank();
    io.Hex(4, segment.flags, "flags");
}

} // namespace ItUnitechnik

#pragma once

#include "framework/serializable.h"
#include "geometry/point.h"

namespace ItUnitechnik {

// A plain pair of points; each end is written as a point is, clamp and all.
class Edge : public Serializable {
public:
    Edge() = default;
    Edge(const Point2d& firstEnd, const Point2d& secondEnd) : first(firstEnd), second(secondEnd) {}

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    Point2d first;  // first two fields
    Point2d second; // last two fields, behind a blank
};

bool operator==(const Edge& a, const Edge& b);
bool operator!=(const Edge& a, const Edge& b);

template <class IO>
void Layout(IO& io, Edge& edge)
{
    io.Record(edge.first);
    io.Blank();
    io.Record(edge.second);
}

} // namespace ItUnitechnik

#pragma once

#include "geometry/point.h"

namespace ItUnitechnik {

// A plain pair of corners. The empty box is inverted: its minimum is
// (2147483647, 2147483647) and its maximum (-2147483648, -2147483648), so
// widening it by anything gives that thing's box, and a width taken from it in
// 32 bits wraps around to 1.
class BoundingBox {
public:
    // The empty, inverted box.
    BoundingBox();
    BoundingBox(const Point2d& minCorner, const Point2d& maxCorner);

    // Per axis, the smaller minimum and the larger maximum.
    void widen(const Point2d& point);
    void widen(const BoundingBox& other);

    Point2d min;
    Point2d max;
};

bool operator==(const BoundingBox& a, const BoundingBox& b);
bool operator!=(const BoundingBox& a, const BoundingBox& b);

} // namespace ItUnitechnik

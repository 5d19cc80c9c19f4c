#include "geometry/bounding_box.h"

#include <algorithm>
#include <limits>

namespace ItUnitechnik {
namespace {

constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();

} // namespace

BoundingBox::BoundingBox() : min(largest, largest), max(smallest, smallest) {}

BoundingBox::BoundingBox(const Point2d& minCorner, const Point2d& maxCorner) : min(minCorner), max(maxCorner) {}

void BoundingBox::widen(const Point2d& point)
{
    widen(BoundingBox(point, point));
}

void BoundingBox::widen(const BoundingBox& other)
{
    min.x = std::min(min.x, other.min.x);
    min.y = std::min(min.y, other.min.y);
    max.x = std::max(max.x, other.max.x);
    max.y = std::max(max.y, other.max.y);
}

bool operator==(const BoundingBox& a, const BoundingBox& b)
{
    return a.min == b.min && a.max == b.max;
}

bool operator!=(const BoundingBox& a, const BoundingBox& b)
{
    return !(a == b);
}

} // namespace ItUnitechnik

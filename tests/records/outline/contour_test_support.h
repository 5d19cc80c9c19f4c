// The outline pieces of the tests of contours: a line segment and a circle.
#pragma once

#include "geometry/circle.h"
#include "geometry/geo_data.h"
#include "geometry/line_segment.h"
#include "geometry/point.h"

#include <cstdint>
#include <memory>

namespace ItUnitechnik::ContourTesting {

inline GeoData Segment(std::int32_t version, Point2d start, Point2d end)
{
    return GeoData(version, L'S', std::make_unique<LineSegment>(version, start, end));
}

inline GeoData CircleElement(std::int32_t version, Point2d centre, std::int32_t radius)
{
    return GeoData(version, L'K', std::make_unique<Circle>(version, centre, radius));
}

} // namespace ItUnitechnik::ContourTesting

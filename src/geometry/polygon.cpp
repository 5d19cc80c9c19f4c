#include "geometry/polygon.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Polygon::Polygon(std::int32_t formatVersion)
    : CurveOf(formatVersion), PointCollection(Locate<&Polygon::points>), FlagCollection(Locate<&Polygon::segmentFlags>)
{
}

Polygon::~Polygon() = default;

bool Polygon::Read(Archive& ar)
{
    std::int32_t count = 0;
    ar >> count;
    // Once the stream has failed every further pass would append nothing, so
    // the loop may as well end there.
    for (std::int32_t i = 0; i < count && !ar.fail(); ++i) {
        Point2d point;
        point.Read(ar);
        if (!ar.fail() && ar.valid) {
            points.push_back(point);
        }
        if (i >= 1) {
            std::int32_t entry = 0;
            readHexadecimal(ar, entry);
            if (!ar.fail() && ar.valid) {
                segmentFlags.push_back(entry);
            }
        }
    }
    SkipLine(ar);
    return Healthy(ar);
}

BoundingBox Polygon::boundingBox() const
{
    BoundingBox box;
    for (const Point2d& point : points) {
        box.widen(point);
    }
    return box;
}

} // namespace ItUnitechnik

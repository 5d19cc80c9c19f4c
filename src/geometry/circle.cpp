#include "geometry/circle.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Circle::Circle(std::int32_t formatVersion) : CurveOf(formatVersion) {}

Circle::Circle(std::int32_t formatVersion, const Point2d& centrePoint, std::int32_t radiusValue)
    : CurveOf(formatVersion), centre(centrePoint), radius(radiusValue)
{
}

bool Circle::Read(Archive& ar)
{
    centre.Read(ar);
    ar >> radius;
    return readFlags(ar);
}

bool Circle::readFlags(Archive& ar)
{
    if (ar.fail() || !ar.valid) {
        return false;
    }
    readHexadecimal(ar, flags);
    if (ar.fail()) {
        ar.valid = true;
        ar.clear();
        ReadToken(ar);
    }
    // The line end stays: the next extraction passes over it as white space.
    return Healthy(ar);
}

BoundingBox Circle::boundingBox() const
{
    return {Point2d(WrappingSubtract(centre.x, radius), WrappingSubtract(centre.y, radius)),
            Point2d(WrappingAdd(centre.x, radius), WrappingAdd(centre.y, radius))};
}

} // namespace ItUnitechnik

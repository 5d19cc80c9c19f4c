#include "geometry/circle.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Circle::Circle(std::int32_t formatVersion) : Curve(formatVersion) {}

Circle::Circle(std::int32_t formatVersion, const Point2d& centrePoint, std::int32_t radiusValue)
    : Curve(formatVersion), centre(centrePoint), radius(radiusValue)
{
}

Circle::~Circle() = default;

bool Circle::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    writeCoordinates(ar, centre);
    ar << Blank;
    ar << UInt(5, radius, "radius") << Blank;
    ar << Hex(4, flags, "flags");
    return Healthy(ar);
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
    ar.setf(std::ios_base::hex, std::ios_base::basefield);
    ar >> flags;
    ar.setf(std::ios_base::dec, std::ios_base::basefield);
    if (ar.fail()) {
        ar.valid = true;
        ar.clear();
        ReadToken(ar);
    }
    // The line end stays: the next extraction passes over it as white space.
    return Healthy(ar);
}

std::unique_ptr<Curve> Circle::clone() const
{
    return std::make_unique<Circle>(*this);
}

void Circle::translate(const Vector2d& delta)
{
    centre.translate(delta);
}

void Circle::rotate(const Point2d& about, const double& angle)
{
    centre.rotate(about, angle);
}

void Circle::mirrorY(const std::int32_t& c)
{
    centre.mirrorY(c);
}

void Circle::mirrorX(const std::int32_t& c)
{
    centre.mirrorX(c);
}

BoundingBox Circle::boundingBox() const
{
    return {Point2d(WrappingSubtract(centre.x, radius), WrappingSubtract(centre.y, radius)),
            Point2d(WrappingAdd(centre.x, radius), WrappingAdd(centre.y, radius))};
}

} // namespace ItUnitechnik

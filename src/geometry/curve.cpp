#include "geometry/curve.h"

#include "framework/archive.h"
#include "framework/field_forms.h"

namespace ItUnitechnik {

Curve::Curve(std::int32_t formatVersion) : version(formatVersion) {}

Curve::~Curve() = default;

bool Curve::copyVersion(const Curve* other)
{
    if (other == nullptr) {
        return false;
    }
    version = other->version;
    return true;
}

void Curve::writeCoordinates(Archive& ar, const Point2d& point) const
{
    const RecordScope scope(ar, &point);
    if (version < 600) {
        Point2d oldForm = point; // Write of a point is not const
        oldForm.Write(ar);
    } else {
        ar << SInt(5, point.x, "x") << Blank << SInt(5, point.y, "y");
    }
}

} // namespace ItUnitechnik

#include "geometry/arc.h"

#include "framework/archive.h"
#include "framework/field_forms.h"

namespace ItUnitechnik {

Arc::Arc(std::int32_t formatVersion) : Circle(formatVersion) {}

Arc::~Arc() = default;

bool Arc::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    writeCoordinates(ar, centre);
    ar << Blank;
    ar << UInt(5, radius, "radius") << Blank;
    ar << UInt(3, startAngle, "startAngle") << Blank;
    ar << UInt(3, endAngle, "endAngle") << Blank;
    ar << UInt(3, flags, "flags");
    return Healthy(ar);
}

bool Arc::Read(Archive& ar)
{
    centre.Read(ar);
    ar >> radius >> startAngle >> endAngle;
    return readFlags(ar);
}

std::unique_ptr<Curve> Arc::clone() const
{
    return std::make_unique<Arc>(*this);
}

} // namespace ItUnitechnik

#include "geometry/arc.h"

#include "framework/archive.h"

namespace ItUnitechnik {

Arc::Arc(std::int32_t formatVersion) : CurveOf(formatVersion) {}

bool Arc::Read(Archive& ar)
{
    centre.Read(ar);
    ar >> radius >> startAngle >> endAngle;
    return readFlags(ar);
}

} // namespace ItUnitechnik

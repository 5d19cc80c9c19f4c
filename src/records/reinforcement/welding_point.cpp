#include "records/reinforcement/welding_point.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool WeldingIntersection::Read(Archive& ar)
{
    ar >> offset >> weldCode;
    return Healthy(ar);
}

bool WeldingPoint::Read(Archive& ar)
{
    for (WeldingIntersection& intersection : intersections) {
        intersection.Read(ar);
    }
    return Healthy(ar);
}

bool WeldingPointData::Read(Archive& ar)
{
    ar >> weldValueA >> weldValueB >> weldValueC;
    ar >> weldLetter;
    // The flag and the count stand side by side in the file, and the boolean
    // extractor takes all their digits at once: only a file with white space
    // between them reads as meant.
    ar >> weldFlag;
    std::int32_t count = 0;
    ar >> count;
    ReadElements(
        ar, count, [&] { return WeldingPoint(); }, points);
    return Healthy(ar);
}

} // namespace ItUnitechnik

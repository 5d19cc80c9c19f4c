#include "records/reinforcement/welding_point.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool WeldingIntersection::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(5, offset, "offset");
    ar << Blank;
    ar << UInt(3, weldCode, "weldCode");
    return Healthy(ar);
}

bool WeldingIntersection::Read(Archive& ar)
{
    ar >> offset >> weldCode;
    return Healthy(ar);
}

bool WeldingPoint::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    bool first = true;
    for (WeldingIntersection& intersection : intersections) {
        if (!first) {
            ar << Blank;
        }
        first = false;
        intersection.Write(ar);
    }
    return Healthy(ar);
}

bool WeldingPoint::Read(Archive& ar)
{
    for (WeldingIntersection& intersection : intersections) {
        intersection.Read(ar);
    }
    return Healthy(ar);
}

bool WeldingPointData::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(3, weldValueA, "weldValueA");
    ar << Blank;
    ar << UInt(3, weldValueB, "weldValueB");
    ar << Blank;
    ar << UInt(3, weldValueC, "weldValueC");
    ar << Blank;
    ar << Char(weldLetter, "weldLetter");
    ar << UInt(1, static_cast<int>(weldFlag), "weldFlag");
    ar << UInt(3, points.size(), "points");
    // The last line is ended by the list that holds the bar or girder.
    if (points.empty()) {
        ar << EndLine;
    }
    for (WeldingPoint& point : points) {
        ar << EndLine;
        point.Write(ar);
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

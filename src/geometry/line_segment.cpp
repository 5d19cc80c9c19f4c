#include "geometry/line_segment.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

#include <locale>
#include <sstream>
#include <string>

namespace ItUnitechnik {

LineSegment::LineSegment(std::int32_t formatVersion) : CurveOf(formatVersion) {}

LineSegment::LineSegment(std::int32_t formatVersion, const Point2d& startPoint, const Point2d& endPoint)
    : CurveOf(formatVersion), start(startPoint), end(endPoint)
{
}

bool LineSegment::Read(Archive& ar)
{
    // Plain integer extractions take the signed and the unsigned form alike.
    start.Read(ar);
    end.Read(ar);
    if (ar.fail() || !ar.valid) {
        return false;
    }
    SkipChar(ar);
    std::wstring field;
    GetText(ar, 4, field);
    // The flags are parsed on their own, so a field that is no hexadecimal
    // number leaves them 0 and does not fail the file.
    std::wistringstream digits(field);
    digits.imbue(std::locale::classic());
    digits >> std::hex >> flags;
    SkipLine(ar);
    return Healthy(ar);
}

BoundingBox LineSegment::boundingBox() const
{
    BoundingBox box(start, start);
    box.widen(end);
    return box;
}

} // namespace ItUnitechnik

#include "geometry/line_segment.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

#include <locale>
#include <sstream>
#include <string>

namespace ItUnitechnik {

LineSegment::LineSegment(std::int32_t formatVersion) : Curve(formatVersion) {}

LineSegment::LineSegment(std::int32_t formatVersion, const Point2d& startPoint, const Point2d& endPoint)
    : Curve(formatVersion), start(startPoint), end(endPoint)
{
}

LineSegment::~LineSegment() = default;

bool LineSegment::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    writeCoordinates(ar, start);
    ar << Blank;
    writeCoordinates(ar, end);
    ar << Blank;
    ar << Hex(4, flags, "flags");
    return Healthy(ar);
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

std::unique_ptr<Curve> LineSegment::clone() const
{
    return std::make_unique<LineSegment>(*this);
}

void LineSegment::translate(const Vector2d& delta)
{
    start.translate(delta);
    end.translate(delta);
}

void LineSegment::rotate(const Point2d& centre, const double& angle)
{
    start.rotate(centre, angle);
    end.rotate(centre, angle);
}

void LineSegment::mirrorY(const std::int32_t& c)
{
    start.mirrorY(c);
    end.mirrorY(c);
}

void LineSegment::mirrorX(const std::int32_t& c)
{
    start.mirrorX(c);
    end.mirrorX(c);
}

BoundingBox LineSegment::boundingBox() const
{
    BoundingBox box(start, start);
    box.widen(end);
    return box;
}

} // namespace ItUnitechnik

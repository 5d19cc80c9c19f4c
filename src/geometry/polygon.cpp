#include "geometry/polygon.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Polygon::Polygon(std::int32_t formatVersion)
    : Curve(formatVersion), PointCollection([](auto& self) -> auto& { return static_cast<Polygon&>(self).points; }),
      FlagCollection([](auto& self) -> auto& { return static_cast<Polygon&>(self).segmentFlags; })
{
}

Polygon::~Polygon() = default;

bool Polygon::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(1, static_cast<std::uint32_t>(points.size()), "points") << Blank;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i > 1) {
            ar << Blank;
        }
        writeCoordinates(ar, points[i]);
        ar << Blank;
        if (i > 0) {
            // A chain edited out of step with its flags writes 0 for a
            // missing entry rather than read past the end.
            const std::int32_t entry = i - 1 < segmentFlags.size() ? segmentFlags[i - 1] : 0;
            ar << Hex(4, entry, "entry");
        }
    }
    return Healthy(ar);
}

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
            ar.setf(std::ios_base::hex, std::ios_base::basefield);
            ar >> entry;
            ar.setf(std::ios_base::dec, std::ios_base::basefield);
            if (!ar.fail() && ar.valid) {
                segmentFlags.push_back(entry);
            }
        }
    }
    SkipLine(ar);
    return Healthy(ar);
}

std::unique_ptr<Curve> Polygon::clone() const
{
    return std::make_unique<Polygon>(*this);
}

void Polygon::translate(const Vector2d& delta)
{
    for (Point2d& point : points) {
        point.translate(delta);
    }
}

void Polygon::rotate(const Point2d& centre, const double& angle)
{
    for (Point2d& point : points) {
        point.rotate(centre, angle);
    }
}

void Polygon::mirrorY(const std::int32_t& c)
{
    for (Point2d& point : points) {
        point.mirrorY(c);
    }
}

void Polygon::mirrorX(const std::int32_t& c)
{
    for (Point2d& point : points) {
        point.mirrorX(c);
    }
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

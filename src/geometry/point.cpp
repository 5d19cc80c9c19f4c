#include "geometry/point.h"

#include "framework/archive.h"
#include "framework/layout_writer.h"

#include <cmath>

namespace ItUnitechnik {

std::int32_t TruncateToInt32(double value)
{
    // Inside (-2147483649, 2147483648) the cut towards zero lands in range.
    if (!(value > -2147483649.0 && value < 2147483648.0)) {
        return INT32_MIN;
    }
    return static_cast<std::int32_t>(value);
}

bool Point2d::Read(Archive& ar)
{
    ar >> x >> y;
    return Healthy(ar);
}

bool Point2d::Write(Archive& ar)
{
    return WriteLayout(ar, *this);
}

Point2d& Point2d::translate(const Vector2d& delta)
{
    x = WrappingAdd(x, delta.x);
    y = WrappingAdd(y, delta.y);
    return *this;
}

Point2d& Point2d::rotate(const Point2d& centre, const double& angle)
{
    Vector2d offset(WrappingSubtract(x, centre.x), WrappingSubtract(y, centre.y));
    offset.rotate(angle);
    x = WrappingAdd(centre.x, offset.x);
    y = WrappingAdd(centre.y, offset.y);
    return *this;
}

Point2d& Point2d::mirrorY(const std::int32_t& c)
{
    y = WrappingSubtract(WrappingAdd(c, c), y);
    return *this;
}

Point2d& Point2d::mirrorX(const std::int32_t& c)
{
    x = WrappingSubtract(WrappingAdd(c, c), x);
    return *this;
}

bool Vector2d::Read(Archive& ar)
{
    ar >> x >> y;
    return Healthy(ar);
}

bool Vector2d::Write(Archive& ar)
{
    return WriteLayout(ar, *this);
}

void Vector2d::rotate(const double& angle)
{
    const double oldX = static_cast<double>(x);
    const double oldY = static_cast<double>(y);
    // Halves go away from zero; the turned vector lands on the grid again.
    const double newX = std::round(oldX * std::cos(angle) - oldY * std::sin(angle));
    const double newY = std::round(oldX * std::sin(angle) + oldY * std::cos(angle));
    x = TruncateToInt32(newX);
    y = TruncateToInt32(newY);
}

bool Point3d::Read(Archive& ar)
{
    ar >> x >> y >> z;
    return Healthy(ar);
}

bool Point3d::Write(Archive& ar)
{
    return WriteLayout(ar, *this);
}

bool Vector3d::Read(Archive& ar)
{
    // The text holds whole numbers only.
    std::int32_t wholeX = 0;
    std::int32_t wholeY = 0;
    std::int32_t wholeZ = 0;
    ar >> wholeX >> wholeY >> wholeZ;
    x = wholeX;
    y = wholeY;
    z = wholeZ;
    return Healthy(ar);
}

bool Vector3d::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(6, TruncateToInt32(x), "x") << Blank << UInt(6, TruncateToInt32(y), "y") << Blank
       << UInt(6, TruncateToInt32(z), "z");
    return Healthy(ar);
}

bool operator==(const Point2d& a, const Point2d& b)
{
    return a.x == b.x && a.y == b.y;
}

bool operator!=(const Point2d& a, const Point2d& b)
{
    return !(a == b);
}

bool operator==(const Vector2d& a, const Vector2d& b)
{
    return a.x == b.x && a.y == b.y;
}

bool operator!=(const Vector2d& a, const Vector2d& b)
{
    return !(a == b);
}

bool operator==(const Point3d& a, const Point3d& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

bool operator!=(const Point3d& a, const Point3d& b)
{
    return !(a == b);
}

bool operator==(const Vector3d& a, const Vector3d& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

bool operator!=(const Vector3d& a, const Vector3d& b)
{
    return !(a == b);
}

} // namespace ItUnitechnik

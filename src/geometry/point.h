#pragma once

#include "framework/layout.h"
#include "framework/serializable.h"

#include <cstdint>

// The coordinates of the format: whole millimetres in signed 32-bit integers.
// Arithmetic on them wraps around in 32 bits without a check, as the plant's
// data always has.
namespace ItUnitechnik {

// a + b and a - b with 32-bit wrap-around, done in unsigned arithmetic so that
// an overflow is defined.
inline std::int32_t WrappingAdd(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

inline std::int32_t WrappingSubtract(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

// A double cut towards zero to a 32-bit integer. A value that has no 32-bit
// integer (out of range, NaN) gives -2147483648, the one value a 64-bit
// Windows build of the conversion produces for all of them.
std::int32_t TruncateToInt32(double value);

class Vector2d;

class Point2d final : public Serializable {
public:
    Point2d() = default;
    Point2d(std::int32_t xValue, std::int32_t yValue) : x(xValue), y(yValue) {}

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    Point2d& translate(const Vector2d& delta);
    Point2d& rotate(const Point2d& centre, const double& angle);
    // Reflects in the horizontal line at height c: only y changes.
    Point2d& mirrorY(const std::int32_t& c);
    // Reflects in the vertical line at c: only x changes.
    Point2d& mirrorX(const std::int32_t& c);

    std::int32_t x = 0; // first field
    std::int32_t y = 0; // second field
};

class Vector2d : public Serializable {
public:
    Vector2d() = default;
    Vector2d(std::int32_t xValue, std::int32_t yValue) : x(xValue), y(yValue) {}

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    // Turns the vector by `angle` radians and puts it back on the grid.
    void rotate(const double& angle);

    std::int32_t x = 0; // first field
    std::int32_t y = 0; // second field
};

class Point3d : public Serializable {
public:
    Point3d() = default;
    Point3d(std::int32_t xValue, std::int32_t yValue, std::int32_t zValue) : x(xValue), y(yValue), z(zValue) {}

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    std::int32_t x = 0; // first field
    std::int32_t y = 0; // second field
    std::int32_t z = 0; // third field
};

class Vector3d : public Serializable {
public:
    Vector3d() = default;
    Vector3d(double xValue, double yValue, double zValue) : x(xValue), y(yValue), z(zValue) {}

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    double x = 0.0; // first field, written cut to a whole number
    double y = 0.0; // second field, written cut to a whole number
    double z = 0.0; // third field, written cut to a whole number
};

bool operator==(const Point2d& a, const Point2d& b);
bool operator!=(const Point2d& a, const Point2d& b);
bool operator==(const Vector2d& a, const Vector2d& b);
bool operator!=(const Vector2d& a, const Vector2d& b);
bool operator==(const Point3d& a, const Point3d& b);
bool operator!=(const Point3d& a, const Point3d& b);
bool operator==(const Vector3d& a, const Vector3d& b);
bool operator!=(const Vector3d& a, const Vector3d& b);

// The old text form of a point has no room for a sign: a negative coordinate
// is written as 0, the point keeps its value.
template <class IO>
void Layout(IO& io, Point2d& point)
{
    io.UInt(5, NotBelowZero{point.x}, "x");
    io.Blank();
    io.UInt(5, NotBelowZero{point.y}, "y");
}

template <class IO>
void Layout(IO& io, Vector2d& vector)
{
    io.UInt(6, vector.x, "x");
    io.Blank();
    io.UInt(6, vector.y, "y");
}

template <class IO>
void Layout(IO& io, Point3d& point)
{
    io.UInt(6, point.x, "x");
    io.Blank();
    io.UInt(6, point.y, "y");
    io.Blank();
    io.UInt(6, point.z, "z");
}

} // namespace ItUnitechnik

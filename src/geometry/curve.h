#pragma once

#include "framework/layout_writer.h"
#include "framework/serializable.h"
#include "geometry/bounding_box.h"
#include "geometry/point.h"

#include <cstdint>
#include <memory>

namespace ItUnitechnik {

// One drawn element of an outline. A curve writes its fields and no line end;
// the GeoData that owns it frames the line. Version 600 divides the forms of
// the coordinates (CurvePoint below).
class Curve : public Serializable {
public:
    // Frees nothing of its own.
    virtual ~Curve();

    // A new object of the curve's own class with every member, version included.
    virtual std::unique_ptr<Curve> clone() const = 0;
    virtual void translate(const Vector2d& delta) = 0;
    virtual void rotate(const Point2d& centre, const double& angle) = 0;
    virtual void mirrorY(const std::int32_t& c) = 0;
    virtual void mirrorX(const std::int32_t& c) = 0;
    virtual BoundingBox boundingBox() const = 0;
    // Takes the other curve's version; false, and nothing changed, for null.
    virtual bool copyVersion(const Curve* other);

    std::int32_t version; // format version, handed down by the GeoData that made the curve

protected:
    explicit Curve(std::int32_t formatVersion);
    Curve(const Curve&) = default;
    Curve& operator=(const Curve&) = default;

    // A number in hexadecimal, the stream back in decimal behind it; a field
    // that is none fails the stream.
    static void readHexadecimal(Archive& ar, std::int32_t& value);
};

// What the curve classes have alike, written once: Write puts the layout
// beside the class, clone copies the class itself, and a move, a turn or a
// mirror takes along each point that the class's eachPoint names.
template <class Derived, class Base = Curve>
class CurveOf : public Base {
public:
    bool Write(Archive& ar) override { return WriteLayout(ar, self()); }
    std::unique_ptr<Curve> clone() const override
    {
        return std::make_unique<Derived>(static_cast<const Derived&>(*this));
    }
    void translate(const Vector2d& delta) override
    {
        self().eachPoint([&delta](Point2d& point) { point.translate(delta); });
    }
    void rotate(const Point2d& about, const double& angle) override
    {
        self().eachPoint([&about, &angle](Point2d& point) { point.rotate(about, angle); });
    }
    void mirrorY(const std::int32_t& c) override
    {
        self().eachPoint([&c](Point2d& point) { point.mirrorY(c); });
    }
    void mirrorX(const std::int32_t& c) override
    {
        self().eachPoint([&c](Point2d& point) { point.mirrorX(c); });
    }

protected:
    using Base::Base;

private:
    Derived& self() { return static_cast<Derived&>(*this); }
};

// A coordinate pair of a curve, in the form of the curve's version: below 600
// the old form of a point, clamp and all; from 600 signed. Its fields are the
// point's, and a field sink is told of the point.
struct CurvePoint {
    Point2d& point;
    std::int32_t version;

    bool Write(Archive& ar);
};

template <class IO>
void Layout(IO& io, CurvePoint& pair)
{
    if (pair.version < 600) {
        io.Record(pair.point);
    } else {
        io.SInt(5, pair.point.x, "x");
        io.Blank();
        io.SInt(5, pair.point.y, "y");
    }
}

// The point as a curve of `version` puts it on its line.
template <class IO>
void CoordinatesLayout(IO& io, std::int32_t version, Point2d& point)
{
    CurvePoint pair{point, version};
    io.Record(pair);
}

// The layout goes over a copy, as the curves have always written a point:
// below 600 a field sink is told the old form's fields under the copy.
inline bool CurvePoint::Write(Archive& ar)
{
    const RecordScope scope(ar, &point);
    Point2d copy = point;
    CurvePoint form{copy, version};
    LayoutWriter io(ar);
    Layout(io, form);
    return Healthy(ar);
}

} // namespace ItUnitechnik

#pragma once

#include "geometry/curve.h"

namespace ItUnitechnik {

// The full circle, kind 'K'.
class Circle : public CurveOf<Circle> {
public:
    explicit Circle(std::int32_t formatVersion);
    Circle(std::int32_t formatVersion, const Point2d& centrePoint, std::int32_t radiusValue);

    bool Read(Archive& ar) override;
    // The box of the whole circle.
    BoundingBox boundingBox() const override;

    // The centre turns; the radius stays.
    template <class F>
    void eachPoint(F f)
    {
        f(centre);
    }

    Point2d centre;          // first two fields
    std::int32_t radius = 0; // third field
    std::int32_t flags = 0;  // last field, four hexadecimal digits; only stored

protected:
    // The last field, read in hexadecimal. A field that is no hexadecimal
    // number is not an error: it is dropped as one token.
    bool readFlags(Archive& ar);
};

// The centre and the radius, with which an arc's line begins too.
template <class IO>
void CentreAndRadiusLayout(IO& io, Circle& circle)
{
    CoordinatesLayout(io, circle.version, circle.centre);
    io.Blank();
    io.UInt(5, circle.radius, "radius");
    io.Blank();
}

template <class IO>
void Layout(IO& io, Circle& circle)
{
    CentreAndRadiusLayout(io, circle);
    io.Hex(4, circle.flags, "flags");
}

} // namespace ItUnitechnik

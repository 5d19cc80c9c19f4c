#pragma once

#include "geometry/curve.h"

namespace ItUnitechnik {

// The full circle, kind 'K'.
class Circle : public Curve {
public:
    explicit Circle(std::int32_t formatVersion);
    Circle(std::int32_t formatVersion, const Point2d& centrePoint, std::int32_t radiusValue);
    Circle(const Circle&) = default;
    Circle& operator=(const Circle&) = default;
    ~Circle() override;

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    std::unique_ptr<Curve> clone() const override;
    void translate(const Vector2d& delta) override;
    // The centre turns; the radius stays.
    void rotate(const Point2d& centre, const double& angle) override;
    void mirrorY(const std::int32_t& c) override;
    void mirrorX(const std::int32_t& c) override;
    // The box of the whole circle.
    BoundingBox boundingBox() const override;

    Point2d centre;          // first two fields
    std::int32_t radius = 0; // third field
    std::int32_t flags = 0;  // last field, four hexadecimal digits; only stored

protected:
    // The last field, read in hexadecimal. A field that is no hexadecimal
    // number is not an error: it is dropped as one token.
    bool readFlags(Archive& ar);
};

} // namespace ItUnitechnik

#pragma once

#include "framework/serializable.h"
#include "geometry/bounding_box.h"
#include "geometry/point.h"

#include <cstdint>
#include <memory>

namespace ItUnitechnik {

// One drawn element of an outline. A curve writes its fields and no line end;
// the GeoData that owns it frames the line. Version 600 divides the forms of
// the coordinates: below it they go through Point2d's Write with its clamp,
// from 600 on the curve writes them signed.
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

    // A coordinate pair in the form of this curve's version, no line end.
    void writeCoordinates(Archive& ar, const Point2d& point) const;
};

} // namespace ItUnitechnik

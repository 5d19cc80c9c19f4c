#pragma once

#include "geometry/curve.h"

namespace ItUnitechnik {

// The straight piece, kind 'S': the only curve the adders make.
class LineSegment : public Curve {
public:
    explicit LineSegment(std::int32_t formatVersion);
    LineSegment(std::int32_t formatVersion, const Point2d& startPoint, const Point2d& endPoint);
    LineSegment(const LineSegment&) = default;
    LineSegment& operator=(const LineSegment&) = default;
    ~LineSegment() override;

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    std::unique_ptr<Curve> clone() const override;
    void translate(const Vector2d& delta) override;
    void rotate(const Point2d& centre, const double& angle) override;
    void mirrorY(const std::int32_t& c) override;
    void mirrorX(const std::int32_t& c) override;
    BoundingBox boundingBox() const override;

    Point2d start;          // first two fields
    Point2d end;            // next two fields
    std::int32_t flags = 0; // last field, four hexadecimal digits; only stored
};

} // namespace ItUnitechnik

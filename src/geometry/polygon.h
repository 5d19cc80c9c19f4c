#pragma once

#include "framework/collection.h"
#include "geometry/curve.h"

#include <cstdint>
#include <vector>

namespace ItUnitechnik {

// The curve of kind 'P': an open chain of points with one flags value per
// segment. For n points there are n - 1 flags; Read keeps that, the collection
// operations do not enforce it.
class Polygon : public Curve,
                public ItCollectionImpl<std::vector<Point2d>>,
                public ItCollectionImpl<std::vector<std::int32_t>> {
public:
    using PointCollection = ItCollectionImpl<std::vector<Point2d>>;
    using FlagCollection = ItCollectionImpl<std::vector<std::int32_t>>;

    explicit Polygon(std::int32_t formatVersion);
    Polygon(const Polygon&) = default;
    Polygon(Polygon&&) noexcept = default;
    Polygon& operator=(const Polygon&) = default;
    Polygon& operator=(Polygon&&) noexcept = default;
    ~Polygon() override;

    // The editing operations of both collections; their element types tell
    // them apart. Clear and Changed are reached through PointCollection or
    // FlagCollection.
    using FlagCollection::Add;
    using FlagCollection::Insert;
    using FlagCollection::Remove;
    using FlagCollection::RemoveRange;
    using PointCollection::Add;
    using PointCollection::Insert;
    using PointCollection::Remove;
    using PointCollection::RemoveRange;

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    std::unique_ptr<Curve> clone() const override;
    void translate(const Vector2d& delta) override;
    // Each point is turned and rounded by itself.
    void rotate(const Point2d& centre, const double& angle) override;
    void mirrorY(const std::int32_t& c) override;
    void mirrorX(const std::int32_t& c) override;
    // The inverted box for a polygon without points.
    BoundingBox boundingBox() const override;

    std::vector<Point2d> points;            // the chain, after the count
    std::vector<std::int32_t> segmentFlags; // entry i behind point i + 1, four hexadecimal digits
};

} // namespace ItUnitechnik

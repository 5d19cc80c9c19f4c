#pragma once

#include "framework/collection.h"
#include "geometry/curve.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ItUnitechnik {

// The curve of kind 'P': an open chain of points with one flags value per
// segment. For n points there are n - 1 flags; Read keeps that, the collection
// operations do not enforce it.
class Polygon : public CurveOf<Polygon>,
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
    // The inverted box for a polygon without points.
    BoundingBox boundingBox() const override;

    // Each point is turned and rounded by itself.
    template <class F>
    void eachPoint(F f)
    {
        for (Point2d& point : points) {
            f(point);
        }
    }

    std::vector<Point2d> points;            // the chain, after the count
    std::vector<std::int32_t> segmentFlags; // entry i behind point i + 1, four hexadecimal digits
};

// The count, then the chain: the first point, then each further point with
// the flags of the segment that ends there. Reading, each point is appended
// before it is read, so that a reading that stops keeps it.
template <class IO>
void Layout(IO& io, Polygon& polygon)
{
    const std::size_t count = io.Count(1, polygon.points, "points");
    io.Blank();
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 1) {
            io.Blank();
        }
        if constexpr (IO::reading) {
            polygon.points.emplace_back();
        }
        CoordinatesLayout(io, polygon.version, IO::reading ? polygon.points.back() : polygon.points[i]);
        io.Blank();
        if (i > 0) {
            // A chain edited out of step with its flags writes 0 for a
            // missing entry rather than read past the end.
            std::int32_t entry = !IO::reading && i - 1 < polygon.segmentFlags.size() ? polygon.segmentFlags[i - 1] : 0;
            io.Hex(4, entry, "entry");
            if constexpr (IO::reading) {
                polygon.segmentFlags.push_back(entry);
            }
        }
    }
}

} // namespace ItUnitechnik

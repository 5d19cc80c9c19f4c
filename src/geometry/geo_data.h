#pragma once

#include "framework/layout.h"
#include "framework/serializable.h"
#include "geometry/curve.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace ItUnitechnik {

// One element of an outline: a kind character and the curve it names, on one
// line of the file. The element owns its curve alone and copies it deeply, so
// it can live by value in a vector.
//
//   'B' Arc   'K' Circle   'P' Polygon   'S' LineSegment
class GeoData : public Serializable {
public:
    GeoData() = default;
    explicit GeoData(std::int32_t formatVersion);
    // Takes the curve over; nothing checks that kind and curve agree.
    GeoData(std::int32_t formatVersion, wchar_t kind, std::unique_ptr<Curve> ownedCurve);
    GeoData(const GeoData& other);
    GeoData& operator=(const GeoData& other);
    // A move hands the curve over and leaves the source without one.
    GeoData(GeoData&& other) noexcept;
    GeoData& operator=(GeoData&& other) noexcept;
    virtual ~GeoData();

    // Makes the curve that the kind character names; an unknown kind ends
    // Read with false and no curve, the stream untouched.
    bool Read(Archive& ar) override;
    // Fails, and clears the Archive's valid flag, when there is no curve.
    bool Write(Archive& ar) override;

    std::int32_t version = 0;     // not written; handed on to the curve that Read makes
    wchar_t elementKind = 0;      // first field
    std::unique_ptr<Curve> curve; // the rest of the line
};

// The pieces of an outline (a contour, a cutout, a mounted part): their count
// ends the outline's own line, then each piece stands on a line of its own,
// of the outline's version. An outline with no piece still ends its line; the
// list ends the last piece's.
template <class IO>
void PiecesLayout(IO& io, std::int32_t version, std::vector<GeoData>& pieces)
{
    const std::size_t count = io.Count(2, pieces, "geoData");
    io.OwnLines(count, pieces, [version] { return GeoData(version); });
}

} // namespace ItUnitechnik

#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"
#include "geometry/bounding_box.h"
#include "geometry/geo_data.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// One outline of the "CONTOUR_" record: a numbered list of elements.
class Contour : public LaidOut<Contour>, public ItCollectionImpl<std::vector<GeoData>> {
public:
    explicit Contour(std::int32_t formatVersion);

    bool Read(Archive& ar) override;

    // The box of all its curves; the inverted box when there is none.
    BoundingBox boundingBox() const;

    std::int32_t version;             // not written; handed on to the elements that Read makes
    std::int32_t contourNumber = 0;   // first field, running number from 1
    std::wstring contourCode = L"00"; // second field, cut to two characters
    std::vector<GeoData> geoData;     // behind the count, one line each
};

// The record "CONTOUR_": the outlines of an element or a lot.
class ContourData : public LaidOut<ContourData>, public ItCollectionImpl<std::vector<Contour>> {
public:
    ContourData();

    // Reads the record's own version from its second line and appends the
    // contours; a wrong "END" fails the Read but leaves `valid` alone.
    bool Read(Archive& ar) override;

    // The box of all curves of all contours; the inverted box when there is
    // none.
    BoundingBox boundingBox() const;

    std::int16_t version = 502;    // second line
    std::vector<Contour> contours; // behind the count
};

// A contour's line; its pieces follow, one line each, the list ends the last.
template <class IO>
void Layout(IO& io, Contour& contour)
{
    io.UInt(2, contour.contourNumber, "contourNumber");
    io.Blank();
    io.ZText(2, contour.contourCode, "contourCode", Token);
    io.Blank();
    PiecesLayout(io, contour.version, contour.geoData);
}

template <class IO>
void Layout(IO& io, ContourData& data)
{
    ListLayout(io, "CONTOUR_", 2, data.version, data.contours, "contours", [&data] { return Contour(data.version); });
}

} // namespace ItUnitechnik

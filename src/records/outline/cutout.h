#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"
#include "geometry/geo_data.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// One opening of the "CUTOUT__" record: a numbered list of elements with a
// value and, from version 600 on, a name.
class Cutout : public LaidOut<Cutout>, public ItCollectionImpl<std::vector<GeoData>> {
public:
    explicit Cutout(std::int32_t formatVersion);

    bool Read(Archive& ar) override;

    std::int32_t version;          // not written; decides the name's field and goes to the elements
    std::int32_t cutoutNumber = 0; // first field, running number from 1
    double cutoutValue = 0.0;      // second field; only stored
    std::wstring cutoutName;       // third field, 40 places, from version 600 on
    std::vector<GeoData> geoData;  // behind the count, one line each
};

// The record "CUTOUT__": the openings of an element or a lot.
class CutoutData : public LaidOut<CutoutData>, public ItCollectionImpl<std::vector<Cutout>> {
public:
    CutoutData();

    // A wrong tag at either end clears the Archive's `valid`.
    bool Read(Archive& ar) override;

    std::int16_t version = 502;  // second line
    std::vector<Cutout> cutouts; // behind the count
};

// A cutout's line; its pieces follow, one line each, the list ends the last.
template <class IO>
void Layout(IO& io, Cutout& cutout)
{
    io.UInt(2, cutout.cutoutNumber, "cutoutNumber");
    io.Blank();
    io.Real(2, 3, cutout.cutoutValue, "cutoutValue");
    io.Blank();
    if (cutout.version >= 600) {
        io.Text(40, cutout.cutoutName, "cutoutName");
        io.Blank();
    }
    PiecesLayout(io, cutout.version, cutout.geoData);
}

template <class IO>
void Layout(IO& io, CutoutData& data)
{
    ListLayout(io, "CUTOUT__", 2, data.version, data.cutouts, "cutouts", [&data] { return Cutout(data.version); });
}

} // namespace ItUnitechnik

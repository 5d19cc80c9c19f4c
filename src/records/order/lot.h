#pragma once

#include "framework/collection.h"
#include "framework/layout.h"
#include "framework/serializable.h"
#include "records/outline/contour.h"
#include "records/outline/cutout.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// A piece of a layer with its own fields and outlines: the record
// "LOT_____" ... "END LOT_____" inside a "LAYER___". Only a read file fills
// one. The collection bases work on the vectors inside contourData and
// cutoutData.
class Lot : public Serializable,
            public ItCollectionImpl<std::vector<Contour>>,
            public ItCollectionImpl<std::vector<Cutout>> {
public:
    Lot();

    // A wrong tag clears `valid`; a failing outline list leaves `valid` as
    // the list left it. Behind the closing tag the stream is not tested.
    bool Read(Archive& ar) override;
    // Always true: the enclosing record's own test finds a bad stream.
    bool Write(Archive& ar) override;

    using ItCollectionImpl<std::vector<Contour>>::Insert;
    using ItCollectionImpl<std::vector<Cutout>>::Insert;
    using ItCollectionImpl<std::vector<Contour>>::Add;
    using ItCollectionImpl<std::vector<Cutout>>::Add;
    using ItCollectionImpl<std::vector<Contour>>::RemoveRange;
    using ItCollectionImpl<std::vector<Cutout>>::RemoveRange;
    using ItCollectionImpl<std::vector<Contour>>::Remove;
    using ItCollectionImpl<std::vector<Cutout>>::Remove;

    std::int16_t version = 502; // line 2; decides the widths of the data line
    std::int32_t lotNumber = 0; // data line, first field
    std::wstring lotText;       // data line, 8 wide below 600, 20 from 600
    double lotReal1 = 0.0;      // data line
    std::wstring lotCode2;      // data line, two characters
    double lotReal2 = 0.0;      // data line
    std::int32_t lotValue1 = 0; // data line, six digits
    std::int32_t lotValue2 = 0; // data line, six digits
    std::int32_t lotValue3 = 0; // data line, six digits
    std::int32_t lotValue4 = 0; // data line, three digits
    std::wstring lotText20;     // data line, last, from 600
    ContourData contourData;    // behind "END"
    CutoutData cutoutData;      // behind the contours
};

template <class IO>
void Layout(IO& io, Lot& lot)
{
    io.Tag("LOT_____");
    io.UInt(3, lot.version, "version");
    io.EndLine();

    io.UInt(2, lot.lotNumber, "lotNumber");
    io.Blank();
    io.Text(lot.version < 600 ? 8 : 20, lot.lotText, "lotText");
    io.Blank();
    io.Real(1, 3, lot.lotReal1, "lotReal1");
    io.Blank();
    io.Text(2, lot.lotCode2, "lotCode2");
    io.Blank();
    io.Real(2, 3, lot.lotReal2, "lotReal2");
    io.Blank();
    io.UInt(6, lot.lotValue1, "lotValue1");
    io.Blank();
    io.UInt(6, lot.lotValue2, "lotValue2");
    io.Blank();
    io.UInt(6, lot.lotValue3, "lotValue3");
    io.Blank();
    io.UInt(3, lot.lotValue4, "lotValue4");
    if (lot.version >= 600) {
        io.Blank();
        io.Text(20, lot.lotText20, "lotText20");
    }
    io.EndLine();

    io.Tag("END");
    io.Record(lot.contourData);
    io.Record(lot.cutoutData);
    io.Tag("END LOT_____");
}

} // namespace ItUnitechnik

#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"
#include "geometry/geo_data.h"
#include "geometry/point.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// One part set into an element: codes, texts, a size, a place and an outline.
// Version 502 widened its number to three digits; version 600 added the two
// text lines and the position.
class MountingPart : public LaidOut<MountingPart>, public ItCollectionImpl<std::vector<GeoData>> {
public:
    explicit MountingPart(std::int16_t formatVersion);

    // Behind a line or polygon element, which has already skipped its own
    // line end, the closing skip of this reader drops the whole next line.
    bool Read(Archive& ar) override;

    std::int16_t version;                           // not written; decides the widths and lines
    std::int32_t partNumber = 0;                    // line 1, running number from 1
    std::vector<GeoData> geoData;                   // behind the last line, one line each
    wchar_t partKind = L'0';                        // line 1, the character in front of partSubCode
    std::int16_t partSubCode = 0;                   // line 1, two digits
    std::wstring partCode = std::wstring(10, L' '); // line 1, 10 places
    std::wstring partName = std::wstring(40, L' '); // line 1, 40 places, rest of the line
    std::wstring partText1;                         // line 2, from version 600 on
    std::wstring partText2;                         // line 3, from version 600 on
    double partArea = 0.0;                          // last line, square metres
    std::int32_t setValue1 = 0;                     // last line
    std::int32_t setValue2 = 0;                     // last line, signed from version 600 on
    Point2d position;                               // last line, from version 600 on
    std::int32_t partValue1 = 0;                    // last line; only stored
    std::int32_t partValue2 = 0;                    // last line; only stored
    std::uint32_t partWidth = 0;                    // last line, extent of the outline in x
    std::uint32_t partHeight = 0;                   // last line, extent of the outline in y
};

// The record "MOUNPART": the parts set into an element.
class MountingPartData : public LaidOut<MountingPartData>, public ItCollectionImpl<std::vector<MountingPart>> {
public:
    MountingPartData();

    // A wrong tag at either end clears the Archive's `valid`.
    bool Read(Archive& ar) override;

    std::int16_t version = 502;      // second line
    std::vector<MountingPart> parts; // behind the count
};

template <class IO>
void Layout(IO& io, MountingPart& part)
{
    // Line 1.
    io.UInt(part.version < 502 ? 2 : 3, part.partNumber, "partNumber");
    io.Blank();
    io.Char(part.partKind, "partKind");
    io.UInt(2, part.partSubCode, "partSubCode");
    io.Blank();
    io.Literal("000");
    io.Blank();
    io.Text(10, part.partCode, "partCode");
    io.Blank();
    io.Text(40, part.partName, "partName");
    io.EndLine();
    // Lines 2 and 3 stand at the right end of their places.
    if (part.version >= 600) {
        io.RText(20, part.partText1, Adjust::right, "partText1");
        io.EndLine();
        io.RText(20, part.partText2, Adjust::right, "partText2");
        io.EndLine();
    }
    // Last line.
    io.Real(2, 3, part.partArea, "partArea");
    io.Blank();
    io.UInt(3, part.setValue1, "setValue1");
    io.Blank();
    if (part.version >= 600) {
        io.SInt(5, part.position.x, "position.x");
        io.Blank();
        io.SInt(5, part.position.y, "position.y");
        io.Blank();
        io.SInt(5, part.setValue2, "setValue2");
    } else {
        io.UInt(3, part.setValue2, "setValue2");
    }
    io.Blank();
    io.UInt(4, part.partValue1, "partValue1");
    io.Blank();
    io.UInt(3, part.partValue2, "partValue2");
    io.Blank();
    io.UInt(5, part.partWidth, "partWidth");
    io.Blank();
    io.UInt(5, part.partHeight, "partHeight");
    io.Blank();
    PiecesLayout(io, part.version, part.geoData);
}

// The count has two places below 502, three from it.
template <class IO>
void Layout(IO& io, MountingPartData& data)
{
    ListLayout(
        io, "MOUNPART", [](std::int16_t version) { return version < 502 ? 2 : 3; }, data.version, data.parts, "parts",
        [&data] { return MountingPart(data.version); });
}

} // namespace ItUnitechnik

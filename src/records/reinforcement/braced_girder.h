#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"
#include "geometry/point.h"
#include "records/reinforcement/anchor_bar.h"
#include "records/reinforcement/welding_point.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// One lattice girder of a "BRGIRDER" record: two lines of its own, then the
// welding points and anchor bars its flags call for.
class BracedGirder : public LaidOut<BracedGirder>,
                     public ItCollectionImpl<WeldingPointData>,
                     public ItCollectionImpl<AnchorBarData> {
public:
    BracedGirder();

    bool Read(Archive& ar) override;

    std::int32_t number = 0;          // first line: running number, from 1
    std::wstring code = L"000";       // 3 places, zero-filled
    std::int32_t typeNumber = 0;      // 5 digits
    std::wstring designation;         // 10 places, left-aligned
    std::int32_t firstSize = 0;       // 5 digits
    Point2d position;                 // x and y, each a sign and 5 digits
    std::int32_t positionZ = 0;       // sign and 5 digits
    std::int32_t rotation = 0;        // sign and 3 digits
    bool mountFlag = false;           // last on the first line
    std::wstring firstCode = L"000";  // second line: 3 places, zero-filled
    std::wstring secondCode = L"000"; // 3 places, zero-filled
    std::int32_t auxNumber = 0;       // 3 digits
    double scaledValue = 0.0;         // 2 places, point, 3 decimals
    std::int32_t shortNumber = 0;     // 2 digits
    std::wstring thirdCode;           // 3 places, right-aligned, blank-filled
    std::int32_t lastNumber = 0;      // 5 digits
    bool hasAnchorBars = false;       // last on the second line
    bool hasWeldingPoints = false;    // before a constant 0 and the anchor flag
    WeldingPointData weldingPoints;   // behind the second line, when `hasWeldingPoints`
    AnchorBarData anchorBars;         // last, when `hasAnchorBars`
};

// The record "BRGIRDER": the braced girders of an element or of a mat.
class BracedGirderData : public LaidOut<BracedGirderData>, public ItCollectionImpl<std::vector<BracedGirder>> {
public:
    BracedGirderData() : ItCollectionImpl(Locate<&BracedGirderData::girders>) {}

    bool Read(Archive& ar) override;

    // Numbers the girder as the next of the list (count so far plus 1) and
    // appends a copy straight to the vector, without the change hook. The
    // caller finds the number in its own `girder`.
    void appendGirder(BracedGirder& girder);

    std::int16_t version = 502;        // second line
    std::vector<BracedGirder> girders; // count on the third line, then each girder
};

// A girder's lines. Its flags decide what follows the second line; the list
// ends whatever comes last.
template <class IO>
void Layout(IO& io, BracedGirder& girder)
{
    io.UInt(3, girder.number, "number");
    io.Blank();
    io.ZText(3, girder.code, "code", Token);
    io.Blank();
    io.UInt(5, girder.typeNumber, "typeNumber");
    io.Blank();
    io.Text(10, girder.designation, "designation");
    io.Blank();
    io.UInt(5, girder.firstSize, "firstSize");
    io.Blank();
    io.SInt(5, girder.position.x, "position.x");
    io.Blank();
    io.SInt(5, girder.position.y, "position.y");
    io.Blank();
    io.SInt(5, girder.positionZ, "positionZ");
    io.Blank();
    io.SInt(3, girder.rotation, "rotation");
    io.Blank();
    io.UInt(1, girder.mountFlag, "mountFlag");
    io.EndLine();

    io.ZText(3, girder.firstCode, "firstCode", Token);
    io.Blank();
    io.ZText(3, girder.secondCode, "secondCode", Token);
    io.Blank();
    io.UInt(3, girder.auxNumber, "auxNumber");
    io.Blank();
    io.Real(2, 3, girder.scaledValue, "scaledValue");
    io.Blank();
    io.UInt(2, girder.shortNumber, "shortNumber");
    io.Blank();
    io.RText(3, girder.thirdCode, Adjust::right, "thirdCode", Token);
    io.Blank();
    io.UInt(5, girder.lastNumber, "lastNumber");
    io.Blank();
    io.UInt(1, girder.hasWeldingPoints, "hasWeldingPoints");
    io.Constant(L'0');
    io.UInt(1, girder.hasAnchorBars, "hasAnchorBars");

    if (girder.hasWeldingPoints) {
        io.EndLine();
        io.Record(girder.weldingPoints);
    }
    if (girder.hasAnchorBars) {
        io.EndLine();
        io.Record(girder.anchorBars);
    }
}

template <class IO>
void Layout(IO& io, BracedGirderData& data)
{
    ListLayout(io, "BRGIRDER", 3, data.version, data.girders, "girders");
}

} // namespace ItUnitechnik

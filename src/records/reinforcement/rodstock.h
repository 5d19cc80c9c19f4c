#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"
#include "geometry/point.h"
#include "records/reinforcement/bending_form.h"
#include "records/reinforcement/bending_form_free.h"
#include "records/reinforcement/spacer.h"
#include "records/reinforcement/welding_point.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// One bar entry of a "RODSTOCK" record: two lines of its own, then the
// bending data, spacers and welding points its flags call for.
class Rodstock : public LaidOut<Rodstock>,
                 public ItCollectionImpl<SpacerData>,
                 public ItCollectionImpl<WeldingPointData> {
public:
    // A bar is always made for a version: it decides the width of
    // `designation`.
    explicit Rodstock(std::int16_t barVersion);

    bool Read(Archive& ar) override;

    // Applies the decimal flags code of a bar: hundreds 1 ask for welding
    // points; the tens digit 1 asks for spacers and two coded forms at once,
    // any other tens digit but 0 for a free form. The units are ignored.
    void applyFlagsCode(std::int32_t flagsCode);

    std::int16_t version;           // not in the bar's lines: the list hands it on
    std::int32_t number = 0;        // first line: running number, from 1
    std::wstring code = L"000";     // 3 places, zero-filled
    std::int32_t rodKind = 0;       // 1 digit
    std::wstring designation;       // 10 places from version 600, 3 below
    std::int32_t firstSize = 0;     // 5 digits
    std::int32_t secondSize = 0;    // 3 digits
    std::int32_t thirdSize = 0;     // 5 digits
    Point2d position;               // x and y, each a sign and 5 digits
    std::int32_t positionZ = 0;     // sign and 5 digits
    std::int32_t rotation = 0;      // sign and 3 digits
    std::wstring extraDesignation;  // 10 places, padded in front
    bool mountFlag = false;         // last on the first line
    std::int32_t auxFirst = 0;      // second line: 3 digits
    std::int32_t auxSecond = 0;     // 3 digits
    std::int32_t auxThird = 0;      // 3 digits
    std::int32_t auxFourth = 0;     // 5 digits
    std::int32_t auxFifth = 0;      // 5 digits
    std::int32_t auxSixth = 0;      // 5 digits
    bool hasWeldingPoints = false;  // digit, then right behind it
    bool hasSpacers = false;        // digit, then right behind it
    wchar_t bendingKind = L'0';     // last on the second line: '1' two forms, '2' free form
    BendingForm firstForm;          // bending line, kind '1'
    BendingForm secondForm;         // bending line, kind '1'
    std::int32_t formAngle = 0;     // end of the bending line, sign and 3 digits
    BendingFormFree freeForm;       // behind the second line, kind '2'
    SpacerData spacers;             // behind the bending data, when `hasSpacers`
    WeldingPointData weldingPoints; // last, when `hasWeldingPoints`
};

// The record "RODSTOCK": the loose bars of an element or the bars of a mat.
class RodstockData : public LaidOut<RodstockData>, public ItCollectionImpl<std::vector<Rodstock>> {
public:
    RodstockData() : ItCollectionImpl(Locate<&RodstockData::bars>) {}

    bool Read(Archive& ar) override;

    // Gives the bar this list's version and the next number (count so far
    // plus 1), then appends a copy. The caller finds the number in its own
    // `bar`.
    void appendRodstock(Rodstock& bar);

    std::int16_t version = 502; // second line; handed on to every bar
    std::vector<Rodstock> bars; // count on the third line, then each bar
};

// A bar's lines. The flags on the second line decide what follows it; the
// list ends whatever comes last.
template <class IO>
void Layout(IO& io, Rodstock& bar)
{
    io.UInt(3, bar.number, "number");
    io.Blank();
    io.ZText(3, bar.code, "code", Token);
    io.Blank();
    io.UInt(1, bar.rodKind, "rodKind");
    io.Blank();
    io.Text(bar.version >= 600 ? 10 : 3, bar.designation, "designation");
    io.Blank();
    io.UInt(5, bar.firstSize, "firstSize");
    io.Blank();
    io.UInt(3, bar.secondSize, "secondSize");
    io.Blank();
    io.UInt(5, bar.thirdSize, "thirdSize");
    io.Blank();
    io.SInt(5, bar.position.x, "position.x");
    io.Blank();
    io.SInt(5, bar.position.y, "position.y");
    io.Blank();
    io.SInt(5, bar.positionZ, "positionZ");
    io.Blank();
    io.SInt(3, bar.rotation, "rotation");
    io.Blank();
    // The signed field before it leaves `internal`: the text is padded in front.
    io.RText(10, bar.extraDesignation, "extraDesignation");
    io.Blank();
    io.UInt(1, bar.mountFlag, "mountFlag");
    io.EndLine();

    io.UInt(3, bar.auxFirst, "auxFirst");
    io.Blank();
    io.UInt(3, bar.auxSecond, "auxSecond");
    io.Blank();
    io.UInt(3, bar.auxThird, "auxThird");
    io.Blank();
    io.UInt(5, bar.auxFourth, "auxFourth");
    io.Blank();
    io.UInt(5, bar.auxFifth, "auxFifth");
    io.Blank();
    io.UInt(5, bar.auxSixth, "auxSixth");
    io.Blank();
    io.UInt(1, bar.hasWeldingPoints, "hasWeldingPoints");
    io.UInt(1, bar.hasSpacers, "hasSpacers");
    io.Char(bar.bendingKind, "bendingKind");

    if (bar.bendingKind == L'1') {
        io.EndLine();
        io.Record(bar.firstForm);
        io.Blank();
        io.Record(bar.secondForm);
        io.Blank();
        io.SInt(3, bar.formAngle, "formAngle");
    } else if (bar.bendingKind == L'2') {
        io.EndLine();
        io.Record(bar.freeForm);
    }
    if (bar.hasSpacers) {
        io.EndLine();
        io.Record(bar.spacers);
    }
    if (bar.hasWeldingPoints) {
        io.EndLine();
        io.Record(bar.weldingPoints);
    }
}

template <class IO>
void Layout(IO& io, RodstockData& data)
{
    ListLayout(io, "RODSTOCK", 3, data.version, data.bars, "bars", [&data] { return Rodstock(data.version); });
}

} // namespace ItUnitechnik

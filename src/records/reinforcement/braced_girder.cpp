#include "records/reinforcement/braced_girder.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

BracedGirder::BracedGirder()
    : ItCollectionImpl<WeldingPointData>(
          [](auto& self) -> auto& { return static_cast<BracedGirder&>(self).weldingPoints; }),
      ItCollectionImpl<AnchorBarData>([](auto& self) -> auto& { return static_cast<BracedGirder&>(self).anchorBars; })
{
}

bool BracedGirder::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(3, number, "number");
    ar << Blank;
    ar << ZText(3, code, "code");
    ar << Blank;
    ar << UInt(5, typeNumber, "typeNumber");
    ar << Blank;
    ar << Text(10, designation, "designation");
    ar << Blank;
    ar << UInt(5, firstSize, "firstSize");
    ar << Blank;
    ar << SInt(5, position.x, "position.x");
    ar << Blank;
    ar << SInt(5, position.y, "position.y");
    ar << Blank;
    ar << SInt(5, positionZ, "positionZ");
    ar << Blank;
    ar << SInt(3, rotation, "rotation");
    ar << Blank;
    ar << UInt(1, static_cast<int>(mountFlag), "mountFlag");
    ar << EndLine;

    ar << ZText(3, firstCode, "firstCode");
    ar << Blank;
    ar << ZText(3, secondCode, "secondCode");
    ar << Blank;
    ar << UInt(3, auxNumber, "auxNumber");
    ar << Blank;
    ar << Real(2, 3, scaledValue, "scaledValue");
    ar << Blank;
    ar << UInt(2, shortNumber, "shortNumber");
    ar << Blank;
    ar << RText(3, thirdCode, Adjust::right, "thirdCode");
    ar << Blank;
    ar << UInt(5, lastNumber, "lastNumber");
    ar << Blank;
    ar << UInt(1, static_cast<int>(hasWeldingPoints), "hasWeldingPoints");
    ar << Char(L'0');
    ar << UInt(1, static_cast<int>(hasAnchorBars), "hasAnchorBars");

    // Whatever comes last is ended by the list.
    if (hasWeldingPoints) {
        ar << EndLine;
        weldingPoints.Write(ar);
    }
    if (hasAnchorBars) {
        ar << EndLine;
        anchorBars.Write(ar);
    }
    return Healthy(ar);
}

bool BracedGirder::Read(Archive& ar)
{
    ar >> number;
    code = ReadToken(ar);
    ar >> typeNumber;
    SkipChar(ar);
    GetText(ar, 10, designation);
    ar >> firstSize;
    position.Read(ar);
    ar >> positionZ >> rotation >> mountFlag;

    firstCode = ReadToken(ar);
    secondCode = ReadToken(ar);
    ar >> auxNumber >> scaledValue >> shortNumber;
    thirdCode = ReadToken(ar);
    ar >> lastNumber;

    wchar_t flag = L'0';
    ar >> flag;
    hasWeldingPoints = flag != L'0';
    ar >> flag; // the constant between the two flags
    ar >> flag;
    hasAnchorBars = flag != L'0';

    if (hasWeldingPoints) {
        weldingPoints.Read(ar);
    }
    if (hasAnchorBars) {
        anchorBars.Read(ar);
    }
    return Healthy(ar);
}

bool BracedGirderData::Write(Archive& ar)
{
    return WriteList(ar, this, version, {"BRGIRDER", 3, "girders"}, girders);
}

bool BracedGirderData::Read(Archive& ar)
{
    return ReadList(
        ar, L"BRGIRDER", version, [] { return BracedGirder(); }, girders);
}

void BracedGirderData::appendGirder(BracedGirder& girder)
{
    girder.number = static_cast<std::int32_t>(girders.size()) + 1;
    girders.push_back(girder);
}

} // namespace ItUnitechnik

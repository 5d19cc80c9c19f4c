#include "records/reinforcement/rodstock.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Rodstock::Rodstock(std::int16_t barVersion)
    : ItCollectionImpl<SpacerData>([](auto& self) -> auto& { return static_cast<Rodstock&>(self).spacers; }),
      ItCollectionImpl<WeldingPointData>(
          [](auto& self) -> auto& { return static_cast<Rodstock&>(self).weldingPoints; }),
      version(barVersion)
{
}

void Rodstock::applyFlagsCode(std::int32_t flagsCode)
{
    const std::int32_t hundreds = flagsCode / 100;
    const std::int32_t tens = (flagsCode - 100 * hundreds) / 10;
    hasWeldingPoints = hundreds == 1;
    // One digit asks for spacers and for the two coded forms together.
    hasSpacers = tens == 1;
    if (tens == 0) {
        bendingKind = L'0';
    } else if (tens == 1) {
        bendingKind = L'1';
    } else {
        bendingKind = L'2';
    }
}

bool Rodstock::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(3, number, "number");
    ar << Blank;
    ar << ZText(3, code, "code");
    ar << Blank;
    ar << UInt(1, rodKind, "rodKind");
    ar << Blank;
    if (version >= 600) {
        ar << Text(10, designation, "designation");
    } else {
        ar << Text(3, designation, "designation");
    }
    ar << Blank;
    ar << UInt(5, firstSize, "firstSize");
    ar << Blank;
    ar << UInt(3, secondSize, "secondSize");
    ar << Blank;
    ar << UInt(5, thirdSize, "thirdSize");
    ar << Blank;
    ar << SInt(5, position.x, "position.x");
    ar << Blank;
    ar << SInt(5, position.y, "position.y");
    ar << Blank;
    ar << SInt(5, positionZ, "positionZ");
    ar << Blank;
    ar << SInt(3, rotation, "rotation");
    ar << Blank;
    // The signed field before it leaves `internal`: the text is padded in front.
    ar << RText(10, extraDesignation, "extraDesignation");
    ar << Blank;
    ar << UInt(1, static_cast<int>(mountFlag), "mountFlag");
    ar << EndLine;

    ar << UInt(3, auxFirst, "auxFirst");
    ar << Blank;
    ar << UInt(3, auxSecond, "auxSecond");
    ar << Blank;
    ar << UInt(3, auxThird, "auxThird");
    ar << Blank;
    ar << UInt(5, auxFourth, "auxFourth");
    ar << Blank;
    ar << UInt(5, auxFifth, "auxFifth");
    ar << Blank;
    ar << UInt(5, auxSixth, "auxSixth");
    ar << Blank;
    ar << UInt(1, static_cast<int>(hasWeldingPoints), "hasWeldingPoints");
    ar << UInt(1, static_cast<int>(hasSpacers), "hasSpacers");
    ar << Char(bendingKind, "bendingKind");

    // Whatever comes last is ended by the list.
    if (bendingKind == L'1') {
        ar << EndLine;
        firstForm.Write(ar);
        ar << Blank;
        secondForm.Write(ar);
        ar << Blank;
        ar << SInt(3, formAngle, "formAngle");
    } else if (bendingKind == L'2') {
        ar << EndLine;
        freeForm.Write(ar);
    }
    if (hasSpacers) {
        ar << EndLine;
        spacers.Write(ar);
    }
    if (hasWeldingPoints) {
        ar << EndLine;
        weldingPoints.Write(ar);
    }
    return Healthy(ar);
}

bool Rodstock::Read(Archive& ar)
{
    ar >> number;
    code = ReadToken(ar);
    ar >> rodKind;
    SkipChar(ar);
    GetText(ar, version >= 600 ? 10 : 3, designation);
    ar >> firstSize >> secondSize >> thirdSize;
    position.Read(ar);
    ar >> positionZ >> rotation;
    SkipChar(ar);
    GetText(ar, 10, extraDesignation);
    ar >> mountFlag >> auxFirst >> auxSecond >> auxThird >> auxFourth >> auxFifth >> auxSixth;

    wchar_t flag = L'0';
    ar >> flag;
    hasWeldingPoints = flag != L'0';
    ar >> flag;
    hasSpacers = flag != L'0';
    ar >> bendingKind;

    if (bendingKind == L'1') {
        firstForm.Read(ar);
        secondForm.Read(ar);
        ar >> formAngle;
    } else if (bendingKind == L'2') {
        freeForm.Read(ar);
    }
    if (hasSpacers) {
        spacers.Read(ar);
    }
    if (hasWeldingPoints) {
        weldingPoints.Read(ar);
    }
    return Healthy(ar);
}

bool RodstockData::Write(Archive& ar)
{
    return WriteList(ar, this, version, {"RODSTOCK", 3, "bars"}, bars);
}

bool RodstockData::Read(Archive& ar)
{
    return ReadList(
        ar, L"RODSTOCK", version, [&] { return Rodstock(version); }, bars);
}

void RodstockData::appendRodstock(Rodstock& bar)
{
    bar.version = version;
    bar.number = static_cast<std::int32_t>(bars.size()) + 1;
    Add(bar);
}

} // namespace ItUnitechnik

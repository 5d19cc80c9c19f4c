#include "records/reinforcement/rodstock.h"

#include "framework/archive.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Rodstock::Rodstock(std::int16_t barVersion)
    : ItCollectionImpl<SpacerData>(Locate<&Rodstock::spacers>), ItCollectionImpl<WeldingPointData>(
                                                                    Locate<&Rodstock::weldingPoints>),
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

    hasWeldingPoints = ReadFlag(ar);
    hasSpacers = ReadFlag(ar);
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

bool RodstockData::Read(Archive& ar)
{
    return ReadList(
        ar, L"RODSTOCK", version, [&] { return Rodstock(version); }, bars);
}

void RodstockData::appendRodstock(Rodstock& bar)
{
    bar.version = version;
    bar.number = NextNumber(bars);
    Add(bar);
}

} // namespace ItUnitechnik

#include "records/reinforcement/braced_girder.h"

#include "framework/archive.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

BracedGirder::BracedGirder()
    : ItCollectionImpl<WeldingPointData>(Locate<&BracedGirder::weldingPoints>), ItCollectionImpl<AnchorBarData>(
                                                                                    Locate<&BracedGirder::anchorBars>)
{
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

    hasWeldingPoints = ReadFlag(ar);
    ReadFlag(ar); // the constant between the two flags
    hasAnchorBars = ReadFlag(ar);

    if (hasWeldingPoints) {
        weldingPoints.Read(ar);
    }
    if (hasAnchorBars) {
        anchorBars.Read(ar);
    }
    return Healthy(ar);
}

bool BracedGirderData::Read(Archive& ar)
{
    return ReadList(
        ar, L"BRGIRDER", version, [] { return BracedGirder(); }, girders);
}

void BracedGirderData::appendGirder(BracedGirder& girder)
{
    girder.number = NextNumber(girders);
    girders.push_back(girder);
}

} // namespace ItUnitechnik

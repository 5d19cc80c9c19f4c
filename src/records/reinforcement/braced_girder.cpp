#include "records/reinforcement/braced_girder.h"

#include "framework/archive.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

BracedGirder::BracedGirder()
    : ItCollectionImpl<WeldingPointData>(
          [](auto& self) -> auto& { return static_cast<BracedGirder&>(self).weldingPoints; }),
      ItCollectionImpl<AnchorBarData>([](auto& self) -> auto& { return static_cast<BracedGirder&>(self).anchorBars; })
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

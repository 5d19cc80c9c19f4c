#include "records/reinforcement/anchor_bar.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool AnchorBar::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(3, firstType, "firstType");
    ar << Blank;
    ar << UInt(3, secondType, "secondType");
    ar << Blank;
    ar << UInt(5, firstLength, "firstLength");
    ar << Blank;
    ar << UInt(5, secondLength, "secondLength");
    ar << Blank;
    return Healthy(ar);
}

bool AnchorBar::Read(Archive& ar)
{
    ar >> firstType >> secondType >> firstLength >> secondLength;
    return Healthy(ar);
}

bool AnchorBarData::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(3, anchorCode, "anchorCode");
    ar << Blank;
    ar << UInt(3, bars.size(), "bars");
    // The last line is ended by the list that holds the girder.
    if (bars.empty()) {
        ar << EndLine;
    }
    for (AnchorBar& bar : bars) {
        ar << EndLine;
        bar.Write(ar);
    }
    return Healthy(ar);
}

bool AnchorBarData::Read(Archive& ar)
{
    std::int32_t count = 0;
    ar >> anchorCode >> count;
    ReadElements(
        ar, count, [&] { return AnchorBar(); }, bars);
    return Healthy(ar);
}

} // namespace ItUnitechnik

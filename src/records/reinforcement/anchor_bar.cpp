#include "records/reinforcement/anchor_bar.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool AnchorBar::Read(Archive& ar)
{
    ar >> firstType >> secondType >> firstLength >> secondLength;
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

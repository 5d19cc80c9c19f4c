#include "records/reinforcement/spacer.h"

#include "framework/archive.h"

namespace ItUnitechnik {

bool SpacerPosition::Read(Archive& ar)
{
    ar >> value1 >> value2 >> value3 >> value4 >> value5 >> value6 >> value7 >> value8 >> value9 >> value10;
    return Healthy(ar);
}

bool SpacerData::Read(Archive& ar)
{
    std::int32_t count = 0;
    ar >> spacerCode >> count;
    // Kept whatever the stream says: a broken file leaves a partly read
    // position behind. The count is a number from the file: the loop ends
    // once the stream has failed, so no count takes more than the file holds.
    for (std::int32_t i = 0; i < count && !ar.fail(); ++i) {
        SpacerPosition position;
        position.Read(ar);
        positions.push_back(position);
    }
    return Healthy(ar);
}

} // namespace ItUnitechnik

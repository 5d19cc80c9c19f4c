#include "records/reinforcement/spacer.h"

#include "framework/archive.h"
#include "framework/field_forms.h"

namespace ItUnitechnik {

bool SpacerPosition::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(5, value1, "value1");
    ar << Blank;
    ar << UInt(5, value2, "value2");
    ar << Blank;
    ar << UInt(5, value3, "value3");
    ar << Blank;
    ar << UInt(5, value4, "value4");
    ar << Blank;
    ar << UInt(5, value5, "value5");
    ar << Blank;
    ar << UInt(5, value6, "value6");
    ar << Blank;
    ar << UInt(5, value7, "value7");
    ar << Blank;
    ar << UInt(5, value8, "value8");
    ar << Blank;
    ar << UInt(5, value9, "value9");
    ar << Blank;
    ar << UInt(5, value10, "value10");
    return Healthy(ar);
}

bool SpacerPosition::Read(Archive& ar)
{
    ar >> value1 >> value2 >> value3 >> value4 >> value5 >> value6 >> value7 >> value8 >> value9 >> value10;
    return Healthy(ar);
}

bool SpacerData::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(3, spacerCode, "spacerCode");
    ar << Blank;
    ar << UInt(3, positions.size(), "positions");
    // The last line is ended by the list that holds the bar.
    if (positions.empty()) {
        ar << EndLine;
    }
    for (SpacerPosition& position : positions) {
        ar << EndLine;
        position.Write(ar);
    }
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

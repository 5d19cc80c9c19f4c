#include "records/reinforcement/external_iron.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool ExternalIron::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(3, ironNumber, "ironNumber");
    ar << Blank;
    ar << UInt(2, ironCode, "ironCode");
    ar << Blank;
    ar << UInt(5, ironCount, "ironCount");
    ar << Blank;
    ar << Real(3, 3, ironValue, "ironValue");
    ar << Blank;
    // No alignment of its own: the Real before it leaves the text at the
    // right end of its places.
    ar << RText(30, ironText, "ironText");
    return Healthy(ar);
}

bool ExternalIron::Read(Archive& ar)
{
    ar >> ironNumber >> ironCode >> ironCount >> ironValue;
    SkipChar(ar);
    // The padding in front stays: the text comes back 30 places wide.
    ironText = ReadLine(ar);
    return Healthy(ar);
}

bool ExternalIronData::Write(Archive& ar)
{
    return WriteList(ar, this, version, {"EXTIRON_", 3, "irons"}, irons);
}

bool ExternalIronData::Read(Archive& ar)
{
    return ReadList(
        ar, L"EXTIRON_", version, [] { return ExternalIron(); }, irons);
}

void ExternalIronData::appendIron(ExternalIron& iron)
{
    iron.ironNumber = static_cast<std::int32_t>(irons.size()) + 1;
    irons.push_back(iron);
}

} // namespace ItUnitechnik

#include "records/reinforcement/external_iron.h"

#include "framework/archive.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool ExternalIron::Read(Archive& ar)
{
    ar >> ironNumber >> ironCode >> ironCount >> ironValue;
    SkipChar(ar);
    // The padding in front stays: the text comes back 30 places wide.
    ironText = ReadLine(ar);
    return Healthy(ar);
}

bool ExternalIronData::Read(Archive& ar)
{
    return ReadList(
        ar, L"EXTIRON_", version, [] { return ExternalIron(); }, irons);
}

void ExternalIronData::appendIron(ExternalIron& iron)
{
    iron.ironNumber = NextNumber(irons);
    irons.push_back(iron);
}

} // namespace ItUnitechnik

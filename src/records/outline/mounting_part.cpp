#include "records/outline/mounting_part.h"

#include "framework/archive.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

MountingPart::MountingPart(std::int16_t formatVersion)
    : ItCollectionImpl(Locate<&MountingPart::geoData>), version(formatVersion)
{
}

bool MountingPart::Read(Archive& ar)
{
    ar >> partNumber;
    ar >> partKind;
    ar >> partSubCode;
    std::wstring filler;
    SkipChar(ar);
    GetText(ar, 3, filler);
    SkipChar(ar);
    GetText(ar, 10, partCode);
    SkipChar(ar);
    partName = ReadLine(ar);
    if (version >= 600) {
        partText1 = ReadLine(ar);
        partText2 = ReadLine(ar);
    }
    ar >> partArea >> setValue1;
    if (version >= 600) {
        ar >> position.x >> position.y;
    }
    ar >> setValue2 >> partValue1 >> partValue2 >> partWidth >> partHeight;
    std::int32_t count = 0;
    ar >> count;
    ReadElements(
        ar, count, [&] { return GeoData(version); }, geoData);
    // Without elements this takes the rest of the count's line. Behind a line
    // or polygon element it drops the following line whole.
    SkipLine(ar);
    return Healthy(ar);
}

MountingPartData::MountingPartData() : ItCollectionImpl(Locate<&MountingPartData::parts>) {}

bool MountingPartData::Read(Archive& ar)
{
    return ReadList(
        ar, L"MOUNPART", version, [&] { return MountingPart(version); }, parts);
}

} // namespace ItUnitechnik

#include "records/outline/cutout.h"

#include "framework/archive.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Cutout::Cutout(std::int32_t formatVersion) : ItCollectionImpl(Locate<&Cutout::geoData>), version(formatVersion) {}

bool Cutout::Read(Archive& ar)
{
    ar >> cutoutNumber >> cutoutValue;
    if (version >= 600) {
        SkipChar(ar);
        GetText(ar, 40, cutoutName); // with the blanks of its field
    }
    std::int32_t count = 0;
    ar >> count;
    ReadElements(
        ar, count, [&] { return GeoData(version); }, geoData);
    return Healthy(ar);
}

CutoutData::CutoutData() : ItCollectionImpl(Locate<&CutoutData::cutouts>) {}

bool CutoutData::Read(Archive& ar)
{
    return ReadList(
        ar, L"CUTOUT__", version, [&] { return Cutout(version); }, cutouts);
}

} // namespace ItUnitechnik

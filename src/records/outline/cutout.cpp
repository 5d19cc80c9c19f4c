#include "records/outline/cutout.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Cutout::Cutout(std::int32_t formatVersion)
    : ItCollectionImpl([](auto& self) -> auto& { return static_cast<Cutout&>(self).geoData; }), version(formatVersion)
{
}

bool Cutout::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(2, cutoutNumber, "cutoutNumber");
    ar << Blank;
    ar << Real(2, 3, cutoutValue, "cutoutValue");
    ar << Blank;
    if (version >= 600) {
        ar << Text(40, cutoutName, "cutoutName");
        ar << Blank;
    }
    WritePieces(ar, geoData);
    return Healthy(ar);
}

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

CutoutData::CutoutData() : ItCollectionImpl([](auto& self) -> auto& { return static_cast<CutoutData&>(self).cutouts; })
{
}

bool CutoutData::Write(Archive& ar)
{
    return WriteList(ar, this, version, {"CUTOUT__", 2, "cutouts"}, cutouts);
}

bool CutoutData::Read(Archive& ar)
{
    return ReadList(
        ar, L"CUTOUT__", version, [&] { return Cutout(version); }, cutouts);
}

} // namespace ItUnitechnik

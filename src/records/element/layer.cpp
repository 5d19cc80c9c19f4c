#include "records/element/layer.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Layer::Layer()
    : ItCollectionImpl<std::vector<Lot>>([](auto& self) -> auto& { return static_cast<Layer&>(self).lots; }),
      ItCollectionImpl<std::vector<MountingPart>>(
          [](auto& self) -> auto& { return static_cast<Layer&>(self).mountingPartData.parts; })
{
}

bool Layer::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << Tag("LAYER___");
    ar << UInt(3, version, "version");
    ar << EndLine;

    ar << UInt(1, layerValue1, "layerValue1");
    ar << Blank;
    ar << UInt(6, layerValue2, "layerValue2");
    ar << Blank;
    ar << UInt(6, layerValue3, "layerValue3");
    ar << Blank;
    ar << UInt(6, layerValue4, "layerValue4");
    ar << Blank;
    ar << UInt(2, lotCount, "lotCount");
    ar << EndLine;

    ar << Tag("END");
    for (Lot& lot : lots) {
        lot.Write(ar);
    }
    mountingPartData.Write(ar);
    reinforcement.Write(ar);
    ar << Tag("END LAYER___");
    return true;
}

bool Layer::Read(Archive& ar)
{
    if (!ExpectToken(ar, L"LAYER___")) {
        return false;
    }
    ar >> version;
    ar >> layerValue1 >> layerValue2 >> layerValue3 >> layerValue4 >> lotCount;
    if (!ExpectToken(ar, L"END")) {
        return false;
    }
    ReadElements(
        ar, lotCount, [] { return Lot(); }, lots);
    mountingPartData.Read(ar);
    if (!Healthy(ar)) {
        return false;
    }
    reinforcement.Read(ar);
    if (!Healthy(ar)) {
        return false;
    }
    if (!ExpectLine(ar, L"END LAYER___")) {
        return false;
    }
    return true;
}

} // namespace ItUnitechnik

#include "records/element/layer.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Layer::Layer()
    : ItCollectionImpl<std::vector<Lot>>(&lots),
      ItCollectionImpl<std::vector<MountingPart>>(nullptr)
{
    // These lists lie inside members that are made after the bases: the
    // views are pointed at them once the members stand.
    ItCollectionImpl<std::vector<MountingPart>>::container = &mountingPartData.parts;
}

Layer::Layer(const Layer& other)
    : Serializable(other),
      ItCollectionImpl<std::vector<Lot>>(&lots),
      ItCollectionImpl<std::vector<MountingPart>>(nullptr),
      version(other.version),
      layerValue1(other.layerValue1),
      layerValue2(other.layerValue2),
      layerValue3(other.layerValue3),
      layerValue4(other.layerValue4),
      lotCount(other.lotCount),
      lots(other.lots),
      mountingPartData(other.mountingPartData),
      reinforcement(other.reinforcement)
{
    // These lists lie inside members that are made after the bases: the
    // views are pointed at them once the members stand.
    ItCollectionImpl<std::vector<MountingPart>>::container = &mountingPartData.parts;
}

bool Layer::Write(Archive& ar)
{
    ar << Tag("LAYER___");
    ar << UInt(3, version) << EndLine;

    ar << UInt(1, layerValue1);
    ar << Blank;
    ar << UInt(6, layerValue2);
    ar << Blank;
    ar << UInt(6, layerValue3);
    ar << Blank;
    ar << UInt(6, layerValue4);
    ar << Blank;
    ar << UInt(2, lotCount) << EndLine;

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
    ReadElements(ar, lotCount, [] { return Lot(); }, lots);
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

#include "records/element/layer.h"

#include "framework/archive.h"
#include "framework/layout_writer.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Layer::Layer()
    : ItCollectionImpl<std::vector<Lot>>(Locate<&Layer::lots>),
      ItCollectionImpl<std::vector<MountingPart>>(Locate<&Layer::mountingPartData, &MountingPartData::parts>)
{
}

bool Layer::Write(Archive& ar)
{
    // A layer reports success whatever the stream says.
    WriteLayout(ar, *this);
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
    if (!ReadInTurn(ar, mountingPartData, reinforcement)) {
        return false;
    }
    return ExpectLine(ar, L"END LAYER___");
}

} // namespace ItUnitechnik

#include "records/element/element_part.h"

#include "framework/archive.h"

namespace ItUnitechnik {

ElementPart::ElementPart()
    : ItCollectionImpl<std::vector<ConcreteLayer>>(Locate<&ElementPart::concreteLayers>),
      ItCollectionImpl<std::vector<Contour>>(Locate<&ElementPart::contourData, &ContourData::contours>),
      ItCollectionImpl<std::vector<Cutout>>(Locate<&ElementPart::cutoutData, &CutoutData::cutouts>),
      ItCollectionImpl<std::vector<MountingPart>>(Locate<&ElementPart::mountingPartData, &MountingPartData::parts>),
      ItCollectionImpl<std::vector<Rodstock>>(Locate<&ElementPart::rodstockData, &RodstockData::bars>),
      ItCollectionImpl<std::vector<BracedGirder>>(Locate<&ElementPart::bracedGirderData, &BracedGirderData::girders>),
      ItCollectionImpl<std::vector<ExternalIron>>(Locate<&ElementPart::externalIronData, &ExternalIronData::irons>),
      ItCollectionImpl<std::vector<Layer>>(Locate<&ElementPart::layers>)
{
    codeA1 = L"0";
    codeA2 = L"00";
    codeA3 = L"000";
    codeA4 = L"0000";
    codeB1 = L"000";
    codeB2 = L"00";
    textB8 = L"        ";
}

void ElementPart::setVersion(std::int16_t newVersion)
{
    version = newVersion;
    contourData.version = newVersion;
    cutoutData.version = newVersion;
    mountingPartData.version = newVersion;
    rodstockData.version = newVersion;
    reinforcement.version = newVersion;
    reinforcement.externalIrons.version = newVersion;
    bracedGirderData.version = newVersion;
    externalIronData.version = newVersion;
}

bool ElementPart::HasLongLines() const
{
    return version > 500 || version == 5;
}

} // namespace ItUnitechnik

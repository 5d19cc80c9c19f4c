#include "records/element/element_part.h"

#include "framework/archive.h"

namespace ItUnitechnik {

ElementPart::ElementPart()
    : ItCollectionImpl<std::vector<ConcreteLayer>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).concreteLayers; }),
      ItCollectionImpl<std::vector<Contour>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).contourData.contours; }),
      ItCollectionImpl<std::vector<Cutout>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).cutoutData.cutouts; }),
      ItCollectionImpl<std::vector<MountingPart>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).mountingPartData.parts; }),
      ItCollectionImpl<std::vector<Rodstock>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).rodstockData.bars; }),
      ItCollectionImpl<std::vector<BracedGirder>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).bracedGirderData.girders; }),
      ItCollectionImpl<std::vector<ExternalIron>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).externalIronData.irons; }),
      ItCollectionImpl<std::vector<Layer>>([](auto& self) -> auto& { return static_cast<ElementPart&>(self).layers; })
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

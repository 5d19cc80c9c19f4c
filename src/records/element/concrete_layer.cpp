#include "records/element/concrete_layer.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool ConcreteLayer::Read(Archive& ar)
{
    ar >> layerNumber >> layerKind >> layerThickness;
    SkipChar(ar);
    GetText(ar, version < 600 ? 8 : 20, layerName);
    SkipChar(ar);
    ar >> firstFactor >> secondFactor;
    if (version >= 600) {
        SkipChar(ar);
        GetText(ar, 20, layerText20);
    } else {
        // Nothing stands in the old line for the second text.
        layerText20.clear();
    }
    return Healthy(ar);
}

} // namespace ItUnitechnik

#include "records/element/concrete_layer.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool ConcreteLayer::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(2, layerNumber, "layerNumber");
    ar << Blank;
    ar << UInt(2, layerKind, "layerKind");
    ar << Blank;
    ar << UInt(3, layerThickness, "layerThickness");
    ar << Blank;
    if (version < 600) {
        ar << Text(8, layerName, "layerName");
    } else {
        ar << Text(20, layerName, "layerName");
    }
    ar << Blank;
    ar << Real(1, 3, firstFactor, "firstFactor");
    ar << Blank;
    ar << Real(5, 1, secondFactor, "secondFactor");
    if (version >= 600) {
        ar << Blank;
        ar << Text(20, layerText20, "layerText20");
    }
    return Healthy(ar);
}

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

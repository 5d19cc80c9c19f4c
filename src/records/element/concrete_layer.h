#pragma once

#include "framework/laid_out.h"
#include "framework/layout.h"

#include <cstdint>
#include <string>

namespace ItUnitechnik {

// One line of the element's list of concrete layers. It writes no line end:
// the element does that.
class ConcreteLayer final : public LaidOut<ConcreteLayer> {
public:
    // The version of the element the layer belongs to.
    explicit ConcreteLayer(std::int32_t elementVersion = 502) : version(elementVersion) {}

    bool Read(Archive& ar) override;

    std::int32_t version;            // not written; the same number as the element's version
    std::int32_t layerNumber = 0;    // first field, running number from 1
    std::int16_t layerKind = 0;      // second field
    std::int32_t layerThickness = 0; // third field, millimetres
    std::wstring layerName;          // fourth field, 8 places below 600, 20 from 600 on
    double firstFactor = 0.0;        // fifth field
    double secondFactor = 0.0;       // sixth field
    std::wstring layerText20;        // last field, from version 600 on
};

template <class IO>
void Layout(IO& io, ConcreteLayer& layer)
{
    io.UInt(2, layer.layerNumber, "layerNumber");
    io.Blank();
    io.UInt(2, layer.layerKind, "layerKind");
    io.Blank();
    io.UInt(3, layer.layerThickness, "layerThickness");
    io.Blank();
    io.Text(layer.version < 600 ? 8 : 20, layer.layerName, "layerName");
    io.Blank();
    io.Real(1, 3, layer.firstFactor, "firstFactor");
    io.Blank();
    io.Real(5, 1, layer.secondFactor, "secondFactor");
    if (layer.version >= 600) {
        io.Blank();
        io.Text(20, layer.layerText20, "layerText20");
    }
}

} // namespace ItUnitechnik

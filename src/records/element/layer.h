#pragma once

#include "framework/collection.h"
#include "framework/layout.h"
#include "framework/serializable.h"
#include "records/order/lot.h"
#include "records/outline/mounting_part.h"
#include "records/reinforcement/reinforcement.h"

#include <cstdint>
#include <vector>

namespace ItUnitechnik {

// A layer of an element with its own lots, mounted parts and reinforcement:
// the record "LAYER___" ... "END LAYER___", standing where the element's
// outline and reinforcement records would stand otherwise. Only a read file
// fills one. The first collection base works on `lots`, the second on the
// vector inside mountingPartData.
class Layer : public Serializable,
              public ItCollectionImpl<std::vector<Lot>>,
              public ItCollectionImpl<std::vector<MountingPart>> {
public:
    Layer();

    // A wrong tag clears `valid`: the element finds the end of its layers
    // that way. A lot that fails is not kept and does not stop the lots.
    bool Read(Archive& ar) override;
    // Writes the lots there are, whatever lotCount says. Always true.
    bool Write(Archive& ar) override;

    using ItCollectionImpl<std::vector<Lot>>::Insert;
    using ItCollectionImpl<std::vector<MountingPart>>::Insert;
    using ItCollectionImpl<std::vector<Lot>>::Add;
    using ItCollectionImpl<std::vector<MountingPart>>::Add;
    using ItCollectionImpl<std::vector<Lot>>::RemoveRange;
    using ItCollectionImpl<std::vector<MountingPart>>::RemoveRange;
    using ItCollectionImpl<std::vector<Lot>>::Remove;
    using ItCollectionImpl<std::vector<MountingPart>>::Remove;

    std::int16_t version = 502;        // line 2; no line of the layer depends on it
    std::int32_t layerValue1 = 0;      // line 3, one digit
    std::int32_t layerValue2 = 0;      // line 3, six digits
    std::int32_t layerValue3 = 0;      // line 3, six digits
    std::int32_t layerValue4 = 0;      // line 3, six digits
    std::int32_t lotCount = 0;         // line 3, last; as read, never corrected
    std::vector<Lot> lots;             // behind "END"
    MountingPartData mountingPartData; // behind the lots
    Reinforcement reinforcement;       // behind the mounted parts
};

template <class IO>
void Layout(IO& io, Layer& layer)
{
    io.Tag("LAYER___");
    io.UInt(3, layer.version, "version");
    io.EndLine();

    io.UInt(1, layer.layerValue1, "layerValue1");
    io.Blank();
    io.UInt(6, layer.layerValue2, "layerValue2");
    io.Blank();
    io.UInt(6, layer.layerValue3, "layerValue3");
    io.Blank();
    io.UInt(6, layer.layerValue4, "layerValue4");
    io.Blank();
    io.UInt(2, layer.lotCount, "lotCount");
    io.EndLine();

    io.Tag("END");
    // The lots stand as they are, whatever the count says.
    io.Tagged("LOT_____", layer.lots);
    io.Record(layer.mountingPartData);
    io.Record(layer.reinforcement);
    io.Tag("END LAYER___");
}

} // namespace ItUnitechnik

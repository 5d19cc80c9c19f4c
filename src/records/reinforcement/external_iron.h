#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// One external iron: a line of numbers and a text, the same at every version.
class ExternalIron final : public LaidOut<ExternalIron> {
public:
    bool Read(Archive& ar) override;

    std::int32_t ironNumber = 0; // first on the line, 3 digits; from 1
    std::int32_t ironCode = 1;   // 2 digits
    std::int32_t ironCount = 0;  // 5 digits
    double ironValue = 0.0;      // 3 places, point, 3 decimals
    std::wstring ironText;       // last, 30 places, standing at their right end
};

// The record "EXTIRON_": the external irons of an element or of a
// reinforcement block.
class ExternalIronData : public LaidOut<ExternalIronData>, public ItCollectionImpl<std::vector<ExternalIron>> {
public:
    ExternalIronData() : ItCollectionImpl(Locate<&ExternalIronData::irons>) {}

    bool Read(Archive& ar) override;

    // Numbers the iron as the next of the list (count so far plus 1) and
    // appends a copy straight to the vector, without the change hook. The
    // caller finds the number in its own `iron`.
    void appendIron(ExternalIron& iron);

    std::int16_t version = 502;      // second line
    std::vector<ExternalIron> irons; // count on the third line, then one line each
};

template <class IO>
void Layout(IO& io, ExternalIron& iron)
{
    io.UInt(3, iron.ironNumber, "ironNumber");
    io.Blank();
    io.UInt(2, iron.ironCode, "ironCode");
    io.Blank();
    io.UInt(5, iron.ironCount, "ironCount");
    io.Blank();
    io.Real(3, 3, iron.ironValue, "ironValue");
    io.Blank();
    // No alignment of its own: the Real before it leaves the text at the
    // right end of its places.
    io.RText(30, iron.ironText, "ironText");
}

template <class IO>
void Layout(IO& io, ExternalIronData& data)
{
    ListLayout(io, "EXTIRON_", 3, data.version, data.irons, "irons");
}

} // namespace ItUnitechnik

#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"

#include <cstdint>
#include <vector>

namespace ItUnitechnik {

// One spacer position of a bar: ten five-digit numbers on one line.
class SpacerPosition final : public LaidOut<SpacerPosition> {
public:
    bool Read(Archive& ar) override;

    std::int32_t value1 = 0; // first on the line
    std::int32_t value2 = 0;
    std::int32_t value3 = 0;
    std::int32_t value4 = 0;
    std::int32_t value5 = 0;
    std::int32_t value6 = 0;
    std::int32_t value7 = 0;
    std::int32_t value8 = 0;
    std::int32_t value9 = 0;
    std::int32_t value10 = 0; // last on the line, no blank behind it
};

// The spacer positions of a bar, behind its lines; no tag.
class SpacerData : public LaidOut<SpacerData>, public ItCollectionImpl<std::vector<SpacerPosition>> {
public:
    // A list that was never read writes the code 0.
    SpacerData() : ItCollectionImpl(Locate<&SpacerData::positions>) {}

    bool Read(Archive& ar) override;

    std::int32_t spacerCode = 0;           // head line, 3 digits, before the count
    std::vector<SpacerPosition> positions; // one line each, behind the head line
};

template <class IO>
void Layout(IO& io, SpacerPosition& position)
{
    io.UInt(5, position.value1, "value1");
    io.Blank();
    io.UInt(5, position.value2, "value2");
    io.Blank();
    io.UInt(5, position.value3, "value3");
    io.Blank();
    io.UInt(5, position.value4, "value4");
    io.Blank();
    io.UInt(5, position.value5, "value5");
    io.Blank();
    io.UInt(5, position.value6, "value6");
    io.Blank();
    io.UInt(5, position.value7, "value7");
    io.Blank();
    io.UInt(5, position.value8, "value8");
    io.Blank();
    io.UInt(5, position.value9, "value9");
    io.Blank();
    io.UInt(5, position.value10, "value10");
}

// The last line is ended by the list that holds the bar.
template <class IO>
void Layout(IO& io, SpacerData& spacers)
{
    io.UInt(3, spacers.spacerCode, "spacerCode");
    io.Blank();
    const std::size_t count = io.Count(3, spacers.positions, "positions");
    io.OwnLines(count, spacers.positions);
}

} // namespace ItUnitechnik

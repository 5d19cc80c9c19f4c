#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"

#include <cstdint>
#include <vector>

namespace ItUnitechnik {

// One anchor bar of a braced girder: a line of four numbers that ends in a
// blank.
class AnchorBar final : public LaidOut<AnchorBar> {
public:
    bool Read(Archive& ar) override;

    std::int32_t firstType = 0;    // 3 digits, first on the line
    std::int32_t secondType = 0;   // 3 digits
    std::int32_t firstLength = 0;  // 5 digits
    std::int32_t secondLength = 0; // 5 digits, then the line's trailing blank
};

// The anchor bars of a braced girder, behind the girder's lines; no tag.
class AnchorBarData : public LaidOut<AnchorBarData>, public ItCollectionImpl<std::vector<AnchorBar>> {
public:
    AnchorBarData() : ItCollectionImpl(Locate<&AnchorBarData::bars>) {}

    bool Read(Archive& ar) override;

    std::int32_t anchorCode = 0; // head line, 3 digits, before the count
    std::vector<AnchorBar> bars; // one line each, behind the head line
};

template <class IO>
void Layout(IO& io, AnchorBar& bar)
{
    io.UInt(3, bar.firstType, "firstType");
    io.Blank();
    io.UInt(3, bar.secondType, "secondType");
    io.Blank();
    io.UInt(5, bar.firstLength, "firstLength");
    io.Blank();
    io.UInt(5, bar.secondLength, "secondLength");
    io.Blank();
}

// The last line is ended by the list that holds the girder.
template <class IO>
void Layout(IO& io, AnchorBarData& bars)
{
    io.UInt(3, bars.anchorCode, "anchorCode");
    io.Blank();
    const std::size_t count = io.Count(3, bars.bars, "bars");
    io.OwnLines(count, bars.bars);
}

} // namespace ItUnitechnik

#pragma once

#include "framework/collection.h"
#include "framework/serializable.h"

#include <cstdint>
#include <vector>

namespace ItUnitechnik {

// One spacer position of a bar: ten five-digit numbers on one line.
class SpacerPosition final : public Serializable {
public:
    SpacerPosition() = default;

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

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
class SpacerData : public Serializable, public ItCollectionImpl<std::vector<SpacerPosition>> {
public:
    // A list that was never read writes the code 0.
    SpacerData() : ItCollectionImpl([](auto& self) -> auto& { return static_cast<SpacerData&>(self).positions; }) {}

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    std::int32_t spacerCode = 0;           // head line, 3 digits, before the count
    std::vector<SpacerPosition> positions; // one line each, behind the head line
};

} // namespace ItUnitechnik

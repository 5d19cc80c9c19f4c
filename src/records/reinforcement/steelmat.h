#pragma once

#include "framework/collection.h"
#include "framework/serializable.h"
#include "records/reinforcement/braced_girder.h"
#include "records/reinforcement/rodstock.h"

#include <cstdint>
#include <string>

namespace ItUnitechnik {

// One reinforcement mat, the record from "STEELMAT" to "END STEELMAT" inside a
// reinforcement block; it owns the bars and girders of the mat.
class Steelmat : public Serializable, public ItCollectionImpl<RodstockData>, public ItCollectionImpl<BracedGirderData> {
public:
    Steelmat();

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    std::int16_t version = 502;       // second line; from 600 on two text lines follow the data line
    std::int16_t number = 0;          // data line: running number in the block, from 1
    std::int32_t positionX = 0;       // sign and 5 digits
    std::int32_t positionY = 0;       // sign and 5 digits
    std::int32_t positionZ = 0;       // sign and 5 digits
    bool firstFlag = false;           // digit
    bool secondFlag = false;          // digit
    std::wstring name;                // 20 places, standing at their right end
    std::int32_t firstDimension = 0;  // 5 digits
    std::int32_t secondDimension = 0; // 5 digits
    std::int32_t matKind = 1;         // last on the data line: its low 16 bits, one digit
    std::wstring extraTextA;          // own line from 600 on, 20 places
    std::wstring extraTextB;          // own line from 600 on, 20 places
    RodstockData rodstocks;           // behind "END", always
    BracedGirderData girders;         // behind the bars, always
};

} // namespace ItUnitechnik

#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"
#include "records/reinforcement/braced_girder.h"
#include "records/reinforcement/rodstock.h"

#include <cstdint>
#include <string>

namespace ItUnitechnik {

// One reinforcement mat, the record from "STEELMAT" to "END STEELMAT" inside a
// reinforcement block; it owns the bars and girders of the mat.
class Steelmat : public LaidOut<Steelmat>,
                 public ItCollectionImpl<RodstockData>,
                 public ItCollectionImpl<BracedGirderData> {
public:
    Steelmat();

    bool Read(Archive& ar) override;

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

// The block ends the mat's last line.
template <class IO>
void Layout(IO& io, Steelmat& mat)
{
    io.Tag("STEELMAT");
    io.UInt(3, mat.version, "version");
    io.EndLine();

    io.UInt(2, mat.number, "number");
    io.Blank();
    io.SInt(5, mat.positionX, "positionX");
    io.Blank();
    io.SInt(5, mat.positionY, "positionY");
    io.Blank();
    io.SInt(5, mat.positionZ, "positionZ");
    io.Blank();
    io.UInt(1, mat.firstFlag, "firstFlag");
    io.Blank();
    io.UInt(1, mat.secondFlag, "secondFlag");
    io.Blank();
    // The digit before it leaves the stream right-aligned: a short name stands
    // at the right end of its places.
    io.RText(20, mat.name, "name");
    io.Blank();
    io.UInt(5, mat.firstDimension, "firstDimension");
    io.Blank();
    io.UInt(5, mat.secondDimension, "secondDimension");
    io.Blank();
    io.UInt(1, As<std::int16_t>(mat.matKind), "matKind");
    io.EndLine();

    if (mat.version >= 600) {
        io.Text(20, mat.extraTextA, "extraTextA");
        io.EndLine();
        io.Text(20, mat.extraTextB, "extraTextB");
        io.EndLine();
    }
    io.Tag("END");

    io.Record(mat.rodstocks);
    io.Record(mat.girders);
    io.Literal("END STEELMAT");
}

} // namespace ItUnitechnik

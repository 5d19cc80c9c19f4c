#pragma once

#include "framework/laid_out.h"
#include "framework/layout.h"

#include <cstdint>
#include <string>

namespace ItUnitechnik {

// A field group on the element's line; it has no version of its own and
// writes no line end.
class Plaster : public LaidOut<Plaster> {
public:
    bool Read(Archive& ar) override;

    std::int32_t plasterNumber = 0; // first field
    std::wstring plasterName;       // second field, 8 places
    double firstValue = 0.0;        // third field
    double secondValue = 0.0;       // last field
};

template <class IO>
void Layout(IO& io, Plaster& plaster)
{
    io.UInt(3, plaster.plasterNumber, "plasterNumber");
    io.Blank();
    io.Text(8, plaster.plasterName, "plasterName");
    io.Blank();
    io.Real(1, 3, plaster.firstValue, "firstValue");
    io.Blank();
    io.Real(5, 1, plaster.secondValue, "secondValue");
}

} // namespace ItUnitechnik

#pragma once

#include "framework/laid_out.h"
#include "framework/layout.h"

#include <cstdint>
#include <string>

namespace ItUnitechnik {

// A coded bending form of a bar: the code and its five parameters, on the
// line that follows the bar's second line. The bar writes two of them side by
// side; the line is ended by whoever writes the bar.
class BendingForm : public LaidOut<BendingForm> {
public:
    bool Read(Archive& ar) override;

    std::wstring formCode;       // at least 3 places, zero-filled; never cut
    std::int32_t formValueA = 0; // 5 digits
    std::int32_t formValueB = 0; // 5 digits
    std::int32_t formValueC = 0; // 5 digits
    std::int32_t formValueD = 0; // 5 digits
    std::int32_t formValueE = 0; // 3 digits, last on the line
};

// The two coded forms of a bent bar share this layout, on one line.
template <class IO>
void Layout(IO& io, BendingForm& form)
{
    // The one text of the format that is written whole: a longer code shifts
    // the rest of the line.
    io.ZTextWhole(3, form.formCode, "formCode");
    io.Blank();
    io.UInt(5, form.formValueA, "formValueA");
    io.Blank();
    io.UInt(5, form.formValueB, "formValueB");
    io.Blank();
    io.UInt(5, form.formValueC, "formValueC");
    io.Blank();
    io.UInt(5, form.formValueD, "formValueD");
    io.Blank();
    io.UInt(3, form.formValueE, "formValueE");
}

} // namespace ItUnitechnik

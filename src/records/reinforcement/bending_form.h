#pragma once

#include "framework/serializable.h"

#include <cstdint>
#include <string>

namespace ItUnitechnik {

// A coded bending form of a bar: the code and its five parameters, on the
// line that follows the bar's second line. The bar writes two of them side by
// side; the line is ended by whoever writes the bar.
class BendingForm : public Serializable {
public:
    BendingForm() = default;

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    std::wstring formCode;       // at least 3 places, zero-filled; never cut
    std::int32_t formValueA = 0; // 5 digits
    std::int32_t formValueB = 0; // 5 digits
    std::int32_t formValueC = 0; // 5 digits
    std::int32_t formValueD = 0; // 5 digits
    std::int32_t formValueE = 0; // 3 digits, last on the line
};

} // namespace ItUnitechnik

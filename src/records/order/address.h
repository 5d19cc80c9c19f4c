#pragma once

#include "framework/serializable.h"

#include <string>

namespace ItUnitechnik {

// One of the order's two addresses: four lines, the third the short one.
class Address : public Serializable {
public:
    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    std::wstring addressText1; // 25 wide
    std::wstring addressText2; // 25 wide
    std::wstring addressText3; // 8 wide
    std::wstring addressText4; // 25 wide
};

} // namespace ItUnitechnik

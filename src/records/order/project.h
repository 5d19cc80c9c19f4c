#pragma once

#include "framework/serializable.h"

#include <string>

namespace ItUnitechnik {

// The order's project: four lines of text behind the identifying line.
class Project : public Serializable {
public:
    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    std::wstring projectText1; // line 4 of the order, 20 wide
    std::wstring projectText2; // line 5
    std::wstring projectText3; // line 6
    std::wstring projectText4; // line 7
};

} // namespace ItUnitechnik

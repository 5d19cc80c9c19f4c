#pragma once

#include "framework/laid_out.h"
#include "framework/layout.h"

#include <string>

namespace ItUnitechnik {

// One of the order's two addresses: four lines, the third the short one.
class Address : public LaidOut<Address> {
public:
    bool Read(Archive& ar) override;

    std::wstring addressText1; // 25 wide
    std::wstring addressText2; // 25 wide
    std::wstring addressText3; // 8 wide
    std::wstring addressText4; // 25 wide
};

template <class IO>
void Layout(IO& io, Address& address)
{
    io.Text(25, address.addressText1, "addressText1");
    io.EndLine();
    io.Text(25, address.addressText2, "addressText2");
    io.EndLine();
    io.Text(8, address.addressText3, "addressText3");
    io.EndLine();
    io.Text(25, address.addressText4, "addressText4");
    io.EndLine();
}

} // namespace ItUnitechnik

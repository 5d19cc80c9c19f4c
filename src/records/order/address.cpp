#include "records/order/address.h"

#include "framework/archive.h"
#include "records/order/text_lines.h"

namespace ItUnitechnik {

bool Address::Read(Archive& ar)
{
    return ReadTextLines(ar, {&addressText1, &addressText2, &addressText3, &addressText4});
}

} // namespace ItUnitechnik

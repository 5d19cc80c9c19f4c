#include "records/order/address.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "records/order/text_lines.h"

namespace ItUnitechnik {

bool Address::Read(Archive& ar)
{
    return ReadTextLines(ar, {&addressText1, &addressText2, &addressText3, &addressText4});
}

bool Address::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << Text(25, addressText1, "addressText1");
    ar << EndLine;
    ar << Text(25, addressText2, "addressText2");
    ar << EndLine;
    ar << Text(8, addressText3, "addressText3");
    ar << EndLine;
    ar << Text(25, addressText4, "addressText4");
    ar << EndLine;
    return Healthy(ar);
}

} // namespace ItUnitechnik

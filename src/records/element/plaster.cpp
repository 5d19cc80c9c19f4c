#include "records/element/plaster.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool Plaster::Read(Archive& ar)
{
    ar >> plasterNumber;
    SkipChar(ar);
    GetText(ar, 8, plasterName);
    ar >> firstValue >> secondValue;
    return Healthy(ar);
}

} // namespace ItUnitechnik

#include "records/element/plaster.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool Plaster::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << UInt(3, plasterNumber, "plasterNumber");
    ar << Blank;
    ar << Text(8, plasterName, "plasterName");
    ar << Blank;
    ar << Real(1, 3, firstValue, "firstValue");
    ar << Blank;
    ar << Real(5, 1, secondValue, "secondValue");
    return Healthy(ar);
}

bool Plaster::Read(Archive& ar)
{
    ar >> plasterNumber;
    SkipChar(ar);
    GetText(ar, 8, plasterName);
    ar >> firstValue >> secondValue;
    return Healthy(ar);
}

} // namespace ItUnitechnik

#include "records/reinforcement/bending_form.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool BendingForm::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    // The one text of the format that is written whole: a longer code shifts
    // the rest of the line.
    ar << ZTextWhole(3, formCode, "formCode");
    ar << Blank;
    ar << UInt(5, formValueA, "formValueA");
    ar << Blank;
    ar << UInt(5, formValueB, "formValueB");
    ar << Blank;
    ar << UInt(5, formValueC, "formValueC");
    ar << Blank;
    ar << UInt(5, formValueD, "formValueD");
    ar << Blank;
    ar << UInt(3, formValueE, "formValueE");
    return Healthy(ar);
}

bool BendingForm::Read(Archive& ar)
{
    formCode = ReadToken(ar);
    ar >> formValueA >> formValueB >> formValueC >> formValueD >> formValueE;
    return Healthy(ar);
}

} // namespace ItUnitechnik

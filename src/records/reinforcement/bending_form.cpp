#include "records/reinforcement/bending_form.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool BendingForm::Read(Archive& ar)
{
    formCode = ReadToken(ar);
    ar >> formValueA >> formValueB >> formValueC >> formValueD >> formValueE;
    return Healthy(ar);
}

} // namespace ItUnitechnik

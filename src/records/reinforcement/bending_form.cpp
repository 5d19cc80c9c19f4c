#include "records/reinforcement/bending_form.h"

#include "framework/archive.h"
#include "framework/layout_writer.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool BendingForm::Write(Archive& ar)
{
    return WriteLayout(ar, *this);
}

bool BendingForm::Read(Archive& ar)
{
    formCode = ReadToken(ar);
    ar >> formValueA >> formValueB >> formValueC >> formValueD >> formValueE;
    return Healthy(ar);
}

} // namespace ItUnitechnik

#include "records/order/project.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"
#include "records/order/text_lines.h"

namespace ItUnitechnik {

bool Project::Read(Archive& ar)
{
    return ReadTextLines(ar, {&projectText1, &projectText2, &projectText3, &projectText4});
}

bool Project::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << Text(20, projectText1, "projectText1");
    ar << EndLine;
    ar << Text(20, projectText2, "projectText2");
    ar << EndLine;
    ar << Text(20, projectText3, "projectText3");
    ar << EndLine;
    ar << Text(20, projectText4, "projectText4");
    ar << EndLine;
    return Healthy(ar);
}

} // namespace ItUnitechnik

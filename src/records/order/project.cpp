#include "records/order/project.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"
#include "records/order/text_lines.h"

namespace ItUnitechnik {

bool Project::Read(Archive& ar)
{
    return ReadTextLines(ar, {&projectText1, &projectText2, &projectText3, &projectText4});
}

} // namespace ItUnitechnik

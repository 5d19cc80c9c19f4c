#include "records/order/text_lines.h"

#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool ReadTextLines(Archive& ar, std::initializer_list<std::wstring*> members)
{
    for (std::wstring* member : members) {
        *member = ReadLine(ar);
    }
    return Healthy(ar);
}

} // namespace ItUnitechnik

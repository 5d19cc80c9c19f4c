#pragma once

#include "framework/archive.h"

#include <initializer_list>
#include <string>

namespace ItUnitechnik {

// The one reader of the project and the addresses: whole lines, in member
// order, their blanks kept.
bool ReadTextLines(Archive& ar, std::initializer_list<std::wstring*> members);

} // namespace ItUnitechnik

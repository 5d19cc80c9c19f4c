#pragma once

#include "itunitechnik.h"

#include <string>

namespace ItUnitechnik {

// A zero-terminated text of the host as the framework's wide string: one wide
// character per 16-bit code unit, so that texts are cut by the same count of
// units on every platform.
inline std::wstring FromHost(const it_char16* text)
{
#ifdef _WIN32
    return std::wstring(text);
#else
    std::wstring out;
    for (; *text != 0; ++text) {
        out += static_cast<wchar_t>(*text);
    }
    return out;
#endif
}

} // namespace ItUnitechnik

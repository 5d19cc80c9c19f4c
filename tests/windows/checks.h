// What the Windows test programs share: a check that counts and reports each
// result on a line of its own, and wide text shown in ASCII.
#ifndef ITUNITECHNIK_TESTS_WINDOWS_CHECKS_H
#define ITUNITECHNIK_TESTS_WINDOWS_CHECKS_H

#include <cstdio>
#include <string>

namespace ItUnitechnik::Testing {

inline int passed = 0;
inline int failed = 0;

inline void Check(bool ok, const std::string& what)
{
    if (ok) {
        ++passed;
        std::printf("ok      %s\n", what.c_str());
    } else {
        ++failed;
        std::printf("FAILED  %s\n", what.c_str());
    }
    std::fflush(stdout);
}

inline std::string Narrow(const std::wstring& text)
{
    std::string out;
    for (wchar_t c : text) {
        out += c < 0x80 ? static_cast<char>(c) : '?';
    }
    return out;
}

} // namespace ItUnitechnik::Testing

#endif

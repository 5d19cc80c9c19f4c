// Reads the version resource back from the built DLL the way Windows does
// (GetFileVersionInfoW, VerQueryValueW) and checks it: the file and product
// version are the header's version, the product name is ItUnitechnik, the
// description is the project's, the strings stand in US English, Unicode.
//
//   version_resource DLL

#include "checks.h"
#include "itunitechnik.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

using ItUnitechnik::Testing::Check;
using ItUnitechnik::Testing::failed;
using ItUnitechnik::Testing::Narrow;
using ItUnitechnik::Testing::passed;

namespace {

std::wstring Widen(const char* text)
{
    std::wstring out;
    for (; *text != '\0'; ++text) {
        out += static_cast<wchar_t>(static_cast<unsigned char>(*text));
    }
    return out;
}

std::wstring StringValue(std::vector<char>& block, const std::wstring& name)
{
    void* value = nullptr;
    UINT length = 0;
    const std::wstring path = L"\\StringFileInfo\\040904b0\\" + name;
    if (!::VerQueryValueW(block.data(), path.c_str(), &value, &length) || value == nullptr) {
        return L"(missing)";
    }
    return std::wstring(static_cast<const wchar_t*>(value));
}

void CheckString(std::vector<char>& block, const std::wstring& name, const std::wstring& expected)
{
    const std::wstring actual = StringValue(block, name);
    Check(actual == expected, Narrow(name) + " is \"" + Narrow(actual) + "\", expected \"" + Narrow(expected) + "\"");
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: version_resource DLL\n");
        return 2;
    }
    DWORD handle = 0;
    const DWORD size = ::GetFileVersionInfoSizeW(argv[1], &handle);
    Check(size > 0, "the DLL has a version resource");
    if (size == 0) {
        std::printf("%d passed, %d failed\n", passed, failed);
        return 1;
    }
    std::vector<char> block(size);
    Check(::GetFileVersionInfoW(argv[1], 0, size, block.data()) != 0, "the version resource reads");

    void* value = nullptr;
    UINT length = 0;
    Check(::VerQueryValueW(block.data(), L"\\", &value, &length) && length >= sizeof(VS_FIXEDFILEINFO),
          "the fixed file information is there");
    if (value != nullptr) {
        const auto* fixed = static_cast<const VS_FIXEDFILEINFO*>(value);
        const DWORD high = (ITUNITECHNIK_VERSION_MAJOR << 16) | ITUNITECHNIK_VERSION_MINOR;
        const DWORD low = static_cast<DWORD>(ITUNITECHNIK_VERSION_PATCH) << 16;
        Check(fixed->dwSignature == 0xFEEF04BDu, "the fixed file information is signed");
        Check(fixed->dwFileVersionMS == high && fixed->dwFileVersionLS == low,
              "the file version is " ITUNITECHNIK_VERSION_STRING ".0");
        Check(fixed->dwProductVersionMS == high && fixed->dwProductVersionLS == low,
              "the product version is " ITUNITECHNIK_VERSION_STRING ".0");
        Check(fixed->dwFileType == VFT_DLL, "the file type is a DLL");
    }

    value = nullptr;
    Check(::VerQueryValueW(block.data(), L"\\VarFileInfo\\Translation", &value, &length) && length >= 4 &&
              static_cast<const WORD*>(value)[0] == 0x0409 && static_cast<const WORD*>(value)[1] == 1200,
          "the strings stand in US English, Unicode");

    CheckString(block, L"ProductName", L"ItUnitechnik");
    CheckString(block, L"FileDescription", L"" EXPECTED_DESCRIPTION);
    CheckString(block, L"FileVersion", Widen(ITUNITECHNIK_VERSION_STRING));
    CheckString(block, L"ProductVersion", Widen(ITUNITECHNIK_VERSION_STRING));
    CheckString(block, L"OriginalFilename", L"itunitechnik.dll");

    std::printf("%d passed, %d failed\n", passed, failed);
    return failed == 0 ? 0 : 1;
}

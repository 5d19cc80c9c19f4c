// A DLL that gets its interface wrong on purpose, for the check of the
// product's interface to find: it exports a name outside the export list,
// leaves a listed name unexported, and needs the C++ runtime DLL.
#include <stdexcept>

extern "C" __declspec(dllexport) int startOrder()
{
    return 1;
}

extern "C" int endDocument()
{
    return 1;
}

extern "C" __declspec(dllexport) const char* notInTheHeader()
{
    static const std::runtime_error message("outside the interface");
    return message.what();
}

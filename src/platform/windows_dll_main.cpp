// The entry point of the DLL, and of the DLL alone: loading or unloading the
// library does nothing but report success.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved)
{
    static_cast<void>(instance);
    static_cast<void>(reason);
    static_cast<void>(reserved);
    return TRUE;
}

#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD /*reason*/, LPVOID /*reserved*/) {
    return TRUE;
}

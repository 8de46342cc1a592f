// host.hpp after the system's header with its many macros, where there is one.
#if __has_include(<windows.h>)
#include <windows.h>
#endif
#if defined(_WIN32) && !defined(NOMINMAX)
// Microsoft's own header defines these in C++ as well.
#define max(a, b) (((a) > (b)) ? (a) : (b))
#define min(a, b) (((a) < (b)) ? (a) : (b))
#endif

#include <rulecanvas/host.hpp>

void UseIt();

void UseIt() {
    rulecanvas::Surface surface;
    rulecanvas::Container().Paint(1, surface);
}

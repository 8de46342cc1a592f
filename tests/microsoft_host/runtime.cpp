// What this compiler expects of its run-time library, of which only the system's C part is there.
#include <stddef.h>

extern "C" {
__declspec(noreturn) void __cdecl exit(int code);
void __cdecl free(void* memory);
void* __cdecl malloc(size_t size);

int _fltused = 1;

void __cdecl _purecall() {
    exit(2);
}
}

void* __cdecl operator new(size_t size) {
    return malloc(size);
}
void* __cdecl operator new[](size_t size) {
    return malloc(size);
}
void __cdecl operator delete(void* memory) noexcept {
    free(memory);
}
void __cdecl operator delete[](void* memory) noexcept {
    free(memory);
}

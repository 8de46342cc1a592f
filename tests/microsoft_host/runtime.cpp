#include "runtime.h"

extern "C" {
int _fltused = 1;

void __cdecl _purecall() {
    printf("FAILED a pure virtual operation was called\n");
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

void __cdecl operator delete(void* memory, size_t) noexcept {
    free(memory);
}

void __cdecl operator delete[](void* memory) noexcept {
    free(memory);
}

namespace rulecanvas::test {

__attribute__((naked)) void CallAtStackOffset(void(__cdecl*)(), unsigned) {
    asm("pushl %ebp\n"
        "movl %esp, %ebp\n"
        "andl $-16, %esp\n"
        "subl 12(%ebp), %esp\n"
        "calll *8(%ebp)\n"
        "movl %ebp, %esp\n"
        "popl %ebp\n"
        "retl");
}

} // namespace rulecanvas::test

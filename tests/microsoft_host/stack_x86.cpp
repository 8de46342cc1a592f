#include "support.h"

extern "C" int __cdecl printf(const char* format, ...);

namespace rulecanvas {
namespace {

/// Calls `function` with a stack that stands `offset` bytes, a multiple of 4, below a multiple of 16: code of this
/// compiler aligns it to 4 bytes only.
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

} // namespace

void RunOnEveryStack(void(__cdecl* run)()) {
    for (unsigned offset = 0; offset < 16; offset += 4) {
        printf("stack at a multiple of 16, less %u\n", offset);
        CallAtStackOffset(run, offset);
    }
}

} // namespace rulecanvas

#include "support.h"

#include <stdarg.h>

extern "C" {
int __cdecl _vsnprintf(char* buffer, size_t size, const char* format, va_list arguments);
__declspec(noreturn) void __cdecl exit(int code);
int __cdecl printf(const char* format, ...);
}

namespace rulecanvas {
namespace {

constexpr size_t Size = 8192;
char journal[Size];
size_t length = 0;
int failures = 0;

#ifdef __i386__
constexpr unsigned LargestStackOffset = 12;

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
#else
constexpr unsigned LargestStackOffset = 0; // on 64-bit Windows the stack is always aligned to 16 bytes

void CallAtStackOffset(void(__cdecl* function)(), unsigned) {
    function();
}
#endif

} // namespace

void Write(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const int written = _vsnprintf(journal + length, Size - 1 - length, format, arguments);
    va_end(arguments);
    length = written < 0 ? Size - 1 : length + static_cast<size_t>(written);
}

void ExpectCalls(const char* what, const char* format, ...) {
    static char expected[Size];
    va_list arguments;
    va_start(arguments, format);
    _vsnprintf(expected, Size - 1, format, arguments);
    va_end(arguments);
    journal[length] = '\0';
    const bool same = strcmp(journal, expected) == 0;
    Expect(what, same);
    if (!same) {
        printf("expected:\n%scame:\n%s", expected, journal);
    }
    length = 0;
}

void Expect(const char* what, bool met) {
    printf("%s %s\n", met ? "ok    " : "FAILED", what);
    failures += met ? 0 : 1;
}

void ExpectRectangle(ShapeID shape) {
    ExpectCalls("a rectangle is drawn and grabbed",
                "notify {\"EventName\":\"label\",\"EventParam\":{\"ShapeID\":%u.0,\"ShapeName\":\"\"}}\n"
                "capture 1\nredraw\ncapture 0\nnotify {\"EventName\":\"label\",\"EventParam\":{\"PreShapeState\":2,"
                "\"ShapeID\":%u.0,\"ShapeName\":\"zone\",\"ShapeState\":3}}\n"
                "notify {\"EventName\":\"label\",\"EventParam\":{\"ShapeID\":%u.0,\"ShapeName\":\"zone\"}}\n"
                "capture 1\nhint 4\n",
                shape, shape, shape);
}

extern "C" void __cdecl Start() {
    for (unsigned offset = 0; offset <= LargestStackOffset; offset += 4) {
        printf("stack at a multiple of 16, less %u\n", offset);
        CallAtStackOffset(&RunRawHost, offset);
        CallAtStackOffset(&RunHelperHost, offset);
    }
    printf("%d failed\n", failures);
    exit(failures == 0 ? 0 : 1);
}

} // namespace rulecanvas

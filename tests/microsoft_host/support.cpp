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

extern "C" void __cdecl Start() {
    RunOnEveryStack(&RunRawHost);
    RunOnEveryStack(&RunHelperHost);
    printf("%d failed\n", failures);
    exit(failures == 0 ? 0 : 1);
}

} // namespace rulecanvas

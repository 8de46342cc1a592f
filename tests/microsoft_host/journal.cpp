#include "journal.h"

#include "runtime.h"

#include <stdarg.h>

extern "C" {
int __cdecl _snprintf(char* buffer, size_t size, const char* format, ...);
int __cdecl _vsnprintf(char* buffer, size_t size, const char* format, va_list arguments);
}

namespace rulecanvas::test {
namespace {

constexpr size_t Size = 8192;
char journal[Size];
size_t length = 0;
int failures = 0;

void Append(const char* format, va_list arguments) {
    const int written = _vsnprintf(journal + length, Size - 1 - length, format, arguments);
    length = written < 0 ? Size - 1 : length + static_cast<size_t>(written);
}

struct ColourText {
    char text[64];
};

ColourText Written(const ColorF& colour) {
    ColourText written = {};
    _snprintf(written.text, sizeof(written.text) - 1, "%g,%g,%g@%g", colour.red, colour.green, colour.blue,
              colour.alpha);
    return written;
}

} // namespace

void Write(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    Append(format, arguments);
    va_end(arguments);
}

void WriteText(const PointF& at, const TextStyle& style, const char* text) {
    Write("text (%g,%g) '%s' size %g %s in %s\n", at.x, at.y, text, style.size, Written(style.colour).text, style.face);
}

void WriteRectangle(const PointF& from, const PointF& to, float width, const ColorF& colour, int penStyle) {
    Write("rect (%g,%g)-(%g,%g) width %g %s pen %d\n", from.x, from.y, to.x, to.y, width, Written(colour).text,
          penStyle);
}

void WriteMeasured(const TextStyle& style, const char* text) {
    Write("measure '%s' size %g %s in %s\n", text, style.size, Written(style.colour).text, style.face);
}

void ExpectCalls(const char* what, const char* format, ...) {
    static char expected[Size];
    va_list arguments;
    va_start(arguments, format);
    _vsnprintf(expected, Size - 1, format, arguments);
    va_end(arguments);
    journal[length] = '\0';
    Expect(what, strcmp(journal, expected) == 0);
    if (strcmp(journal, expected) != 0) {
        printf("expected:\n%scame:\n%s", expected, journal);
    }
    length = 0;
}

void Expect(const char* what, bool met) {
    printf("%s %s\n", met ? "ok    " : "FAILED", what);
    failures += met ? 0 : 1;
}

int FailureCount() {
    return failures;
}

} // namespace rulecanvas::test

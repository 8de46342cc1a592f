#include "journal.h"

#include "runtime.h"

#include <stdarg.h>

extern "C" int __cdecl _vsnprintf(char* buffer, size_t size, const char* format, va_list arguments);

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

} // namespace

void Write(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    Append(format, arguments);
    va_end(arguments);
}

void WriteText(const PointF& at, const TextStyle& style, const char* text) {
    Write("text (%g,%g) '%s' size %g colour %g,%g,%g,%g face %s\n", at.x, at.y, text, style.size, style.colour.alpha,
          style.colour.red, style.colour.green, style.colour.blue, style.face);
}

void WriteRectangle(const PointF& from, const PointF& to, float width, const ColorF& colour, int penStyle) {
    Write("rect (%g,%g)-(%g,%g) width %g colour %g,%g,%g,%g pen %d\n", from.x, from.y, to.x, to.y, width, colour.alpha,
          colour.red, colour.green, colour.blue, penStyle);
}

void WriteEllipse(const PointF& from, const PointF& to, float width, const ColorF& fill, const ColorF& outline) {
    Write("disc (%g,%g)-(%g,%g) width %g fill %g,%g,%g,%g outline %g,%g,%g,%g\n", from.x, from.y, to.x, to.y, width,
          fill.alpha, fill.red, fill.green, fill.blue, outline.alpha, outline.red, outline.green, outline.blue);
}

void WriteMeasured(const TextStyle& style, const char* text) {
    Write("measure '%s' size %g colour %g,%g,%g,%g face %s\n", text, style.size, style.colour.alpha, style.colour.red,
          style.colour.green, style.colour.blue, style.face);
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

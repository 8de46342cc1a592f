#include "support.h"

#include <stdarg.h>

extern "C" {
int __cdecl _vsnprintf(char* buffer, size_t size, const char* format, va_list arguments);
__declspec(noreturn) void __cdecl exit(int code);
void __cdecl free(void* memory);
void* __cdecl malloc(size_t size);
int __cdecl printf(const char* format, ...);

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

namespace rulecanvas {
namespace {

constexpr size_t Size = 8192;
char journal[Size];
size_t length = 0;
int failures = 0;

void WriteStroke(const char* what, const PointF& from, const PointF& to, float width, const ColorF& colour, int pen) {
    Write("%s (%g,%g)-(%g,%g) width %g %g,%g,%g@%g pen %d\n", what, from.x, from.y, to.x, to.y, width, colour.red,
          colour.green, colour.blue, colour.alpha, pen);
}

void WriteStyled(const char* what, const TextStyle& style, const char* text) {
    Write("%s '%s' size %g %g,%g,%g@%g in %s\n", what, text, style.size, style.colour.red, style.colour.green,
          style.colour.blue, style.colour.alpha, style.face);
}

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

void Canvas::strokeLine(const PointF& from, const PointF& to, float width, const ColorF& colour, int32_t pen) {
    WriteStroke("line", from, to, width, colour, pen);
}
void Canvas::strokeRectangle(const PointF& from, const PointF& to, float width, const ColorF& colour, int32_t pen) {
    WriteStroke("rect", from, to, width, colour, pen);
}
void Canvas::strokeEllipse(const PointF& from, const PointF& to, float width, const ColorF& colour) {
    WriteStroke("ellipse", from, to, width, colour, 0);
}
void Canvas::fillEllipse(const PointF& from, const PointF& to, float width, const ColorF& fill, const ColorF& outline) {
    WriteStroke("disc", from, to, width, fill, 0);
    WriteStroke("outline", from, to, width, outline, 0);
}
void Canvas::fillRectangle(const PointF& from, const PointF& to, const ColorF& colour) {
    WriteStroke("fill", from, to, 0.0F, colour, 0);
}
void Canvas::drawString(const PointF& at, const TextStyle& style, const char* text) {
    Write("at (%g,%g) ", at.x, at.y);
    WriteStyled("text", style, text);
}
float Canvas::stringWidth(const TextStyle& style, const char* text) {
    WriteStyled("width of", style, text);
    return 41.5F;
}
float Canvas::stringHeight(const TextStyle& style, const char* text) {
    WriteStyled("height of", style, text);
    return 12.5F;
}
void Canvas::drawCaption(const char* text, const PointF* points, int32_t count, const ColorF& colour,
                         const ClientRect& clip) {
    Write("caption '%s' of %d points in %d,%d,%d,%d\n", text, count, clip.left, clip.top, clip.right, clip.bottom);
    WriteStroke("points", points[0], points[count - 1], 0.0F, colour, 0);
}
void Canvas::beginLayer() {
    Write("layer\n");
}
void Canvas::sizeLayer(int32_t width, int32_t height) {
    Write("layer of %dx%d\n", width, height);
}
void Canvas::endLayer(int32_t x, int32_t y) {
    Write("layer at %d,%d\n", x, y);
}

extern "C" void __cdecl Start() {
    for (unsigned offset = 0; offset < 16; offset += 4) {
        printf("stack at a multiple of 16, less %u\n", offset);
        CallAtStackOffset(&RunRawHost, offset);
        CallAtStackOffset(&RunHelperHost, offset);
    }
    printf("%d failed\n", failures);
    exit(failures == 0 ? 0 : 1);
}

} // namespace rulecanvas

#pragma once

#include <rulecanvas/rulecanvas.h>

namespace rulecanvas::test {

/// What the library called, one line a call.
void Write(const char* format, ...);
void WriteText(const PointF& at, const TextStyle& style, const char* text);
void WriteRectangle(const PointF& from, const PointF& to, float width, const ColorF& colour, int penStyle);
void WriteMeasured(const TextStyle& style, const char* text);

/// Prints whether the lines since the last call are exactly the expected ones.
void ExpectCalls(const char* what, const char* format, ...);
void Expect(const char* what, bool met);
int FailureCount();

} // namespace rulecanvas::test

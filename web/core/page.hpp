#pragma once

#include <cstdint>

namespace rulecanvas_web {

/// What the module asks of the page. `host` is the number that the page gave to the host that speaks.
extern "C" {

void PageNotify(uint32_t host, const char* text);
void PageCapture(uint32_t host, bool take);
void PageRequestRedraw(uint32_t host);
void PageHint(uint32_t host, uint32_t value);
/// Writes the width and the height that the page's font gives a text.
void PageMeasure(uint32_t host, const char* text, float size, float* widthAndHeight);
}

} // namespace rulecanvas_web

#include "page.hpp"

#include <emscripten.h>

// The page sets Module.page before it makes the first host.
// clang-format off
EM_JS(void, PageNotify, (uint32_t host, const char* text), { Module.page.notify(host, text); })
EM_JS(void, PageCapture, (uint32_t host, bool take), { Module.page.capture(host, Boolean(take)); })
EM_JS(void, PageRequestRedraw, (uint32_t host), { Module.page.requestRedraw(host); })
EM_JS(void, PageHint, (uint32_t host, uint32_t value), { Module.page.hint(host, value); })
EM_JS(void, PageMeasure, (uint32_t host, const char* text, float size, float* widthAndHeight), {
    Module.page.measure(host, text, size, widthAndHeight);
})
// clang-format on

#pragma once

/* GDI+ needs the COM types that a lean <windows.h> leaves out. */
#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace rule_editor {

/* Keeps GDI+ running while it lives. */
class GdiplusRuntime {
  public:
    GdiplusRuntime() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
    }
    ~GdiplusRuntime() { Gdiplus::GdiplusShutdown(m_token); }
    GdiplusRuntime(const GdiplusRuntime&) = delete;
    GdiplusRuntime& operator=(const GdiplusRuntime&) = delete;

  private:
    ULONG_PTR m_token = 0;
};

} // namespace rule_editor

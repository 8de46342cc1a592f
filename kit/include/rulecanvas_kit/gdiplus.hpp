#ifndef RULECANVAS_KIT_GDIPLUS_HPP
#define RULECANVAS_KIT_GDIPLUS_HPP

/// GDI+ needs the COM types that a lean <windows.h> leaves out.
#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace rulecanvas::kit {

/// Keeps GDI+ running while it lives.
class GdiplusRuntime {
  public:
    GdiplusRuntime() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token, &input, nullptr);
    }
    ~GdiplusRuntime() { Gdiplus::GdiplusShutdown(token); }
    GdiplusRuntime(const GdiplusRuntime&) = delete;
    GdiplusRuntime& operator=(const GdiplusRuntime&) = delete;

  private:
    ULONG_PTR token = 0;
};

} // namespace rulecanvas::kit

#endif

/// Pixels in memory that a window is painted from.
#ifndef RULECANVAS_KIT_BACK_BUFFER_HPP
#define RULECANVAS_KIT_BACK_BUFFER_HPP

#include <rulecanvas_kit/rule.hpp>

#include <windows.h>

namespace rulecanvas::kit {

/// Painting a window at one go keeps it from flickering. For the thread of the window.
class BackBuffer {
  public:
    BackBuffer() = default;
    ~BackBuffer() { Release(); }
    BackBuffer(const BackBuffer&) = delete;
    BackBuffer& operator=(const BackBuffer&) = delete;

    /// Contents are undefined after a change of size. Throws std::runtime_error without memory.
    void Resize(Size wanted);
    Size PictureSize() const { return size; }
    /// Rows from the top, a pixel is 0x00RRGGBB. Call GdiFlush between drawing by GDI and touching pixels.
    uint32_t* Pixels() { return pixels; }
    const uint32_t* Pixels() const { return pixels; }
    size_t PixelCount() const { return static_cast<size_t>(size.width) * static_cast<size_t>(size.height); }
    HDC Context() const { return context; }

    void CopyFrom(const BackBuffer& other);
    void Show(HDC target, int x, int y) const;

  private:
    void Release();

    HDC context = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ previous = nullptr;
    uint32_t* pixels = nullptr;
    Size size;
};

} // namespace rulecanvas::kit

#endif

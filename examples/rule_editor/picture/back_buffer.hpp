#pragma once

#include "picture/frame.hpp"

#include <windows.h>

namespace rule_editor {

/* Pixels in memory that a window is painted from at one go, so that it does not flicker. */
class BackBuffer {
  public:
    BackBuffer() = default;
    ~BackBuffer() { release(); }
    BackBuffer(const BackBuffer&) = delete;
    BackBuffer& operator=(const BackBuffer&) = delete;

    /* Contents are undefined after a change of size. Throws std::runtime_error without memory. */
    void resize(Size size);
    Size size() const { return m_size; }
    uint32_t* pixels() { return m_pixels; }
    HDC context() const { return m_context; }

    void copyFrom(const Frame& frame);
    Frame toFrame() const;
    void show(HDC target, int x, int y) const;

  private:
    void release();

    HDC m_context = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
    uint32_t* m_pixels = nullptr;
    Size m_size;
};

} // namespace rule_editor

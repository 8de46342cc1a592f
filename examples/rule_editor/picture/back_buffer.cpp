#include "picture/back_buffer.hpp"

#include <algorithm>
#include <stdexcept>

namespace rule_editor {

void BackBuffer::resize(Size size) {
    if (size == m_size) {
        return;
    }
    release();
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = -size.height; /* Rows from the top. */
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (m_bitmap == nullptr) {
        throw std::runtime_error("no memory for the picture of a window");
    }
    m_context = CreateCompatibleDC(nullptr);
    m_previous = SelectObject(m_context, m_bitmap);
    m_pixels = static_cast<uint32_t*>(bits);
    m_size = size;
}

void BackBuffer::copyFrom(const Frame& frame) {
    resize(frame.size);
    GdiFlush();
    std::copy(frame.pixels.begin(), frame.pixels.end(), m_pixels);
}

Frame BackBuffer::toFrame() const {
    GdiFlush();
    Frame frame;
    frame.resize(m_size);
    std::copy_n(m_pixels, frame.pixels.size(), frame.pixels.begin());
    return frame;
}

void BackBuffer::show(HDC target, int x, int y) const {
    BitBlt(target, x, y, m_size.width, m_size.height, m_context, 0, 0, SRCCOPY);
}

void BackBuffer::release() {
    if (m_context != nullptr) {
        SelectObject(m_context, m_previous);
        DeleteDC(m_context);
        m_context = nullptr;
    }
    if (m_bitmap != nullptr) {
        DeleteObject(m_bitmap);
        m_bitmap = nullptr;
    }
    m_pixels = nullptr;
    m_size = {};
}

} // namespace rule_editor

#include <rulecanvas_kit/back_buffer.hpp>

#include <algorithm>
#include <stdexcept>

namespace rulecanvas::kit {

void BackBuffer::Resize(Size wanted) {
    if (wanted == size) {
        return;
    }
    Release();
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = wanted.width;
    info.bmiHeader.biHeight = -wanted.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr) {
        throw std::runtime_error("no memory for the picture of a window");
    }
    context = CreateCompatibleDC(nullptr);
    previous = SelectObject(context, bitmap);
    pixels = static_cast<uint32_t*>(bits);
    size = wanted;
}

void BackBuffer::CopyFrom(const BackBuffer& other) {
    Resize(other.size);
    GdiFlush();
    std::copy_n(other.pixels, PixelCount(), pixels);
}

void BackBuffer::Show(HDC target, int x, int y) const {
    BitBlt(target, x, y, size.width, size.height, context, 0, 0, SRCCOPY);
}

void BackBuffer::Release() {
    if (context != nullptr) {
        SelectObject(context, previous);
        DeleteDC(context);
        context = nullptr;
    }
    if (bitmap != nullptr) {
        DeleteObject(bitmap);
        bitmap = nullptr;
    }
    pixels = nullptr;
    size = {};
}

} // namespace rulecanvas::kit

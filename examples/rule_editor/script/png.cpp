#include "script/png.hpp"

#include <rulecanvas_kit/back_buffer.hpp>
#include <rulecanvas_kit/gdiplus.hpp>
#include <rulecanvas_kit/unicode.hpp>

#include <stdexcept>

namespace rule_editor {

namespace {

CLSID PngEncoder() {
    UINT count = 0;
    UINT bytes = 0;
    Gdiplus::GetImageEncodersSize(&count, &bytes);
    /// The list is followed by texts that it points into, hence the bytes.
    std::vector<Gdiplus::ImageCodecInfo> list(bytes / sizeof(Gdiplus::ImageCodecInfo) + 1);
    Gdiplus::GetImageEncoders(count, bytes, list.data());
    for (UINT i = 0; i < count; ++i) {
        if (list[i].FormatID == Gdiplus::ImageFormatPNG) {
            return list[i].Clsid;
        }
    }
    throw std::runtime_error("this system cannot write PNG files");
}

} // namespace

void WritePng(const Frame& frame, const std::wstring& path) {
    Frame copy = frame;
    Gdiplus::Bitmap bitmap(copy.size.width, copy.size.height, copy.size.width * 4, PixelFormat32bppRGB,
                           reinterpret_cast<BYTE*>(copy.pixels.data()));
    const CLSID encoder = PngEncoder();
    if (bitmap.Save(path.c_str(), &encoder, nullptr) != Gdiplus::Ok) {
        throw std::runtime_error("cannot write " + rulecanvas::kit::ToUtf8(path));
    }
}

Frame Screenshot(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    RECT area = {};
    GetClientRect(window, &area);
    rulecanvas::kit::BackBuffer picture;
    picture.Resize({area.right, area.bottom});
    const HDC context = GetDCEx(window, nullptr, DCX_CACHE);
    BitBlt(picture.Context(), 0, 0, area.right, area.bottom, context, 0, 0, SRCCOPY);
    ReleaseDC(window, context);
    GdiFlush();
    Frame frame;
    frame.Resize(picture.PictureSize());
    frame.pixels.assign(picture.Pixels(), picture.Pixels() + picture.PixelCount());
    return frame;
}

} // namespace rule_editor

#include "picture/png.hpp"

#include "picture/gdiplus.hpp"
#include "unicode.hpp"

#include <stdexcept>

namespace rule_editor {

namespace {

CLSID pngEncoder() {
    UINT count = 0;
    UINT bytes = 0;
    Gdiplus::GetImageEncodersSize(&count, &bytes);
    /* The list is followed by texts that it points into, hence the bytes. */
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

void writePng(const Frame& frame, const std::wstring& path) {
    Frame copy = frame;
    Gdiplus::Bitmap bitmap(copy.size.width, copy.size.height, copy.size.width * 4, PixelFormat32bppRGB,
                           reinterpret_cast<BYTE*>(copy.pixels.data()));
    const CLSID encoder = pngEncoder();
    if (bitmap.Save(path.c_str(), &encoder, nullptr) != Gdiplus::Ok) {
        throw std::runtime_error("cannot write " + toUtf8(path));
    }
}

} // namespace rule_editor

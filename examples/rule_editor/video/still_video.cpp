#include "video/still_video.hpp"

#include <rulecanvas_kit/gdiplus.hpp>

#include <algorithm>
#include <stdexcept>

namespace rule_editor {

StillVideo::StillVideo(const std::wstring& path) {
    Gdiplus::Bitmap bitmap(path.c_str());
    const auto width = static_cast<INT>(bitmap.GetWidth());
    const auto height = static_cast<INT>(bitmap.GetHeight());
    if (bitmap.GetLastStatus() != Gdiplus::Ok || width < 1 || height < 1) {
        throw std::runtime_error("neither a YUV4MPEG2 video nor a picture that can be read");
    }

    const Gdiplus::Rect all(0, 0, width, height);
    Gdiplus::BitmapData data = {};
    if (bitmap.LockBits(&all, Gdiplus::ImageLockModeRead, PixelFormat32bppRGB, &data) != Gdiplus::Ok) {
        throw std::runtime_error("the picture cannot be decoded");
    }
    picture.Resize({width, height});
    const BYTE* line = static_cast<const BYTE*>(data.Scan0);
    for (int y = 0; y < height; ++y, line += data.Stride) {
        std::copy_n(reinterpret_cast<const uint32_t*>(line), width, picture.Row(y));
    }
    bitmap.UnlockBits(&data);
}

} // namespace rule_editor

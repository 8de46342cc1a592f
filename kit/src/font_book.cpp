#include <rulecanvas_kit/font_book.hpp>

#include <rulecanvas_kit/unicode.hpp>

#include <algorithm>
#include <cmath>

namespace rulecanvas::kit {

namespace {

constexpr float DefaultSize = 14.0F;
constexpr float SmallestSize = 6.0F;
constexpr float LargestSize = 200.0F;
constexpr const char* FallbackFace = "Liberation Sans";

std::unique_ptr<Gdiplus::Font> Make(const std::string& face, float size) {
    const Gdiplus::FontFamily family(ToWide(face).c_str());
    if (family.IsAvailable()) {
        return std::make_unique<Gdiplus::Font>(&family, size, Gdiplus::FontStyleBold, Gdiplus::UnitPixel);
    }
    if (face != FallbackFace) {
        return Make(FallbackFace, size);
    }
    return std::make_unique<Gdiplus::Font>(Gdiplus::FontFamily::GenericSansSerif(), size, Gdiplus::FontStyleBold,
                                           Gdiplus::UnitPixel);
}

} // namespace

const Gdiplus::Font& FontBook::Find(const TextStyle& style) {
    const auto end = std::find(std::begin(style.face), std::end(style.face), '\0');
    const bool sensible = style.size >= SmallestSize;
    return Find(std::string(std::begin(style.face), end), sensible ? std::min(style.size, LargestSize) : DefaultSize);
}

const Gdiplus::Font& FontBook::CaptionFont() {
    return Find(FallbackFace, DefaultSize);
}

const Gdiplus::Font& FontBook::Find(const std::string& face, float size) {
    std::unique_ptr<Gdiplus::Font>& font = fonts[{face, static_cast<int>(std::lround(size))}];
    if (!font) {
        font = Make(face, size);
    }
    return *font;
}

} // namespace rulecanvas::kit

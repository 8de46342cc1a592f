#include "picture/font_book.hpp"

#include "unicode.hpp"

#include <algorithm>
#include <cmath>

namespace rule_editor {

namespace {

constexpr float DEFAULT_SIZE = 14.0F;
constexpr float SMALLEST_SIZE = 6.0F;
constexpr float LARGEST_SIZE = 200.0F;
constexpr const char* FALLBACK_FACE = "Liberation Sans";

std::unique_ptr<Gdiplus::Font> make(const std::string& face, float size) {
    const Gdiplus::FontFamily family(toWide(face).c_str());
    if (family.IsAvailable()) {
        return std::make_unique<Gdiplus::Font>(&family, size, Gdiplus::FontStyleBold, Gdiplus::UnitPixel);
    }
    if (face != FALLBACK_FACE) {
        return make(FALLBACK_FACE, size);
    }
    return std::make_unique<Gdiplus::Font>(Gdiplus::FontFamily::GenericSansSerif(), size, Gdiplus::FontStyleBold,
                                           Gdiplus::UnitPixel);
}

} // namespace

const Gdiplus::Font& FontBook::find(const rulecanvas::TextStyle& style) {
    const auto end = std::find(std::begin(style.face), std::end(style.face), '\0');
    const bool sensible = style.size >= SMALLEST_SIZE;
    return find(std::string(std::begin(style.face), end), sensible ? std::min(style.size, LARGEST_SIZE) : DEFAULT_SIZE);
}

const Gdiplus::Font& FontBook::captionFont() {
    return find(FALLBACK_FACE, DEFAULT_SIZE);
}

const Gdiplus::Font& FontBook::find(const std::string& face, float size) {
    std::unique_ptr<Gdiplus::Font>& font = m_fonts[{face, static_cast<int>(std::lround(size))}];
    if (!font) {
        font = make(face, size);
    }
    return *font;
}

} // namespace rule_editor

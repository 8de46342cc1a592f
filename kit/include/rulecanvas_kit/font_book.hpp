#ifndef RULECANVAS_KIT_FONT_BOOK_HPP
#define RULECANVAS_KIT_FONT_BOOK_HPP

#include <rulecanvas/host.hpp>

#include <rulecanvas_kit/gdiplus.hpp>

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace rulecanvas::kit {

/// Finds the font for a text style: the face that the style names, else "Liberation Sans", else the system's sans serif.
/// Styles leave the size to the host when it is below 6.
class FontBook {
  public:
    const Gdiplus::Font& Find(const TextStyle& style);
    /// The font of captions, whose face and size the host chooses.
    const Gdiplus::Font& CaptionFont();

  private:
    const Gdiplus::Font& Find(const std::string& face, float size);

    std::map<std::pair<std::string, int>, std::unique_ptr<Gdiplus::Font>> fonts;
};

} // namespace rulecanvas::kit

#endif

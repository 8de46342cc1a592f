#pragma once

#include <rulecanvas/host.hpp>

#include "picture/gdiplus.hpp"

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace rule_editor {

/* Finds the font for a text style: the face that the style names, else "Liberation Sans", else the system's sans serif.
 * Styles leave the size to the host when it is below 6. */
class FontBook {
  public:
    const Gdiplus::Font& find(const rulecanvas::TextStyle& style);
    /* The font of captions, whose face and size the host chooses. */
    const Gdiplus::Font& captionFont();

  private:
    const Gdiplus::Font& find(const std::string& face, float size);

    std::map<std::pair<std::string, int>, std::unique_ptr<Gdiplus::Font>> m_fonts;
};

} // namespace rule_editor

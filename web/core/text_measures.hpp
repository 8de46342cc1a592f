#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

namespace rulecanvas_web {

/// Sizes of texts in the page's font. The page is asked once for each text, until the font changes.
class TextMeasures {
  public:
    struct Box {
        float width;
        float height;
    };

    explicit TextMeasures(uint32_t givenHost) : host(givenHost) {}

    Box Find(const char* text, float size);
    void Forget() { boxes.clear(); }

  private:
    uint32_t host;
    std::unordered_map<std::string, Box> boxes;
};

} // namespace rulecanvas_web

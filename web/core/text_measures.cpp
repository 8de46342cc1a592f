#include "text_measures.hpp"

#include "page.hpp"

namespace rulecanvas_web {

namespace {

/// A pixel counter shows another number at every move; what is kept stays bounded.
constexpr size_t MostTexts = 4096;

} // namespace

TextMeasures::Box TextMeasures::Find(const char* text, float size) {
    std::string key = std::to_string(static_cast<int>(size)) + ' ' + text;
    const auto known = boxes.find(key);
    if (known != boxes.end()) {
        return known->second;
    }
    float measured[2] = {0.0F, 0.0F};
    PageMeasure(host, text, size, measured);
    if (boxes.size() >= MostTexts) {
        boxes.clear();
    }
    const Box box = {measured[0], measured[1]};
    boxes.emplace(std::move(key), box);
    return box;
}

} // namespace rulecanvas_web

#include "container/container.h"

namespace rulecanvas {
namespace {

/// Middle of two borders, truncated toward zero.
float MiddleOf(int32_t first, int32_t second) {
    const int64_t middle = (static_cast<int64_t>(first) + second) / 2;
    return static_cast<float>(middle);
}

} // namespace

void CVideoAnalyseContainer::OnDraw(ViewID view, IContainerGraphics& surface) {
    if (!enabled) {
        return;
    }
    DrawTip(view, surface);
    InvalidateAll();
    drawListeners.Invoke(view, &surface);
}

void CVideoAnalyseContainer::DrawTip(ViewID view, IContainerGraphics& surface) {
    const std::string tip = TipOf(view);
    if (tip.empty()) {
        return;
    }
    const ClientRect rect = GetClientRect(view);
    const float width = surface.MeasureText(containerTextStyle, tip.c_str());
    const PointF anchor{MiddleOf(rect.left, rect.right) - width / 2.0F, MiddleOf(rect.top, rect.bottom)};
    surface.DrawText(&anchor, &containerTextStyle, tip.c_str(), 0, 1);
}

std::string CVideoAnalyseContainer::TipOf(ViewID view) const {
    const std::lock_guard<std::mutex> guard(tipMutex);
    const auto found = tips.find(view);
    return found == tips.end() ? std::string() : found->second;
}

} // namespace rulecanvas

#include "container/container.h"
#include "shape/paint_pass.h"

namespace rulecanvas {
namespace {

/// Middle of two borders, truncated toward zero.
float MiddleOf(int32_t first, int32_t second) {
    const int64_t middle = (static_cast<int64_t>(first) + second) / 2;
    return static_cast<float>(middle);
}

bool IsSameRect(const ClientRect& a, const ClientRect& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

/// The place where a paint copies figures to, so that it need not be made anew for each paint. A paint from inside
/// another one, or beside it, makes its own.
class BorrowedLook {
  public:
    explicit BorrowedLook(std::atomic<ShapeLook*>& spare) : owner(spare), look(spare.exchange(nullptr)) {
        if (look == nullptr) {
            look = std::make_unique<ShapeLook>();
        }
    }
    ~BorrowedLook() { delete owner.exchange(look.release()); }
    BorrowedLook(const BorrowedLook&) = delete;
    BorrowedLook& operator=(const BorrowedLook&) = delete;

    ShapeLook& operator*() const { return *look; }

  private:
    std::atomic<ShapeLook*>& owner;
    std::unique_ptr<ShapeLook> look;
};

} // namespace

void CVideoAnalyseContainer::OnDraw(ViewID view, IContainerGraphics& surface) {
    if (!enabled) {
        return;
    }
    const BorrowedLook look(spareLook);
    PaintPass pass(*this, view, surface, GetClientRect(0), *look);
    DrawTip(pass);
    FitAll(pass.viewZero);
    drawListeners.Invoke([&](CVideoAnalyseShape& shape) { shape.OnDraw(pass); });
}

void CVideoAnalyseContainer::InvalidateAll() {
    FitAll(GetClientRect(0));
}

/// A rectangle that begins at the origin fits nothing anew the second time; another one makes figures grow each time.
void CVideoAnalyseContainer::FitAll(const ClientRect& viewZero) {
    platform::LockGuard guard(containerMutex);
    const bool isSettled = viewZero.left == 0 && viewZero.top == 0 && IsSameRect(viewZero, lastFit);
    if (!SizeOf(viewZero).Known() || (!fitChanged.exchange(false) && isSettled)) {
        return;
    }
    lastFit = viewZero;
    for (const ShapePtr& shape : shapes.InOrder()) {
        shape->FitToClientRect(viewZero);
    }
}

void CVideoAnalyseContainer::DrawTip(PaintPass& pass) {
    const std::string tip = TipOf(pass.view);
    if (tip.empty()) {
        return;
    }
    const ClientRect& rect = pass.AskPaintedRect();
    const float width = pass.surface.MeasureText(containerTextStyle, tip.c_str());
    const PointF anchor{MiddleOf(rect.left, rect.right) - width / 2.0F, MiddleOf(rect.top, rect.bottom)};
    pass.surface.DrawText(&anchor, &containerTextStyle, tip.c_str(), 0, 1);
}

std::string CVideoAnalyseContainer::TipOf(ViewID view) const {
    const std::lock_guard<std::mutex> guard(tipMutex);
    const auto found = tips.find(view);
    return found == tips.end() ? std::string() : found->second;
}

} // namespace rulecanvas

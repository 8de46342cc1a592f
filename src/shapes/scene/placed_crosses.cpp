#include "shapes/scene/placed_crosses.h"

#include "shape/geometry.h"
#include "shape/json_text.h"
#include "shape/text.h"

#include <algorithm>

namespace rulecanvas {
namespace {

constexpr double HitBoxHalfSide = 5.0;

ClientRect HitBoxOf(const PointF& cross) {
    return ClientRect{TruncateToInt(cross.x - HitBoxHalfSide), TruncateToInt(cross.y - HitBoxHalfSide),
                      TruncateToInt(cross.x + HitBoxHalfSide), TruncateToInt(cross.y + HitBoxHalfSide)};
}

} // namespace

CVideoAnalyseShape* CPlacedCrosses::HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    if (state != Complete && state != Deleted) {
        hitLevel = Busy;
    } else if (state == Complete) {
        grabbedIndex = CrossAt(PositionOf(event));
        if (grabbedIndex >= 0) {
            hitLevel = OnOutline;
        }
    }
    return this;
}

int CPlacedCrosses::CrossAt(const PointF& press) const {
    const Points crosses = CopyPoints();
    for (size_t i = 0; i < crosses.size() && static_cast<int>(i) < Maximum(); ++i) {
        if (InRectangle(HitBoxOf(crosses[i]), press)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

void CPlacedCrosses::StartDrawing(const PointF& press) {
    PlaceCross(press);
}

void CPlacedCrosses::ContinueDrawing(const PointF& press) {
    PlaceCross(press);
}

void CPlacedCrosses::PlaceCross(const PointF& press) {
    if (!HasRoom() && !InGesture()) {
        BecomeComplete(); // the host lowered the maximum between two clicks
        return;
    }
    const bool placed = EditPoints([&](Points& crosses) {
        crosses.push_back(press);
        return HasRoom() && AcceptsPoint(press);
    });
    if (placed) {
        BeginGesture(Drawing);
    }
}

bool CPlacedCrosses::HasRoom() const {
    const int count = static_cast<int>(PointCount());
    return count == 0 || count < Maximum();
}

bool CPlacedCrosses::OnMouseMove(const PointF& position) {
    switch (state) {
    case Drawing:
        MoveCrossInView(LastCross(), position);
        return true;
    case Adjusting:
        return DragCross(position);
    default:
        return true;
    }
}

bool CPlacedCrosses::OnButtonUp(const PointF& position, const ContainerMouseEvent& /*event*/) {
    bool finished = false;
    if (state == Drawing) {
        MoveCross(LastCross(), position); // where the button was released, be it outside the view
        finished = static_cast<int>(PointCount()) >= Maximum();
    } else if (state == Adjusting) {
        DropCross(position);
        finished = true;
    }
    if (finished && !BecomeComplete()) {
        return false;
    }
    Unsubscribe();
    return true;
}

bool CPlacedCrosses::MoveCross(size_t index, const PointF& position) {
    return EditPoints([&](Points& crosses) {
        if (index >= crosses.size()) {
            return false;
        }
        crosses[index] = position;
        return true;
    });
}

bool CPlacedCrosses::MoveCrossInView(size_t index, const PointF& position) {
    return EditPoints([&](Points& crosses) {
        if (index >= crosses.size()) {
            return false;
        }
        crosses[index] = ClampToView(crosses[index], position);
        return true;
    });
}

bool CPlacedCrosses::SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData,
                                              const char* /*styleOrMode*/) {
    BeginConfiguration(shapeName);
    if (!IsEmpty(shapeData) && !LoadCrosses(shapeData)) {
        return false;
    }
    RegisterDraw();
    return true;
}

bool CPlacedCrosses::LoadCrosses(const char* shapeData) {
    Json::Value root;
    Points crosses;
    if (!ParseJson(shapeData, root) || !ReadCrosses(MemberOf(root, name), KnownViewSize(), crosses)) {
        return false;
    }
    ReplacePoints(std::move(crosses));
    state = Complete;
    return true;
}

bool CPlacedCrosses::GetVideoAnalyseShapeConfigData(char* buffer, int size) {
    const auto [crosses, view] = CopyFitted();
    if (static_cast<int>(crosses.size()) != Maximum()) {
        return false;
    }
    Json::Value root;
    root[name] = WriteCrosses(crosses, view);
    return CopyTextUncounted(WriteJson(root), buffer, size);
}

} // namespace rulecanvas

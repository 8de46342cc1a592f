#include "shape/drawing.h"
#include "shape/gesture_shape.h"
#include "shape/point_json.h"
#include "shape/shape_factory.h"
#include "shape/text.h"

#include <cmath>

namespace rulecanvas {
namespace {

/// One place in the picture, marked with a small circle that the user places with a click and can drag around, and with
/// the caption beside it.
///
/// It has one point or none. `anchorPoint` is the last accepted mouse position while it is dragged.
class CSpotShape final : public CGestureShape {
  public:
    CSpotShape() { maxPtNum = 1; }

    bool AwaitsPaint() const override { return false; }

  private:
    /// The click alone places the spot: nothing follows the mouse, and nothing is reported.
    Outcome StartDrawing(const PointerEvent& press) override {
        figure.points.assign(1, press.position);
        return {Complete, effects::HoldMouse};
    }

    Outcome DrawTo(const PointerEvent& /*position*/) override { return {}; }
    Outcome EndDrawing(const PointerEvent& /*release*/) override { return {}; }
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override {
        return hitLevel == OnOutline ? GrabWhole(press.position) : Outcome{};
    }
    /// The spot goes where the mouse is, as far as the view reaches.
    bool DragPoint(int /*index*/, const PointF& to, const ClientRect& view) override {
        if (figure.points.empty()) {
            return false;
        }
        figure.points[0] = ClampRelative(figure.points[0], to, view);
        return true;
    }

    void Dispose() override {
        ClearShape();
        CGestureShape::Dispose();
    }

    bool TakesStyle() const override { return false; }
    /// "solid" fills the circle, and stays in force for later configurations that do not name it.
    void ReadWord(const char* option) override { solid = solid || IsWord(option, "solid"); }
    Refused Load(Loading& loading) override;
    /// The radius is not written: it is the host's choice of look, not part of the place.
    Json::Value WriteGeometry() const override {
        return figure.points.empty() ? Json::Value() : WritePoints(figure.points, figure.fitted);
    }
    CopyRule RuleOfCopying() const override { return CopyRule::ZeroUncounted; }
    /// A press beside the spot is answered even while the spot is not selected: it then counts as one that deselects.
    int LevelAt(const PointF& press) override {
        if (!Covers(press)) {
            return Outside;
        }
        selected = true;
        MarkClaimStale();
        return OnOutline;
    }

    Claim CompleteClaim() const override {
        return Claim::Around(figure.points, std::abs(static_cast<float>(radius)) + 1.0F, true);
    }
    void Draw(const ShapeLook& look, PaintPass& pass) override;

    bool Covers(const PointF& press) const {
        const Points& spot = figure.points;
        if (spot.empty()) {
            return false;
        }
        const double dx = static_cast<double>(press.x) - spot[0].x;
        const double dy = static_cast<double>(press.y) - spot[0].y;
        return dx * dx + dy * dy < static_cast<double>(radius) * radius + 1.0; // whole pixels decide
    }

    void DrawCaption(const ShapeLook& look, IContainerGraphics& surface) const;

    /// Pixels.
    int radius = 5;
    bool solid = false;
};

const bool registered = Register<CSpotShape>("SpotShape");

/// Whole pixels from a place to the border of the view.
float RoomTo(int border, float place) {
    return static_cast<float>(TruncateToInt(static_cast<double>(border) - place));
}

} // namespace

Refused CSpotShape::Load(Loading& loading) {
    const Json::Value& spots = loading.geometry;
    if (spots.isNull()) {
        return loading.Refuse("an array of one point");
    }
    if (spots.empty()) {
        loading.isDrawn = false; // a spot that is there for the host, but never drawn
        return std::nullopt;
    }
    const Json::Value& givenRadius = MemberOf(loading.root, "radius");
    if (IsPlainInteger(givenRadius)) {
        radius = givenRadius.asInt();
    }
    figure.points.push_back(ReadPoint(spots[0], figure.fitted));
    Enter(Complete);
    return std::nullopt;
}

void CSpotShape::Draw(const ShapeLook& look, PaintPass& pass) {
    if (look.Path().empty()) {
        return;
    }
    const float r = static_cast<float>(radius);
    const PointF topLeft = Shifted(look.Path()[0], -r, -r);
    const PointF bottomRight = Shifted(look.Path()[0], r, r);
    const ColorF& colour = look.Colour();
    if (solid) {
        pass.surface.FillEllipse(&topLeft, &bottomRight, look.SelectedThickness(), colour, &colour);
    } else {
        pass.surface.DrawEllipse(&topLeft, &bottomRight, look.SelectedThickness(), &colour);
    }
    DrawCaption(look, pass.surface);
}

/// To the right of the circle and above its middle, and on the other side of the circle where there is no room.
void CSpotShape::DrawCaption(const ShapeLook& look, IContainerGraphics& surface) const {
    const float r = static_cast<float>(radius);
    const TextStyle text = look.Text(look.Colour(), FigureCaptionSize);
    const float width = surface.MeasureText(text, look.caption.c_str());
    const float height = surface.MeasureTextHeight(text, look.caption.c_str());
    PointF at = Shifted(look.Path()[0], r, -r);
    if (at.y - height / 2.0F < 0.0F) {
        at.y += height / 2.0F;
    }
    if (RoomTo(look.figure.fitted.width, at.x) < width) {
        at.x -= width + 2.0F * r + 1.0F;
    }
    if (RoomTo(look.figure.fitted.height, at.y) < height) {
        at.y -= height + r;
    }
    DrawCaptionAt(at, text, look.caption, surface);
}

} // namespace rulecanvas

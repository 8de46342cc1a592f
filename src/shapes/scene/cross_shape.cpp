#include "shape/drawing.h"
#include "shape/point_json.h"
#include "shape/shape_factory.h"
#include "shape/text.h"
#include "shapes/scene/placed_crosses.h"

#include <cstdlib>

namespace rulecanvas {
namespace {

/// The number in a mode word; 1 for none and for one beyond the limit.
int MaximumFrom(const char* word) {
    constexpr int decimal = 10;
    constexpr long mostCrosses = 1024; // more than a user would click
    const long number = IsEmpty(word) ? 1 : std::strtol(word, nullptr, decimal);
    return number < 1 || number > mostCrosses ? 1 : static_cast<int>(number);
}

/// Small crosses, one unless the mode word, the configuration or the host asks for more, with the caption at the first.
///
/// A single cross needs no aim: a press anywhere in the view takes it there.
class CCrossShape final : public CPlacedCrosses {
  public:
    CCrossShape() { maxPtNum = 1; }

  private:
    int Maximum() const override { return maxPtNum; }
    int CrossAt(const PointF& press) const override { return IsSingle() ? 0 : CPlacedCrosses::CrossAt(press); }
    Outcome StartEditing(const PointerEvent& press, int /*hitLevel*/) override {
        PointF* cross = GrabbedCross();
        if (cross == nullptr || !AcceptsPoint(press.position, press.view)) {
            return {};
        }
        *cross = press.position;
        return Begin(Adjusting);
    }

    void DragCross(PointF& cross, const PointerEvent& position) override {
        if (AcceptsPoint(position.position, position.view)) {
            cross = position.position;
        }
    }

    /// The number of crosses.
    void ReadWord(const char* option) override { maxPtNum = MaximumFrom(option); }
    /// A configuration without the member still makes as many crosses as were asked for, all in the top left corner,
    /// from where the user drags them.
    Points ReadCrosses(const Json::Value& member) override {
        if (!member.isNull()) {
            maxPtNum = static_cast<int>(member.size());
        }
        Points crosses;
        for (int i = 0; i < maxPtNum; ++i) {
            crosses.push_back(ReadPoint(member[i], figure.fitted));
        }
        return crosses;
    }

    Json::Value WriteGeometry() const override {
        const bool isComplete = static_cast<int>(figure.points.size()) == maxPtNum;
        return isComplete ? WritePoints(Truncated(figure.points), figure.fitted) : Json::Value();
    }
    Claim CompleteClaim() const override { return IsSingle() ? Claim::Everywhere() : CPlacedCrosses::CompleteClaim(); }
    void Draw(const ShapeLook& look, PaintPass& pass) override;

    bool IsSingle() const { return Maximum() == 1 && !figure.points.empty(); }
};

const bool registered = Register<CCrossShape>("CrossShape");

constexpr float CaptionSize = 24.0F;

/// One pixel longer to the left and up than to the right and down: there lies the second pixel of a stroke that is two
/// pixels wide, and all four arms reach five pixels beyond it.
constexpr float LongArm = 6.0F;
constexpr float ShortArm = 5.0F;

void DrawCross(const PointF& cross, float width, const ColorF& colour, IContainerGraphics& surface) {
    const PointF left{cross.x - LongArm, cross.y};
    const PointF right{cross.x + ShortArm, cross.y};
    const PointF top{cross.x, cross.y - LongArm};
    const PointF bottom{cross.x, cross.y + ShortArm};
    surface.DrawLine(&left, &right, width, &colour, SolidPen);
    surface.DrawLine(&top, &bottom, width, &colour, SolidPen);
}

/// At the first cross, and on its other side where the text would leave the picture.
void DrawCaption(const ShapeLook& look, IContainerGraphics& surface) {
    const TextStyle style = look.Text(look.style->selColor, CaptionSize);
    const float width = surface.MeasureText(style, look.caption.c_str());
    const float height = surface.MeasureTextHeight(style, look.caption.c_str());
    const ViewSize& view = look.figure.fitted;
    PointF at = WholePixels(look.Path().front());
    if (at.x + width > static_cast<float>(view.width)) {
        at.x -= width;
    }
    if (at.y + height > static_cast<float>(view.height)) {
        at.y -= height;
    }
    DrawCaptionAt(at, style, look.caption, surface);
}

} // namespace

void CCrossShape::Draw(const ShapeLook& look, PaintPass& pass) {
    for (const PointF& cross : look.Path()) {
        DrawCross(cross, look.SelectedThickness(), look.style->selColor, pass.surface);
    }
    if (!look.Path().empty() && !look.caption.empty()) {
        DrawCaption(look, pass.surface);
    }
}

} // namespace rulecanvas

#include "shape/drawing.h"
#include "shape/shape_factory.h"
#include "shapes/regions/rectangle_shape.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace rulecanvas {
namespace {

constexpr float OutlineWidth = 1.0F;
constexpr PointF TextOffset{-15.0F, -2.0F};
constexpr double SmallestHalfSide = 2.0;

/// Half the width or height on the view of so many pixels of the video.
float HalfSide(int pixels, int display, int video) {
    const double half = static_cast<double>(pixels) * display / video / 2.0;
    return static_cast<float>(std::max(half, SmallestHalfSide));
}

/// Pixels of the video between two places on the view.
int PixelsBetween(float from, float to, int display, int video) {
    const double distance = std::abs(static_cast<double>(TruncateToInt(static_cast<double>(to) - from)));
    return TruncateToInt(distance * video / display);
}

/// A rectangle that measures itself in pixels of the video, not of the screen, and shows the result in its middle.
///
/// Its configuration is that size. A configured rectangle gets its corners, in the middle of the view, by the first
/// paint that knows how large view and video are; one that is drawn or resized is measured by every paint.
class CPixelCountShape final : public CRectangleShape {
  public:
    CPixelCountShape() {
        beforePaint = BeforePaint::Prepare;
        ChangeStyle([](ShapeStyle& changed) { changed.lineThickness = 1; });
        minimumSide = std::numeric_limits<int>::min(); // whatever the view leaves of a drag is a size worth measuring
    }

  private:
    void Forget() override {
        placePending = false; // or a later paint would put it in the place of what the user draws next
        CRectangleShape::Forget();
    }

    void ReadWord(const char* /*option*/) override {}
    Refused Load(Loading& loading) override {
        if (!IsArrayOf(loading.geometry, 2)) {
            return loading.Refuse("an array of a width and a height");
        }
        pixelWidth = loading.geometry[0].asInt();
        pixelHeight = loading.geometry[1].asInt();
        placePending = true;
        Enter(Complete);
        return std::nullopt;
    }

    Json::Value WriteGeometry() const override {
        Json::Value measured;
        if (HasCorners()) {
            measured.append(pixelWidth);
            measured.append(pixelHeight);
        }
        return measured;
    }

    bool WritesPlaces() const override { return false; }
    bool PrepareForPaint(const PaintPass& pass) override;
    void Draw(const ShapeLook& look, PaintPass& pass) override;

    void Place(const ClientRect& painted, const ClientRect& viewZero);
    void Measure() {
        const Points& corners = figure.points;
        if (HasCorners() && (state == Drawing || state == Adjusting)) {
            pixelWidth = PixelsBetween(corners[0].x, corners[2].x, figure.fitted.width, video.width);
            pixelHeight = PixelsBetween(corners[0].y, corners[2].y, figure.fitted.height, video.height);
        }
    }

    int pixelWidth = 0;
    int pixelHeight = 0;
    /// The video's resolution as it was when a paint first knew it.
    ViewSize video;
    /// The configured size waits for its corners.
    bool placePending = false;
};

const bool registered = Register<CPixelCountShape>("PixelCountShape");

} // namespace

bool CPixelCountShape::PrepareForPaint(const PaintPass& pass) {
    const ClientRect* painted = pass.PaintedRect();
    if (painted == nullptr && (placePending || !figure.fitted.Known())) {
        return false;
    }
    if (painted != nullptr) {
        LearnViewSize(*painted);
    }
    IShapeContainer* owner = GetContainer();
    if (owner != nullptr && !video.Known()) {
        video = owner->GetPixelCount();
    }
    if (video.Known() && figure.fitted.Known()) {
        if (placePending) {
            Place(*painted, pass.viewZero);
        }
        Measure();
    }
    return true;
}

void CPixelCountShape::Place(const ClientRect& painted, const ClientRect& viewZero) {
    const ViewSize& display = figure.fitted;
    const int centreX = display.width / 2;
    const int centreY = display.height / 2;
    const PointF centre{static_cast<float>(centreX), static_cast<float>(centreY)};
    const PointF half{HalfSide(pixelWidth, display.width, video.width),
                      HalfSide(pixelHeight, display.height, video.height)};
    if (SpanCorners(Shifted(centre, -half.x, -half.y), Shifted(centre, half.x, half.y), painted, minimumSide)) {
        placePending = false;
        figure.FitTo(viewZero);
        MarkClaimStale();
    }
}

void CPixelCountShape::Draw(const ShapeLook& look, PaintPass& pass) {
    const ColorF& colour = look.style->selColor;
    const Points& corners = look.Path();
    if (corners.size() == CornerCount) {
        const PointF at{(corners[0].x + corners[2].x) / 2.0F + TextOffset.x,
                        (corners[0].y + corners[2].y) / 2.0F + TextOffset.y};
        const std::string size = std::to_string(pixelWidth) + "*" + std::to_string(pixelHeight);
        DrawCaptionAt(at, look.Text(colour, look.style->textStyle.fontSize), size, pass.surface);
        pass.surface.DrawRectangle(&corners[0], &corners[2], OutlineWidth, &colour, PatternedPen);
    }
    if (look.handles) {
        DrawAdjustBoxes(corners, pass.surface, colour);
    }
}

} // namespace rulecanvas

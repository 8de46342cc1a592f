#include "shapes/regions/pixel_count_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/json_text.h"
#include "shape/shape_factory.h"
#include "shape/text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace rulecanvas {
namespace {

const bool registered = CShapeFactory::GetInstance().Register("PixelCountShape", &MakeShape<CPixelCountShape>);

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

} // namespace

CPixelCountShape::CPixelCountShape() {
    lineThickness = 1;
    minimumSide = std::numeric_limits<int>::min(); // whatever the view leaves of a drag is a size worth measuring
}

bool CPixelCountShape::SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) {
    ParseStyleConfig(styleOrMode);
    BeginConfiguration(shapeName);
    if (!IsEmpty(shapeData) && !LoadSize(shapeData)) {
        return false;
    }
    RegisterDraw();
    return true;
}

bool CPixelCountShape::LoadSize(const char* shapeData) {
    Json::Value root;
    if (!ParseJson(shapeData, root)) {
        return false;
    }
    const Json::Value& size = MemberOf(root, name);
    if (!IsArrayOf(size, 2)) {
        return false;
    }
    pixelWidth = size[0].asInt();
    pixelHeight = size[1].asInt();
    placePending = true;
    state = Complete;
    return true;
}

bool CPixelCountShape::GetVideoAnalyseShapeConfigData(char* buffer, int size) {
    if (PointCount() < CornerCount) {
        return false;
    }
    Json::Value root;
    Json::Value& measured = root[name];
    measured.append(pixelWidth.load());
    measured.append(pixelHeight.load());
    return CopyText(WriteJson(root), buffer, size);
}

void CPixelCountShape::ClearShape() {
    placePending = false; // or a later paint would put it in the place of what the user draws next
    CRectangleShape::ClearShape();
}

void CPixelCountShape::PrepareToDraw() {
    TakeOverVideoSize();
    const ViewSize display = KnownViewSize();
    if (video.Known() && display.Known()) {
        Place(display);
        Measure(display);
    }
}

void CPixelCountShape::TakeOverVideoSize() {
    IShapeContainer* owner = GetContainer();
    if (owner != nullptr && !video.Known()) {
        video = owner->GetPixelCount();
    }
}

void CPixelCountShape::Place(const ViewSize& display) {
    if (!placePending) {
        return;
    }
    const int centreX = display.width / 2;
    const int centreY = display.height / 2;
    const PointF centre{static_cast<float>(centreX), static_cast<float>(centreY)};
    const PointF half{HalfSide(pixelWidth, display.width, video.width),
                      HalfSide(pixelHeight, display.height, video.height)};
    const bool placed = EditPoints([&](Points& corners) {
        return placePending && BuildFromTwoPoints(PointF{centre.x - half.x, centre.y - half.y},
                                                  PointF{centre.x + half.x, centre.y + half.y}, corners);
    });
    if (placed) {
        placePending = false;
        FitToClientRect();
    }
}

void CPixelCountShape::Measure(const ViewSize& display) {
    const Points corners = CopyPoints();
    if (corners.size() == CornerCount && (state == Drawing || state == Adjusting)) {
        pixelWidth = PixelsBetween(corners[0].x, corners[2].x, display.width, video.width);
        pixelHeight = PixelsBetween(corners[0].y, corners[2].y, display.height, video.height);
    }
}

void CPixelCountShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    const ColorF& colour = look.selColour;
    if (look.points.size() == CornerCount) {
        const PointF& topLeft = look.points[0];
        const PointF& bottomRight = look.points[2];
        const PointF at{(topLeft.x + bottomRight.x) / 2.0F + TextOffset.x,
                        (topLeft.y + bottomRight.y) / 2.0F + TextOffset.y};
        const std::string size = std::to_string(pixelWidth) + "*" + std::to_string(pixelHeight);
        DrawCaptionAt(at, look.Text(colour, look.textStyle.size), size, surface);
        surface.DrawRectangle(&topLeft, &bottomRight, OutlineWidth, &colour, PatternedPen);
    }
    if (look.handles) {
        DrawAdjustBoxes(look.points, surface, colour);
    }
}

} // namespace rulecanvas

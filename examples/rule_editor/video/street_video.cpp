#include "video/street_video.hpp"

#include <rulecanvas_kit/gdiplus.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace rule_editor {

namespace {

using Gdiplus::Color;

constexpr int Frames = 300;
constexpr double Rate = 25.0;
constexpr Size Shown = {960, 540};
constexpr Size Drawn = {Shown.width * 2, Shown.height * 2};

/// The camera, in metres and in pixels of the drawn size.
constexpr float CameraHeight = 7.0F;
constexpr float FocalLength = 1450.0F;
constexpr float Horizon = 270.0F;
constexpr float VanishingX = 900.0F;
constexpr float Nearest = 8.0F;
constexpr float Farthest = 140.0F;
constexpr float RoadEdge = 7.0F;
constexpr float CrossingNear = 21.0F;
constexpr float CrossingFar = 24.5F;

/// A place in the street: to the right of its middle, up, and away from the camera, in metres.
struct Place {
    float x;
    float up;
    float away;
};

class Painter {
  public:
    explicit Painter(Frame& frame)
        : bitmap(frame.size.width, frame.size.height, frame.size.width * 4, PixelFormat32bppRGB,
                 reinterpret_cast<BYTE*>(frame.pixels.data())),
          graphics(&bitmap) {}

    void Fill(Color colour, const std::array<Place, 4>& corners) {
        std::array<Gdiplus::PointF, 4> points;
        std::transform(corners.begin(), corners.end(), points.begin(), Project);
        const Gdiplus::SolidBrush brush(colour);
        graphics.FillPolygon(&brush, points.data(), 4);
    }
    void Ground(Color colour, float left, float right, float closer, float farther) {
        Fill(colour, {{{left, 0, closer}, {right, 0, closer}, {right, 0, farther}, {left, 0, farther}}});
    }
    /// Upright and facing the camera.
    void Front(Color colour, float left, float right, float low, float high, float away) {
        Fill(colour, {{{left, low, away}, {right, low, away}, {right, high, away}, {left, high, away}}});
    }
    /// Upright and facing the middle of the street.
    void Side(Color colour, float x, float low, float high, float closer, float farther) {
        Fill(colour, {{{x, low, closer}, {x, low, farther}, {x, high, farther}, {x, high, closer}}});
    }
    void Ball(Color colour, Place centre, float radius) {
        const Gdiplus::PointF middle = Project(centre);
        const float size = radius * FocalLength / centre.away;
        const Gdiplus::SolidBrush brush(colour);
        graphics.FillEllipse(&brush, middle.X - size, middle.Y - size, size * 2.0F, size * 2.0F);
    }
    void Sky() {
        const Gdiplus::LinearGradientBrush brush(Gdiplus::PointF(0.0F, 0.0F), Gdiplus::PointF(0.0F, Horizon + 6.0F),
                                                 Color(150, 176, 204), Color(190, 216, 244));
        graphics.FillRectangle(&brush, 0.0F, 0.0F, static_cast<float>(Drawn.width), Horizon + 6.0F);
    }

  private:
    static Gdiplus::PointF Project(Place place) {
        const float scale = FocalLength / place.away;
        return {VanishingX + place.x * scale, Horizon + (CameraHeight - place.up) * scale};
    }

    Gdiplus::Bitmap bitmap;
    Gdiplus::Graphics graphics;
};

Color Shaded(Color colour, float light) {
    const auto part = [light](BYTE value) { return static_cast<BYTE>(static_cast<float>(value) * light); };
    return Color(part(colour.GetR()), part(colour.GetG()), part(colour.GetB()));
}

void PaintHouse(Painter& painter, float side, float closer, float farther, float height, Color wall) {
    constexpr float Storey = 3.2F;
    const float x = side * 13.5F;
    painter.Side(Shaded(wall, 0.82F), x, 0.0F, height, closer, farther);
    painter.Front(wall, std::min(x, side * 40.0F), std::max(x, side * 40.0F), 0.0F, height, closer);
    for (float low = 1.0F; low + 2.0F < height; low += Storey) {
        for (float away = closer + 0.8F; away + 1.6F < farther; away += 3.0F) {
            painter.Side(Color(62, 78, 92), x, low, low + 1.7F, away, away + 1.5F);
        }
        for (float across = 14.7F; across < 36.0F; across += 3.0F) {
            const float left = side > 0.0F ? across : -across - 1.6F;
            painter.Front(Color(68, 86, 100), left, left + 1.6F, low, low + 1.7F, closer);
        }
    }
}

void PaintRoad(Painter& painter) {
    const Color paint(214, 214, 206);
    painter.Ground(Color(112, 124, 96), -220.0F, 220.0F, Nearest, Farthest * 30.0F);
    painter.Ground(Color(164, 160, 152), -10.5F, 10.5F, Nearest, Farthest * 10.0F);
    painter.Ground(Color(86, 88, 92), -RoadEdge, RoadEdge, Nearest, Farthest * 10.0F);
    for (const float x : {-RoadEdge + 0.3F, RoadEdge - 0.45F, -0.25F, 0.1F}) {
        painter.Ground(paint, x, x + 0.15F, Nearest, Farthest * 2.0F);
    }
    for (float away = Nearest; away < Farthest; away += 6.0F) {
        for (const float x : {-3.58F, 3.42F}) {
            painter.Ground(paint, x, x + 0.16F, away, away + 2.0F);
        }
    }
    for (float x = -RoadEdge + 0.6F; x < RoadEdge - 0.5F; x += 1.05F) {
        painter.Ground(Color(224, 224, 218), x, x + 0.55F, CrossingNear, CrossingFar);
    }
}

void PaintTree(Painter& painter, float x, float away) {
    painter.Front(Color(92, 74, 58), x - 0.15F, x + 0.15F, 0.0F, 2.4F, away);
    painter.Ball(Color(66, 96, 58), {x, 3.4F, away}, 1.35F);
    painter.Ball(Color(92, 128, 76), {x + 0.3F, 4.1F, away}, 0.9F);
}

struct Car {
    float lane; ///< Middle of its lane; left of the street's middle cars come towards the camera.
    float start;
    float length;
    float height;
    Color colour;
};

void PaintCar(Painter& painter, const Car& car, float closer) {
    const float left = car.lane - 0.92F;
    const float right = car.lane + 0.92F;
    const float farther = closer + car.length;
    const float belt = car.height * 0.58F;
    const float inner = car.lane < 0.0F ? right : left;
    const Color glass(46, 56, 66);
    const Color lamp = car.lane < 0.0F ? Color(250, 246, 220) : Color(206, 44, 40);
    painter.Ground(Color(58, 60, 64), left - 0.2F, right + 0.2F, closer - 0.3F, farther);
    painter.Side(Shaded(car.colour, 0.72F), inner, 0.2F, car.height, closer, farther);
    painter.Fill(Shaded(car.colour, 0.9F), {{{left, car.height, closer},
                                             {right, car.height, closer},
                                             {right, car.height, farther},
                                             {left, car.height, farther}}});
    painter.Front(car.colour, left, right, 0.2F, car.height, closer);
    painter.Front(glass, left + 0.18F, right - 0.18F, belt, car.height - 0.14F, closer);
    painter.Front(lamp, left + 0.1F, left + 0.42F, 0.58F, 0.78F, closer);
    painter.Front(lamp, right - 0.42F, right - 0.1F, 0.58F, 0.78F, closer);
}

void PaintTraffic(Painter& painter, int frame) {
    constexpr float Stretch = 120.0F;
    static const Car cars[] = {
        {-5.25F, 0.10F, 4.4F, 1.50F, Color(170, 44, 40)}, {-5.25F, 0.55F, 4.6F, 1.45F, Color(226, 226, 222)},
        {-1.75F, 0.32F, 4.5F, 1.48F, Color(44, 84, 150)}, {1.75F, 0.20F, 4.4F, 1.50F, Color(206, 164, 40)},
        {5.25F, 0.48F, 8.5F, 3.10F, Color(64, 122, 92)},  {5.25F, 0.92F, 4.4F, 1.50F, Color(120, 124, 130)},
    };
    std::vector<std::pair<float, const Car*>> order;
    for (const Car& car : cars) {
        const float passed = std::fmod(car.start + static_cast<float>(frame) / static_cast<float>(Frames), 1.0F);
        order.emplace_back(Nearest + Stretch * (car.lane < 0.0F ? 1.0F - passed : passed), &car);
    }
    std::sort(order.begin(), order.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    for (const auto& [closer, car] : order) {
        PaintCar(painter, *car, closer);
    }
}

} // namespace

StreetVideo::StreetVideo() {
    empty.Resize(Drawn);
    Painter painter(empty);
    painter.Sky();
    PaintRoad(painter);
    for (const float away : {112.0F, 84.0F, 58.0F, 36.0F}) {
        PaintHouse(painter, -1.0F, away, away + 22.0F, 8.0F + std::fmod(away, 11.0F), Color(168, 150, 134));
        PaintHouse(painter, 1.0F, away, away + 22.0F, 17.0F - std::fmod(away, 9.0F), Color(150, 152, 158));
    }
    for (const float away : {88.0F, 66.0F, 48.0F, 33.0F}) {
        PaintTree(painter, -9.4F, away);
        PaintTree(painter, 9.4F, away - 5.0F);
    }
}

Size StreetVideo::PictureSize() const {
    return Shown;
}

int StreetVideo::FrameCount() const {
    return Frames;
}

double StreetVideo::FramesPerSecond() const {
    return Rate;
}

Frame StreetVideo::FrameAt(int index) {
    Frame drawn = empty;
    Painter painter(drawn);
    PaintTraffic(painter, index);
    return drawn;
}

} // namespace rule_editor

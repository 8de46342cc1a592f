#include "video/street_video.hpp"

#include "picture/gdiplus.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace rule_editor {

namespace {

using Gdiplus::Color;

constexpr int FRAMES = 300;
constexpr double FRAMES_PER_SECOND = 25.0;
constexpr Size SHOWN = {960, 540};
/* Drawn in twice the size and averaged, which gives soft edges. */
constexpr Size DRAWN = {SHOWN.width * 2, SHOWN.height * 2};

/* The camera, in metres and in pixels of the drawn size. */
constexpr float CAMERA_HEIGHT = 7.0F;
constexpr float FOCAL_LENGTH = 1450.0F;
constexpr float HORIZON = 270.0F;
constexpr float VANISHING_X = 900.0F;
constexpr float NEAREST = 8.0F;
constexpr float FARTHEST = 140.0F;

constexpr float ROAD_EDGE = 7.0F;
constexpr float PAVEMENT_EDGE = 10.5F;
constexpr float CROSSING_NEAR = 21.0F;
constexpr float CROSSING_FAR = 24.5F;

/* A place in the street: to the right of its middle, up, and away from the camera, in metres. */
struct Place {
    float x;
    float up;
    float away;
};

Gdiplus::PointF project(Place place) {
    const float scale = FOCAL_LENGTH / place.away;
    return {VANISHING_X + place.x * scale, HORIZON + (CAMERA_HEIGHT - place.up) * scale};
}

class Painter {
  public:
    explicit Painter(Gdiplus::Graphics& graphics) : m_graphics(graphics) {}

    void quad(Color colour, const std::array<Place, 4>& corners) {
        std::array<Gdiplus::PointF, 4> points;
        std::transform(corners.begin(), corners.end(), points.begin(), project);
        const Gdiplus::SolidBrush brush(colour);
        m_graphics.FillPolygon(&brush, points.data(), 4);
    }
    void ground(Color colour, float left, float right, float closer, float farther) {
        quad(colour, {{{left, 0, closer}, {right, 0, closer}, {right, 0, farther}, {left, 0, farther}}});
    }
    /* Upright and facing the camera. */
    void front(Color colour, float left, float right, float low, float high, float away) {
        quad(colour, {{{left, low, away}, {right, low, away}, {right, high, away}, {left, high, away}}});
    }
    /* Upright and facing the middle of the street. */
    void side(Color colour, float x, float low, float high, float closer, float farther) {
        quad(colour, {{{x, low, closer}, {x, low, farther}, {x, high, farther}, {x, high, closer}}});
    }
    void ball(Color colour, Place centre, float radius) {
        const Gdiplus::PointF middle = project(centre);
        const float size = radius * FOCAL_LENGTH / centre.away;
        const Gdiplus::SolidBrush brush(colour);
        m_graphics.FillEllipse(&brush, middle.X - size, middle.Y - size, size * 2.0F, size * 2.0F);
    }

  private:
    Gdiplus::Graphics& m_graphics;
};

Color shaded(Color colour, float light) {
    const auto part = [light](BYTE value) {
        return static_cast<BYTE>(std::clamp(static_cast<float>(value) * light, 0.0F, 255.0F));
    };
    return Color(part(colour.GetR()), part(colour.GetG()), part(colour.GetB()));
}

void paintSky(Gdiplus::Graphics& graphics) {
    const int height = static_cast<int>(HORIZON) + 6;
    for (int y = 0; y < height; ++y) {
        const auto glow = static_cast<BYTE>(40 * y / height);
        const Gdiplus::SolidBrush brush(
            Color(static_cast<BYTE>(150 + glow), static_cast<BYTE>(176 + glow), static_cast<BYTE>(204 + glow)));
        graphics.FillRectangle(&brush, 0, y, DRAWN.width, 1);
    }
}

void paintBuilding(Painter& painter, float streetSide, float closer, float farther, float height, Color wall) {
    constexpr float FACE = 13.5F;
    constexpr float STOREY = 3.2F;
    constexpr float BAY = 3.0F;
    const Color glass(62, 78, 92);
    const float x = streetSide * FACE;
    painter.side(shaded(wall, 0.82F), x, 0.0F, height, closer, farther);
    for (float low = 1.0F; low + 2.0F < height; low += STOREY) {
        for (float away = closer + 0.8F; away + 1.6F < farther; away += BAY) {
            painter.side(glass, x, low, low + 1.7F, away, away + 1.5F);
        }
    }
    const float outer = streetSide * 40.0F;
    painter.front(wall, std::min(x, outer), std::max(x, outer), 0.0F, height, closer);
    for (float low = 1.0F; low + 2.0F < height; low += STOREY) {
        for (float across = FACE + 1.2F; across < 36.0F; across += BAY) {
            const float left = streetSide > 0.0F ? across : -across - 1.6F;
            painter.front(shaded(glass, 1.1F), left, left + 1.6F, low, low + 1.7F, closer);
        }
    }
}

void paintBuildings(Painter& painter) {
    struct Block {
        float closer;
        float farther;
        float leftHeight;
        float rightHeight;
        Color leftWall;
        Color rightWall;
    };
    const Block blocks[] = {
        {112, 139, 16, 12, Color(150, 140, 132), Color(140, 146, 150)},
        {84, 110, 11, 19, Color(168, 150, 134), Color(158, 150, 146)},
        {58, 82, 18, 13, Color(146, 150, 154), Color(178, 160, 140)},
        {36, 56, 12, 16, Color(176, 156, 138), Color(150, 152, 158)},
    };
    for (const Block& block : blocks) {
        paintBuilding(painter, -1.0F, block.closer, block.farther, block.leftHeight, block.leftWall);
        paintBuilding(painter, 1.0F, block.closer, block.farther, block.rightHeight, block.rightWall);
    }
}

void paintTree(Painter& painter, float x, float away) {
    painter.front(Color(92, 74, 58), x - 0.15F, x + 0.15F, 0.0F, 2.4F, away);
    painter.ball(Color(66, 96, 58), {x, 3.4F, away}, 1.35F);
    painter.ball(Color(78, 112, 66), {x - 0.5F, 3.9F, away}, 0.95F);
    painter.ball(Color(92, 128, 76), {x + 0.45F, 4.2F, away}, 0.8F);
}

void paintGround(Painter& painter) {
    painter.ground(Color(112, 124, 96), -220.0F, 220.0F, NEAREST, FARTHEST * 30.0F);
    painter.ground(Color(164, 160, 152), -PAVEMENT_EDGE, PAVEMENT_EDGE, NEAREST, FARTHEST * 10.0F);
    painter.ground(Color(196, 192, 184), -ROAD_EDGE - 0.3F, ROAD_EDGE + 0.3F, NEAREST, FARTHEST * 10.0F);
    painter.ground(Color(86, 88, 92), -ROAD_EDGE, ROAD_EDGE, NEAREST, FARTHEST * 10.0F);
    const Color paint(214, 214, 206);
    for (const float x : {-ROAD_EDGE + 0.3F, ROAD_EDGE - 0.45F, -0.25F, 0.1F}) {
        painter.ground(paint, x, x + 0.15F, NEAREST, FARTHEST * 2.0F);
    }
    for (float away = NEAREST; away < FARTHEST; away += 6.0F) {
        if (away + 3.0F > CROSSING_NEAR - 1.0F && away < CROSSING_FAR + 1.0F) {
            continue;
        }
        painter.ground(paint, -3.58F, -3.42F, away, away + 3.0F);
        painter.ground(paint, 3.42F, 3.58F, away, away + 3.0F);
    }
    for (float x = -ROAD_EDGE + 0.6F; x < ROAD_EDGE - 0.5F; x += 1.05F) {
        painter.ground(Color(224, 224, 218), x, x + 0.55F, CROSSING_NEAR, CROSSING_FAR);
    }
}

/* How farther something that moves evenly has come, when it passes a stretch `rounds` times while the scene repeats. */
float progress(int frame, float start, int rounds) {
    const float passed = start + static_cast<float>(rounds * frame) / static_cast<float>(FRAMES);
    return passed - std::floor(passed);
}

struct Car {
    float lane; /* Middle of its lane; left of the street's middle cars come towards the camera. */
    float start;
    int rounds;
    float length;
    float height;
    Color colour;
};

struct Person {
    float start;
    bool toRight;
    float away;
    Color coat;
};

void paintCar(Painter& painter, const Car& car, float closer) {
    constexpr float WIDTH = 1.85F;
    const bool coming = car.lane < 0.0F;
    const float left = car.lane - WIDTH / 2.0F;
    const float right = car.lane + WIDTH / 2.0F;
    const float farther = closer + car.length;
    const float belt = car.height * 0.58F;
    const float towardsMiddle = coming ? right : left;
    const Color glass(46, 56, 66);
    painter.ground(Color(90, 20, 22, 26), left - 0.25F, right + 0.25F, closer - 0.3F, farther + 0.2F);
    painter.side(shaded(car.colour, 0.72F), towardsMiddle, 0.25F, car.height, closer, farther);
    painter.side(glass, towardsMiddle, belt, car.height - 0.12F, closer + 0.5F, farther - 0.5F);
    painter.quad(shaded(car.colour, 1.12F), {{{left, car.height, closer},
                                              {right, car.height, closer},
                                              {right, car.height, farther},
                                              {left, car.height, farther}}});
    painter.front(car.colour, left, right, 0.25F, car.height, closer);
    painter.front(glass, left + 0.18F, right - 0.18F, belt, car.height - 0.14F, closer);
    const Color lamp = coming ? Color(250, 246, 220) : Color(206, 44, 40);
    painter.front(lamp, left + 0.1F, left + 0.42F, 0.58F, 0.78F, closer);
    painter.front(lamp, right - 0.42F, right - 0.1F, 0.58F, 0.78F, closer);
    painter.front(Color(30, 32, 34), left + 0.05F, left + 0.3F, 0.0F, 0.3F, closer);
    painter.front(Color(30, 32, 34), right - 0.3F, right - 0.05F, 0.0F, 0.3F, closer);
}

void paintPerson(Painter& painter, const Person& person, int frame) {
    constexpr float STRETCH = 22.0F;
    const float walked = progress(frame, person.start, 1) * STRETCH;
    const float x = person.toRight ? walked - STRETCH / 2.0F : STRETCH / 2.0F - walked;
    const float stride = 0.16F * std::sin(walked * 6.0F);
    const Color trousers(48, 52, 66);
    painter.ground(Color(80, 20, 22, 26), x - 0.35F, x + 0.35F, person.away - 0.2F, person.away + 0.25F);
    painter.front(trousers, x - 0.16F + stride, x + 0.02F + stride, 0.0F, 0.85F, person.away);
    painter.front(trousers, x - 0.02F - stride, x + 0.16F - stride, 0.0F, 0.85F, person.away);
    painter.front(person.coat, x - 0.25F, x + 0.25F, 0.75F, 1.45F, person.away);
    painter.ball(Color(206, 170, 146), {x, 1.62F, person.away}, 0.16F);
}

void paintTraffic(Painter& painter, int frame) {
    static const Car CARS[] = {
        {-5.25F, 0.10F, 1, 4.4F, 1.50F, Color(170, 44, 40)}, {-5.25F, 0.55F, 1, 4.6F, 1.45F, Color(226, 226, 222)},
        {-1.75F, 0.32F, 2, 4.5F, 1.48F, Color(44, 84, 150)}, {1.75F, 0.20F, 2, 4.4F, 1.50F, Color(206, 164, 40)},
        {5.25F, 0.48F, 1, 8.5F, 3.10F, Color(64, 122, 92)},  {5.25F, 0.92F, 1, 4.4F, 1.50F, Color(120, 124, 130)},
        {-1.75F, 0.80F, 2, 4.4F, 1.52F, Color(60, 64, 70)},
    };
    static const Person PEOPLE[] = {
        {0.05F, true, 21.8F, Color(176, 60, 52)},
        {0.46F, false, 22.8F, Color(58, 96, 160)},
        {0.72F, true, 23.6F, Color(210, 180, 90)},
    };
    constexpr float STRETCH = 120.0F;
    std::vector<std::pair<float, const Car*>> order;
    for (const Car& car : CARS) {
        const float driven = progress(frame, car.start, car.rounds) * STRETCH;
        order.emplace_back(NEAREST + (car.lane < 0.0F ? STRETCH - driven : driven), &car);
    }
    std::sort(order.begin(), order.end(), [](const auto& a, const auto& b) { return a.first > b.first; });

    bool peoplePainted = false;
    for (const auto& [closer, car] : order) {
        if (!peoplePainted && closer < CROSSING_NEAR) {
            std::for_each(std::rbegin(PEOPLE), std::rend(PEOPLE),
                          [&](const Person& p) { paintPerson(painter, p, frame); });
            peoplePainted = true;
        }
        paintCar(painter, *car, closer);
    }
    if (!peoplePainted) {
        std::for_each(std::rbegin(PEOPLE), std::rend(PEOPLE), [&](const Person& p) { paintPerson(painter, p, frame); });
    }
}

void paintClock(Gdiplus::Graphics& graphics, int frame) {
    const auto twoDigits = [](int value) { return std::to_wstring(value / 10 % 10) + std::to_wstring(value % 10); };
    const int rate = static_cast<int>(FRAMES_PER_SECOND);
    const std::wstring text =
        L"CAM 01   08:15:" + twoDigits(frame / rate) + L"." + twoDigits(frame % rate * 100 / rate);
    const Gdiplus::Font font(L"Liberation Mono", 30.0F, Gdiplus::FontStyleBold, Gdiplus::UnitPixel);
    const Gdiplus::SolidBrush shadow(Color(150, 0, 0, 0));
    const Gdiplus::SolidBrush ink(Color(236, 236, 236));
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
    graphics.DrawString(text.c_str(), -1, &font, Gdiplus::PointF(26.0F, 22.0F), &shadow);
    graphics.DrawString(text.c_str(), -1, &font, Gdiplus::PointF(24.0F, 20.0F), &ink);
}

} // namespace

StreetVideo::StreetVideo() {
    m_empty.resize(DRAWN);
    Gdiplus::Bitmap bitmap(DRAWN.width, DRAWN.height, DRAWN.width * 4, PixelFormat32bppRGB,
                           reinterpret_cast<BYTE*>(m_empty.pixels.data()));
    Gdiplus::Graphics graphics(&bitmap);
    Painter painter(graphics);
    paintSky(graphics);
    paintGround(painter);
    paintBuildings(painter);
    for (const float away : {88.0F, 66.0F, 48.0F, 33.0F}) {
        paintTree(painter, -9.4F, away);
        paintTree(painter, 9.4F, away - 5.0F);
    }
}

Size StreetVideo::size() const {
    return SHOWN;
}

int StreetVideo::frameCount() const {
    return FRAMES;
}

double StreetVideo::framesPerSecond() const {
    return FRAMES_PER_SECOND;
}

Frame StreetVideo::frame(int index) {
    Frame drawn = m_empty;
    Gdiplus::Bitmap bitmap(DRAWN.width, DRAWN.height, DRAWN.width * 4, PixelFormat32bppRGB,
                           reinterpret_cast<BYTE*>(drawn.pixels.data()));
    Gdiplus::Graphics graphics(&bitmap);
    Painter painter(graphics);
    paintTraffic(painter, index);
    paintClock(graphics, index);
    return scaled(drawn, SHOWN);
}

} // namespace rule_editor

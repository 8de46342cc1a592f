#include "support/recording_surface.h"

#include <cmath>
#include <cstring>
#include <sstream>

namespace rulecanvas::test {
namespace {

std::string Number(double value) {
    std::ostringstream out;
    out.precision(9);
    const double rounded = std::round(value * 100.0) / 100.0;
    out << (rounded == 0.0 ? 0.0 : rounded); // no "-0"
    return out.str();
}

std::string Box(const PointF& from, const PointF& to) {
    return Written(from) + "-" + Written(to);
}

std::string Colour(const ColorF& colour) {
    std::string name = Number(colour.red) + "," + Number(colour.green) + "," + Number(colour.blue);
    if (name == "255,255,0") {
        name = "yellow";
    } else if (name == "0,0,255") {
        name = "blue";
    }
    return colour.alpha == 1.0F ? name : name + "@" + Number(colour.alpha);
}

std::string Pen(float width, const ColorF& colour, int32_t penStyle) {
    return " w" + Number(width) + " " + Colour(colour) + (penStyle == 0 ? "" : penStyle == 1 ? " dashed" : " pen?");
}

bool HasDefaultFace(const TextStyle& style) {
    return std::strcmp(style.face, "MS Sans Serif") == 0;
}

class RecordingSurface final : public IContainerGraphics {
  public:
    explicit RecordingSurface(std::function<void()> onCall) : called(std::move(onCall)) {}

    Lines calls;

    void DrawLine(const PointF* from, const PointF* to, float width, const ColorF* colour, int32_t penStyle) override {
        Write("line " + Box(*from, *to) + Pen(width, *colour, penStyle));
    }
    void DrawText(const PointF* at, const TextStyle* style, const char* text, int32_t first, int32_t second) override {
        Write("text " + Written(*at) + " \"" + text + "\" size " + Number(style->size) + " " + Colour(style->colour) +
              (HasDefaultFace(*style) ? "" : std::string(" in ") + style->face) +
              (first == 0 && second == 1 ? "" : " wrong last arguments"));
    }
    void DrawTextEx(const PointF* /*at*/, const TextStyle* /*style*/, const char* /*text*/) override {
        Write("DrawTextEx is never called");
    }
    void FillEllipse(const PointF* corner1, const PointF* corner2, float width, ColorF fill,
                     const ColorF* outline) override {
        Write("fill-ellipse " + Box(*corner1, *corner2) + Pen(width, fill, 0) +
              (Colour(fill) == Colour(*outline) ? "" : " outline " + Colour(*outline)));
    }
    void DrawEllipse(const PointF* corner1, const PointF* corner2, float width, const ColorF* colour) override {
        Write("ellipse " + Box(*corner1, *corner2) + Pen(width, *colour, 0));
    }
    void DrawRectangle(const PointF* topLeft, const PointF* bottomRight, float width, const ColorF* colour,
                       int32_t penStyle) override {
        Write("rect " + Box(*topLeft, *bottomRight) + Pen(width, *colour, penStyle));
    }
    float MeasureText(TextStyle /*style*/, const char* text) override {
        return 7.0F * static_cast<float>(std::strlen(text));
    }
    float MeasureTextHeight(TextStyle /*style*/, const char* /*text*/) override { return 12.0F; }
    void DrawTextAtPoints(const char* text, const PointF* points, int32_t count, ColorF colour, int32_t format,
                          ClientRect clip, int32_t last) override {
        std::ostringstream out;
        out << "caption \"" << text << "\" at ";
        for (int32_t i = 0; i < count; ++i) {
            out << Written(points[i]);
        }
        out << " " << Colour(colour) << " clip " << clip.left << "," << clip.top << "," << clip.right << ","
            << clip.bottom << (format == 32 && last == 1 ? "" : " wrong last arguments");
        Write(out.str());
    }
    void BeginLayer() override { Write("layer"); }
    void EndLayer(int32_t x, int32_t y) override {
        Write("layer-end (" + std::to_string(x) + "," + std::to_string(y) + ")");
    }
    void SetLayerSize(int32_t width, int32_t height) override {
        Write("layer-size " + std::to_string(width) + "x" + std::to_string(height));
    }
    void FillRectangle(const PointF* topLeft, const PointF* bottomRight, const ColorF* colour) override {
        Write("fill " + Box(*topLeft, *bottomRight) + " " + Colour(*colour));
    }

  private:
    void Write(const std::string& call) {
        calls.push_back(call);
        called();
    }

    std::function<void()> called;
};

} // namespace

std::string Written(const PointF& point) {
    return "(" + Number(point.x) + "," + Number(point.y) + ")";
}

Lines Drawn(const std::function<void(IContainerGraphics&)>& paint, std::function<void()> onCall) {
    RecordingSurface surface(std::move(onCall));
    paint(surface);
    return surface.calls;
}

} // namespace rulecanvas::test

// Draws rules on a picture and writes the result as a PNG file: stored ones and one that the "user" drags out.
//
// usage: cairo_host OUTPUT.png [PICTURE.png]
#include "cairo_surface.hpp"

#include <cstdio>
#include <memory>

namespace {

using rulecanvas::ClientRect;
using rulecanvas::MouseCode;

struct EndSurface {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct EndContext {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using Picture = std::unique_ptr<cairo_surface_t, EndSurface>;
using Context = std::unique_ptr<cairo_t, EndContext>;

constexpr rulecanvas::ViewID View = 0;

struct StoredRule {
    const char* type;
    const char* name;
    const char* caption;
    const char* configuration;
    const char* option;
    int32_t red, green, blue;
    int32_t direction;
};

constexpr StoredRule StoredRules[] = {
    {"Polygon", "area", "Loitering", R"({"area":[[900,5200],[3600,4700],[4000,7300],[600,7600]]})",
     R"({"UnSelLineThickness":3})", 60, 230, 110, -1},
    {"XLineShape", "gate", "Gate", R"({"gate":[[4600,7200],[5400,5200],[6300,4900]]})", "", 255, 235, 60, 2},
    {"OvalShape", "tree", "Tree", R"({"OvalShape":[[5800,1200],[7600,4300]]})", "", 110, 230, 255, -1},
    {"Rect", "sign", "", R"({"sign":[[700,2600],[2300,3900]]})", R"({"mosaic":{"enable":true,"size":12}})", 240, 240,
     240, -1},
};

/// Sky, a horizon and a road, for those who give no picture.
Picture PaintStreet() {
    constexpr int width = 640;
    constexpr int height = 480;
    Picture picture(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height));
    const Context context(cairo_create(picture.get()));
    cairo_set_source_rgb(context.get(), 0.55, 0.65, 0.75);
    cairo_paint(context.get());
    cairo_set_source_rgb(context.get(), 0.35, 0.42, 0.33);
    cairo_rectangle(context.get(), 0, 220, width, height);
    cairo_fill(context.get());
    cairo_set_source_rgb(context.get(), 0.3, 0.3, 0.32);
    cairo_move_to(context.get(), 300, 220);
    cairo_line_to(context.get(), 360, 220);
    cairo_line_to(context.get(), 620, height);
    cairo_line_to(context.get(), 40, height);
    cairo_fill(context.get());
    return picture;
}

void AddStoredRules(rulecanvas::Container& container) {
    for (const StoredRule& rule : StoredRules) {
        rulecanvas::ShapeSettings settings;
        settings.view = View;
        settings.type = rule.type;
        settings.label = "rule";
        settings.name = rule.name;
        settings.configuration = rule.configuration;
        settings.option = rule.option;
        const rulecanvas::ShapeID shape = container.AddShape(settings);
        if (shape == 0) {
            std::fprintf(stderr, "refused: %s\n", rule.name);
            continue;
        }
        container.SetCaption(shape, rule.caption);
        container.SetColour(shape, rulecanvas::Outline::Unselected, rule.red, rule.green, rule.blue);
        container.SetDirection(shape, rule.direction);
        container.SelectShape(shape, false);
    }
}

/// What a window's events do when the user draws an arrow.
void DrawByHand(rulecanvas::Container& container) {
    rulecanvas::ShapeSettings settings;
    settings.view = View;
    settings.type = "ArrowLineShape";
    settings.label = "rule";
    settings.name = "flow";
    const rulecanvas::ShapeID shape = container.AddShape(settings);
    container.SetColour(shape, rulecanvas::Outline::Selected, 255, 90, 90);
    container.SetDirection(shape, 3);
    container.SendMouse(MouseCode::LeftDown, View, 250, 100);
    container.SendMouse(MouseCode::Moved, View, 420, 160);
    container.SendMouse(MouseCode::LeftUp, View, 420, 160);
    std::printf("%s\n", container.Configuration(shape).c_str());
}

void DrawRules(cairo_surface_t* picture) {
    const ClientRect area = {0, 0, cairo_image_surface_get_width(picture), cairo_image_surface_get_height(picture)};
    rulecanvas::Container container;
    container.OnClientRect([area](rulecanvas::ViewID) { return area; });
    container.Enable();
    AddStoredRules(container);
    DrawByHand(container);

    const Context context(cairo_create(picture));
    CairoSurface surface(context.get());
    container.Paint(View, surface);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::fputs("usage: cairo_host OUTPUT.png [PICTURE.png]\n", stderr);
        return 2;
    }
    const Picture picture = argc == 3 ? Picture(cairo_image_surface_create_from_png(argv[2])) : PaintStreet();
    if (cairo_surface_status(picture.get()) != CAIRO_STATUS_SUCCESS) {
        std::fprintf(stderr, "cannot read %s\n", argv[2]);
        return 1;
    }
    DrawRules(picture.get());
    if (cairo_surface_write_to_png(picture.get(), argv[1]) != CAIRO_STATUS_SUCCESS) {
        std::fprintf(stderr, "cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}

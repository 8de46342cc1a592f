// Configuration texts: loaded into an empty container, written from a full one; and the same texts through JsonCpp alone.

#include "scene.h"
#include "stopwatch.h"

#include <json/reader.h>
#include <json/writer.h>

#include <memory>
#include <sstream>

namespace rulecanvas::bench {
namespace {

constexpr int TextRoom = 4096;

void Load(benchmark::State& state, Kind kind) {
    const std::vector<std::string> configurations = ConfigurationsOf(kind, CountOf(state));
    Scene scene(kind);
    for (auto _ : state) {
        const Stopwatch watch;
        for (const std::string& configuration : configurations) {
            scene.Load(configuration);
        }
        state.SetIterationTime(watch.Seconds());
        scene.container.DeleteAllShapes();
    }
}

Points PointsOf(const Json::Value& root) {
    Points points;
    for (const Json::Value& point : root["zone"]) {
        points.push_back({static_cast<float>(point[0].asInt() * ViewRect.right / static_cast<double>(GridSpan)),
                          static_cast<float>(point[1].asInt() * ViewRect.bottom / static_cast<double>(GridSpan))});
    }
    return points;
}

void LoadBare(benchmark::State& state, Kind kind) {
    const std::vector<std::string> configurations = ConfigurationsOf(kind, CountOf(state));
    Json::CharReaderBuilder builder;
    builder["collectComments"] = false;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    for (auto _ : state) {
        std::vector<Points> figures;
        const Stopwatch watch;
        for (const std::string& text : configurations) {
            Json::Value root;
            std::string errors;
            reader->parse(text.data(), text.data() + text.size(), &root, &errors);
            figures.push_back(PointsOf(root));
        }
        state.SetIterationTime(watch.Seconds());
    }
}

/// One text after the other.
void Write(benchmark::State& state) {
    const Scene& scene = Scene::Of(Kind::Polygon, CountOf(state));
    char text[TextRoom];
    size_t next = 0;
    for (auto _ : state) {
        const ShapeID shape = scene.shapes[next++ % scene.shapes.size()];
        benchmark::DoNotOptimize(GetVideoAnalyseShapeConfigData(scene.container.Handle(), shape, text, TextRoom));
    }
}

Json::Value GeometryOf(const Points& points) {
    Json::Value geometry(Json::arrayValue);
    for (const PointF& point : points) {
        Json::Value pair(Json::arrayValue);
        pair.append(OnGrid(point.x, ViewRect.right));
        pair.append(OnGrid(point.y, ViewRect.bottom));
        geometry.append(std::move(pair));
    }
    return geometry;
}

void WriteBare(benchmark::State& state) {
    std::vector<Points> figures;
    for (int index = 0; index < CountOf(state); ++index) {
        figures.push_back(FigureAt(Kind::Polygon, index));
    }
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    const std::unique_ptr<Json::StreamWriter> writer(builder.newStreamWriter());
    size_t next = 0;
    for (auto _ : state) {
        Json::Value root;
        root["zone"] = GeometryOf(figures[next++ % figures.size()]);
        std::ostringstream text;
        writer->write(root, &text);
        benchmark::DoNotOptimize(text.str().data());
    }
}

[[maybe_unused]] const bool registered = [] {
    for (const Kind kind : Kinds) {
        RegisterFor(kind, "load a text/ours", &Load)->UseManualTime();
        RegisterFor(kind, "load a text/bare", &LoadBare)->UseManualTime();
    }
    return true;
}();

BENCHMARK(Write)->Name("write a text/ours/Polygon")->Apply(ForAllCounts);
BENCHMARK(WriteBare)->Name("write a text/bare/Polygon")->Apply(ForAllCounts);

} // namespace
} // namespace rulecanvas::bench

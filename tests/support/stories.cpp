#include "support/stories.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

namespace rulecanvas::test {

std::string Rule(std::string points, const std::string& name) {
    if (points.empty() || points == Refused || std::string("{[\xEF").find(points[0]) != std::string::npos) {
        return points;
    }
    for (size_t at = points.find(' '); at != std::string::npos; at = points.find(' ')) {
        points.replace(at, 1, "],[");
    }
    return "{\"" + name + "\":[[" + points + "]]}";
}

std::string ReadBack(ScenarioHost& host, ShapeID shape) {
    return shape == 0 ? Refused : host.Config(shape);
}

void Act(ScenarioHost& host, const std::string& words) {
    static const std::map<std::string, void (ScenarioHost::*)(float, float)> gestures{
        {"press", &ScenarioHost::Press},
        {"move", &ScenarioHost::Move},
        {"release", &ScenarioHost::Release},
        {"click", &ScenarioHost::Click},
        {"right", &ScenarioHost::RightPress}};
    std::istringstream in(words);
    std::string verb;
    PointF at{};
    PointF end{};
    while (in >> verb >> at.x >> at.y) {
        if (verb == "drag" && in >> end.x >> end.y) {
            host.Drag(at, end);
        } else if (verb == "limits") {
            host.container.SetPointLimits(host.container.SelectedShape(), static_cast<int>(at.x),
                                          static_cast<int>(at.y));
        } else {
            (host.*gestures.at(verb))(at.x, at.y);
        }
    }
    EXPECT_TRUE(in.eof()) << words;
}

std::string Heard(ScenarioHost& host) {
    std::string heard;
    for (const std::string& entry : host.TakeLog()) {
        const std::string word = entry == "select rule" ? "select" : entry.substr(entry.rfind(' ') + 1);
        heard += (heard.empty() ? "" : " ") + word;
    }
    return heard;
}

void Check(const std::vector<Story>& stories) {
    for (const Story& story : stories) {
        SCOPED_TRACE(story.type + (" " + story.option) + " " + story.begin + ": " + story.acts);
        GridHost host(story.type, Rule(story.begin), story.option);
        Act(host, story.acts);
        EXPECT_EQ(Heard(host), story.heard);
        EXPECT_EQ(ReadBack(host, host.shape), Rule(story.end));
    }
}

} // namespace rulecanvas::test

// What every type makes of a configuration text, and when it hands its own one out.

#include "support/stories.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace rulecanvas::test {
namespace {

/// A type, its option, a configuration and what is read back: points or a whole text.
struct Reading {
    const char* type;
    const char* option;
    std::string config;
    std::string readBack;
    const char* name = "rule";
};

void Check(const std::vector<Reading>& readings) {
    for (const Reading& reading : readings) {
        ScenarioHost host(GridView, GridView);
        host.container.SetVideoSize(640, 480);
        const std::string config = Rule(reading.config, reading.name);
        const ShapeID shape = host.Add(reading.type, config, reading.option, reading.name);
        EXPECT_EQ(ReadBack(host, shape), Rule(reading.readBack, reading.name))
            << reading.type << " " << reading.option << " " << config;
    }
}

TEST(Configurations, OfARectangle) {
    Check({
        {"Rect", "", R"({"rule":[[200,300],[100,100]]} and more)", "100,100 200,300"},
        {"Rect", "", "100.6,100 200,2e2", "101,100 200,200"},
        {"Rect", "", "100,100 9e9,9e9", "100,100 8191,8191"},
        {"Rect", "", "100,100 100,100", ""},
        {"Rect", "", "100,100 109,200", ""},
        {"Rect", "", "100,100", Refused},
        {"Rect", "", "100,100 200,200 300,300", Refused},
        {"Rect", "", R"({"rule":{"0":[1,1],"1":[2,2]}})", Refused},
        {"Rect", "", R"({"rule":[["a",100],[200,200]]})", Refused},
        {"Rect", "", R"({"rule":[100,200]})", Refused},
        {"Rect", "", R"({"Rule":[[100,100],[200,200]]})", Refused},
        {"Rect", "", "[[100,100],[200,200]]", Refused},
        {"Rect", "", "{", Refused},
        {"Rect", "", R"({"rule":[[100,100],[200,200],]})", Refused},
        {"Rect", "", R"({"rule":[[100,100],[200,200]],})", Refused},
        {"Rect", "", "\xEF\xBB\xBF{\"rule\":[[100,100],[200,200]]}", Refused},
        {"Rect", R"({"ShapeColor":[{"ColorName":{}}]})", "", Refused}, // not convertible
        {"Rect", R"({"mosaic":{"enable":[]}})", "", Refused},
        {"Rect", R"({"ShapeColor":{"SelColor":{}}})", "", Refused},
        {"Rect", R"({"ShapeColor":{}})", "", ""},
    });
    ScenarioHost host;
    for (const size_t depth : {99U, 100U, 100000U}) { // the rectangle is one level deeper
        const std::string nested = std::string(depth, '[') + std::string(depth, ']');
        const ShapeID shape = host.Add("Rect", R"({"rule":[[1,1],[90,90]],"x":)" + nested + "}");
        EXPECT_EQ(shape != 0, depth < 100) << depth << ": too deep for the stack of a host";
        host.container.DeleteAllShapes();
        host.Add("Rect", R"({"rule":[[0,0],[8191,8191]]})", R"({"LineThickness":5,"x":)" + nested + "}");
        EXPECT_EQ(host.Paint()[1], depth < 100 ? "rect (0,0)-(800,600) w5 yellow" : "rect (0,0)-(800,600) w2 yellow");
    }
}

TEST(Configurations, OfOvalsAndPixelCounts) {
    Check({
        {"OvalShape", "", R"({"OvalShape":[[300,200],[100,9999]]})", "300,200 100,9999"},
        {"OvalShape", "", R"({"OvalShape":[null,[5,6]]})", "0,0 5,6"},
        {"OvalShape", "", "100,100 200,180", Refused},
        {"OvalShape", "", R"({"OvalShape":[[100,100]]})", Refused},
        {"OvalShape", "", "[", Refused},
        {"PixelCountShape", "", R"({"rule":[320]})", Refused},
        {"PixelCountShape", "", "{", Refused},
        {"PixelCountShape", "", R"({"rule":[320,"a"]})", Refused},
        {"PixelCountShape", "", R"({"rule":[320,240]})", ""}, // no corners yet
    });
}

TEST(Configurations, OfLines) {
    const std::string five = "1,9 2,9 3,9 4,9 5,9";
    const std::string twenty = five + " " + five + " " + five + " " + five;
    Check({
        {"LineShape", "", R"({"rule":[[1.9,2],[3,4],["x"]]})", "1,2 3,4"},
        {"LineShape", "", "1,2", Refused},
        {"LineShape", "", R"({"rule":[})", Refused},
        {"LineShape", "", R"({"rule":{"0":[1,1],"1":[2,2]}})", Refused},
        {"LineShape", "", "0,100 100,100", "0,100 8191,100", "StopLine"},
        {"LineShape", "", "200,200 100,100", "0,0 8191,8191", "ForLine"},
        {"LineShape", "", "7,50 7,90", "7,0 7,8191", "BackLine"},
        {"LineShape", "", "7,9 7,9", "7,9 7,9", "DetectLine"},
        {"LineShape", "", "7,9 9000,9", "7,9 9000,9", "ParkLine"},
        {"XLineShape", "", twenty + " 6,9", twenty}, // where a line may bend
        {"ArrowLineShape", R"({"XArrowLine":true})", twenty + " 6,9", twenty},
    });
    ScenarioHost host(1000, 500);
    host.Add("LineShape", Rule("0,100 100,100", "MiddleLine"), "", "MiddleLine");
    EXPECT_EQ(host.Paint()[0], "line (0,6)-(8191,6) w2 yellow") << "the grid's span counts as pixels";
}

TEST(Configurations, OfPaths) {
    std::string twenty = "1,1";
    while (twenty.size() < 20 * 4 - 1) {
        twenty += " 1,1";
    }
    Check({
        {"Polygon", "", R"({"rule":[[100.6,100],null,[200,1e2],[200,200]]})", "101,100 200,100 200,200"},
        {"Polygon", "", "1,1 9,9", ""}, // complete, but not written
        {"Polygon", "", R"({"rule":[5]})", Refused},
        {"Polygon", "", twenty + " 1,1", Refused},
        {"BrokenLine", "", R"({"rule":[5,[1,1],{},[9.6,9]]})", "1,1 10,9"},
        {"BrokenLine", "", twenty, twenty},
    });
}

TEST(Configurations, OfMarkers) {
    Check({
        {"CrossShape", "7", R"({"rule":[[1,2],null]})", "1,2 0,0"},
        {"CrossShape", "", R"({"rule":[]})", R"({"rule":[]})"},
        {"CrossShape", "2", "{}", "0,0 0,0"},
        {"CrossShape", "-5", "{}", "0,0"},
        {"CrossShape", "0", "{}", "0,0"},
        {"CrossShape", "2000000000", "{}", "0,0"},
        {"CrossShape", "1025", "{}", "0,0"},
        {"CrossShape", "", "{", Refused},
        {"BigCrossShape", "", R"({"rule":[[0,1,2,3],[9],[0,1,2,3]]})",
         R"({"rule":[[0,1,8191,3],[9,0,11,8191],[0,1,8191,3],[0,0,2,8191]]})"}, // what is missing is zero
        {"BigCrossShape", "", R"({"rule":[5]})", Refused},
        {"SpotShape", "solid", R"({"rule":[[40,50],[1,1]],"radius":8})", "40,50"}, // the radius is not written back
        {"SpotShape", "", "{}", Refused},
        {"SpotShape", "", R"({"rule":[[40,50]])", Refused},
        {"SpotShape", "", R"({"rule":[]})", ""},
    });
    ScenarioHost host;
    EXPECT_NE(host.Add("BigCrossShape", R"({"rule":[[0,2147483647],[2147483647],[0,0],[0]]})"), 0U);
    const std::string most = host.Config(host.Add("CrossShape", "{}", "1024"));
    EXPECT_EQ(std::count(most.begin(), most.end(), '['), 1025);
}

/// How a text goes into a buffer that is one byte longer than the text with its line feed.
struct CopyingRule {
    std::vector<std::string> types;
    int beyondText; ///< The least size.
    std::string behindLine;
    std::string behindLineWithRoom;
};

void CheckCopying(const Type& type, const CopyingRule& rule) {
    ScenarioHost host(GridView, GridView);
    host.container.SetVideoSize(GridView, GridView);
    const ShapeID shape = host.Add(type.name, type.config);
    host.Paint(); // which places a pixel counter
    const std::string line = host.Config(shape);
    const std::string untouched(line.size() + 2, '#');
    const int least = static_cast<int>(line.size()) + 1 + rule.beyondText;
    for (const int size : {INT32_MIN, -1, 0, 1, least - 1, least, least + 1}) {
        std::string buffer = untouched;
        const uint32_t copied = GetVideoAnalyseShapeConfigData(host.container.Handle(), shape, buffer.data(), size);
        EXPECT_EQ(copied, size >= least ? 1U : 0U) << type.name << size;
        EXPECT_EQ(buffer, size < least    ? untouched
                          : size == least ? line + rule.behindLine
                                          : line + rule.behindLineWithRoom)
            << type.name << size;
    }
    EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.Handle(), shape, nullptr, least), 0U) << type.name;
}

TEST(Configurations, AreCopiedIntoABufferByTheRuleOfTheirType) {
    const std::string zero(1, '\0');
    const CopyingRule lines{{}, 0, zero + "#", zero + "#"}; // without the line feed
    const CopyingRule others[] = {
        {{"Rect", "OvalShape", "PixelCountShape"}, 1, "\n" + zero, "\n" + zero},
        {{"Polygon", "VirablePolygon", "CrossShape", "BigCrossShape", "SpotShape"}, 0, "\n#", "\n" + zero},
    };
    for (const Type& type : Types) {
        const auto* const rule = std::find_if(std::begin(others), std::end(others), [&](const CopyingRule& each) {
            return std::count(each.types.begin(), each.types.end(), type.name) > 0;
        });
        CheckCopying(type, rule == std::end(others) ? lines : *rule);
    }
}

} // namespace
} // namespace rulecanvas::test

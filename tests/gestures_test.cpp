// What comes of gestures: what the host hears, and where a figure is then.

#include "support/stories.h"

#include <gtest/gtest.h>

namespace rulecanvas::test {
namespace {

constexpr const char* Square = "100,100 200,100 200,200 100,200";
constexpr const char* Hook = "100,100 200,100 200,200";
constexpr const char* Five = "100,100 200,100 200,200 150,250 100,200";
constexpr const char* Box = "100,100 200,200";
constexpr const char* Level = "100,100 200,100";

TEST(Gestures, OnRectangles) {
    Check({
        {"Rect", "", "", "drag 100 100 200 200", "on redraw off 2>3", Box},
        {"Rect", "", "", "drag 200 100 100 200", "on redraw off 2>3", Box},
        {"Rect", "", "", "drag 200 200 100 100", "on redraw off 2>3", Box},
        {"Rect", "", "", "drag 100 200 200 100", "on redraw off 2>3", Box},
        {"Rect", "", Box, "drag 104 96 50 60", Reshaped, "50,60 200,200"},
        {"Rect", "", Box, "drag 200 100 260 90", Reshaped, "100,90 260,200"},
        {"Rect", "", Box, "drag 200 200 9000 300", Reshaped, "100,100 8191,300"},
        {"Rect", "", Box, "drag 100 200 -50 210", Reshaped, "0,100 200,210"},
        {"Rect", "", Box, "drag 200 200 50 50", Reshaped, "50,50 100,100"},
        {"Rect", "", Box, "drag 200 200 109 300", Reshaped, Box}, // too narrow

        {"Rect", "", Box, "press 150 150 move 160 170", "select on", "110,120 210,220"},
        // A step out of the view is refused whole and does not move the anchor.
        {"Rect", "", Box, "press 150 150 move 160 170 move 10 170 move 10 190 release 10 190", Moved,
         "110,120 210,220"},
        {"Rect", "", Box, "press 150 150 move 10 170 move 60 180 release 60 180 move 300 300", Moved, "10,130 110,230"},

        {"Rect", "", Box, "right 150 150", "", Box},
        {"Rect", "EnableRBtnDelete", Box, "right 300 300", "", Box},
        {"Rect", "EnableRBtnDelete", Box, "right 150 150 click 150 150 move 9 9 right 150 150", Removed,
         ""}, // hit once
    });
}

TEST(Gestures, OnLines) {
    const auto drag = [](const char* type, const char* option, const char* act, const char* end) {
        const bool moves = std::string(act).rfind("drag 150", 0) == 0;
        return Story{type, option, Level, act, moves ? Moved : Reshaped, end};
    };
    Check({
        drag("LineShape", "Horizon", "drag 150 102 180 122", "100,120 200,120"),
        drag("LineShape", "MovedHLine", "drag 150 102 180 122", "100,120 200,120"),
        drag("ArrowLineShape", "Horizon", "drag 150 102 180 122", "130,120 230,120"),
        drag("LineShape", R"({"CanMove":false})", "drag 150 102 180 122", Level),
        drag("LineShape", "", "drag 97 103 50.9 -9", "50,0 200,100"),
        drag("LineShape", "Horizon", "drag 97 103 50 60", "50,60 200,60"),
        drag("LineShape", "MovedHLine", "drag 200 100 250 60", Level),
        drag("VerticalLineShape", "", "drag 200 100 250 60", "100,100 100,60"),
        drag("HorizontalLineShape", "", "drag 97 103 50 60", "50,100 200,100"),
        drag("XLineShape", "", "drag 200 100 8192 60", Level),
        {"LineShape", "Horizon", "", "drag 100 100 200 150", "on redraw 2>3 off", Level},
        {"LineShape", "MovedHLine", "", "drag 100 100 200 150", "on redraw 2>3 off", Level},
    });
    for (const char* type : {"LineShape", "ArrowLineShape"}) {
        Check({
            {type, "", Level, "press 200 100 move 210 100", "select on", "100,100 210,100"},
            {type, "", Level, "press 200 100 move 210 100 release 220 100", Reshaped, "100,100 220,100"},
            // Let go at the border, it stays where the last good step left it.
            {type, "", Level, "press 150 100 move 60 90 move 49 80 move 60 70", "select on off", "10,90 110,90"},
        });
    }
    Check({{"ArrowLineShape", R"({"XArrowLine":true})", "", "click 100 100 click 200 100 click 200 200 right 9 9",
            "on 2>3 off", Hook}});
}

TEST(Gestures, OnCrosses) {
    const char* const dragged = "on 5>3";
    const char* const three = "100,100 108,100 300,300";
    Check({
        // A press jumps to a cross that is alone; neither a move outside nor the release counts.
        {"CrossShape", "", "100,100", "press 4000 9000 press 400 300", "on", "400,300"},
        {"CrossShape", "", "100,100", "press 400 300 move 410.5 310 move -1 310 release 500 500", dragged, "410,310"},
        {"CrossShape", "", three, "drag 94 100 50 50", "", three},                        // 6 pixels beside the first
        {"CrossShape", "", three, "drag 105 95 50 50", dragged, "50,50 108,100 300,300"}, // in two boxes
        {"CrossShape", "", three, "drag 305.5 300 9 9", "", three},
        {"CrossShape", "3", "", "click 100 100 click 200 100 limits 2 0 click 300 100", "on on 2>3", "100,100 200,100"},
    });
}

TEST(Gestures, OnSpots) {
    Check({
        // A click outside the view, then one inside it: nothing is reported, nothing follows the mouse.
        {"SpotShape", "", "", "click -1 100 press 100 100 move 150 150 release 150 150", "on redraw", "100,100"},
        {"SpotShape", "", "100,100", "press 103 104 move 113.7 104", "select on", "110,100"}, // by whole pixels
        // A step out of the view is refused.
        {"SpotShape", "", "110,100", "press 113 104 move 2 104 move 115 124 release 300 300", Moved, "112,120"},
    });
}

TEST(Gestures, OnOvals) {
    const std::string oval = R"({"OvalShape":[[100,100],[200,180]]})";
    const std::string corners = "100,100 200,180";
    Check({
        // A click goes on, by moves with the button up or without any; no oval is too narrow to be drawn.
        {"OvalShape", "", "", "click 100 100 move 101 150 release 101 150", "on redraw on 2>3 on", "100,100 101,150"},
        {"OvalShape", "", "", "click 10 10 release 20 30", "on 1>3 on", "10,10 20,30"},
        // Outside the ellipse, but inside its rectangle; a step out of the view is refused.
        {"OvalShape", "", oval, "press 106 106 move 116.5 126.5 move 5 126.5 release 5 126.5", Moved,
         "110,120 210,200"},
        {"OvalShape", "", oval, "click 130 100", Moved, corners},
        {"OvalShape", "", oval, "click 130 180", Moved, corners},
        {"OvalShape", "", oval, "click 100 120", Moved, corners},
        {"OvalShape", "", oval, "click 200 120", Moved, corners},
        // Each of the eight handles; the last drops make it too narrow, too low, and turn it over.
        {"OvalShape", "", oval, "drag 104 96 50 60", Reshaped, "50,60 200,180"},
        {"OvalShape", "", oval, "drag 150 100 190 90", Reshaped, "100,90 200,180"},
        {"OvalShape", "", oval, "drag 200 100 260 90", Reshaped, "100,90 260,180"},
        {"OvalShape", "", oval, "drag 200 140 260 60", Reshaped, "100,100 260,180"},
        {"OvalShape", "", oval, "drag 200 180 9000 300", Reshaped, "100,100 8191,300"},
        {"OvalShape", "", oval, "drag 150 180 90 300", Reshaped, "100,100 200,300"},
        {"OvalShape", "", oval, "drag 100 180 -50 210", Reshaped, "0,100 200,210"},
        {"OvalShape", "", oval, "drag 100 140 150 60", Reshaped, "150,100 200,180"},
        {"OvalShape", "", oval, "drag 200 180 103.9 300", Reshaped, corners},
        {"OvalShape", "", oval, "drag 200 180 300 103", Reshaped, corners},
        {"OvalShape", "", oval, "drag 200 180 104 96", Reshaped, "100,96 104,100"},
        {"OvalShape", "", oval, "click 97 120 click 300 300", "", corners}, // on the edge, but outside, and beside
    });
}

/// Paths of at most four points.
void CheckPaths(std::vector<Story> stories) {
    for (Story& story : stories) {
        story.acts = "limits 4 2 " + story.acts; // the minimum stays 3
    }
    Check(stories);
}

TEST(Gestures, OnPathsThatAreDrawn) {
    // The capture is asked for by the first press and again by every release.
    const char* const drawn = "on on on 2>3 off";
    CheckPaths({
        {"Polygon", "", "",
         "press 9000 9 click 100 100 click 200 100 right 9 9 press 203 103 press 9000 150 press 200 200 right 9 9",
         drawn, Hook},
        {"Polygon", "", "", "click 100 100 click 200 100 press 200 200 press 300 150 press 150 50 press 100 200", drawn,
         Square}, // the last point leaves room for the closing edge
        {"BrokenLine", "Convex", "", "click 100 100 click 200 100 press 200 104 press 190 102 right 9 9", drawn,
         "100,100 200,100 200,104"},
        // A move by 4000 pixels would round the third vertex onto the first edge.
        {"Polygon", "", "",
         "click 0 10 click 100 10 click 50 10.000002 press 0 50 press 10 20 move 10 4020 release 0 0",
         "on on on on 2>3 off select on 4>3 off", "0,10 100,10 50,10 0,50"},
        {"Polygon", "", "",
         "click 10 0 click 10 100 click 10.000002 50 click 50 0 press 20 10 move 4020 10 release 0 0",
         "on on on on 2>3 off select on 4>3 off", "10,0 10,100 10,50 50,0"},
        // What has a configuration of another rule is drawn; a single point is no broken line, but complete.
        {"Polygon", "", R"({"other":[[1,1]]})", "press 9 9", "on", ""},
        {"BrokenLine", "", "1,1", "press 9 9", "", ""},
    });
}

TEST(Gestures, ThrowAwayAPolygonThatItsClosingEdgeWouldCross) {
    const std::string crossed = "click 50 50 click 100 50 click 100 0 click 0 0 click 0 100 click 120 100 click 120 40";
    Check({{"Polygon", "", "", crossed + " right 0 0 move 200 200 release 200 200", "on on on on on on on on 2>1 off",
            ""},
           {"Polygon", "", "", crossed + " right 0 0 click 10 10 click 60 10 click 60 60 right 0 0",
            "on on on on on on on on 2>1 off on on on on 2>3 off", "10,10 60,10 60,60"}});
}

TEST(Gestures, OnPathsWithLimits) {
    const std::string hook = " click 100 100 right 9 9 click 200 100 right 9 9 click 200 200 right 9 9";
    const std::string more = " click 150 250 right 9 9";
    const std::string most = " click 100 200 right 9 9";
    const std::string end = " click 200 200 right 9 9 click 150 250 click 100 200 right 9 9";
    for (const char* type : {"Polygon", "BrokenLine"}) {
        Check({
            // As many points as the host asks for are needed, and at least three.
            {type, "", "", "limits 10 2" + hook, "on on on on 2>3 off", Hook},
            {type, "", "", "limits 10 3" + hook, "on on on on 2>3 off", Hook},
            {type, "", "", "limits 10 4" + hook + more, "on on on on on 2>3 off", "100,100 200,100 200,200 150,250"},
            {type, "", "", "limits 10 5" + hook + more + most, "on on on on on on 2>3 off", Five},
        });
        for (const std::string maximum : {"-1", "0", "1", "2"}) { // below the count: it is never met
            Check({{type, "", "", "click 100 100 click 200 100 limits " + maximum + " 4" + end,
                    "on on on on on on 2>3 off", Five}});
        }
    }
}

constexpr const char* RemovedWhileMoved = "select on off 4>0";
constexpr const char* RemovedWhileReshaped = "select on off 5>0";

TEST(Gestures, OnCompletePaths) {
    CheckPaths({
        {"Polygon", "", Square, "press 204 96 move 250.7 -5 move 150 300 release 9 9", Reshaped,
         "100,100 250,0 200,200 100,200"},
        {"Polygon", "", Square, "press 150 150 move 130 140 move 20 130 move 129 150 release 9 9", Moved,
         "79,100 179,100 179,200 79,200"},
        {"Polygon", "", Square, "right 150 150 right 200 150", "", Square},
        // Steps by fractions of a pixel; what was crossed or concave from the beginning may move as it is.
        {"Polygon", "", "0,0 300,0 300,300 0,300", "press 1.1 150 move 8100 150 move 160 150 release 9 9", Moved,
         "158,0 458,0 458,300 158,300"},
        {"Polygon", "", "100,100 200,200 200,100 100,200", "press 110.1 150 move 120 150 release 9 9", Moved,
         "109,100 209,200 209,100 109,200"},
        {"Polygon", "Convex", "100,100 200,100 150,120 100,200", "press 110.1 110 move 120 110 release 9 9", Moved,
         "109,100 209,100 159,120 109,200"},
        {"Polygon", "EnableRBtnDelete", Square, "right 250 150 right 150 150 right 150 150", Removed, ""},
        {"Polygon", "EnableRBtnDelete", Square, "right 203 150", Removed, ""},

        {"BrokenLine", "Convex", Square, "press 200 199 move 160 160 move 140 140 release 9 9", Reshaped,
         "100,100 200,100 160,160 100,200"},
        {"BrokenLine", "", Hook, "click 180 120 click 152 150 press 150 98", "", Hook}, // on no segment, or outside
        {"BrokenLine", "", Hook, "press 150 102 release 30 92 release 150 103.9", Moved,
         "100,101 200,101 200,201"}, // the first release would leave the view and lets nothing go
        {"BrokenLine", R"({"CanMove":false})", Hook, "press 150 102 move 140 92 release 9 9", Moved, Hook},
        {"BrokenLine", R"({"CanAdjust":false})", Hook, "click 150 102 click 200 100", "", Hook},
        {"BrokenLine", "EnableRBtnDelete", Hook, "right 148 152", "", Hook}, // beside the edge that would close it
        {"BrokenLine", "EnableRBtnDelete", Hook, "right 180 120", Removed, ""},
        {"BrokenLine", "EnableRBtnDelete", Hook, "right 150 98", Removed, ""},
        {"BrokenLine", "EnableRBtnDelete", Hook, "press 150 102 right 9 9 right 150 98", RemovedWhileMoved, ""},
        {"BrokenLine", "EnableRBtnDelete", Hook, "press 100 100 right 180 120", RemovedWhileReshaped, ""},
        {"BrokenLine", "", Hook, "press 100 100 right 180 120 release 100 100", Reshaped, Hook},

        {"VirablePolygon", "", Hook, "right 200 150 right 150 100", "", "100,100 200,100 200,150 200,200"},
        {"VirablePolygon", "", Hook, "right 150 153", "", "150,153 100,100 200,100 200,200"},
        {"VirablePolygon", "Convex", Hook, "right 150 103", "", "100,100 150,103 200,100 200,200"},
        {"VirablePolygon", "EnableRBtnDelete", Hook, "right 180 120", "", Hook}, // right presses are for vertices
    });
}

} // namespace
} // namespace rulecanvas::test

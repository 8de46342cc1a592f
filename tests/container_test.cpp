#include "support/scenario_host.h"

#include <gtest/gtest.h>

namespace rulecanvas::test {
namespace {

constexpr const char* Square = R"({"rule":[[1000,1000],[3000,3000]]})"; // in a view of 800 x 600: (98,73)-(293,220)
constexpr const char* Wider = R"({"rule":[[1000,1000],[3100,3100]]})";

/// The answers of the calls that name a shape, in the order of the exports.
std::vector<int64_t> AnswersFor(ContainerHandle container, ShapeID shape) {
    return {AddVideoAnalyseShape(container, shape, 1, 1, 1),
            DeleteVideoAnalyseShape(container, shape),
            SelectVideoAnalyseShape(container, shape, 1),
            SetVideoAnalyseShapeDirection(container, shape, 1),
            EnableVideoAnalyseShape(container, shape, 1),
            RedrawVideoAnalyseShape(container, shape),
            SetVideoAnalyseShapeShowName(container, shape, nullptr),
            ShowVideoAnalyseShape(container, shape, 0),
            SetAdjustBoxbShow(container, shape, 1),
            SetVideoAnalyseShapeColor(container, shape, 1, 1, 1, 1),
            SetVideoAnalyseShapeMaxPtNum(container, shape, 1, 1)};
}

TEST(Exports, AnswerUnknownContainersAndShapesAsEachIsDocumented) {
    ScenarioHost host;
    const ContainerHandle container = host.container.Handle();
    const ShapeID known = host.Add("Rect", Square);
    for (const ShapeID unknown : {0U, known + 1U, ~0U}) {
        EXPECT_EQ(AnswersFor(container, unknown), (std::vector<int64_t>{0, 1, 0, 0, 0, 0, 1, 1, 1, 0, 0}));
    }
    EXPECT_EQ(AddVideoAnalyseShape(container, known, 1, 1, 1), 0U) << "not a composite";
    EXPECT_EQ(SetVideoAnalyseShapeDirection(container, known, 1), 0) << "no parent";
    EXPECT_NE(host.Config(known), "") << "and the known one is as it was";

    const ContainerHandle released = CreateVideoAnalyseContainer(nullptr);
    ReleaseVideoAnalyseContainer(released);
    for (const ContainerHandle unknown : {0U, released, ~0U}) {
        CDelegate words{nullptr, nullptr};
        ContainerHandlerHolder holder{nullptr, nullptr};
        ReleaseVideoAnalyseContainer(unknown);
        SetContainerNotifyEventDelegate(unknown, &words);
        SetAdjustPointCoordinateDelegate(unknown, &words);
        DeleteAllVideoAnalyseShape(unknown);
        SetPixelCount(unknown, 1, 1);
        EXPECT_EQ(AnswersFor(unknown, known), std::vector<int64_t>(11, 0));
        EXPECT_EQ(CreateMainVideoAnalyseShape(unknown, 1, "", "Rect", "", "", ""), 0U);
        EXPECT_EQ(GetContainerWinMouseEventHandler(unknown, &holder), 0U);
        EXPECT_EQ(GetContainerDrawEventHandler(unknown, &holder), 0U);
        EXPECT_EQ(EnableVideoAnalyseContainer(unknown, 1), 0U);
        EXPECT_EQ(SetGetContainerRectClientDelegate(unknown, &words), 0U);
        EXPECT_EQ(SetCtrlContainerWinMouseCaptureDelegate(unknown, &words), 0U);
        EXPECT_EQ(GetSelectedVideoAnalyseShapeID(unknown), 0U);
        EXPECT_EQ(SetContainerTranslateDelegate(unknown, &words), 0U);
        EXPECT_EQ(SetVideoAnalyseContainerTip(unknown, 1, "x"), 0U);
        EXPECT_EQ(InvalidateAllShape(unknown), 0U);
        EXPECT_EQ(holder.handler, nullptr);
    }
}

TEST(Exports, TakeNullTextsAndNullPointers) {
    ScenarioHost host;
    const ContainerHandle container = host.container.Handle();
    for (const char* type : {"rect", "Rect ", "", "LaneShape", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(CreateMainVideoAnalyseShape(container, TheView, "", type, "", "", ""), 0U);
    }
    EXPECT_EQ(SetGetContainerRectClientDelegate(container, nullptr), 0U);
    EXPECT_EQ(GetContainerWinMouseEventHandler(container, nullptr), 0U);
    SetContainerNotifyEventDelegate(container, nullptr);
    SetVideoAnalyseContainerTip(container, TheView, nullptr);
    const ShapeID shape = CreateMainVideoAnalyseShape(container, TheView, nullptr, "Rect", nullptr, nullptr, nullptr);
    ASSERT_NE(shape, 0U);
    SetVideoAnalyseShapeShowName(container, shape, nullptr);
    EXPECT_EQ(host.lastEventText,
              "{\"EventName\":\"\",\"EventParam\":{\"ShapeID\":" + std::to_string(shape) + ".0,\"ShapeName\":\"\"}}\n")
        << "the selection is reported before the name is set";
    host.Drag({10, 10}, {100, 100});
    EXPECT_EQ(host.lastEventText, "{\"EventName\":\"\",\"EventParam\":{\"PreShapeState\":2,\"ShapeID\":" +
                                      std::to_string(shape) + ".0,\"ShapeName\":\"NoName\",\"ShapeState\":3}}\n");
}

TEST(Exports, KeepTheBytesOfTexts) {
    ScenarioHost host;
    const std::string name = "\xC4\xFF\x80 \"\\\n\x01";
    const ShapeID shape = host.container.AddShape({TheView, "Rect", "\xE4", name.c_str(), nullptr, nullptr});
    host.Drag({0, 0}, {800, 600});
    const std::string written = "\xC4\xFF\x80 \\\"\\\\\\n\\u0001";
    EXPECT_EQ(host.Config(shape), "{\"" + written + "\":[[0,0],[8191,8191]]}");
    EXPECT_NE(host.lastEventText.find("\"ShapeName\":\"" + written + "\""), std::string::npos);
    const std::string config = host.Config(shape);
    const ShapeID copy = host.container.AddShape({TheView, "Rect", "", name.c_str(), config.c_str()});
    EXPECT_EQ(host.Config(copy), config);
}

TEST(Exports, ReadBooleansFromTheLowByteAlone) {
    ScenarioHost host;
    const ContainerHandle container = host.container.Handle();
    const ShapeID shape = host.Add("Rect", Square);
    EXPECT_EQ(SelectVideoAnalyseShape(container, shape, 0xABCDEF00U), 1U);
    EXPECT_EQ(GetSelectedVideoAnalyseShapeID(container), 0U);
    EXPECT_EQ(EnableVideoAnalyseShape(container, shape, 0xABCDEF80U), 1U);
    EXPECT_EQ(GetSelectedVideoAnalyseShapeID(container), shape) << "enabling selects";
    EXPECT_EQ(host.Paint().size(), 2U) << "without showing the handles";
    host.container.ShowHandles(shape);
    EXPECT_EQ(EnableVideoAnalyseShape(container, shape, 0x100U), 1U);
    EXPECT_EQ(GetSelectedVideoAnalyseShapeID(container), 0U);
    EXPECT_EQ(host.Paint().size(), 2U) << "disabling hides the handles";
    host.Press(150, 150);
    EXPECT_EQ(host.TakeLog(), Lines{}) << "a disabled shape gets no press";
}

TEST(Container, DoesNothingUntilItIsEnabled) {
    ScenarioHost host;
    host.container.Enable(false);
    host.Add("Rect", Square);
    host.container.SetTip(TheView, "tip");
    host.Click(150, 150);
    host.container.SendKey(TheView, 27);
    EXPECT_EQ(host.TakeLog(), Lines{});
    EXPECT_EQ(host.Paint(), Lines{});
    host.container.Enable();
    EXPECT_NE(host.Paint(), Lines{});
}

uint32_t RULECANVAS_THISCALL KindOfAFunction(const ContainerHandler* /*self*/) {
    return 0;
}

TEST(Container, HandsOutHandlersThatCompareEqual) {
    ScenarioHost host;
    const ContainerHandle container = host.container.Handle();
    ContainerHandlerHolder mouse{nullptr, nullptr};
    ContainerHandlerHolder draw{nullptr, nullptr};
    EXPECT_EQ(GetContainerWinMouseEventHandler(container, &mouse), 1U);
    EXPECT_EQ(GetContainerWinMouseEventHandler(container, &mouse), 1U) << "destroys the first copy";
    EXPECT_EQ(GetContainerDrawEventHandler(container, &draw), 1U);
    const ContainerHandlerTable& table = *mouse.handler->table;
    ContainerHandler* clone = table.clone(mouse.handler);
    table.destroy(clone, 0); // which frees nothing
    EXPECT_EQ(table.kind(clone), 1U);
    EXPECT_EQ(table.equals(mouse.handler, clone), 1U);
    EXPECT_EQ(table.equals(mouse.handler, draw.handler), 0U);
    EXPECT_EQ(table.equals(mouse.handler, nullptr), 0U);
    ContainerHandlerTable another = table;
    another.kind = &KindOfAFunction;
    ContainerHandler ofTheHost{&another, mouse.handler->target, mouse.handler->method};
    EXPECT_EQ(table.equals(mouse.handler, &ofTheHost), 0U);
    ContainerHandler ofAnother{&table, nullptr, mouse.handler->method};
    EXPECT_EQ(table.equals(mouse.handler, &ofAnother), 0U);
    EXPECT_EQ(table.invoke(clone, 0, 0), 0U) << "no event";
    EXPECT_EQ(draw.handler->table->invoke(draw.handler, TheView, 0), 0U) << "no surface";
    table.destroy(clone, 1);

    ReleaseVideoAnalyseContainer(container);
    ReleaseVideoAnalyseContainer(container);
    const ContainerMouseEvent press{RULECANVAS_MOUSE_LEFT_DOWN, TheView, 0, 1, 1, 0, 0};
    EXPECT_EQ(table.invoke(mouse.handler, 0, reinterpret_cast<uintptr_t>(&press)), 0U) << "the container is gone";
    table.destroy(mouse.handler, 1);
    draw.handler->table->destroy(draw.handler, 1);
}

TEST(Dispatch, GivesAPressToTheStrongestClaimAndToTheLowestIdOfEquals) {
    ScenarioHost host;
    const ShapeID first = host.Add("Rect", Square);
    const ShapeID second = host.Add("Rect", Wider);
    const std::string before = host.Config(second);
    host.Drag({293, 220}, {280, 200}); // a corner of the first, the inside of the second
    EXPECT_EQ(host.TakeLog(), (Lines{"select rule", "capture on", "state rule 5>3", "capture off"}));
    EXPECT_EQ(host.Config(second), before);

    const std::string reshaped = host.Config(first);
    host.Drag({150, 150}, {160, 150}); // inside both: a tie
    EXPECT_EQ(host.Config(first) != reshaped, first < second);
    EXPECT_EQ(host.Config(second) != before, second < first);
}

TEST(Dispatch, FeedsEveryKindOfMoveToADragButOfItsOwnViewAlone) {
    FigureHost host("Rect", Square);
    host.Send(RULECANVAS_MOUSE_LEFT_DOWN, 150, 150, TheView + 1);
    EXPECT_EQ(host.TakeLog(), Lines{});
    EXPECT_EQ(host.Paint(TheView + 1), Lines{});
    const std::string before = host.Config();
    host.Press(150, 150);
    host.Send(RULECANVAS_MOUSE_MOVED, 300, 300, TheView + 1);
    host.Send(RULECANVAS_MOUSE_LEFT_UP, 300, 300, TheView + 1);
    EXPECT_EQ(host.TakeLog(), (Lines{"select rule", "capture on"})) << "the drag goes on";
    EXPECT_EQ(host.Config(), before);
    float x = 150;
    for (const uint32_t code : {RULECANVAS_MOUSE_MOVED, RULECANVAS_MOUSE_MOVED_EVENT, RULECANVAS_MOUSE_CURSOR_QUERY}) {
        const std::string last = host.Config();
        x += 10;
        host.Send(code, x, 160);
        EXPECT_NE(host.Config(), last) << code;
    }
}

TEST(Dispatch, AsksTheHostForRedrawsAndHints) {
    ScenarioHost host;
    host.Send(RULECANVAS_MOUSE_KEY_DOWN, 0, 0);
    EXPECT_EQ(host.TakeLog(), Lines{});
    host.container.SendKey(TheView, 27);
    EXPECT_EQ(host.TakeLog(), Lines{"redraw"}) << "Escape, without any shape";
    host.Add("Rect", Square);
    host.Send(RULECANVAS_MOUSE_CURSOR_QUERY, 150, 150);
    EXPECT_EQ(host.TakeLog(), Lines{}) << "no press yet";
    host.Click(150, 150);
    host.TakeLog();
    host.Move(150, 150);
    host.Send(RULECANVAS_MOUSE_CURSOR_QUERY, 150, 150);
    EXPECT_EQ(host.TakeLog(), Lines{"hint 4"}) << "the latest press hit the inside";
    host.Press(98, 100); // the outline
    host.TakeLog();
    host.container.Enable(false);
    host.Press(700, 500);
    host.container.Enable();
    host.Send(RULECANVAS_MOUSE_CURSOR_QUERY, 150, 150);
    EXPECT_EQ(host.TakeLog(), Lines{"hint 4"}) << "a disabled container forgets nothing";
    for (const uint32_t code : {0U, 5U, 6U, 7U, 8U, 10U, 12U, ~0U}) {
        host.Send(code, 150, 150);
    }
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(Container, FitsShapesToViewZeroAndClampsThemToTheirOwn) {
    FigureHost host("Rect");
    host.Drag({100, 100}, {200, 200});
    host.rectOfViewZero = ClientRect{0, 0, 400, 300};
    EXPECT_TRUE(host.container.RefitShapes());
    EXPECT_EQ(host.Config(), R"({"rule":[[1024,1365],[2048,2730]]})") << "the same place of a smaller view";
    host.TakeLog();
    host.Click(60, 60);
    EXPECT_EQ(host.TakeLog()[0], "select rule") << "and it is found there";
    host.Drag({100, 100}, {900, 700});
    EXPECT_EQ(host.Config(), R"({"rule":[[1024,1365],[16382,16382]]})") << "to the border of its own view";
}

TEST(Container, FitsAFigureThatLearnsTheSizeOfItsViewLate) {
    ScenarioHost host(0, 0);
    host.rectOfViewZero = ClientRect{0, 0, 800, 600};
    const ShapeID shape = host.Add("Rect");
    host.Paint();
    host.Resize(400, 300);
    host.Drag({50, 50}, {100, 100});
    host.Config(shape);
    EXPECT_EQ(host.Paint()[1], "rect (100,100)-(200,200) w2 yellow");
}

TEST(Container, CollapsesNoFigureWhileTheViewHasNoSize) {
    for (const Type& type : Types) {
        ScenarioHost host;
        host.container.SetVideoSize(GridView, GridView);
        host.Add(type.name, type.config);
        host.Paint(); // which places a pixel counter
        host.Press(98, 73);
        const Lines before = host.Paint();
        for (const ClientRect& empty :
             {ClientRect{0, 0, 0, 0}, ClientRect{0, 0, -5, 100}, ClientRect{50, 0, 50, 100}}) {
            host.clientRect = empty;
            host.Move(300, 300);
            host.Paint();
            host.Resize(800, 600);
            EXPECT_EQ(host.Paint(), before) << type.name;
        }
        host.clientRect = ClientRect{0, -100, 800, 0};
        host.Paint();
        host.Resize(800, 600);
        EXPECT_EQ(host.Paint(), before) << type.name << ": a view above its origin has no place for it";
        host.Move(120, 90);
        EXPECT_NE(host.Paint(), before) << type.name;
    }
    for (const auto& [width, height, drawn] : {std::make_tuple(800, 1, "rect (98,0.12)-(293,0.37) w2 yellow"),
                                               {1, 600, "rect (0.12,73)-(0.37,220) w2 yellow"}}) {
        FigureHost host("Rect", Square);
        host.Resize(width, height);
        EXPECT_EQ(host.Paint()[1], drawn) << "one pixel is a size";
    }
    ScenarioHost host(0, 0);
    EXPECT_EQ(host.Config(host.Add("LineShape", Square)), R"({"rule":[[0,0],[0,0]]})");
}

TEST(Container, DrawsInTheOrderOfCreation) {
    ScenarioHost host;
    ShapeID third = 0;
    for (const char* caption : {"1", "2", "3", "4", "5"}) {
        const ShapeID shape = host.Add("Rect", Square, "TextOnly");
        third = *caption == '3' ? shape : third;
        host.container.SetCaption(shape, caption);
    }
    host.container.DeleteShape(third); // which leaves a hole in the list
    host.TakeLog();
    std::string drawn;
    for (const std::string& call : host.Paint()) {
        drawn += call.substr(call.find('"') + 1, 1);
    }
    EXPECT_EQ(drawn, "1245");
    const CDelegate half{&host, nullptr};
    SetContainerNotifyEventDelegate(host.container.Handle(), &half);
    host.Drag({150, 150}, {160, 160});
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "capture off"}));
}

TEST(Container, DrawsATipUntilAPressHitsAShapeOfTheView) {
    ScenarioHost host;
    host.container.SetTip(TheView, "first");
    host.container.SetTip(TheView, "wait");
    host.container.SetTip(TheView + 1, "");
    host.clientRect = ClientRect{0, -5, 101, 2};
    EXPECT_EQ(host.Paint(), Lines{"text (36,-1) \"wait\" size 0 yellow in STHeitiSC-Light"}) << "truncated halves";
    EXPECT_EQ(host.Paint(TheView + 1), Lines{});
    host.Resize(800, 600);
    host.Press(10, 10);
    EXPECT_EQ(host.Paint().size(), 1U) << "no shape, the tip stays";
    host.container.ShowShape(host.Add("Rect", Square), false);
    host.RightPress(150, 150);
    EXPECT_EQ(host.Paint().size(), 1U) << "a right press leaves it";
    host.Click(10, 10);
    EXPECT_EQ(host.Paint(), Lines{});
}

TEST(Container, GivesTheMouseBackWhenItIsReleased) {
    FigureHost host("Rect", Square);
    host.Press(150, 150);
    host.TakeLog();
    ReleaseVideoAnalyseContainer(host.container.Handle());
    EXPECT_EQ(host.TakeLog(), Lines{"capture off"});
}

TEST(Container, ChangesTheLookOfOneShape) {
    FigureHost host("Rect", Square);
    host.container.SetCaption(host.shape, "gate");
    host.container.SetColour(host.shape, Outline::Selected, 1, 2, 3);
    host.container.SetColour(host.shape, Outline::Unselected, -1, 300, 0);
    host.container.ShowHandles(host.shape, false);
    EXPECT_EQ(host.Paint(), (Lines{"text (98,73) \"gate\" size 2 1,2,3", "rect (98,73)-(293,220) w2 1,2,3"}));
    host.container.SelectShape(host.shape, false);
    EXPECT_EQ(host.Paint(), (Lines{"text (98,73) \"gate\" size 2 -1,300,0", "rect (98,73)-(293,220) w2 -1,300,0"}));
    host.container.ShowShape(host.shape, false);
    EXPECT_EQ(host.Paint(), Lines{});
}

TEST(Container, WorksWithoutAHostObjectAndAnyDelegate) {
    Container container;
    container.Enable();
    const ShapeID shape = container.AddShape({0, "Rect"});
    ASSERT_NE(shape, 0U);
    container.SendMouse(MouseCode::LeftDown, 0, 0, 0); // the view has no size, but its origin
    container.SendMouse(MouseCode::Moved, 0, 50, 50);
    container.SendKey(0, 27);
    container.SendMouse(MouseCode::LeftUp, 0, 50, 50);
    EXPECT_EQ(Drawn([&](auto& surface) { container.Paint(0, surface); }), Lines{});
    EXPECT_TRUE(container.Configuration(shape).empty());
}

TEST(StateReport, ListsTheShapesOfAllContainers) {
    char small[5] = "####";
    GetVideoAnalyseAllShapestates(small, 4);
    EXPECT_STREQ(small, "####");
    GetVideoAnalyseAllShapestates(nullptr, 100);
    GetVideoAnalyseAllShapestates(small, -1);
    GetVideoAnalyseAllShapestates(small, sizeof(small));
    EXPECT_STREQ(small, "null") << "no containers";

    ScenarioHost one;
    ScenarioHost two;
    const ShapeID a = one.Add("Rect");
    const ShapeID b = two.Add("Rect");
    one.container.SelectShape(a, false);
    const auto entry = [](ShapeID id, bool selected) {
        return "{\"ShapeID\":" + std::to_string(static_cast<int32_t>(id)) +
               R"(,"ShapeName":"rule","ShapeType":5,"bSelShape":)" + (selected ? "true}" : "false}");
    };
    const bool oneFirst = one.container.Handle() < two.container.Handle();
    const std::string expected =
        "[" + (oneFirst ? entry(a, false) + "," + entry(b, true) : entry(b, true) + "," + entry(a, false)) + "]";
    std::string report(expected.size() + 1, '#');
    GetVideoAnalyseAllShapestates(report.data(), static_cast<int32_t>(report.size()));
    EXPECT_EQ(report, expected + '\0');
}

} // namespace
} // namespace rulecanvas::test

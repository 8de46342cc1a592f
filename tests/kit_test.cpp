#include <rulecanvas_kit/figure_types.hpp>
#include <rulecanvas_kit/rule_editor.hpp>
#include <rulecanvas_kit/rules_file.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>

using namespace rulecanvas;
using namespace rulecanvas::kit;

namespace {

constexpr Size View = {960, 540};

std::string RuleText(const std::string& members) {
    return R"({"format":"rulecanvas-rules","version":1,"rules":[{"type":"Rect",)" + members + "}]}";
}

Rule MakeRule(const char* type, const char* name, const char* configuration = "") {
    Rule rule;
    rule.type = type;
    rule.name = name;
    rule.configuration = configuration;
    return rule;
}

/// An editor on a view of 960 x 540 pixels, used as a person would.
struct Person {
    std::string said;
    bool captured = false;
    RuleState ended = RuleState::Complete; ///< What the last gesture was, as the library says.
    RuleEditor editor{{[] { return View; }, [this](bool take) { captured = take; }, [] {}, [] {},
                       [this](const std::string& text) { said = text; },
                       [this](const RuleNews& news) { ended = news.before; }}};
    std::string problem;

    Person() { editor.Library().SetVideoSize(View.width, View.height); }

    Person& Draw(const char* type, const char* option = "", const char* name = "") {
        Rule look = MakeRule(type, name);
        look.option = option;
        EXPECT_TRUE(editor.StartDrawing(look, false, problem)) << problem;
        return *this;
    }
    Person& Press(float x, float y) {
        editor.Move({x, y});
        editor.LeftDown({x, y});
        return *this;
    }
    Person& Release(float x, float y) {
        editor.Move({x, y});
        editor.LeftUp({x, y});
        return *this;
    }
    Person& Click(float x, float y) { return Press(x, y).Release(x, y); }
    Person& Drag(float x1, float y1, float x2, float y2) { return Press(x1, y1).Release(x2, y2); }
    Person& Triangle() { return Click(100, 100).Click(300, 100).Click(300, 300); }

    size_t Count() const { return editor.RulesToSave().size(); }
    std::string Geometry(size_t index) const { return editor.RulesToSave().at(index).configuration; }
};

/// Draws one figure of a type so that it is complete.
void DrawOne(Person& person, const std::string& type) {
    person.Draw(type.c_str());
    if (GestureOf(*person.editor.Drawing()) == Gesture::Corners) {
        person.Click(200, 150).Click(420, 130).Click(440, 300).Click(220, 320).editor.CloseDrawing();
    } else if (type == "BigCrossShape") {
        person.Click(200, 150).Click(420, 300);
    } else if (GestureOf(*person.editor.Drawing()) == Gesture::Places) {
        person.Click(200, 150);
    } else {
        person.Drag(200, 150, 420, 300);
    }
}

} // namespace

TEST(RulesFile, RefusesWholeFilesAndSaysWhy) {
    const std::tuple<const char*, std::string, const char*> rows[] = {
        {"no JSON", "{", "no JSON"},
        {"another format", R"({"rules":[]})", "\"format\" is not"},
        {"no version", R"({"format":"rulecanvas-rules","rules":[]})", "\"version\""},
        {"a later version", R"({"format":"rulecanvas-rules","version":2,"rules":[]})", "newer program"},
        {"no rules", R"({"format":"rulecanvas-rules","version":1})", "no array"},
        {"a rule that is no object", R"({"format":"rulecanvas-rules","version":1,"rules":[7]})", "rule 1: it is not"},
        {"a name that is no text", RuleText(R"("name":5)"), "\"name\" is not a text"},
        {"geometry as text", RuleText(R"("name":"a","configuration":"{}")"), "not an object"},
        {"a direction too far", RuleText(R"("name":"a","direction":6)"), "from -1 to 5"},
        {"a colour too bright", RuleText(R"("name":"a","colours":{"selected":[0,0,256]})"), "from 0 to 255"},
        {"a flag that is a number", RuleText(R"("name":"a","locked":1)"), "neither true nor false"},
        {"a limit that is missing", RuleText(R"("name":"a","pointLimits":{"maximum":4})"), "\"minimum\""},
        {"a name used twice", RuleText(R"("name":"a"},{"type":"Rect","name":"a")"), "rule 2 \"a\": another rule has"},
        {"no type", RuleText(R"("name":"a"},{"name":"c")"), "rule 2 \"c\": it has no \"type\""},
    };
    for (const auto& [what, text, expected] : rows) {
        std::string problem;
        EXPECT_FALSE(ParseRules(text, problem)) << what;
        EXPECT_NE(problem.find(expected), std::string::npos) << what << ": " << problem;
    }
}

TEST(RulesFile, KeepsWhatItDoesNotKnow) {
    const std::string text =
        R"({"format":"rulecanvas-rules","version":1,"site":{"door":3},"picture":{"width":768,"height":576},
        "rules":[{"type":"Rect","name":"Tür","option":{"LineThickness":4},"configuration":{"Tür":[[1,2],[3,4]],"radius":9},
        "colours":{"selected":[1,2,3]},"direction":2,"pointLimits":{"maximum":9,"minimum":4},"enabled":false,
        "visible":false,"locked":true,"view":3,"owner":"night shift"}]})";
    std::string problem;
    const std::optional<RulesFile> file = ParseRules(text, problem);
    ASSERT_TRUE(file) << problem;
    EXPECT_EQ(file->rules[0].configuration, R"({"Tür":[[1,2],[3,4]],"radius":9})");
    EXPECT_EQ(file->rules[0].option, R"({"LineThickness":4})");
    const std::string written = FormatRules(*file);
    EXPECT_NE(written.find("night shift"), std::string::npos);
    EXPECT_NE(written.find("\"door\" : 3"), std::string::npos);
    const std::optional<RulesFile> again = ParseRules(written, problem);
    ASSERT_TRUE(again) << problem;
    EXPECT_EQ(again->rules, file->rules);
    EXPECT_EQ(again->others, file->others);
    EXPECT_EQ(*again->picture, (Size{768, 576}));
}

TEST(RulesFile, ReplacesTheOldFileOrLeavesIt) {
    const auto folder = std::filesystem::temp_directory_path() / "rulecanvas_kit_test";
    std::filesystem::create_directories(folder);
    const auto path = folder / "kept.rules.json";
    RulesFile file;
    std::string problem;
    ASSERT_TRUE(WriteRulesFile(path, file, problem)) << problem;
    file.rules.push_back(MakeRule("Rect", "gate", R"({"gate":[[1,2],[3,4]]})"));
    ASSERT_TRUE(WriteRulesFile(path, file, problem)) << problem;
    EXPECT_EQ(ReadRulesFile(path, problem)->rules, file.rules);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
    EXPECT_FALSE(WriteRulesFile(folder / "nowhere" / "a.rules.json", file, problem));
    EXPECT_FALSE(problem.empty());
    std::filesystem::remove_all(folder);
}

TEST(History, HasAnEnd) {
    const auto state = [](const char* name) { return History::State{MakeRule("Rect", name)}; };
    History history;
    history.Record(state("a"));
    history.Record(state("a")); // nothing new
    EXPECT_EQ(history.Undo(), History::State{});
    EXPECT_FALSE(history.CanUndo());
    EXPECT_FALSE(history.HasUnsavedChanges());
    for (size_t i = 0; i < 2 * History::Longest; ++i) {
        history.Record(state(i % 2 == 0 ? "d" : "e"));
    }
    EXPECT_FALSE(history.CanRedo());
    for (size_t steps = 1; steps < History::Longest; ++steps) {
        history.Undo();
    }
    EXPECT_FALSE(history.CanUndo());
}

TEST(RuleEditor, TakesItsFirstCornerBack) {
    Person person;
    person.Draw("BrokenLine").Click(10, 10).editor.TakeBackCorner();
    person.Triangle().editor.CloseDrawing();
    EXPECT_EQ(FigurePoints(person.editor.RulesToSave().at(0), View).size(), 3U);
}

TEST(RuleEditor, SaysWhatItRefuses) {
    Person person;
    person.Draw("Polygon", "Convex").Triangle().Click(280, 150);
    EXPECT_NE(person.said.find("bulge"), std::string::npos) << person.said;
    person.editor.CloseDrawing();
    person.Draw("Polygon").Triangle().Click(120, 300).editor.CloseDrawing();
    person.Drag(100, 100, 500, 200); // over the opposite edge
    EXPECT_NE(person.said.find("The corner stays"), std::string::npos) << person.said;
}

TEST(RuleEditor, KeepsADrawingWhoseClosingEdgeWouldCrossAnother) {
    Person person;
    person.Draw("Polygon").Click(150, 200).Click(250, 120).Click(250, 300).Click(400, 200);
    person.editor.RightDown({400, 200}, false);
    EXPECT_NE(person.said.find("cannot be closed"), std::string::npos) << person.said;
    person.editor.TakeBackCorner();
    person.editor.CloseDrawing();
    EXPECT_EQ(person.Count(), 1U);
}

TEST(RuleEditor, EscapeLosesNothing) {
    for (const PointF& grip : {PointF{300, 200}, PointF{200, 150}}) {
        Person person;
        person.Draw("Rect").Drag(200, 150, 420, 300);
        const std::string before = person.Geometry(0);
        person.Press(grip.x, grip.y).editor.Move({600, 400});
        person.editor.Escape();
        EXPECT_FALSE(person.captured);
        EXPECT_FALSE(person.editor.CanRedo());
        person.Release(600, 400);
        EXPECT_EQ(person.Geometry(0), before);
    }
    Person person;
    person.Draw("OvalShape").Press(100, 100).editor.Move({200, 200});
    person.editor.Escape();
    person.editor.Escape();
    EXPECT_EQ(person.editor.Drawing(), nullptr);
    EXPECT_EQ(person.Count(), 0U);
}

TEST(RuleEditor, UndoesWhatIsDoneToARule) {
    const std::vector<std::pair<const char*, std::function<void(Person&)>>> changes = {
        {"reshaping", [](Person& p) { p.Drag(200, 150, 180, 140); }},
        {"moving by keys", [](Person& p) { p.editor.Nudge(0, 10, 0); }},
        {"deleting by the right button",
         [](Person& p) {
             p.editor.RightDown({300, 200}, false);
         }},
        {"duplicating", [](Person& p) { p.editor.Duplicate(0); }},
        {"hiding", [](Person& p) { p.editor.SetFlags(0, true, false, false); }},
    };
    for (const auto& [name, change] : changes) {
        Person person;
        person.Draw("Rect", "EnableRBtnDelete", "gate").Drag(200, 150, 420, 300);
        person.editor.MarkSaved();
        const std::vector<Rule> before = person.editor.RulesToSave();
        change(person);
        const std::vector<Rule> after = person.editor.RulesToSave();
        EXPECT_NE(after, before) << name;
        person.editor.Undo();
        EXPECT_EQ(person.editor.RulesToSave(), before) << name;
        EXPECT_FALSE(person.editor.HasUnsavedChanges()) << name;
        person.editor.Redo();
        EXPECT_EQ(person.editor.RulesToSave(), after) << name;
    }
}

TEST(RuleEditor, RenamesTheGeometryToo) {
    Person person;
    person.Draw("OvalShape", "", "b").Drag(500, 150, 620, 300);
    Rule rule = person.editor.Rules().Entries()[0].rule;
    rule.name = "c";
    EXPECT_TRUE(person.editor.Change(0, rule, person.problem));
    EXPECT_NE(person.Geometry(0).find("{\"c\":"), std::string::npos);
}

TEST(RuleEditor, KnowsTheOptionsOfEachType) {
    const std::tuple<const char*, const char*, bool> options[] = {
        {"Rect", "TextOnly", true},        {"Rect", "Convex", false},    {"Rect", R"({"LineThickness":3})", true},
        {"Rect", R"({"Thick":3})", false}, {"Rect", "{", false},         {"CrossShape", "3", true},
        {"CrossShape", "many", false},     {"SpotShape", "solid", true}, {"Polygon", "Convex", true},
    };
    for (const auto& [type, option, good] : options) {
        EXPECT_EQ(OptionProblem(type, option).empty(), good) << type << " " << option;
    }
}

TEST(RuleEditor, LoadsAllOrNothing) {
    Person person;
    person.Draw("Rect", "", "a").Drag(200, 150, 420, 300);
    const std::vector<Rule> before = person.editor.RulesToSave();
    EXPECT_FALSE(person.editor.Load({MakeRule("Rect", "fine", R"({"fine":[[100,100],[900,900]]})"),
                                     MakeRule("Teapot", "b"), MakeRule("Rect", "c", R"({"c":[]})")},
                                    person.problem));
    EXPECT_NE(person.problem.find("\"b\": there is no type \"Teapot\""), std::string::npos) << person.problem;
    EXPECT_NE(person.problem.find("\"c\": its geometry"), std::string::npos) << person.problem;
    EXPECT_EQ(person.editor.RulesToSave(), before);
    EXPECT_EQ(person.editor.Rules().Entries().size(), 1U);
}

/// The kit tells beforehand what the library will do with a press.
TEST(Grip, ForetellsWhatAPressTakes) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> across(180, 460);
    std::uniform_int_distribution<int> down(110, 340);
    for (const FigureType& type : FigureTypes()) {
        int taken = 0;
        Person person;
        DrawOne(person, type.type);
        for (int i = 0; i < 600; ++i) {
            const std::vector<PointF> points = person.editor.Rules().Points(0);
            ASSERT_FALSE(points.empty()) << type.type;
            const PointF corner = points[static_cast<size_t>(i) % points.size()];
            const PointF near = {corner.x + static_cast<float>(i % 13 - 6), corner.y + static_cast<float>(i % 11 - 5)};
            const PointF anywhere = {static_cast<float>(across(random)), static_cast<float>(down(random))};
            const PointF at = i % 2 == 0 ? anywhere : near;
            const Grip grip = person.editor.Rules().GripOf(0, at);
            person.ended = RuleState::Complete;
            person.Press(at.x, at.y).Release(at.x, at.y);
            const Grip actual = person.ended == RuleState::PointDragged ? Grip::Point
                                : person.ended == RuleState::BeingMoved ? Grip::Body
                                                                        : Grip::None;
            EXPECT_EQ(static_cast<int>(grip), static_cast<int>(actual)) << type.type << " at " << at.x << "," << at.y;
            taken += actual != Grip::None ? 1 : 0;
        }
        EXPECT_GT(taken, 10) << type.type;
    }
}

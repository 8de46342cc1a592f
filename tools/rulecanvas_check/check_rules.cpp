#include "check_rules.h"

#include "platform/trace.h"

namespace rulecanvas::check {
namespace {

/// The sink is a plain function: it reaches the lines of the check that is running only so.
std::vector<std::string> tracedLines;

/// Receives what the library says about refusals, as long as it lives.
class RefusalLines {
  public:
    RefusalLines() {
        SetTraceSink([](const char* line) { tracedLines.emplace_back(line); });
    }
    ~RefusalLines() { SetTraceSink(nullptr); }
    RefusalLines(const RefusalLines&) = delete;
    RefusalLines& operator=(const RefusalLines&) = delete;

    std::vector<std::string> Take() {
        std::vector<std::string> taken;
        taken.swap(tracedLines);
        return taken;
    }
};

/// What follows the name of the rule in `rulecanvas: Function "name": reason`; the whole line when it has another form.
std::string ReasonOf(const std::string& line, const std::string& name) {
    const std::string before = "\"" + name + "\": ";
    const size_t place = line.find(before);
    std::string reason = place == std::string::npos ? line : line.substr(place + before.size());
    while (!reason.empty() && (reason.back() == '\n' || reason.back() == '\r')) {
        reason.pop_back();
    }
    return reason;
}

void Apply(const Rule& rule, ShapeID shape, Container& container) {
    if (rule.caption) {
        container.SetCaption(shape, rule.caption->c_str());
    }
    if (rule.selected) {
        container.SetColour(shape, Outline::Selected, rule.selected->red, rule.selected->green, rule.selected->blue);
    }
    if (rule.unselected) {
        container.SetColour(shape, Outline::Unselected, rule.unselected->red, rule.unselected->green,
                            rule.unselected->blue);
    }
    if (rule.direction) {
        container.SetDirection(shape, *rule.direction);
    }
    if (rule.pointLimits) {
        container.SetPointLimits(shape, rule.pointLimits->maximum, rule.pointLimits->minimum);
    }
}

void CheckRule(Rule& rule, Container& container, RefusalLines& lines) {
    ShapeSettings settings;
    settings.view = rule.view;
    settings.type = rule.type.c_str();
    settings.label = rule.label.c_str();
    settings.name = rule.name.c_str();
    settings.configuration = rule.configuration.c_str();
    settings.option = rule.option.c_str();
    const ShapeID shape = container.AddShape(settings);
    if (shape != 0) {
        Apply(rule, shape, container);
        Surface nothing;
        container.Paint(rule.view, nothing); // some figures take their size while they are painted
    }
    for (const std::string& line : lines.Take()) {
        rule.reasons.push_back(ReasonOf(line, rule.name));
    }
    if (!rule.reasons.empty()) {
        return;
    }
    if (shape == 0) {
        rule.reasons.emplace_back("the library makes no such shape");
    } else if (!rule.configuration.empty() && container.Configuration(shape).empty()) {
        rule.reasons.push_back("the library reads no figure: expected one in the member \"" + rule.name +
                               "\", not too small for the picture, at $");
    }
}

} // namespace

void CheckRules(RuleList& list) {
    RefusalLines lines;
    Container container;
    const PictureSize picture = list.picture;
    container.OnClientRect([picture](ViewID) { return ClientRect{0, 0, picture.width, picture.height}; });
    container.SetVideoSize(picture.width, picture.height);
    container.Enable();
    for (Rule& rule : list.rules) {
        if (rule.reasons.empty()) {
            CheckRule(rule, container, lines);
        }
    }
}

} // namespace rulecanvas::check

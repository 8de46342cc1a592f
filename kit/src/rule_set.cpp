#include <rulecanvas_kit/rule_set.hpp>

#include "notification.hpp"
#include "strokes.hpp"

#include <rulecanvas_kit/figure_types.hpp>

#include <algorithm>

namespace rulecanvas::kit {

namespace {

bool IsGesture(RuleState state) {
    return state == RuleState::BeingDrawn || state == RuleState::BeingMoved || state == RuleState::PointDragged;
}

bool IsUnfinished(const RuleEntry& entry) {
    return entry.state == RuleState::Waiting || entry.state == RuleState::BeingDrawn;
}

bool IsKnownType(Container& container, const Rule& rule) {
    ShapeSettings settings;
    settings.type = rule.type.c_str();
    const ShapeID trial = container.AddShape(settings);
    container.DeleteShape(trial);
    return trial != 0;
}

/// Whether the shape of one rule becomes that of the other by a change of its look alone.
bool HasSameShape(const Rule& one, const Rule& other) {
    const auto keeps = [](const std::optional<Colour>& before, const std::optional<Colour>& after) {
        return after.has_value() || !before.has_value();
    };
    return std::tie(one.type, one.name, one.label, one.option, one.configuration, one.view, one.pointLimits) ==
               std::tie(other.type, other.name, other.label, other.option, other.configuration, other.view,
                        other.pointLimits) &&
           keeps(one.selectedColour, other.selectedColour) && keeps(one.unselectedColour, other.unselectedColour) &&
           (one.direction.has_value() == other.direction.has_value() || other.direction.has_value());
}

} // namespace

RuleSet::RuleSet(Container& given) : container(given) {
    container.OnNotify([this](const char* text) { Hear(text); });
}

RuleSet::~RuleSet() {
    container.IgnoreNotifications();
}

size_t RuleSet::Find(const std::string& name) const {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&name](const RuleEntry& entry) { return entry.rule.name == name; });
    return found != entries.end() ? static_cast<size_t>(found - entries.begin()) : None;
}

size_t RuleSet::IndexOf(ShapeID shape) const {
    const auto found =
        std::find_if(entries.begin(), entries.end(), [shape](const RuleEntry& entry) { return entry.shape == shape; });
    return found != entries.end() ? static_cast<size_t>(found - entries.begin()) : None;
}

size_t RuleSet::Unfinished() const {
    const auto found = std::find_if(entries.begin(), entries.end(), IsUnfinished);
    return found != entries.end() ? static_cast<size_t>(found - entries.begin()) : None;
}

size_t RuleSet::Selected() const {
    const ShapeID shape = container.SelectedShape();
    return shape != 0 ? IndexOf(shape) : None;
}

bool RuleSet::Settled() const {
    return std::none_of(entries.begin(), entries.end(), [](const RuleEntry& entry) { return IsGesture(entry.state); });
}

std::vector<Rule> RuleSet::Finished() const {
    std::vector<Rule> rules;
    for (const RuleEntry& entry : entries) {
        if (!IsUnfinished(entry)) {
            rules.push_back(entry.rule);
        }
    }
    return rules;
}

bool RuleSet::Add(const Rule& rule, std::string& problem) {
    RuleEntry entry;
    entry.rule = rule;
    entry.number = entries.empty() ? 1 : counter + 1;
    if (Make(entry, problem) == 0) {
        return false;
    }
    counter = entry.number;
    entries.push_back(std::move(entry));
    return true;
}

bool RuleSet::Replace(size_t index, const Rule& rule, std::string& problem) {
    if (!IsUnfinished(entries.at(index)) && HasSameShape(entries[index].rule, rule)) {
        Relook(entries[index], rule);
        return true;
    }
    RuleEntry entry;
    entry.rule = rule;
    entry.number = entries.at(index).number;
    const bool selected = Selected() == index;
    if (Make(entry, problem) == 0) {
        return false;
    }
    container.DeleteShape(entries[index].shape);
    entries[index] = std::move(entry);
    container.SelectShape(entries[index].shape, selected);
    return true;
}

/// The shape of a rule, with its look. 0 when the library refuses it, or accepts a geometry that gives no figure.
ShapeID RuleSet::Make(RuleEntry& entry, std::string& problem) {
    const std::string configuration = ConfigurationToPass(entry.rule);
    ShapeSettings settings;
    settings.view = entry.rule.view;
    settings.type = entry.rule.type.c_str();
    settings.label = entry.rule.label.c_str();
    settings.name = entry.rule.name.c_str();
    settings.option = entry.rule.option.c_str();
    settings.configuration = configuration.c_str();
    beingMade = &entry;
    entry.shape = container.AddShape(settings);
    beingMade = nullptr;
    if (entry.shape == 0) {
        problem = IsKnownType(container, entry.rule) ? "its geometry is refused"
                                                     : "there is no type \"" + entry.rule.type + "\"";
        return 0;
    }
    ApplyLook(entry);
    if (!configuration.empty()) {
        /// Some shapes take their geometry over in their first paint, which may as well go nowhere.
        Surface nowhere;
        container.Paint(entry.rule.view, nowhere);
        entry.reported = Report(entry.shape);
        entry.state = RuleState::Complete;
    }
    if (!configuration.empty() && entry.reported.empty()) {
        container.DeleteShape(entry.shape);
        problem = "its geometry gives no figure";
        return 0;
    }
    if (!TakesPresses(entry)) {
        ApplyFlags(entry);
    }
    return entry.shape;
}

void RuleSet::ApplyLook(const RuleEntry& entry) {
    const Rule& rule = entry.rule;
    container.SetCaption(entry.shape, rule.caption.c_str());
    if (rule.direction) {
        container.SetDirection(entry.shape, *rule.direction);
    }
    if (rule.pointLimits) {
        container.SetPointLimits(entry.shape, rule.pointLimits->maximum, rule.pointLimits->minimum);
    }
    const auto apply = [&](Outline outline, const std::optional<Colour>& colour) {
        if (colour) {
            container.SetColour(entry.shape, outline, colour->red, colour->green, colour->blue);
        }
    };
    apply(Outline::Selected, rule.selectedColour);
    apply(Outline::Unselected, rule.unselectedColour);
}

void RuleSet::Relook(RuleEntry& entry, const Rule& rule) {
    entry.rule = rule;
    ApplyLook(entry);
    ApplyFlags(entry);
}

/// Enabling and disabling change the selection, which is put back.
void RuleSet::ApplyFlags(const RuleEntry& entry) {
    const bool selected = container.SelectedShape() == entry.shape;
    container.ShowShape(entry.shape, entry.rule.visible);
    container.EnableShape(entry.shape, TakesPresses(entry));
    container.SelectShape(entry.shape, selected);
}

void RuleSet::Remove(size_t index) {
    if (index < entries.size()) {
        container.DeleteShape(entries[index].shape);
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(index));
    }
}

/// A finished rule, not among `kept`, whose shape can become that of `rule` as it is.
size_t RuleSet::FindSameShape(const Rule& rule, const std::vector<ShapeID>& kept) const {
    for (size_t i = 0; i < entries.size(); ++i) {
        const bool free = std::find(kept.begin(), kept.end(), entries[i].shape) == kept.end();
        if (free && !IsUnfinished(entries[i]) && HasSameShape(entries[i].rule, rule)) {
            return i;
        }
    }
    return None;
}

/// New shapes are made beside the old ones, and the old ones go when nothing was refused.
bool RuleSet::Restore(const std::vector<Rule>& rules, std::string& problem) {
    std::vector<RuleEntry> restored;
    std::vector<ShapeID> kept;
    std::string refused;
    int number = entries.empty() ? 0 : counter;
    for (const Rule& rule : rules) {
        const size_t same = FindSameShape(rule, kept);
        const size_t known = Find(rule.name);
        RuleEntry entry = same != None ? entries[same] : RuleEntry();
        entry.rule = rule;
        std::string why;
        if (same != None) {
            kept.push_back(entry.shape);
        } else {
            entry.number = known != None ? entries[known].number : ++number;
            refused += Make(entry, why) == 0 ? "\n\"" + rule.name + "\": " + why : "";
        }
        restored.push_back(std::move(entry));
    }
    std::vector<RuleEntry>& dropped = refused.empty() ? entries : restored;
    for (const RuleEntry& entry : dropped) {
        if (std::find(kept.begin(), kept.end(), entry.shape) == kept.end()) {
            container.DeleteShape(entry.shape);
        }
    }
    if (!refused.empty()) {
        problem = "the library refuses these rules:" + refused;
        return false;
    }
    entries = std::move(restored);
    counter = number;
    for (RuleEntry& entry : entries) {
        Relook(entry, Rule(entry.rule));
    }
    return true;
}

void RuleSet::Select(size_t index) {
    for (size_t i = 0; i < entries.size(); ++i) {
        container.SelectShape(entries[i].shape, i == index);
    }
}

void RuleSet::SetFlags(size_t index, bool enabled, bool visible, bool locked) {
    Rule& rule = entries.at(index).rule;
    rule.enabled = enabled;
    rule.visible = visible;
    rule.locked = locked;
    ApplyFlags(entries[index]);
}

void RuleSet::TakeEdits() {
    for (size_t i = entries.size(); i-- > 0;) {
        RuleEntry& entry = entries[i];
        if (entry.state == RuleState::Deleted) {
            /// A shape that deleted itself stays in the container, empty, until the host takes it away.
            Remove(i);
            continue;
        }
        if (IsGesture(entry.state)) {
            continue;
        }
        std::string report = Report(entry.shape);
        if (report == entry.reported || report.empty()) {
            continue;
        }
        entry.state = RuleState::Complete;
        entry.rule.configuration = MergedConfiguration(entry.rule, report);
        entry.reported = std::move(report);
    }
}

void RuleSet::Refitted() {
    container.RefitShapes();
    for (RuleEntry& entry : entries) {
        if (!IsGesture(entry.state)) {
            entry.reported = Report(entry.shape);
        }
    }
}

std::string RuleSet::Report(ShapeID shape) const {
    const std::string text = container.Configuration(shape).str();
    return text.substr(0, text.find_last_not_of("\r\n") + 1);
}

void RuleSet::Hear(const char* text) {
    const std::optional<Notification> notification = ParseNotification(text);
    if (!notification) {
        return;
    }
    const size_t index = IndexOf(notification->shape);
    RuleEntry* const entry = index != None ? &entries[index] : beingMade;
    const RuleState before = notification->before.value_or(RuleState::Complete);
    const RuleState after = notification->after.value_or(RuleState::Complete);
    if (entry != nullptr && notification->after) {
        entry->state = after;
    }
    if (news) {
        news({entry, notification->after.has_value(), before, after, text});
    }
}

} // namespace rulecanvas::kit

#include "rules/scene.hpp"

#include "rules/json.hpp"
#include "rules/rules_file.hpp"
#include "rules/type_quirks.hpp"

#include <algorithm>

namespace rule_editor {

using rulecanvas::MouseCode;
using rulecanvas::Outline;
using rulecanvas::ShapeID;

Scene::Scene(SceneHost host)
    : m_host(std::move(host)), m_hostObject([this] { m_host.redraw(); }, [this](uint32_t) { m_hinted = true; }),
      m_container(&m_hostObject) {
    m_container.OnNotify([this](const char* text) { onNotification(text); });
    m_container.OnClientRect([this](rulecanvas::ViewID) { return m_host.clientRect(); });
    m_container.OnCapture([this](bool take) { OnCapture(take); });
    m_container.Enable();
}

bool Scene::add(Rule rule) {
    if (rule.configuration.empty()) {
        abandonUnfinished();
    }
    SceneEntry entry;
    entry.number = m_counter + 1;
    entry.rule = std::move(rule);
    if (entry.rule.name.empty()) {
        entry.rule.name = entry.rule.type + " " + std::to_string(entry.number);
    }

    rulecanvas::ShapeSettings settings;
    settings.view = VIEW;
    settings.type = entry.rule.type.c_str();
    settings.label = entry.rule.label.c_str();
    settings.name = entry.rule.name.c_str();
    settings.option = entry.rule.option.c_str();
    const std::string configuration = configurationToPass(entry.rule);
    settings.configuration = configuration.c_str();
    m_beingAdded = &entry;
    entry.shape = m_container.AddShape(settings);
    m_beingAdded = nullptr;
    if (entry.shape == 0) {
        return false;
    }

    m_counter = entry.number;
    if (!configuration.empty()) {
        entry.state = stateAsGiven(entry.shape);
    }
    applyLook(entry);
    m_entries.push_back(std::move(entry));
    m_host.redraw();
    return true;
}

/* A shape may accept a geometry that it cannot use, and then waits to be drawn. Some take it over in their first paint,
 * which may as well go nowhere. */
int Scene::stateAsGiven(ShapeID shape) const {
    rulecanvas::Surface nowhere;
    m_container.Paint(VIEW, nowhere);
    return m_container.Configuration(shape).empty() ? STATE_WAITING : STATE_COMPLETE;
}

void Scene::applyLook(const SceneEntry& entry) {
    const Rule& rule = entry.rule;
    if (!rule.caption.empty()) {
        m_container.SetCaption(entry.shape, rule.caption.c_str());
    }
    if (rule.direction) {
        m_container.SetDirection(entry.shape, *rule.direction);
    }
    if (rule.selectedColour) {
        m_container.SetColour(entry.shape, Outline::Selected, rule.selectedColour->red, rule.selectedColour->green,
                              rule.selectedColour->blue);
    }
    if (rule.unselectedColour) {
        m_container.SetColour(entry.shape, Outline::Unselected, rule.unselectedColour->red,
                              rule.unselectedColour->green, rule.unselectedColour->blue);
    }
}

void Scene::remove(size_t index) {
    if (index >= m_entries.size()) {
        return;
    }
    m_container.DeleteShape(m_entries[index].shape);
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index));
    m_host.redraw();
}

void Scene::clear() {
    m_container.DeleteAllShapes();
    m_entries.clear();
    m_counter = 0;
    m_host.redraw();
}

size_t Scene::find(const std::string& name) const {
    const auto named = [&name](const SceneEntry& entry) { return entry.rule.name == name; };
    return static_cast<size_t>(std::find_if(m_entries.begin(), m_entries.end(), named) - m_entries.begin());
}

size_t Scene::unfinished() const {
    const auto open = [](const SceneEntry& entry) {
        return entry.state == STATE_WAITING || entry.state == STATE_BEING_DRAWN;
    };
    return static_cast<size_t>(std::find_if(m_entries.begin(), m_entries.end(), open) - m_entries.begin());
}

void Scene::abandonUnfinished() {
    remove(unfinished());
}

void Scene::select(size_t index) {
    for (size_t i = 0; i < m_entries.size(); ++i) {
        m_container.SelectShape(m_entries[i].shape, i == index);
    }
    m_host.redraw();
}

std::vector<bool> Scene::selection() const {
    Json::Value states;
    std::string problem;
    std::vector<bool> selected(m_entries.size(), false);
    if (!parseJson(rulecanvas::AllShapeStates().str(), states, problem) || !states.isArray()) {
        return selected;
    }
    for (const Json::Value& state : states) {
        /* The report writes identities as signed numbers. */
        const Json::Value id = member(state, "ShapeID");
        const SceneEntry* const entry = id.isInt() ? entryOf(static_cast<ShapeID>(id.asInt())) : nullptr;
        if (entry != nullptr) {
            selected[static_cast<size_t>(entry - m_entries.data())] = member(state, "bSelShape").asBool();
        }
    }
    return selected;
}

void Scene::show(size_t index, bool visible) {
    m_container.ShowShape(m_entries.at(index).shape, visible);
    m_host.redraw();
}

void Scene::SetPointLimits(size_t index, int32_t maximum, int32_t minimum) {
    m_container.SetPointLimits(m_entries.at(index).shape, maximum, minimum);
}

void Scene::SetDirection(size_t index, int32_t direction) {
    m_entries.at(index).rule.direction = direction;
    applyLook(m_entries[index]);
    m_host.redraw();
}

void Scene::SetColour(size_t index, Outline outline, Colour colour) {
    Rule& rule = m_entries.at(index).rule;
    (outline == Outline::Selected ? rule.selectedColour : rule.unselectedColour) = colour;
    applyLook(m_entries[index]);
    m_host.redraw();
}

std::string Scene::Configuration(size_t index) const {
    const std::string text = m_container.Configuration(m_entries.at(index).shape).str();
    return text.substr(0, text.find_last_not_of("\r\n") + 1);
}

void Scene::save(const std::wstring& path) const {
    std::vector<Rule> rules;
    for (size_t i = 0; i < m_entries.size(); ++i) {
        if (i == unfinished()) {
            continue;
        }
        rules.push_back(m_entries[i].rule);
        rules.back().configuration = Configuration(i);
    }
    saveRules(path, rules);
}

void Scene::load(const std::wstring& path) {
    const std::vector<Rule> rules = loadRules(path);
    clear();
    for (const Rule& rule : rules) {
        if (!add(rule)) {
            m_host.log("refused: " + rule.type + " \"" + rule.name + "\"");
        }
    }
    select(m_entries.size());
}

void Scene::SendMouse(MouseCode code, float x, float y) {
    m_container.SendMouse(code, VIEW, x, y);
    removeDeleted();
    noticeSilentCompletion();
}

void Scene::SendKey(uint16_t virtualKey) {
    m_container.SendKey(VIEW, virtualKey);
    removeDeleted();
}

bool Scene::wouldGrab(float x, float y) {
    m_hinted = false;
    m_container.SendMouse(MouseCode::CursorQuery, VIEW, x, y);
    return m_hinted;
}

void Scene::OnCapture(bool take) {
    m_host.log(take ? "mouse captured" : "mouse released");
    m_host.captureMouse(take);
}

void Scene::onNotification(const char* text) {
    const std::optional<Notification> notification = parseNotification(text);
    if (!notification) {
        m_host.log(std::string("not understood: ") + text);
        return;
    }
    const SceneEntry* const known = entryOf(notification->shape);
    SceneEntry* const entry =
        known != nullptr ? &m_entries[static_cast<size_t>(known - m_entries.data())] : m_beingAdded;
    if (entry != nullptr && notification->stateAfter) {
        entry->state = *notification->stateAfter;
    }
    const std::string mark = entry != nullptr ? "#" + std::to_string(entry->number) : "#?";
    const std::string name = entry != nullptr ? entry->rule.name : "a shape";
    m_host.log(name + ": " + describe(*notification) + "   " + withoutIdentity(text, mark));
}

const SceneEntry* Scene::entryOf(ShapeID shape) const {
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [shape](const SceneEntry& entry) { return entry.shape == shape; });
    return found != m_entries.end() ? &*found : nullptr;
}

void Scene::noticeSilentCompletion() {
    const size_t index = unfinished();
    if (index < m_entries.size() && !tellsWhenComplete(m_entries[index].rule.type) && !Configuration(index).empty()) {
        m_entries[index].state = STATE_COMPLETE;
    }
}

/* A shape that deleted itself stays in the container, empty, until the host takes it away. That waits for the end of
 * the event, so that the list of rules never changes under a notification. */
void Scene::removeDeleted() {
    for (size_t i = m_entries.size(); i-- > 0;) {
        if (m_entries[i].state == STATE_DELETED) {
            m_host.log(m_entries[i].rule.name + ": taken away");
            remove(i);
        }
    }
}

} // namespace rule_editor

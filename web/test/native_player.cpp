// Plays a table of gestures on the native library, as a host with a view of 800 x 600 pixels, and prints what the
// library says and writes. The browser's test plays the same table on the module.
#include <rulecanvas/host.hpp>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using rulecanvas::ClientRect;
using rulecanvas::Container;
using rulecanvas::MouseCode;
using rulecanvas::ShapeID;

constexpr rulecanvas::ViewID View = 0;
constexpr int Deleted = 0;
constexpr int Complete = 3;
constexpr int DragMoves = 4;
constexpr uint16_t Escape = 27;

struct Rule {
    std::string type;
    std::string name;
    std::string option;
    std::string configuration;
    std::string caption;
    std::string direction;
    ShapeID shape = 0;
    int state = 1;
};

class Player {
  public:
    Player() {
        container.OnNotify([this](const char* text) { Notified(text); });
        container.OnClientRect([](rulecanvas::ViewID) { return ClientRect{0, 0, 800, 600}; });
        container.OnCapture([](bool take) { std::cout << "capture " << take << '\n'; });
        container.SetVideoSize(1280, 720);
        container.Enable();
    }

    /// Steps with bars between them.
    void Play(const std::string& steps) {
        std::istringstream in(steps);
        for (std::string step; std::getline(in, step, '|');) {
            PlayStep(step);
        }
    }

  private:
    void PlayStep(const std::string& step) {
        std::istringstream words(step);
        std::string command;
        words >> command;
        if (command == "add") {
            Add(words);
        } else if (command == "reload") {
            Reload();
        } else if (command == "escape") {
            container.SendKey(View, Escape);
            RemoveUnfinished();
        } else if (!PlayOnRule(command, words)) {
            PlayMouse(command, words);
        }
    }

    void Add(std::istringstream& words) {
        Rule rule;
        words >> rule.type >> rule.name >> rule.option >> rule.configuration;
        rule.option = rule.option == "-" ? "" : rule.option;
        if (rule.configuration.empty()) {
            RemoveUnfinished();
        }
        Make(rule);
    }

    void Make(Rule rule) {
        rule.state = rule.configuration.empty() ? 1 : Complete;
        rule.shape = container.AddShape(
            {View, rule.type.c_str(), "rule", rule.name.c_str(), rule.configuration.c_str(), rule.option.c_str()});
        if (rule.shape == 0) {
            throw std::runtime_error("refused: " + rule.name);
        }
        if (!rule.caption.empty()) {
            container.SetCaption(rule.shape, rule.caption.c_str());
        }
        if (!rule.direction.empty()) {
            container.SetDirection(rule.shape, std::stoi(rule.direction));
        }
        Paint();
        rules.push_back(rule);
    }

    void Reload() {
        std::vector<Rule> saved = rules;
        for (Rule& rule : saved) {
            rule.configuration = Configuration(rule);
            if (rule.type == "OvalShape") {
                rule.configuration.replace(rule.configuration.find(rule.name), rule.name.size(), "OvalShape");
            }
            container.DeleteShape(rule.shape);
        }
        rules.clear();
        for (const Rule& rule : saved) {
            Make(rule);
        }
        for (const Rule& rule : rules) {
            container.SelectShape(rule.shape, false);
        }
    }

    bool PlayOnRule(const std::string& command, std::istringstream& words) {
        static const std::vector<std::string> known = {"config", "direction", "limits", "caption", "select", "remove"};
        if (std::find(known.begin(), known.end(), command) == known.end()) {
            return false;
        }
        std::string name;
        std::string value;
        words >> name >> value;
        Rule& rule = RuleNamed(name);
        if (command == "config") {
            std::cout << "config " << name << ' ' << Configuration(rule) << '\n';
        } else if (command == "direction") {
            rule.direction = value;
            container.SetDirection(rule.shape, std::stoi(value));
        } else if (command == "limits") {
            int minimum = 0;
            words >> minimum;
            container.SetPointLimits(rule.shape, std::stoi(value), minimum);
        } else if (command == "caption") {
            rule.caption = value;
            container.SetCaption(rule.shape, value.c_str());
        } else if (command == "select") {
            for (const Rule& each : rules) {
                container.SelectShape(each.shape, each.shape == rule.shape);
            }
        } else {
            Remove(rule.shape);
        }
        return true;
    }

    void PlayMouse(const std::string& command, std::istringstream& words) {
        const std::vector<float> at{std::istream_iterator<float>(words), std::istream_iterator<float>()};
        Send(MouseCode::Moved, at.at(0), at.at(1));
        if (command == "click") {
            Send(MouseCode::LeftDown, at[0], at[1]);
            Send(MouseCode::LeftUp, at[0], at[1]);
        } else if (command == "rclick" || command == "altrclick") {
            Send(command == "rclick" ? MouseCode::RightDown : MouseCode::AltRightDown, at[0], at[1]);
            Send(MouseCode::RightUp, at[0], at[1]);
        } else if (command == "drag") {
            Send(MouseCode::LeftDown, at[0], at[1]);
            for (int i = 1; i <= DragMoves; ++i) {
                const float part = static_cast<float>(i) / DragMoves;
                Send(MouseCode::Moved, at[0] + (at.at(2) - at[0]) * part, at[1] + (at.at(3) - at[1]) * part);
            }
            Send(MouseCode::LeftUp, at[2], at[3]);
        } else if (command != "move") {
            throw std::runtime_error("unknown step " + command);
        }
    }

    void Send(MouseCode code, float x, float y) {
        container.SendMouse(code, View, x, y);
        for (Rule& rule : rules) {
            if (rule.type == "SpotShape" && rule.state == 1 && !Configuration(rule).empty()) {
                rule.state = Complete;
            }
        }
        RemoveThoseIn(Deleted, Deleted);
        Paint();
    }

    void Paint() {
        rulecanvas::Surface nowhere;
        container.Paint(View, nowhere);
    }

    void Notified(const char* text) {
        std::cout << "notify " << text;
        static const std::regex pattern("\"ShapeID\":([0-9]+)\\.0,\"ShapeName\":\"[^\"]*\",\"ShapeState\":([0-9])");
        std::cmatch match;
        if (std::regex_search(text, match, pattern)) {
            for (Rule& rule : rules) {
                if (std::to_string(rule.shape) == match[1]) {
                    rule.state = std::stoi(match[2]);
                }
            }
        }
    }

    void RemoveUnfinished() { RemoveThoseIn(1, 2); }

    void RemoveThoseIn(int firstState, int lastState) {
        const std::vector<Rule> now = rules;
        for (const Rule& rule : now) {
            if (rule.state >= firstState && rule.state <= lastState) {
                Remove(rule.shape);
            }
        }
    }

    void Remove(ShapeID shape) {
        container.DeleteShape(shape);
        rules.erase(
            std::remove_if(rules.begin(), rules.end(), [shape](const Rule& rule) { return rule.shape == shape; }),
            rules.end());
    }

    Rule& RuleNamed(const std::string& name) {
        const auto found =
            std::find_if(rules.begin(), rules.end(), [&name](const Rule& rule) { return rule.name == name; });
        if (found == rules.end()) {
            throw std::runtime_error("there is no rule " + name);
        }
        return *found;
    }

    std::string Configuration(const Rule& rule) const {
        const std::string text = container.Configuration(rule.shape).str();
        return text.substr(0, text.find_last_not_of('\n') + 1);
    }

    Container container;
    std::vector<Rule> rules;
};

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: native_player TABLE\n";
        return 2;
    }
    std::ifstream table(arguments[1]);
    std::unique_ptr<Player> player;
    try {
        for (std::string line; std::getline(table, line);) {
            if (line.rfind("case ", 0) == 0) {
                player.reset();
                std::cout << line << '\n';
                player = std::make_unique<Player>();
            } else if (!line.empty() && line[0] != '#') {
                player->Play(line);
            }
        }
    } catch (const std::exception& problem) {
        std::cerr << problem.what() << '\n';
        return 1;
    }
}

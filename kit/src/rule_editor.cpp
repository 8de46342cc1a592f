#include <rulecanvas_kit/rule_editor.hpp>

#include <rulecanvas_kit/figure_types.hpp>

#include <utility>

namespace rulecanvas::kit {

namespace {

constexpr uint16_t EscapeKey = 27;

} // namespace

RuleEditor::RuleEditor(RuleEditorHost given)
    : host(std::move(given)), hostObject([this] { host.redraw(); }), container(&hostObject), rules(container) {
    rules.SetViewSize(host.viewSize);
    rules.OnNews([this](const RuleNews& news) {
        if (host.news && !quiet) {
            host.news(news);
        }
    });
    container.OnClientRect([this](ViewID) {
        const Size size = host.viewSize();
        return ClientRect{0, 0, size.width, size.height};
    });
    container.OnCapture([this](bool take) { Capture(take); });
    container.Enable();
}

RuleEditor::~RuleEditor() {
    quiet = true;
    losingCapture = true;
}

void RuleEditor::Capture(bool take) {
    captured = take;
    if (!losingCapture) {
        host.capture(take);
    }
}

/// Some shapes keep the mouse; it is let go with the button, so that the rest of the host can be reached.
void RuleEditor::ReleaseLeft(PointF at) {
    if (!rules.Settled()) {
        /// A pixel counter takes its size while it is painted.
        Surface nowhere;
        Move(at);
        container.Paint(0, nowhere);
    }
    container.SendMouse(MouseCode::LeftUp, 0, at.x, at.y);
    rules.EndGesture();
    LetMouseGo();
}

void RuleEditor::LetMouseGo() {
    if (captured) {
        Capture(false);
    }
}

void RuleEditor::Move(PointF at) {
    pointer = at;
    container.SendMouse(MouseCode::Moved, 0, at.x, at.y);
}

void RuleEditor::LeftDown(PointF at) {
    pressed = at;
    pointer = at;
    if (!drawing) {
        const bool onPoint = UseOf(at) == PointerUse::DragPoint;
        captured = false;
        rules.Press(MouseCode::LeftDown, at);
        if (captured) {
            rules.BeginGesture(onPoint ? Grip::Point : Grip::Body);
        }
    } else if (DrawsCorners() && NearFirstCorner(at) && corners.size() >= LeastCorners()) {
        CloseDrawing();
        return;
    } else {
        captured = false;
        container.SendMouse(MouseCode::LeftDown, 0, at.x, at.y);
        if (captured) {
            rules.SetBeingDrawn(true);
        }
    }
    Settle();
}

void RuleEditor::LeftUp(PointF at) {
    const bool wasDrawn = BeingDrawn();
    const size_t selected = rules.Selected();
    const bool wasDragged = selected != RuleSet::None && rules.Entries()[selected].state == RuleState::PointDragged;
    const std::string before = wasDragged ? rules.Entries()[selected].reported : std::string();
    pointer = at;
    ReleaseLeft(at);
    if (wasDrawn && DrawsCorners()) {
        NoticeCorner(at);
    } else if (wasDrawn && rules.Unfinished() != RuleSet::None && GestureOf(drawn) == Gesture::Box && !AlsoByClicks()) {
        rules.SetBeingDrawn(false);
        Say("Too small: press at one corner and drag to the opposite one");
    }
    Settle();
    if (wasDragged && rules.Entries()[selected].reported == before) {
        SayWhyNotMoved(at);
    }
}

void RuleEditor::DoubleClick(PointF at) {
    if (BeingDrawn() && DrawsCorners() && !corners.empty()) {
        CloseDrawing();
    } else {
        LeftDown(at);
    }
}

bool RuleEditor::RightDown(PointF at, bool alt) {
    const MouseCode code = alt ? MouseCode::AltRightDown : MouseCode::RightDown;
    pointer = at;
    if (BeingDrawn() && DrawsCorners()) {
        CloseDrawing();
        return true;
    }
    const std::vector<Rule> before = rules.Finished();
    rules.Press(code, at);
    Settle();
    return drawing || before != rules.Finished();
}

void RuleEditor::RightUp(PointF at) {
    container.SendMouse(MouseCode::RightUp, 0, at.x, at.y);
    LetMouseGo();
}

void RuleEditor::CaptureLost() {
    losingCapture = true;
    if (!rules.Settled() && !(BeingDrawn() && DrawsCorners())) {
        ReleaseLeft(pointer);
    }
    losingCapture = false;
    Settle();
}

void RuleEditor::Escape() {
    container.SendKey(0, EscapeKey, pointer.x, pointer.y);
    if (BeingDrawn()) {
        RestartDrawing();
    } else if (drawing) {
        StopDrawing();
    } else if (!rules.Settled()) {
        ReleaseLeft(pointer);
        rules.TakeEdits();
        Show(history.Current());
        Say("The figure is where it was");
    } else {
        rules.Select(RuleSet::None);
    }
    Changed();
}

void RuleEditor::Resized() {
    rules.Refitted();
    host.redraw();
}

PointerUse RuleEditor::UseOf(PointF at) const {
    if (drawing) {
        const bool closes = DrawsCorners() && corners.size() >= LeastCorners() && NearFirstCorner(at);
        return closes ? PointerUse::Close : PointerUse::Draw;
    }
    const size_t rule = rules.RuleAt(at);
    if (rule == RuleSet::None) {
        return PointerUse::Nothing;
    }
    return rules.GripOf(rule, at) == Grip::Point ? PointerUse::DragPoint : PointerUse::Move;
}

/// After every event that may have ended a gesture: what the user did becomes a step of the history.
void RuleEditor::Settle() {
    rules.TakeEdits();
    if (rules.Settled()) {
        const bool finished = drawing && rules.Unfinished() == RuleSet::None;
        history.Record(rules.Finished());
        if (finished) {
            corners.clear();
            drawing = false;
            std::string problem;
            if (keepDrawing && !StartDrawing(drawn, true, problem)) {
                Say(problem);
            }
        } else if (!BeingDrawn()) {
            corners.clear();
        }
    }
    Changed();
}

void RuleEditor::Say(const std::string& text) const {
    if (host.say && !text.empty()) {
        host.say(text);
    }
}

void RuleEditor::Changed() const {
    host.redraw();
    if (host.changed) {
        host.changed();
    }
}

} // namespace rulecanvas::kit

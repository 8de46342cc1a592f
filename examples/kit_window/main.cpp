/// A window with a rule editor: P, R and L draw, Ctrl+Z and Ctrl+Y undo and redo, S saves into the file named as argument.
#include <rulecanvas_kit/figure_types.hpp>
#include <rulecanvas_kit/rules_file.hpp>
#include <rulecanvas_kit/unicode.hpp>
#include <rulecanvas_kit/view.hpp>

#include <map>
#include <memory>

using namespace rulecanvas::kit;

class EditorView final : public View {
  public:
    EditorView(HWND handle, std::filesystem::path path) : View(handle), window(handle), file(std::move(path)) {
        const std::optional<RulesFile> read = ReadRulesFile(file, problem);
        Say(read && Rules().Load(read->rules, problem) ? Rules().Help() : "A new file: " + problem);
    }
    void Type(WPARAM letter) {
        static const std::map<WPARAM, const char*> tools = {{'p', "Polygon"}, {'r', "Rect"}, {'l', "LineShape"}};
        Rule rule;
        if (letter == 's') {
            WriteRulesFile(file, {{}, Rules().RulesToSave(), {}}, problem) ? Rules().MarkSaved() : Say(problem);
        } else if (tools.count(letter) != 0) {
            rule.type = tools.at(letter);
            ChooseReadableColours(rule);
            Rules().StartDrawing(rule, false, problem);
        }
    }

  protected:
    void Changed() override { Say(Rules().Help()); }
    void Say(const std::string& text) override {
        SetWindowTextW(window, ToWide((Rules().HasUnsavedChanges() ? "* " : "") + text).c_str());
    }

  private:
    HWND window;
    std::filesystem::path file;
    std::string problem;
};

static std::unique_ptr<EditorView> view;

static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (message == WM_DESTROY) {
        view.reset();
        PostQuitMessage(0);
    } else if (message == WM_CHAR) {
        view->Type(wParam);
    }
    const bool done = view && view->HandleMessage(message, wParam, lParam, result);
    return done ? result : DefWindowProcW(window, message, wParam, lParam);
}

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR path, int) {
    const WNDCLASSW description = {CS_DBLCLKS, Procedure, 0, 0, instance, {}, {}, {}, {}, L"KitWindow"};
    RegisterClassW(&description);
    const HWND window =
        CreateWindowW(L"KitWindow", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 660, 520, {}, {}, instance, {});
    view = std::make_unique<EditorView>(window, *path != L'\0' ? path : L"kit_window.rules.json");
    for (MSG message = {}; GetMessageW(&message, nullptr, 0, 0) > 0; DispatchMessageW(&message)) {
        TranslateMessage(&message);
    }
    return 0;
}

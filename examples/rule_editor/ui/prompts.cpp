#include "ui/prompts.hpp"

#include <rulecanvas_kit/unicode.hpp>

#include <commdlg.h>

namespace rule_editor {

using rulecanvas::kit::Colour;

namespace {

constexpr const wchar_t* RulesFilter = L"Rules (*.rules.json)\0*.rules.json\0All files\0*.*\0";
constexpr const wchar_t* VideoFilter =
    L"YUV4MPEG2 video, PNG, JPEG (*.y4m, *.png, *.jpg)\0*.y4m;*.png;*.jpg;*.jpeg\0All files\0*.*\0";

} // namespace

const wchar_t* const ProgramTitle = L"Rule editor";

SaveAnswer DialogPrompts::AskToSave(HWND owner) {
    switch (MessageBoxW(owner, L"The rules have changes that are not saved. Save them first?", ProgramTitle,
                        MB_YESNOCANCEL | MB_ICONQUESTION)) {
    case IDYES:
        return SaveAnswer::Save;
    case IDNO:
        return SaveAnswer::Discard;
    default:
        return SaveAnswer::Cancel;
    }
}

std::wstring DialogPrompts::AskForPath(HWND owner, PathPurpose purpose) {
    const bool video = purpose == PathPurpose::OpenVideo;
    const bool save = purpose == PathPurpose::SaveRules;
    wchar_t path[MAX_PATH] = {};
    OPENFILENAMEW dialog = {};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrTitle = video  ? L"Open a video: YUV4MPEG2 (ffmpeg -i clip.mp4 -pix_fmt yuv420p clip.y4m), PNG or JPEG"
                        : save ? L"Save the rules"
                               : L"Load rules";
    dialog.lpstrFilter = video ? VideoFilter : RulesFilter;
    dialog.lpstrFile = path;
    dialog.nMaxFile = MAX_PATH;
    dialog.lpstrDefExt = video ? nullptr : L"rules.json";
    dialog.Flags = OFN_NOCHANGEDIR | (save ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST);
    const bool chosen = (save ? GetSaveFileNameW(&dialog) : GetOpenFileNameW(&dialog)) != FALSE;
    return chosen ? path : std::wstring();
}

std::optional<Colour> DialogPrompts::AskForColour(HWND owner, Colour first) {
    static COLORREF custom[16] = {};
    CHOOSECOLORW choice = {};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = owner;
    choice.rgbResult = RGB(first.red, first.green, first.blue);
    choice.lpCustColors = custom;
    choice.Flags = CC_FULLOPEN | CC_RGBINIT;
    if (ChooseColorW(&choice) == FALSE) {
        return std::nullopt;
    }
    return Colour{GetRValue(choice.rgbResult), GetGValue(choice.rgbResult), GetBValue(choice.rgbResult)};
}

void DialogPrompts::Tell(HWND owner, const std::string& text) {
    MessageBoxW(owner, rulecanvas::kit::ToWide(text).c_str(), ProgramTitle, MB_ICONWARNING);
}

UINT DialogPrompts::PickFromMenu(HWND owner, HMENU menu, POINT at) {
    return static_cast<UINT>(TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, 0, owner, nullptr));
}

} // namespace rule_editor

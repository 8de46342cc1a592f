#include <rulecanvas_kit/unicode.hpp>

#include <windows.h>

namespace rulecanvas::kit {

namespace {

std::wstring Decode(const std::string& bytes, UINT codePage, DWORD flags) {
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(codePage, flags, bytes.data(), size, nullptr, 0);
    std::wstring text(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(codePage, flags, bytes.data(), size, text.data(), length);
    return text;
}

} // namespace

std::wstring ToWide(const std::string& bytes) {
    const std::wstring text = Decode(bytes, CP_UTF8, MB_ERR_INVALID_CHARS);
    return text.empty() ? Decode(bytes, CP_ACP, 0) : text;
}

std::string ToUtf8(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), length, nullptr, nullptr);
    return bytes;
}

} // namespace rulecanvas::kit

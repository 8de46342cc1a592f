#include "unicode.hpp"

#include <windows.h>

namespace rule_editor {

namespace {

std::wstring decode(const std::string& bytes, UINT codePage, DWORD flags) {
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(codePage, flags, bytes.data(), size, nullptr, 0);
    std::wstring text(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(codePage, flags, bytes.data(), size, text.data(), length);
    return text;
}

} // namespace

std::wstring toWide(const std::string& bytes) {
    const std::wstring text = decode(bytes, CP_UTF8, MB_ERR_INVALID_CHARS);
    return text.empty() ? decode(bytes, CP_ACP, 0) : text;
}

std::string toUtf8(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), length, nullptr, nullptr);
    return bytes;
}

} // namespace rule_editor

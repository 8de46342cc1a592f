#ifndef RULECANVAS_KIT_UNICODE_HPP
#define RULECANVAS_KIT_UNICODE_HPP

#include <string>

namespace rulecanvas::kit {

/// The program's texts are UTF-8; Windows takes UTF-16. Bytes that are not UTF-8 are read in the system's code page.
std::wstring ToWide(const std::string& bytes);
std::string ToUtf8(const std::wstring& text);

} // namespace rulecanvas::kit

#endif

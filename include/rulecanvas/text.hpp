/// A text that the library gave to the host.
#ifndef RULECANVAS_TEXT_HPP
#define RULECANVAS_TEXT_HPP

#include <stdint.h>

#if __STDC_HOSTED__
#include <string>
#endif

namespace rulecanvas {

/// Owns NUL-terminated bytes; movable. Empty when the library had nothing to say.
class Text {
  public:
    Text() = default;
    Text(Text&& other) noexcept : bytes(other.bytes) { other.bytes = nullptr; }
    Text& operator=(Text&& other) noexcept {
        char* const mine = bytes;
        bytes = other.bytes;
        other.bytes = mine;
        return *this;
    }
    ~Text() { delete[] bytes; }

    /// Never null; valid while this object keeps its text.
    const char* c_str() const noexcept { return bytes != nullptr ? bytes : ""; }
    bool empty() const noexcept { return *c_str() == '\0'; }
#if __STDC_HOSTED__
    std::string str() const {
        return c_str();
    }
#endif

    /// Calls `copied(char* buffer, int32_t size)` with growing buffers until it answers true; empty when it never does.
    /// Texts of 16 MiB and more count as absent.
    template <class Copied>
    static Text ReadWith(Copied copied) {
        for (int32_t size = Smallest; size <= Largest; size *= Growth) {
            Text text;
            text.bytes = new char[static_cast<uint32_t>(size) + 1U];
            text.bytes[0] = '\0';
            /// Some texts may fill the size that is told without a terminating zero.
            text.bytes[size] = '\0';
            if (copied(text.bytes, size)) {
                return text;
            }
        }
        return Text();
    }

  private:
    static constexpr int32_t Smallest = 4 * 1024;
    static constexpr int32_t Growth = 16;
    static constexpr int32_t Largest = 16 * 1024 * 1024;

    char* bytes = nullptr;
};

} // namespace rulecanvas

#endif

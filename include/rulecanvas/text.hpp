/* A text that the library gave to the host. */
#ifndef RULECANVAS_TEXT_HPP
#define RULECANVAS_TEXT_HPP

#include <stdint.h>

#if __STDC_HOSTED__
#include <string>
#endif

namespace rulecanvas {

/* Owns NUL-terminated bytes; movable. Empty when the library had nothing to say. */
class Text {
  public:
    Text() = default;
    Text(Text&& other) noexcept : m_bytes(other.m_bytes) { other.m_bytes = nullptr; }
    Text& operator=(Text&& other) noexcept {
        char* const mine = m_bytes;
        m_bytes = other.m_bytes;
        other.m_bytes = mine;
        return *this;
    }
    ~Text() { delete[] m_bytes; }

    /* Never null; valid while this object keeps its text. */
    const char* c_str() const noexcept { return m_bytes != nullptr ? m_bytes : ""; }
    bool empty() const noexcept { return *c_str() == '\0'; }
#if __STDC_HOSTED__
    std::string str() const {
        return c_str();
    }
#endif

    /* Calls `copied(char* buffer, int32_t size)` with growing buffers until it answers true; empty when it never does.
     * Texts of 16 MiB and more count as absent. */
    template <class Copied>
    static Text readWith(Copied copied) {
        for (int32_t size = SMALLEST; size <= LARGEST; size *= GROWTH) {
            Text text;
            text.m_bytes = new char[static_cast<uint32_t>(size) + 1U];
            text.m_bytes[0] = '\0';
            /* Some texts may fill the size that is told without a terminating zero. */
            text.m_bytes[size] = '\0';
            if (copied(text.m_bytes, size)) {
                return text;
            }
        }
        return Text();
    }

  private:
    static constexpr int32_t SMALLEST = 4 * 1024;
    static constexpr int32_t GROWTH = 16;
    static constexpr int32_t LARGEST = 16 * 1024 * 1024;

    char* m_bytes = nullptr;
};

} // namespace rulecanvas

#endif

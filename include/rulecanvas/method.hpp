/// Code that the library can call on an object of the host, and callables of the host behind it.
///
/// Hosts need this header only for delegates that host.hpp has no typed call for.
#ifndef RULECANVAS_METHOD_HPP
#define RULECANVAS_METHOD_HPP

/// GCC finds it odd that code called as a method is not a member.
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wattributes"
#endif
#include <rulecanvas/rulecanvas.h>
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

/// A static function `R RULECANVAS_METHOD f(RULECANVAS_SELF, args...)` is entered as the library enters a method: on
/// 32-bit Windows the object is in ecx, edx carries nothing, the callee pops the rest. Every compiler accepts this form,
/// while `thiscall` on a function that is no member is not for all. `self` is the target of the delegate.
#if defined(_WIN32) && (defined(__i386__) || defined(_M_IX86))
#define RULECANVAS_METHOD __fastcall
#define RULECANVAS_SELF void *self, uintptr_t // NOLINT(bugprone-macro-parentheses): parameters
#else
#define RULECANVAS_METHOD
#define RULECANVAS_SELF void* self // NOLINT(bugprone-macro-parentheses): a parameter
#endif

namespace rulecanvas {

/// Reads a boolean that crossed the boundary: bytes above the lowest are junk.
constexpr bool IsTrue(Bool32 value) noexcept {
    return (value & 0xFFU) != 0;
}
constexpr Bool32 AsBool32(bool value) noexcept {
    return value ? 1U : 0U;
}

/// The target of a delegate. Lives at one address until its list ends.
class BoundCallable {
  public:
    BoundCallable() = default;
    virtual ~BoundCallable() = default;
    BoundCallable(const BoundCallable&) = delete;
    BoundCallable& operator=(const BoundCallable&) = delete;

  private:
    friend class BoundCallableList;
    BoundCallable* next = nullptr;
};

/// Owns callables and never moves or drops one while it lives, so that a callable may be replaced while it runs.
class BoundCallableList {
  public:
    BoundCallableList() = default;
    BoundCallableList(BoundCallableList&& other) noexcept : first(other.first) { other.first = nullptr; }
    BoundCallableList& operator=(BoundCallableList&& other) noexcept {
        BoundCallable* const mine = first;
        first = other.first;
        other.first = mine;
        return *this;
    }
    ~BoundCallableList() {
        while (first != nullptr) {
            BoundCallable* const next = first->next;
            delete first;
            first = next;
        }
    }

    /// Takes over `bound`, made by new, and returns the delegate that calls its static function `run`.
    template <class Bound>
    CDelegate Add(Bound* bound) noexcept {
        bound->next = first;
        first = bound;
        return {bound, reinterpret_cast<void*>(&Bound::Run)};
    }

  private:
    BoundCallable* first = nullptr;
};

} // namespace rulecanvas

#endif

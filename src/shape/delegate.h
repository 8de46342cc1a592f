#pragma once

#include "rulecanvas/rulecanvas.h"

namespace rulecanvas {

template <class Signature>
class Delegate;

/// A bound member function in two words, as hosts pass it. Invoking an empty one calls nothing and yields zero.
template <class Result, class... Arguments>
class Delegate<Result(Arguments...)> {
  public:
    using Method = Result(RULECANVAS_THISCALL*)(void*, Arguments...);

    Delegate() = default;

    explicit Delegate(const CDelegate& words) : target(words.target), method(reinterpret_cast<Method>(words.method)) {}

    template <auto Member, class Target>
    static Delegate Bind(Target* object) {
        Delegate bound;
        bound.target = object;
        bound.method = &Call<Member, Target>;
        return bound;
    }

    explicit operator bool() const { return target != nullptr && method != nullptr; }

    Result operator()(Arguments... arguments) const { return *this ? method(target, arguments...) : Result(); }

    /// The answer of a delegate that judges; an empty one accepts.
    bool Accepts(Arguments... arguments) const { return !*this || (*this)(arguments...); }

  private:
    template <auto Member, class Target>
    static Result RULECANVAS_THISCALL Call(void* object, Arguments... arguments) {
        return (static_cast<Target*>(object)->*Member)(arguments...);
    }

    void* target = nullptr;
    Method method = nullptr;
};

} // namespace rulecanvas

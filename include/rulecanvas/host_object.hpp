/// The object of the host that a container asks for redraws and pointer hints.
#ifndef RULECANVAS_HOST_OBJECT_HPP
#define RULECANVAS_HOST_OBJECT_HPP

#include <rulecanvas/method.hpp>

namespace rulecanvas {

/// Make one, give it to a Container, and keep it at its address until that container has ended; it may serve several
/// containers. Both callables run on the thread that feeds mouse and key events or creates shapes; they must not throw
/// (an exception that leaves one ends the program).
class HostObject {
  public:
    /// `redraw()`: repaint the views, at once or soon. `hint(uint32_t value)`: value 4, in answer to a cursor
    /// query, says that the last press met a figure's outline or inside, for instance to keep another cursor while that
    /// is dragged. It says nothing of what lies under the pointer now.
    template <class Redraw, class Hint>
    HostObject(Redraw redraw, Hint hint)
        : table(&TheTable),
          reactions(new Bound<Redraw, Hint>(static_cast<Redraw&&>(redraw), static_cast<Hint&&>(hint))) {}

    /// Without interest in pointer hints.
    template <class Redraw>
    explicit HostObject(Redraw redraw) : HostObject(static_cast<Redraw&&>(redraw), [](uint32_t) {}) {}

    ~HostObject() { delete reactions; }
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;

  private:
    class Reactions {
      public:
        virtual ~Reactions() = default;
        virtual void Redraw() {}
        virtual void Hint(uint32_t) {}
    };

    template <class OnRedraw, class OnHint>
    class Bound final : public Reactions {
      public:
        Bound(OnRedraw&& givenRedraw, OnHint&& givenHint)
            : redraw(static_cast<OnRedraw&&>(givenRedraw)), hint(static_cast<OnHint&&>(givenHint)) {}
        void Redraw() override { redraw(); }
        void Hint(uint32_t value) override { hint(value); }

      private:
        OnRedraw redraw;
        OnHint hint;
    };

    using Operation = void(RULECANVAS_METHOD*)(RULECANVAS_SELF, uint32_t value);

    /// Written out as code pointers: where a compiler puts the virtual functions of a class is its own affair.
    struct Table {
        Operation before[RULECANVAS_HOST_SET_INTERACTION_HINT];
        Operation setInteractionHint;
        Operation between[RULECANVAS_HOST_REQUEST_REDRAW - RULECANVAS_HOST_SET_INTERACTION_HINT - 1];
        Operation requestRedraw;
    };

    static void RULECANVAS_METHOD SetInteractionHint(RULECANVAS_SELF, uint32_t value) noexcept {
        static_cast<HostObject*>(self)->reactions->Hint(value);
    }
    static void RULECANVAS_METHOD RequestRedraw(RULECANVAS_SELF, uint32_t) noexcept {
        static_cast<HostObject*>(self)->reactions->Redraw();
    }

    static constexpr Table TheTable = {{}, &SetInteractionHint, {}, &RequestRedraw};

    /// The library finds the operations through the first word of the object.
    [[maybe_unused]] const Table* table;
    Reactions* reactions;
};

} // namespace rulecanvas

#endif

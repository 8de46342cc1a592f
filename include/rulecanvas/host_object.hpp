/* The object of the host that a container asks for redraws and pointer hints. */
#ifndef RULECANVAS_HOST_OBJECT_HPP
#define RULECANVAS_HOST_OBJECT_HPP

#include <rulecanvas/method.hpp>

namespace rulecanvas {

/* Make one, give it to a Container, and keep it at its address until that container has ended; it may serve several
 * containers. Both callables run on the thread that feeds mouse and key events or creates shapes; they must not throw
 * (an exception that leaves one ends the program). */
class HostObject {
  public:
    /* `redraw()`: repaint the views, at once or soon. `hint(uint32_t value)`: value 4 says that the pointer is over a
     * figure that it could grab, for instance to show another cursor. */
    template <class Redraw, class Hint>
    HostObject(Redraw redraw, Hint hint)
        : m_table(&TABLE),
          m_reactions(new Bound<Redraw, Hint>(static_cast<Redraw&&>(redraw), static_cast<Hint&&>(hint))) {}

    /* Without interest in pointer hints. */
    template <class Redraw>
    explicit HostObject(Redraw redraw) : HostObject(static_cast<Redraw&&>(redraw), [](uint32_t) {}) {}

    ~HostObject() { delete m_reactions; }
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;

  private:
    class Reactions {
      public:
        virtual ~Reactions() = default;
        virtual void redraw() {}
        virtual void hint(uint32_t) {}
    };

    template <class Redraw, class Hint>
    class Bound final : public Reactions {
      public:
        Bound(Redraw&& redraw, Hint&& hint)
            : m_redraw(static_cast<Redraw&&>(redraw)), m_hint(static_cast<Hint&&>(hint)) {}
        void redraw() override { m_redraw(); }
        void hint(uint32_t value) override { m_hint(value); }

      private:
        Redraw m_redraw;
        Hint m_hint;
    };

    using Operation = void(RULECANVAS_METHOD*)(RULECANVAS_SELF, uint32_t value);

    /* Written out as code pointers: where a compiler puts the virtual functions of a class is its own affair. */
    struct Table {
        Operation before[RULECANVAS_HOST_SET_INTERACTION_HINT];
        Operation setInteractionHint;
        Operation between[RULECANVAS_HOST_REQUEST_REDRAW - RULECANVAS_HOST_SET_INTERACTION_HINT - 1];
        Operation requestRedraw;
    };

    static void RULECANVAS_METHOD setInteractionHint(RULECANVAS_SELF, uint32_t value) noexcept {
        static_cast<HostObject*>(self)->m_reactions->hint(value);
    }
    static void RULECANVAS_METHOD requestRedraw(RULECANVAS_SELF, uint32_t) noexcept {
        static_cast<HostObject*>(self)->m_reactions->redraw();
    }

    static constexpr Table TABLE = {{}, &setInteractionHint, {}, &requestRedraw};

    /* The library finds the operations through the first word of the object. */
    [[maybe_unused]] const Table* m_table;
    Reactions* m_reactions;
};

} // namespace rulecanvas

#endif

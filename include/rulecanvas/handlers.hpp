/* The two callables of a container, for hosts that keep them apart from the Container object. */
#ifndef RULECANVAS_HANDLERS_HPP
#define RULECANVAS_HANDLERS_HPP

#include <rulecanvas/method.hpp>

namespace rulecanvas {

/* The code of a mouse or key event. What a host sends: the button codes as they happen, `moved` for every pointer move,
 * `cursorQuery` when it is about to choose a cursor (with the pointer's place as in a move), `altRightDown` for the
 * right button with Alt held, `keyDown` for keys. `movedEvent` is a move that only a drag in progress sees. */
enum class MouseCode : uint32_t {
    leftDown = 1,
    leftUp = 2,
    moved = 3,
    rightDown = 4,
    rightUp = 5,
    movedEvent = 6,
    cursorQuery = 9,
    altRightDown = 10,
    keyDown = 11
};

/* Owns a copy of one handler; movable. Calling it when empty does nothing. End it before its container is released. */
class Handler {
  public:
    Handler() = default;
    Handler(Handler&& other) noexcept : m_holder(other.m_holder) { other.m_holder.handler = nullptr; }
    Handler& operator=(Handler&& other) noexcept {
        ContainerHandler* const mine = m_holder.handler;
        m_holder.handler = other.m_holder.handler;
        other.m_holder.handler = mine;
        return *this;
    }
    ~Handler() { reset(); }

    /* Ends the copy. */
    void reset() noexcept {
        if (m_holder.handler != nullptr) {
            m_holder.handler->table->destroy(m_holder.handler, FREE_MEMORY);
        }
        m_holder.handler = nullptr;
    }
    explicit operator bool() const noexcept { return m_holder.handler != nullptr; }
    const ContainerHandler* get() const noexcept { return m_holder.handler; }

  protected:
    ContainerHandlerHolder* holder() noexcept { return &m_holder; }
    void invoke(uintptr_t first, uintptr_t second) const {
        if (m_holder.handler != nullptr) {
            m_holder.handler->table->invoke(m_holder.handler, first, second);
        }
    }

  private:
    static constexpr uint32_t FREE_MEMORY = 1;
    ContainerHandlerHolder m_holder = {nullptr, nullptr};
};

/* Feeds mouse and key events. Must not run while another thread creates or deletes shapes of the container. */
class MouseHandler : public Handler {
  public:
    MouseHandler() = default;
    /* Fetches the handler; stays empty for an unknown container or without memory. */
    explicit MouseHandler(ContainerHandle container) { GetContainerWinMouseEventHandler(container, holder()); }

    void operator()(const ContainerMouseEvent& event) const { invoke(0, reinterpret_cast<uintptr_t>(&event)); }
};

/* Draws the figures of a view. May run on a thread of its own beside everything but the end of the container. */
class DrawHandler : public Handler {
  public:
    DrawHandler() = default;
    /* Fetches the handler; stays empty for an unknown container or without memory. */
    explicit DrawHandler(ContainerHandle container) { GetContainerDrawEventHandler(container, holder()); }

    void operator()(ViewID view, IContainerGraphics& surface) const {
        invoke(view, reinterpret_cast<uintptr_t>(&surface));
    }
};

} // namespace rulecanvas

#endif

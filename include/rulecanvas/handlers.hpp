/// The two callables of a container, for hosts that keep them apart from the Container object.
#ifndef RULECANVAS_HANDLERS_HPP
#define RULECANVAS_HANDLERS_HPP

#include <rulecanvas/method.hpp>

namespace rulecanvas {

/// The code of a mouse or key event. What a host sends: the button codes as they happen, `Moved` for every pointer move,
/// `CursorQuery` when it is about to choose a cursor (with the pointer's place as in a move), `AltRightDown` for the
/// right button with Alt held, `KeyDown` for keys. `MovedEvent` is a move that only a drag in progress sees.
enum class MouseCode : uint32_t {
    LeftDown = 1,
    LeftUp = 2,
    Moved = 3,
    RightDown = 4,
    RightUp = 5,
    MovedEvent = 6,
    CursorQuery = 9,
    AltRightDown = 10,
    KeyDown = 11
};

/// Owns a copy of one handler; movable. Calling it when empty does nothing. End it before its container is released.
class Handler {
  public:
    Handler() = default;
    Handler(Handler&& other) noexcept : holder(other.holder) { other.holder.handler = nullptr; }
    Handler& operator=(Handler&& other) noexcept {
        ContainerHandler* const mine = holder.handler;
        holder.handler = other.holder.handler;
        other.holder.handler = mine;
        return *this;
    }
    ~Handler() { Reset(); }

    /// Ends the copy.
    void Reset() noexcept {
        if (holder.handler != nullptr) {
            holder.handler->table->destroy(holder.handler, FreeMemory);
        }
        holder.handler = nullptr;
    }
    explicit operator bool() const noexcept { return holder.handler != nullptr; }
    const ContainerHandler* Get() const noexcept { return holder.handler; }

  protected:
    ContainerHandlerHolder* Holder() noexcept { return &holder; }
    void Invoke(uintptr_t first, uintptr_t second) const {
        if (holder.handler != nullptr) {
            holder.handler->table->invoke(holder.handler, first, second);
        }
    }

  private:
    static constexpr uint32_t FreeMemory = 1;
    ContainerHandlerHolder holder = {nullptr, nullptr};
};

/// Feeds mouse and key events. Must not run while another thread creates or deletes shapes of the container.
class MouseHandler : public Handler {
  public:
    MouseHandler() = default;
    /// Fetches the handler; stays empty for an unknown container or without memory.
    explicit MouseHandler(ContainerHandle container) { GetContainerWinMouseEventHandler(container, Holder()); }

    void operator()(const ContainerMouseEvent& event) const { Invoke(0, reinterpret_cast<uintptr_t>(&event)); }
};

/// Draws the figures of a view. May run on a thread of its own beside everything but the end of the container.
class DrawHandler : public Handler {
  public:
    DrawHandler() = default;
    /// Fetches the handler; stays empty for an unknown container or without memory.
    explicit DrawHandler(ContainerHandle container) { GetContainerDrawEventHandler(container, Holder()); }

    void operator()(ViewID view, IContainerGraphics& surface) const {
        Invoke(view, reinterpret_cast<uintptr_t>(&surface));
    }
};

} // namespace rulecanvas

#endif

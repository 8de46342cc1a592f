#pragma once

#include "rulecanvas/rulecanvas.h"

namespace rulecanvas {

/// The operation behind a handler: its container's handle as a pointer, and the two words of the host's call.
using HandlerOperation = uintptr_t(RULECANVAS_THISCALL*)(void* target, uintptr_t first, uintptr_t second);

/// Owns one handler that the host can have copies of.
class HandlerHolder {
  public:
    HandlerHolder(ContainerHandle container, HandlerOperation operation);

    /// Destroys what the host's holder owns and gives it a copy; without memory it stays empty.
    void CopyTo(ContainerHandlerHolder& hostHolder) const;

  private:
    const ContainerHandler handler;
};

} // namespace rulecanvas

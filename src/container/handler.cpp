#include "container/handler.h"

#include "shape/types.h"

#include <new>

namespace rulecanvas {
namespace {

constexpr uint32_t FreeObject = 1;
constexpr uint32_t BoundMember = 1;

ContainerHandler* RULECANVAS_THISCALL Clone(const ContainerHandler* self) {
    return new (std::nothrow) ContainerHandler(*self);
}

void RULECANVAS_THISCALL Destroy(ContainerHandler* self, uint32_t flags) {
    if ((flags & FreeObject) != 0) {
        delete self;
    }
}

uint32_t RULECANVAS_THISCALL Kind(const ContainerHandler* /*self*/) {
    return BoundMember;
}

uintptr_t RULECANVAS_THISCALL Invoke(ContainerHandler* self, uintptr_t first, uintptr_t second) {
    return reinterpret_cast<HandlerOperation>(self->method)(self->target, first, second);
}

Bool32 RULECANVAS_THISCALL Equals(const ContainerHandler* self, const ContainerHandler* other) {
    return ToBool32(other != nullptr && other->table->kind(other) == BoundMember && other->target == self->target &&
                    other->method == self->method);
}

const ContainerHandlerTable Table{&Destroy, &Kind, &Invoke, &Equals, &Clone};

} // namespace

HandlerHolder::HandlerHolder(ContainerHandle container, HandlerOperation operation)
    : handler{&Table, reinterpret_cast<void*>(uintptr_t{container}), reinterpret_cast<void*>(operation)} {}

void HandlerHolder::CopyTo(ContainerHandlerHolder& hostHolder) const {
    if (hostHolder.handler != nullptr) {
        hostHolder.handler->table->destroy(hostHolder.handler, FreeObject);
        hostHolder.handler = nullptr;
    }
    hostHolder.handler = Clone(&handler);
}

} // namespace rulecanvas

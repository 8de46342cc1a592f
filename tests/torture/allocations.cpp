#include "allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace rulecanvas::torture {
namespace {

thread_local bool inLibrary = false;
thread_local long counted = 0;
thread_local long failing = 0;
std::atomic<long> liveBlocks{0};

/// Null when it is the allocation's turn to fail.
void* Allocate(std::size_t size) {
    if (inLibrary && ++counted == failing) {
        return nullptr;
    }
    void* const block = std::malloc(size == 0 ? 1 : size);
    liveBlocks += block == nullptr ? 0 : 1;
    return block;
}

void Free(void* block) {
    liveBlocks -= block == nullptr ? 0 : 1;
    std::free(block);
}

void* AllocateOrThrow(std::size_t size) {
    if (void* const block = Allocate(size)) {
        return block;
    }
    throw std::bad_alloc();
}

} // namespace

InsideLibrary::InsideLibrary() : before(inLibrary) {
    inLibrary = true;
}

InsideLibrary::~InsideLibrary() {
    inLibrary = before;
}

InsideHost::InsideHost() : before(inLibrary) {
    inLibrary = false;
}

InsideHost::~InsideHost() {
    inLibrary = before;
}

void FailAllocation(long number) {
    counted = 0;
    failing = number;
}

long CountedAllocations() {
    return counted;
}

long LiveBlocks() {
    return liveBlocks;
}

} // namespace rulecanvas::torture

using namespace rulecanvas::torture;

void* operator new(std::size_t size) {
    return AllocateOrThrow(size);
}

void* operator new[](std::size_t size) {
    return AllocateOrThrow(size);
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return Allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return Allocate(size);
}

void operator delete(void* block) noexcept {
    Free(block);
}

void operator delete[](void* block) noexcept {
    Free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
    Free(block);
}

void operator delete[](void* block, std::size_t /*size*/) noexcept {
    Free(block);
}

#pragma once

namespace rulecanvas::torture {

/// From here on this thread runs code of the library: its allocations are counted, and fail when it is their turn.
class InsideLibrary {
  public:
    InsideLibrary();
    ~InsideLibrary();
    InsideLibrary(const InsideLibrary&) = delete;
    InsideLibrary& operator=(const InsideLibrary&) = delete;

  private:
    const bool before;
};

/// From here on this thread runs code of the host again.
class InsideHost {
  public:
    InsideHost();
    ~InsideHost();
    InsideHost(const InsideHost&) = delete;
    InsideHost& operator=(const InsideHost&) = delete;

  private:
    const bool before;
};

/// Lets the allocation of that number, counted from now on and from 1, fail; 0: none.
void FailAllocation(long number);
/// How many were counted since then.
long CountedAllocations();
/// Blocks that the program has now.
long LiveBlocks();

} // namespace rulecanvas::torture

#pragma once

namespace rulecanvas::torture {

/// Trials are numbered; each runs every `stride`th of them, beginning with `first`, and tells how many there were.

/// One action of a host inside one callback of one figure's life.
long TryCalls(long first, long stride);
/// An exception out of one callback of one figure's life.
long TryThrows(long first, long stride);
/// One allocation that fails in one figure's life.
long TryAllocations(long first, long stride);
/// Figures that come and go, after which a container is as large as before.
long TryRepetition();
/// Hosts that do anything inside callbacks inside callbacks; trial and seed are the same number..
long TryNesting(long first, long count);
/// Four threads for so many rounds.
long TryThreads(long rounds);

} // namespace rulecanvas::torture

#pragma once

#include "container/published.h"
#include "platform/platform.h"
#include "shape/shape.h"

#include <vector>

namespace rulecanvas {

/// Shapes that listen to something, called in the order in which they registered.
///
/// A walk goes over the list as it stood when it began and holds no lock while it calls, so a listener may register and
/// unregister whatever it likes. One that was unregistered meanwhile is not called any more; one that is being called
/// stays in memory until the walk ends.
class ListenerList {
  public:
    /// `place` is where the shapes note their tickets for this list.
    explicit ListenerList(ListenerTicket CVideoAnalyseShape::*place) : ticketOf(place) {}

    void Register(const ShapePtr& listener);
    /// Nothing happens for a shape that is not in the list.
    void Unregister(CVideoAnalyseShape& listener);

    struct Entry {
        uint64_t ticket;
        /// Null once the listener was unregistered.
        ShapePtr listener;
    };
    /// In ascending order of ticket.
    using Entries = std::vector<Entry>;

    /// The list as it is now, for one walk.
    std::shared_ptr<const Entries> Snapshot();

    template <class Call>
    void Invoke(const Entries& walked, Call call) const {
        const Entry* const end = walked.data() + walked.size();
        for (const Entry* next = walked.data(); next != end; ++next) {
            if (end - next > FetchedAhead && next[FetchedAhead].listener != nullptr) {
                Fetch(*next[FetchedAhead].listener);
            }
            if (next->listener != nullptr && ((*next->listener).*ticketOf) == next->ticket) {
                call(*next->listener);
            }
        }
    }

  private:
    /// Listeners whose memory is on its way while another is called: with thousands of them waiting for it would take
    /// longer than the calls.
    static constexpr std::ptrdiff_t FetchedAhead = 2;

    static void Fetch(const CVideoAnalyseShape& listener) {
        constexpr size_t cacheLine = 64;
        constexpr size_t seenByPaint = 4 * cacheLine;
        const char* const begin = reinterpret_cast<const char*>(&listener);
        for (size_t at = 0; at < seenByPaint; at += cacheLine) {
            __builtin_prefetch(begin + at);
        }
    }

    void Remove(uint64_t ticket, Entries& all);

    ListenerTicket CVideoAnalyseShape::*const ticketOf;
    platform::ContainerMutex mutex;
    Published<Entries> entries;
    uint64_t lastTicket = 0;
    size_t goneCount = 0;
};

} // namespace rulecanvas

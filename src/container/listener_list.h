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
    bool IsEmpty();

    template <class Call>
    void Invoke(Call call) {
        const std::shared_ptr<const Entries> walked = Snapshot();
        for (const Entry& entry : *walked) {
            if (entry.listener != nullptr && ((*entry.listener).*ticketOf) == entry.ticket) {
                call(*entry.listener);
            }
        }
    }

  private:
    struct Entry {
        uint64_t ticket;
        /// Null once the listener was unregistered.
        ShapePtr listener;
    };
    /// In ascending order of ticket.
    using Entries = std::vector<Entry>;

    std::shared_ptr<const Entries> Snapshot();
    void Remove(uint64_t ticket, Entries& all);

    ListenerTicket CVideoAnalyseShape::*const ticketOf;
    platform::ContainerMutex mutex;
    Published<Entries> entries;
    uint64_t lastTicket = 0;
    size_t goneCount = 0;
};

} // namespace rulecanvas

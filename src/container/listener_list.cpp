#include "container/listener_list.h"

#include <algorithm>

namespace rulecanvas {

using platform::LockGuard;

void ListenerList::Register(const ShapePtr& listener) {
    LockGuard guard(mutex);
    entries.Change().push_back(Entry{lastTicket + 1, listener});
    ++lastTicket;
    (*listener).*ticketOf = lastTicket;
}

void ListenerList::Unregister(CVideoAnalyseShape& listener) {
    LockGuard guard(mutex);
    const uint64_t ticket = (listener.*ticketOf).exchange(0);
    if (ticket == 0) {
        return;
    }
    try {
        Remove(ticket, entries.Change());
    } catch (...) { // without memory the entry stays; without its ticket it is not called
    }
}

void ListenerList::Remove(uint64_t ticket, Entries& all) {
    const auto found = std::lower_bound(all.begin(), all.end(), ticket,
                                        [](const Entry& entry, uint64_t sought) { return entry.ticket < sought; });
    found->listener.reset();
    ++goneCount;
    if (goneCount * 2 > all.size()) { // now and then, not for each: a list may be long
        const auto isGone = [](const Entry& entry) { return entry.listener == nullptr; };
        all.erase(std::remove_if(all.begin(), all.end(), isGone), all.end());
        goneCount = 0;
    }
}

bool ListenerList::IsEmpty() {
    LockGuard guard(mutex);
    return entries.Peek().size() == goneCount;
}

std::shared_ptr<const ListenerList::Entries> ListenerList::Snapshot() {
    LockGuard guard(mutex);
    return entries.Take();
}

} // namespace rulecanvas

#include "other_thread.h"

#include "check.h"

#include <chrono>

namespace rulecanvas::torture {

OtherThread& OtherThread::Instance() {
    static OtherThread instance;
    return instance;
}

OtherThread::OtherThread() : thread([this] { Work(); }) {}

OtherThread::~OtherThread() {
    {
        const std::lock_guard<std::mutex> guard(mutex);
        ended = true;
    }
    changed.notify_all();
    thread.join();
}

void OtherThread::Run(const std::function<void()>& job) {
    constexpr std::chrono::seconds patience(60);
    std::unique_lock<std::mutex> guard(mutex);
    current = &job;
    changed.notify_all();
    Require(changed.wait_for(guard, patience, [&] { return current == nullptr; }), "a lock is still held");
}

void OtherThread::Work() {
    std::unique_lock<std::mutex> guard(mutex);
    while (true) {
        changed.wait(guard, [&] { return current != nullptr || ended; });
        if (ended) {
            return;
        }
        const std::function<void()>& job = *current;
        guard.unlock();
        job();
        guard.lock();
        current = nullptr;
        changed.notify_all();
    }
}

} // namespace rulecanvas::torture

#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace rulecanvas::torture {

/// A thread that finds out whether the first one left a lock behind.
class OtherThread {
  public:
    static OtherThread& Instance();
    ~OtherThread();
    OtherThread(const OtherThread&) = delete;
    OtherThread& operator=(const OtherThread&) = delete;

    /// Runs the job there and waits for its end, which must come.
    void Run(const std::function<void()>& job);

  private:
    OtherThread();
    void Work();

    std::mutex mutex;
    std::condition_variable changed;
    const std::function<void()>* current = nullptr;
    bool ended = false;
    std::thread thread;
};

} // namespace rulecanvas::torture

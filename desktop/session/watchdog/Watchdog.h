#pragma once
#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace brimshade::desktop::session {

// Ends the process when its main thread hangs while all keys of the session come to it: the keyboard would be of no
// use again. The main thread is asked a few times a second, on a thread of the watchdog's own, which sleeps while there
// is nothing to watch. A process that is stopped and continued lives on.
class Watchdog {
public:
    // How its thread sees time.
    class Clock {
    public:
        virtual ~Clock() = default;
        virtual double now() const = 0; // seconds, monotonic
        // Until `changed` is notified or so much time has passed; may return earlier.
        virtual void wait(std::condition_variable &changed, std::unique_lock<std::mutex> &lock, double seconds) = 0;
    };
    static std::unique_ptr<Clock> steadyClock();

    using Work = std::function<void()>;
    struct Hooks {
        std::function<void(const Work &)> askMain; // runs the work on the main thread, soon; any thread
        Work end = endProcess; // called at most once, on the watchdog's thread
    };
    // Exit status 1, with a message, whatever the other threads are doing.
    [[noreturn]] static void endProcess();

    explicit Watchdog(Hooks hooks, std::unique_ptr<Clock> clock = steadyClock());
    ~Watchdog();
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;

    void watch(bool on); // main thread; off at first

private:
    void run();
    void keepWatch(std::unique_lock<std::mutex> &lock);
    void ask() const;

    const Hooks m_hooks;
    const std::unique_ptr<Clock> m_clock;
    const std::shared_ptr<std::atomic<bool>> m_answered; // outlives us in questions that are under way
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_watches = false;
    bool m_isEnding = false;
    std::thread m_thread; // after all that it uses
};

} // namespace brimshade::desktop::session

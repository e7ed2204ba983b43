#pragma once
#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace brimshade::desktop::session {

// Ends the process if its main thread hangs while it takes all of the session's keys, which would leave the keyboard
// useless. A thread of its own asks the main thread a few times a second, and sleeps while there is nothing to watch. A
// process that is stopped and continued lives on.
class Watchdog {
public:
    // The time as the watchdog's thread sees it.
    class Clock {
    public:
        virtual ~Clock() = default;
        virtual double now() const = 0; // seconds, monotonic
        // Waits until `changed` is notified or that much time has passed; may return earlier.
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

    void watch(bool on); // main thread; initially off

private:
    void run();
    void keepWatch(std::unique_lock<std::mutex> &lock);
    void ask() const;

    const Hooks m_hooks;
    const std::unique_ptr<Clock> m_clock;
    const std::shared_ptr<std::atomic<bool>> m_answered; // may outlive us, in questions under way
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_watches = false;
    bool m_isEnding = false;
    std::thread m_thread; // last: it uses the other members
};

} // namespace brimshade::desktop::session

#pragma once
#include <QString>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>

namespace brimshade::platform {

using Work = std::function<void()>;

enum class QualityOfService { userInteractive, userInitiated, utility, background };

// Runs its work one at a time, in the order it came, off the main thread.
class SerialQueue {
public:
    virtual ~SerialQueue() = default;
    virtual QString label() const = 0;
    virtual void async(Work work) = 0; // any thread; returns at once
};

// Ticks on the main thread until it is destroyed or invalidated.
class Timer {
public:
    virtual ~Timer() = default;
    virtual void invalidate() = 0; // main thread; no tick runs after it
};

// A piece of delayed work that can be taken back before it runs. Main thread only.
class DispatchWorkItem {
public:
    explicit DispatchWorkItem(Work work) : m_work(std::move(work)) { }
    void cancel() { m_work = nullptr; }
    void perform()
    {
        if (m_work)
            m_work();
    }

private:
    Work m_work;
};

// The clock and every queue. Delays are seconds. Work on the main queue runs in order of its due time, then in the
// order it was queued. Work still queued when the Dispatch is destroyed is dropped, not run.
class Dispatch {
public:
    virtual ~Dispatch() = default;

    virtual double now() const = 0; // seconds since a fixed moment, monotonic; any thread
    virtual bool isMainThread() const = 0;

    virtual void mainAsync(Work work) = 0; // any thread; a later turn of the main queue
    virtual void mainAfter(double seconds, Work work) = 0; // any thread
    // Runs work on the main thread and returns when it is done; inline when already there. The main thread never
    // waits for another one, so this cannot deadlock. When the Dispatch is shutting down the work is dropped.
    virtual void mainSync(const Work &work) = 0;

    // Main thread. The first tick comes one interval from now. No tolerance.
    virtual std::unique_ptr<Timer> scheduleRepeating(double seconds, Work tick) = 0;

    virtual std::shared_ptr<SerialQueue> makeSerialQueue(const QString &label, QualityOfService qos) = 0;
    virtual void globalAsync(QualityOfService qos, Work work) = 0; // concurrent; any thread
    // Runs work(0) to work(iterations - 1) side by side and returns when all have ended. They begin in that order, the
    // first ones on the calling thread, and do not wait for work on any queue, however long that hangs. Any thread but
    // the main one, and not from within such work.
    virtual void concurrentPerform(std::size_t iterations, const std::function<void(std::size_t)> &work) = 0;
    virtual void sleep(double seconds) = 0; // the calling thread; never the main one
};

} // namespace brimshade::platform

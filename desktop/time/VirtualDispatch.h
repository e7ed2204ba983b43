#pragma once
#include "DueQueue.h"
#include "platform/Dispatch.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace brimshade::desktop {

class Lane;

// A clock that moves only when it is told to. Serial and global work runs on threads of its own, but one thread runs at
// a time: the main thread, or the one it has lent the baton to. A worker keeps the baton until it sleeps, calls
// mainSync, waits in concurrentPerform or ends, so every run takes the same course. Hence a worker must hold no lock
// across those calls and must not wait for another worker by any other means. Concurrent work takes as long as its
// slowest part; of iterations that wake at the same instant, the earlier one goes first.
//
// The main queue, the workers' turns and the frames run only inside runDue() and advance(). The thread that creates it
// is the main one and must also destroy it. mainSync is for the main thread and the workers, sleep and
// concurrentPerform for the workers alone.
class VirtualDispatch : public platform::Dispatch {
public:
    VirtualDispatch();
    ~VirtualDispatch() override; // stops
    Q_DISABLE_COPY_MOVE(VirtualDispatch)

    // Drops waiting and later work; workers run to their end without sleeping. For an owner whose workers use objects
    // that are destroyed before the dispatch. The destructor does it, too.
    void stop();

    // Runs everything that is due now, and what becomes due because of that. Qt events (bindings, queued signals,
    // deferred deletes) are delivered before, between and after. May be called by the work that it runs.
    void runDue();
    // Runs what is due, then moves the clock on, from one due time to the next.
    void advance(double seconds);
    std::optional<double> nextDue() const; // seconds until the next work is due, 0 or less if it is now; or nothing
    // While wanted() is true, the clock stops at every sixtieth of a second and calls frame() after the work that is
    // due.
    void setFrames(std::function<bool()> wanted, std::function<void()> frame);

    // How much work waits for its time or its turn, on any queue. Main thread.
    std::size_t queueLength() const;

    double now() const override; // 0 at first
    bool isMainThread() const override;
    void mainAsync(platform::Work work) override;
    void mainAfter(double seconds, platform::Work work) override;
    void mainSync(const platform::Work &work) override;
    std::unique_ptr<platform::Timer> scheduleRepeating(double seconds, platform::Work tick) override;
    std::shared_ptr<platform::SerialQueue> makeSerialQueue(const QString &label,
                                                           platform::QualityOfService qos) override;
    void globalAsync(platform::QualityOfService qos, platform::Work work) override;
    void concurrentPerform(std::size_t iterations, const std::function<void(std::size_t)> &work) override;
    void sleep(double seconds) override;

private:
    bool stepTo(Nanoseconds end);
    std::shared_ptr<Lane> makeLane(const QString &label, std::size_t width);

    const std::thread::id m_mainThread = std::this_thread::get_id();
    std::atomic<Nanoseconds> m_now = 0;
    DueQueue m_events;
    std::function<bool()> m_framesWanted;
    std::function<void()> m_frame;

    std::mutex m_mutex;
    bool m_isStopping = false;
    std::vector<std::shared_ptr<Lane>> m_lanes; // all, in the order in which they were made
    std::shared_ptr<Lane> m_concurrent; // made and stopped first: work on the others waits for its work
    std::shared_ptr<Lane> m_global;
};

} // namespace brimshade::desktop

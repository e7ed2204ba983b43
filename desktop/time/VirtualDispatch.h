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

// A clock that moves only when it is told to. Serial and global work runs on threads of its own, but one thread
// runs at a time: the main thread, or the one it has lent the baton to. A worker keeps the baton until it sleeps,
// calls mainSync, waits in concurrentPerform or ends, so every run takes the same course. Hence a worker must hold no
// lock over those calls and must not wait for another worker by any other means. What runs side by side takes as long
// as the slowest of it; of its iterations that wake at the same instant, the earlier one goes first.
//
// The main queue, the workers' turns and the frames run inside runDue() and advance() only. The thread that
// makes it is the main one, and the one that destroys it. mainSync is for the main thread and the workers, sleep and
// concurrentPerform for the workers alone.
class VirtualDispatch : public platform::Dispatch {
public:
    VirtualDispatch();
    ~VirtualDispatch() override; // stops
    Q_DISABLE_COPY_MOVE(VirtualDispatch)

    // Drops what waits; workers run to their end without sleeping. For an owner whose workers use what goes before
    // the dispatch does. Work that comes later is dropped. Destroying does it too.
    void stop();

    // Runs everything that is due now, and what becomes due by it. Qt events (bindings, queued signals, deferred
    // deletes) are delivered before, between and after. May be called from work that it runs.
    void runDue();
    // Runs what is due, then moves the clock on, from one due time to the next.
    void advance(double seconds);
    std::optional<double> nextDue() const; // seconds until the next work is due; 0 or less: it is, nothing: none waits
    // While wanted() says so, the clock stops at every sixtieth of a second and calls frame() after what is due.
    void setFrames(std::function<bool()> wanted, std::function<void()> frame);

    // What waits for its time or its turn, on any queue. Main thread.
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
    std::shared_ptr<Lane> m_concurrent; // made first and stopped first: the others' work waits for its
    std::shared_ptr<Lane> m_global;
};

} // namespace brimshade::desktop

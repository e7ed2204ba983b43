#pragma once
#include "DueQueue.h"
#include "WorkerPool.h"
#include "platform/Dispatch.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace brimshade::desktop {

// Real time: the main queue runs on the Qt event loop of the thread that creates it, which must also destroy it. All
// qualities of service are treated alike.
class RealDispatch : public platform::Dispatch {
public:
    RealDispatch();
    ~RealDispatch() override; // stops
    Q_DISABLE_COPY_MOVE(RealDispatch)

    // Main thread. Ends sleeps, drops waiting work and joins every thread; nothing runs after it. For an owner whose
    // work uses objects that must be destroyed before the clock.
    void stop();

    double now() const override;
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
    class Queue;

    void schedule(Nanoseconds due, platform::Work work);
    void runOne();
    void rearm();
    void answerWakeUp();
    void dropQueuedWork();

    const std::thread::id m_mainThread = std::this_thread::get_id();
    DueQueue m_main;

    // Other threads wake the event loop through this descriptor, an eventfd.
    const int m_wakeUp;
    std::atomic<bool> m_wakeUpSent = false;
    QSocketNotifier m_notifier;
    QTimer m_timer; // runs only while something is queued

    std::mutex m_mutex;
    std::condition_variable m_stopped;
    bool m_isStopping = false;
    std::vector<std::shared_ptr<Queue>> m_queues; // kept: each has a thread to join
    WorkerPool m_global;
    WorkerPool m_concurrent; // for concurrentPerform alone
};

} // namespace brimshade::desktop

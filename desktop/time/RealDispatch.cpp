#include "RealDispatch.h"
#include "Iterations.h"
#include "RepeatingTimer.h"

#include <chrono>
#include <sys/eventfd.h>
#include <unistd.h>

namespace brimshade::desktop {

namespace {

// A press may wait seconds for its application: enough threads that a few hanging ones do not hold up the rest.
constexpr std::size_t kGlobalThreads = 8;
// How many can wait at a time; threads are made only for those that do.
constexpr std::size_t kConcurrentThreads = 64;

Nanoseconds steadyNow()
{
    using namespace std::chrono;
    return duration_cast<nanoseconds>(steady_clock::now().time_since_epoch()).count();
}

// Tells a waiting thread that a piece of work has run or was dropped: destroying the work finishes it.
class Completion {
public:
    Completion() = default;
    Q_DISABLE_COPY_MOVE(Completion)

    // The work's share of the completion.
    static std::shared_ptr<void> hold(const std::shared_ptr<Completion> &completion)
    {
        return {nullptr, [completion](void *) { completion->finish(); }};
    }
    void finish()
    {
        const std::lock_guard lock(m_mutex);
        m_finished = true;
        m_changed.notify_all();
    }
    void wait()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_finished; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_finished = false;
};

} // namespace

class RealDispatch::Queue : public platform::SerialQueue {
public:
    explicit Queue(QString label) : m_label(std::move(label)) { }
    QString label() const override { return m_label; }
    void async(platform::Work work) override { m_pool.async(std::move(work)); }
    WorkerPool &pool() { return m_pool; }

private:
    QString m_label;
    WorkerPool m_pool{1};
};

RealDispatch::RealDispatch()
    : m_wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)), m_notifier(m_wakeUp, QSocketNotifier::Read),
      m_global(kGlobalThreads), m_concurrent(kConcurrentThreads)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { runOne(); });
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { answerWakeUp(); });
}

RealDispatch::~RealDispatch()
{
    stop();
    ::close(m_wakeUp);
}

void RealDispatch::stop()
{
    m_notifier.setEnabled(false);
    m_timer.stop();
    // Before any wait ends, so that no worker that wakes goes on to the next piece of work.
    dropQueuedWork();
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
        m_stopped.notify_all();
    }
    m_main.close(); // ends every mainSync
    m_global.join();
    for (const auto &queue : m_queues)
        queue->pool().join();
    m_concurrent.join();
}

void RealDispatch::dropQueuedWork()
{
    std::unique_lock lock(m_mutex);
    const auto queues = m_queues;
    lock.unlock();
    for (const auto &queue : queues)
        queue->pool().close();
    m_global.close();
    m_concurrent.close(); // a thread that waits for work here does the rest of it alone
}

double RealDispatch::now() const
{
    return toSeconds(steadyNow());
}

bool RealDispatch::isMainThread() const
{
    return std::this_thread::get_id() == m_mainThread;
}

void RealDispatch::mainAsync(platform::Work work)
{
    schedule(steadyNow(), std::move(work));
}

void RealDispatch::mainAfter(double seconds, platform::Work work)
{
    schedule(steadyNow() + toNanoseconds(seconds), std::move(work));
}

void RealDispatch::mainSync(const platform::Work &work)
{
    if (isMainThread())
        return work();
    const auto completion = std::make_shared<Completion>();
    schedule(steadyNow(), [&work, share = Completion::hold(completion)] { work(); });
    completion->wait();
}

std::unique_ptr<platform::Timer> RealDispatch::scheduleRepeating(double seconds, platform::Work tick)
{
    const TimerClock clock{steadyNow, [this](Nanoseconds due, platform::Work work) { schedule(due, std::move(work)); }};
    return std::make_unique<RepeatingTimer>(clock, seconds, std::move(tick));
}

std::shared_ptr<platform::SerialQueue> RealDispatch::makeSerialQueue(const QString &label, platform::QualityOfService)
{
    auto queue = std::make_shared<Queue>(label);
    const std::lock_guard lock(m_mutex);
    if (m_isStopping)
        queue->pool().close();
    else
        m_queues.push_back(queue);
    return queue;
}

void RealDispatch::globalAsync(platform::QualityOfService, platform::Work work)
{
    m_global.async(std::move(work));
}

void RealDispatch::concurrentPerform(std::size_t iterations, const std::function<void(std::size_t)> &work)
{
    Q_ASSERT(!isMainThread());
    if (iterations == 0)
        return;
    const auto completion = std::make_shared<Completion>();
    const auto shared = std::make_shared<Iterations>(
        iterations, work, [this](platform::Work run) { m_concurrent.async(std::move(run)); },
        [completion] { completion->finish(); });
    shared->run();
    completion->wait();
}

void RealDispatch::sleep(double seconds)
{
    Q_ASSERT(!isMainThread());
    const auto duration = std::chrono::nanoseconds(toNanoseconds(seconds));
    std::unique_lock lock(m_mutex);
    m_stopped.wait_for(lock, duration, [this] { return m_isStopping; });
}

void RealDispatch::schedule(Nanoseconds due, platform::Work work)
{
    if (!m_main.add(due, std::move(work)))
        return;
    if (isMainThread())
        rearm();
    else if (!m_wakeUpSent.exchange(true))
        eventfd_write(m_wakeUp, 1);
}

// One piece per turn, so that work that queues more work does not starve the event loop.
void RealDispatch::runOne()
{
    std::optional<platform::Work> work = m_main.takeDue(steadyNow());
    rearm(); // first, in case the work runs an event loop
    if (work)
        (*work)();
}

void RealDispatch::rearm()
{
    const std::optional<Nanoseconds> due = m_main.nextDue();
    if (!due)
        return m_timer.stop();
    constexpr Nanoseconds millisecond = 1'000'000;
    constexpr Nanoseconds longest = 86'400'000; // a day, in milliseconds, after which it looks again
    const Nanoseconds wait = (*due - steadyNow() + millisecond - 1) / millisecond;
    m_timer.start(static_cast<int>(std::clamp<Nanoseconds>(wait, 0, longest)));
}

void RealDispatch::answerWakeUp()
{
    eventfd_t count = 0;
    eventfd_read(m_wakeUp, &count);
    m_wakeUpSent = false;
    rearm();
}

} // namespace brimshade::desktop

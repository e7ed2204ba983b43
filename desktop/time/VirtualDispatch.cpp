#include "VirtualDispatch.h"
#include "Iterations.h"
#include "Lane.h"
#include "RepeatingTimer.h"

#include <QCoreApplication>
#include <QEvent>
#include <limits>

namespace brimshade::desktop {

namespace {

constexpr std::size_t kGlobalWidth = 8;
constexpr std::size_t kUnlimited = std::numeric_limits<std::size_t>::max();
constexpr Nanoseconds kFramesPerSecond = 60;

// Rounded down, so that repeatedly advancing by 1/60 s hits every frame.
Nanoseconds frameAfter(Nanoseconds time)
{
    const Nanoseconds second = time / kSecond * kSecond;
    Nanoseconds index = (time - second) * kFramesPerSecond / kSecond;
    while (second + index * kSecond / kFramesPerSecond <= time)
        ++index;
    return second + index * kSecond / kFramesPerSecond;
}

// Only a worker can give the baton back.
Worker &callingWorker()
{
    Worker *const worker = Worker::current();
    if (!worker)
        qFatal("A thread that is not of the dispatch's queues cannot wait under virtual time");
    return *worker;
}

void deliverQtEvents()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace

VirtualDispatch::VirtualDispatch() : m_concurrent(makeLane({}, kUnlimited)), m_global(makeLane({}, kGlobalWidth)) { }

VirtualDispatch::~VirtualDispatch()
{
    stop();
}

void VirtualDispatch::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
    }
    m_events.close();
    for (const auto &lane : m_lanes)
        lane->stop();
}

void VirtualDispatch::runDue()
{
    deliverQtEvents();
    while (std::optional<platform::Work> work = m_events.takeDue(m_now)) {
        (*work)();
        work.reset();
        deliverQtEvents();
    }
}

void VirtualDispatch::advance(double seconds)
{
    const Nanoseconds end = m_now + toNanoseconds(seconds);
    runDue();
    while (stepTo(end)) { }
}

std::optional<double> VirtualDispatch::nextDue() const
{
    const std::optional<Nanoseconds> due = m_events.nextDue();
    return due ? std::optional(toSeconds(*due - m_now)) : std::nullopt;
}

bool VirtualDispatch::stepTo(Nanoseconds end)
{
    constexpr Nanoseconds never = std::numeric_limits<Nanoseconds>::max();
    const Nanoseconds frame = m_framesWanted && m_framesWanted() ? frameAfter(m_now) : never;
    const Nanoseconds stop = std::min(m_events.nextDue().value_or(never), frame);
    m_now = std::max(m_now.load(), std::min(stop, end)); // work may itself have advanced the clock
    if (stop > end)
        return false;
    runDue();
    if (frame == m_now.load()) {
        m_frame();
        runDue();
    }
    return true;
}

void VirtualDispatch::setFrames(std::function<bool()> wanted, std::function<void()> frame)
{
    m_framesWanted = std::move(wanted);
    m_frame = std::move(frame);
}

std::size_t VirtualDispatch::queueLength() const
{
    std::size_t length = m_events.size();
    for (const auto &lane : m_lanes)
        length += lane->waiting();
    return length;
}

double VirtualDispatch::now() const
{
    return toSeconds(m_now);
}

bool VirtualDispatch::isMainThread() const
{
    return std::this_thread::get_id() == m_mainThread;
}

void VirtualDispatch::mainAsync(platform::Work work)
{
    m_events.add(m_now, std::move(work));
}

void VirtualDispatch::mainAfter(double seconds, platform::Work work)
{
    m_events.add(m_now + toNanoseconds(seconds), std::move(work));
}

void VirtualDispatch::mainSync(const platform::Work &work)
{
    if (isMainThread())
        return work();
    Worker &worker = callingWorker();
    m_events.add(m_now, [this, &work, &worker] {
        work();
        m_events.add(m_now, [&worker] { worker.lane().resume(worker); });
    });
    worker.wait();
}

std::unique_ptr<platform::Timer> VirtualDispatch::scheduleRepeating(double seconds, platform::Work tick)
{
    const TimerClock clock{[this] { return m_now.load(); },
                           [this](Nanoseconds due, platform::Work work) { m_events.add(due, std::move(work)); }};
    return std::make_unique<RepeatingTimer>(clock, seconds, std::move(tick));
}

std::shared_ptr<Lane> VirtualDispatch::makeLane(const QString &label, std::size_t width)
{
    auto lane = std::make_shared<Lane>(label, width, [this](platform::Work work) { mainAsync(std::move(work)); });
    const std::lock_guard lock(m_mutex);
    if (m_isStopping)
        lane->stop();
    else
        m_lanes.push_back(lane);
    return lane;
}

std::shared_ptr<platform::SerialQueue> VirtualDispatch::makeSerialQueue(const QString &label,
                                                                        platform::QualityOfService)
{
    return makeLane(label, 1);
}

void VirtualDispatch::globalAsync(platform::QualityOfService, platform::Work work)
{
    m_global->async(std::move(work));
}

void VirtualDispatch::concurrentPerform(std::size_t iterations, const std::function<void(std::size_t)> &work)
{
    if (iterations == 0)
        return;
    Worker &worker = callingWorker();
    const DueQueue::Turn firstTurn = m_events.takeTurns(iterations);
    const Iterations::Body inTurn = [&](std::size_t index) {
        Worker &runner = callingWorker();
        runner.setTurn(firstTurn + index);
        work(index);
        runner.setTurn({});
    };
    bool isDone = false;
    bool isWaiting = false;
    const auto allEnded = [&] {
        isDone = true;
        if (isWaiting)
            m_events.add(m_now, [&worker] { worker.lane().resume(worker); });
    };
    const auto callIn = [this](platform::Work run) { m_concurrent->async(std::move(run)); };
    std::make_shared<Iterations>(iterations, inTurn, callIn, allEnded)->run();
    isWaiting = !isDone;
    if (isWaiting)
        worker.wait();
}

void VirtualDispatch::sleep(double seconds)
{
    Worker &worker = callingWorker();
    const DueQueue::Turn turn = worker.turn() ? *worker.turn() : m_events.takeTurns(1);
    m_events.add(m_now + toNanoseconds(seconds), turn, [&worker] { worker.lane().resume(worker); });
    worker.wait();
}

} // namespace brimshade::desktop

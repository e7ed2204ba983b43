#include "Worker.h"

#include <utility>

namespace brimshade::desktop {

namespace {

thread_local Worker *currentWorker = nullptr;

} // namespace

Worker::Worker(Lane &lane) : m_lane(lane), m_thread([this] { run(); }) { }

Worker::~Worker()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    lendBaton();
    m_thread.join();
}

Worker *Worker::current()
{
    return currentWorker;
}

void Worker::assign(platform::Work work)
{
    const std::lock_guard lock(m_mutex);
    m_work = std::move(work);
    m_isWorking = true;
}

void Worker::lendBaton()
{
    std::unique_lock lock(m_mutex);
    m_hasBaton = true;
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return !m_hasBaton; });
}

bool Worker::isWorking() const
{
    const std::lock_guard lock(m_mutex);
    return m_isWorking;
}

void Worker::wait()
{
    std::unique_lock lock(m_mutex);
    if (!m_stopping)
        handBack(lock);
}

void Worker::handBack(std::unique_lock<std::mutex> &lock)
{
    m_hasBaton = false;
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return m_hasBaton; });
}

void Worker::run()
{
    currentWorker = this;
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_hasBaton; });
    while (m_work) {
        platform::Work work = std::exchange(m_work, nullptr);
        lock.unlock();
        work();
        work = nullptr; // destroys what it holds while this thread has the baton
        lock.lock();
        m_isWorking = false;
        if (m_stopping)
            break;
        handBack(lock);
    }
    m_hasBaton = false;
    m_changed.notify_all();
}

} // namespace brimshade::desktop

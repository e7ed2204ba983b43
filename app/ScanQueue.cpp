#include "ScanQueue.h"

#include <mutex>
#include <utility>

namespace brimshade::app {

// A scan's place in the queue, and the work to be done there.
class ScanQueue::Scan {
public:
    explicit Scan(platform::Work work) : m_work(std::move(work)) { }

    // False once it has begun.
    bool replace(platform::Work &work)
    {
        const std::lock_guard lock(m_mutex);
        if (m_work)
            m_work.swap(work);
        return m_work != nullptr;
    }
    void run()
    {
        std::unique_lock lock(m_mutex);
        const platform::Work work = std::exchange(m_work, nullptr);
        lock.unlock();
        work();
    }

private:
    std::mutex m_mutex;
    platform::Work m_work;
};

ScanQueue::ScanQueue(std::shared_ptr<platform::SerialQueue> queue) : m_queue(std::move(queue)) { }

ScanQueue::~ScanQueue() = default;

void ScanQueue::move(platform::Work work)
{
    m_last.reset();
    m_queue->async(std::move(work));
}

void ScanQueue::scan(platform::Work work)
{
    if (m_last && m_last->replace(work))
        return;
    m_last = std::make_shared<Scan>(std::move(work));
    m_queue->async([scan = m_last] { scan->run(); });
}

} // namespace brimshade::app

#pragma once
#include "platform/Dispatch.h"

namespace brimshade::app {

// The serial queue of scans and moves. A scan that still waits is replaced by the next one asked for, as nobody needs
// both. Never across a move: a scan asked for after a move must see the bar as that left it. Main thread.
class ScanQueue {
public:
    explicit ScanQueue(std::shared_ptr<platform::SerialQueue> queue);
    ~ScanQueue();

    void move(platform::Work work);
    void scan(platform::Work work);

private:
    class Scan;

    const std::shared_ptr<platform::SerialQueue> m_queue;
    std::shared_ptr<Scan> m_last; // null when a move was queued last
};

} // namespace brimshade::app

#pragma once
#include "Worker.h"
#include "platform/Dispatch.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace brimshade::desktop {

// A queue under virtual time, served by up to `width` workers. Its work starts from an event of the main thread.
class Lane : public platform::SerialQueue, public std::enable_shared_from_this<Lane> {
public:
    using Schedule = std::function<void(platform::Work)>; // at the present instant

    Lane(QString label, std::size_t width, Schedule schedule);

    QString label() const override { return m_label; }
    void async(platform::Work work) override; // any thread; dropped once stopped

    std::size_t waiting() const; // pieces of work that have not begun; any thread

    // Main thread. Lends the baton and, when the worker gives it back with its work done, hands it the next piece.
    void resume(Worker &worker);
    // Main thread. Waiting work is dropped; work under way runs to its end without sleeping.
    void stop();

private:
    void startNext();

    const QString m_label;
    const std::size_t m_width;
    const Schedule m_schedule;
    std::vector<std::unique_ptr<Worker>> m_workers; // main thread
    std::vector<Worker *> m_idle; // main thread

    mutable std::mutex m_mutex;
    std::deque<platform::Work> m_waiting;
    std::size_t m_busy = 0; // working, or about to
    bool m_stopped = false;
};

} // namespace brimshade::desktop

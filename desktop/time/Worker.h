#pragma once
#include "DueQueue.h"
#include "platform/Dispatch.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace brimshade::desktop {

class Lane;

// A thread that runs only while the main thread has lent it the baton, and otherwise waits.
class Worker {
public:
    explicit Worker(Lane &lane);
    ~Worker(); // ends its waits, lets its work finish, joins
    Worker(const Worker &) = delete;
    Worker &operator=(const Worker &) = delete;

    static Worker *current(); // of the calling thread, or null
    Lane &lane() const { return m_lane; }

    // Main thread, while it has the baton.
    void assign(platform::Work work);
    void lendBaton(); // returns when it comes back
    bool isWorking() const; // its work has not ended yet

    // The worker's own thread. Decides its place among workers that wake at the same instant; absent: the order in
    // which they fell asleep.
    std::optional<DueQueue::Turn> turn() const { return m_turn; }
    void setTurn(std::optional<DueQueue::Turn> turn) { m_turn = turn; }

    // The worker's own thread: gives the baton back and returns once it has it again, or at once when being stopped.
    void wait();

private:
    void run();
    void handBack(std::unique_lock<std::mutex> &lock);

    Lane &m_lane;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    platform::Work m_work;
    bool m_hasBaton = false;
    bool m_isWorking = false;
    bool m_stopping = false;
    std::optional<DueQueue::Turn> m_turn;
    std::thread m_thread; // last: it starts with everything else in place
};

} // namespace brimshade::desktop

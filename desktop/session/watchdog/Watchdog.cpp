#include "Watchdog.h"

#include "Silence.h"

#include <chrono>
#include <poll.h>
#include <string_view>
#include <unistd.h>

namespace brimshade::desktop::session {

namespace {

constexpr double kTick = 0.25; // seconds
constexpr double kLongestSilence = 3;

class SteadyClock : public Watchdog::Clock {
public:
    double now() const override
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }
    void wait(std::condition_variable &changed, std::unique_lock<std::mutex> &lock, double seconds) override
    {
        changed.wait_for(lock, std::chrono::duration<double>(seconds));
    }
};

} // namespace

std::unique_ptr<Watchdog::Clock> Watchdog::steadyClock()
{
    return std::make_unique<SteadyClock>();
}

void Watchdog::endProcess()
{
    constexpr std::string_view message =
        "brimshade: it hung while it had the keyboard, and ended to give that back; start it again with: brimshade "
        "--session\n";
    // Nothing here may block on a lock or a full pipe.
    pollfd standardError{STDERR_FILENO, POLLOUT, 0};
    if (poll(&standardError, 1, 0) == 1 && write(STDERR_FILENO, message.data(), message.size()) < 0) { }
    _exit(1);
}

Watchdog::Watchdog(Hooks hooks, std::unique_ptr<Clock> clock)
    : m_hooks(std::move(hooks)), m_clock(std::move(clock)), m_answered(std::make_shared<std::atomic<bool>>(false)),
      m_thread([this] { run(); })
{
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void Watchdog::watch(bool on)
{
    {
        const std::lock_guard lock(m_mutex);
        m_watches = on;
        *m_answered = true; // runs on the main thread
    }
    m_changed.notify_one();
}

void Watchdog::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_isEnding) {
        if (m_watches)
            keepWatch(lock);
        else
            m_changed.wait(lock);
    }
}

void Watchdog::keepWatch(std::unique_lock<std::mutex> &lock)
{
    Silence silence(kTick, m_clock->now());
    while (m_watches && !m_isEnding) {
        const double now = m_clock->now();
        if (m_answered->exchange(false)) {
            silence.broken(now);
            ask();
        } else if (silence.lasted(now) >= kLongestSilence) {
            m_watches = false;
            return m_hooks.end();
        }
        m_clock->wait(m_changed, lock, kTick);
    }
}

void Watchdog::ask() const
{
    m_hooks.askMain([answered = m_answered] { *answered = true; });
}

} // namespace brimshade::desktop::session

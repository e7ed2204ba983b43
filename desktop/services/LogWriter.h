#pragma once
#include "platform/Log.h"

#include <deque>
#include <mutex>
#include <vector>

namespace brimshade::desktop {

struct LogEntry {
    platform::LogLevel level = platform::LogLevel::info;
    QString text;
};

// Keeps what is logged until somebody takes it, the latest 10,000 lines of it. Any thread.
class LogWriter : public platform::Log {
public:
    explicit LogWriter(bool printsToStandardError = false);

    void write(platform::LogLevel level, const char *format,
               std::initializer_list<platform::LogArgument> arguments) override;
    std::vector<LogEntry> take(); // what came since the last time, oldest first

private:
    const bool m_prints;
    std::mutex m_mutex;
    std::deque<LogEntry> m_entries;
};

} // namespace brimshade::desktop

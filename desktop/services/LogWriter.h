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

// Keeps log lines until they are taken, the latest 10,000 of them. Any thread.
class LogWriter : public platform::Log {
public:
    explicit LogWriter(bool printsToStandardError = false);

    void write(platform::LogLevel level, const char *format,
               std::initializer_list<platform::LogArgument> arguments) override;
    std::vector<LogEntry> take(); // the lines since the last call, oldest first

private:
    const bool m_prints;
    std::mutex m_mutex;
    std::deque<LogEntry> m_entries;
};

} // namespace brimshade::desktop

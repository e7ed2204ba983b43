#include "LogWriter.h"
#include "LogFormat.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr std::size_t kMostEntries = 10000;

} // namespace

LogWriter::LogWriter(bool printsToStandardError) : m_prints(printsToStandardError) { }

void LogWriter::write(platform::LogLevel level, const char *format,
                      std::initializer_list<platform::LogArgument> arguments)
{
    const QString text = formatLog(QString::fromUtf8(format), {arguments.begin(), arguments.size()});
    const std::lock_guard lock(m_mutex);
    if (m_prints) {
        const char *prefix = level == platform::LogLevel::error ? "error: " : "";
        std::fprintf(stderr, "brimshade: %s%s\n", prefix, text.toUtf8().constData());
    }
    m_entries.push_back({level, text});
    if (m_entries.size() > kMostEntries)
        m_entries.pop_front();
}

std::vector<LogEntry> LogWriter::take()
{
    const std::lock_guard lock(m_mutex);
    std::vector<LogEntry> taken(std::make_move_iterator(m_entries.begin()), std::make_move_iterator(m_entries.end()));
    m_entries.clear();
    return taken;
}

} // namespace brimshade::desktop

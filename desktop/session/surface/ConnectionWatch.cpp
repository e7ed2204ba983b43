#include "ConnectionWatch.h"

#include <QCoreApplication>
#include <array>
#include <cstdlib>
#include <mutex>
#include <poll.h>
#include <string_view>
#include <sys/eventfd.h>
#include <unistd.h>

namespace brimshade::desktop::session {

namespace {

constexpr std::string_view kGone = "brimshade: the connection to the display is gone\n";

constexpr int kGoneInUnit = 3;

// systemd names the unit's main process; its descendants inherit the variable.
bool isMainProcessOfUnit()
{
    return qEnvironmentVariableIntValue("SYSTEMD_EXEC_PID") == getpid();
}

// By whoever finds out first, the watch or Qt; the other one waits here for the end.
[[noreturn]] void endAtOnce()
{
    static std::mutex first;
    const std::lock_guard lock(first);
    [[maybe_unused]] const auto written = write(STDERR_FILENO, kGone.data(), kGone.size());
    _exit(isMainProcessOfUnit() ? kGoneInUnit : EXIT_FAILURE);
}

// What a message handler cannot be given otherwise.
struct Watched {
    int connection = -1;
    QtMessageHandler usualHandler = nullptr;
};

Watched &watched()
{
    static Watched watched;
    return watched;
}

bool isGone(int connection)
{
    pollfd state{connection, POLLRDHUP, 0};
    return poll(&state, 1, 0) > 0;
}

// Qt complains before it ends the process, and of what no longer works before it notices why: none of that is said.
void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (isGone(watched().connection))
        endAtOnce();
    watched().usualHandler(type, context, text);
}

void waitForEnd(int connection, int stop)
{
    std::array<pollfd, 2> states{{{connection, POLLRDHUP, 0}, {stop, POLLIN, 0}}};
    while (poll(states.data(), states.size(), -1) < 0) { }
    if (states[1].revents)
        return;
    endAtOnce();
}

// Qt's own answer to a broken X connection is exit(), which would run destructors under the event loop's feet.
void leaveAtOnce(int, void *)
{
    if (QCoreApplication::instance())
        endAtOnce();
}

} // namespace

ConnectionWatch::ConnectionWatch(int fileDescriptor)
    : m_stop(eventfd(0, EFD_CLOEXEC)), m_thread(waitForEnd, fileDescriptor, m_stop)
{
    on_exit(leaveAtOnce, nullptr);
    watched() = {fileDescriptor, nullptr};
    watched().usualHandler = qInstallMessageHandler(handleMessage);
}

ConnectionWatch::~ConnectionWatch()
{
    eventfd_write(m_stop, 1);
    m_thread.join();
    qInstallMessageHandler(watched().usualHandler);
    close(m_stop);
}

} // namespace brimshade::desktop::session

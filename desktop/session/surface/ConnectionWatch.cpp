#include "ConnectionWatch.h"

#include <QCoreApplication>
#include <array>
#include <cstdlib>
#include <poll.h>
#include <string_view>
#include <sys/eventfd.h>
#include <unistd.h>

namespace brimshade::desktop::session {

namespace {

constexpr std::string_view kGone = "brimshade: the connection to the display is gone\n";

void waitForEnd(int connection, int stop)
{
    std::array<pollfd, 2> watched{{{connection, POLLRDHUP, 0}, {stop, POLLIN, 0}}};
    while (poll(watched.data(), watched.size(), -1) < 0) { }
    if (watched[1].revents)
        return;
    [[maybe_unused]] const auto written = write(STDERR_FILENO, kGone.data(), kGone.size());
    _exit(EXIT_FAILURE);
}

// Qt's own answer to a broken X connection is exit(), which would run destructors under the event loop's feet.
void leaveAtOnce(int status, void *)
{
    if (QCoreApplication::instance())
        _exit(status);
}

} // namespace

ConnectionWatch::ConnectionWatch(int fileDescriptor)
    : m_stop(eventfd(0, EFD_CLOEXEC)), m_thread(waitForEnd, fileDescriptor, m_stop)
{
    on_exit(leaveAtOnce, nullptr);
}

ConnectionWatch::~ConnectionWatch()
{
    eventfd_write(m_stop, 1);
    m_thread.join();
    close(m_stop);
}

} // namespace brimshade::desktop::session

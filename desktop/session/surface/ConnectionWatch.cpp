#include "ConnectionWatch.h"

#include <QGuiApplication>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <qpa/qplatformnativeinterface.h>
#include <string_view>
#include <sys/eventfd.h>
#include <unistd.h>
#include <wayland-client-core.h>
#include <xcb/xcb.h>

namespace brimshade::desktop::session {

namespace {

constexpr std::string_view kGone = "brimshade: the connection to the display is gone\n";

constexpr int kGoneInUnit = 3;

// systemd names the unit's main process; its descendants inherit the variable.
bool isMainProcessOfUnit()
{
    return qEnvironmentVariableIntValue("SYSTEMD_EXEC_PID") == getpid();
}

// Called by whichever finds out first, the watch or Qt; the other then waits here for the end, as does every thread
// that writes to stderr.
[[noreturn]] void endAtOnce()
{
    flockfile(stderr);
    [[maybe_unused]] const auto written = write(STDERR_FILENO, kGone.data(), kGone.size());
    _exit(isMainProcessOfUnit() ? kGoneInUnit : EXIT_FAILURE);
}

// The application's own connection, X11 or Wayland; -1 without one. Looked up because a message handler cannot be
// passed it. Any thread.
int connectionOfApplication()
{
    auto *native = QCoreApplication::instance() ? QGuiApplication::platformNativeInterface() : nullptr;
    if (!native)
        return -1;
    if (void *display = native->nativeResourceForIntegration("wl_display"))
        return wl_display_get_fd(static_cast<wl_display *>(display));
    void *connection = native->nativeResourceForIntegration("connection");
    return connection ? xcb_get_file_descriptor(static_cast<xcb_connection_t *>(connection)) : -1;
}

bool isGone(int connection)
{
    pollfd state{connection, POLLRDHUP, 0};
    return poll(&state, 1, 0) > 0;
}

// Qt complains before it ends the process, and about things that fail before it notices why: none of that is passed on.
void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (isGone(connectionOfApplication()))
        endAtOnce();
    std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, text)));
}

void waitForEnd(int connection, int stop)
{
    std::array<pollfd, 2> states{{{connection, POLLRDHUP, 0}, {stop, POLLIN, 0}}};
    while (poll(states.data(), states.size(), -1) < 0) { }
    if (states[1].revents)
        return;
    endAtOnce();
}

// Qt itself reacts to a broken X connection with exit(), which would run destructors inside the event loop.
void leaveAtOnce(int, void *)
{
    if (QCoreApplication::instance())
        endAtOnce();
}

} // namespace

ConnectionWatch::ConnectionWatch()
    : m_stop(eventfd(0, EFD_CLOEXEC)), m_thread(waitForEnd, connectionOfApplication(), m_stop),
      m_usualHandler(qInstallMessageHandler(handleMessage))
{
    on_exit(leaveAtOnce, nullptr);
}

ConnectionWatch::~ConnectionWatch()
{
    eventfd_write(m_stop, 1);
    m_thread.join();
    qInstallMessageHandler(m_usualHandler);
    close(m_stop);
}

} // namespace brimshade::desktop::session

#pragma once
#include <QtGlobal>
#include <thread>

namespace brimshade::desktop::session {

// Ends the process with a message and exit status 1 as soon as the display server closes the application's connection
// (status 3 as the main process of a systemd unit, which must not restart it without a display): there is nothing left
// to do, and nothing left unsaved. At once and without destructors, because Qt's threads and ours still use what those
// would destroy.
class ConnectionWatch {
public:
    ConnectionWatch(); // one at a time, after the application object
    ~ConnectionWatch();
    Q_DISABLE_COPY_MOVE(ConnectionWatch)

private:
    const int m_stop; // an eventfd
    std::thread m_thread;
    const QtMessageHandler m_usualHandler;
};

} // namespace brimshade::desktop::session

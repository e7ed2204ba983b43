#pragma once
#include <QtGlobal>
#include <thread>

namespace brimshade::desktop::session {

// Ends the process with exit status 1 (3 as the main process of a systemd unit, which shall not start it again where
// there is no display) and a message as soon as the other end of the application's connection to it is closed: without
// a display there is nothing left to do, and nothing left unsaved. At once and without destructors: threads of Qt and
// of ours still use what those would destroy.
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

#pragma once
#include <QByteArray>
#include <QSocketNotifier>
#include <QString>
#include <memory>

namespace brimshade::desktop::session {

// Sway's version, asked on its own socket without waiting. Main thread.
class SwayVersion {
public:
    // The path in SWAYSOCK, and the connection to our compositor, which must be that very sway: another compositor
    // running inside sway inherits the variable.
    SwayVersion(const QString &socketPath, int compositor);
    ~SwayVersion();
    Q_DISABLE_COPY_MOVE(SwayVersion)

    // Whether, within a layer, the newest surface is the lowest and the last to get the keys; every other compositor,
    // and sway from 1.10 on, does it the other way round. The protocol leaves this open. False until the answer has
    // come.
    bool stacksDownwards() const { return m_stacksDownwards; }

private:
    void read();
    void end();

    int m_socket = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QByteArray m_answer;
    bool m_stacksDownwards = false;
};

} // namespace brimshade::desktop::session

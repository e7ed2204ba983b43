#pragma once
#include <QByteArray>
#include <QString>

namespace brimshade::desktop {

// The content of this program's autostart entry, which starts it as the session's menu bar: if it has a unit, through
// the user's systemd if that is running.
QByteArray autostartEntry(const QString &program, bool hasUnit);
QByteArray hiddenAutostartEntry(); // in the user's folder, it switches off the system's entry

struct AutostartState {
    bool isEnabled = false; // neither hidden nor switched off
    QString tryExec; // empty when absent
};
AutostartState readAutostartEntry(const QByteArray &content);

} // namespace brimshade::desktop

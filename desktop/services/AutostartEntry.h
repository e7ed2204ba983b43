#pragma once
#include <QByteArray>
#include <QString>

namespace brimshade::desktop {

// The autostart entry of this program, as desktop entry files are written: it starts as the session's menu bar. Where
// it has a unit, by the user's systemd if that runs.
QByteArray autostartEntry(const QString &program, bool hasUnit);
QByteArray hiddenAutostartEntry(); // in the user's folder: switches off the system's

struct AutostartState {
    bool isEnabled = false; // neither hidden nor switched off
    QString tryExec; // empty when absent
};
AutostartState readAutostartEntry(const QByteArray &content);

} // namespace brimshade::desktop

#pragma once
#include "OtherHosts.h"
#include "SessionScreens.h"
#include "platform/MenuBarPreferences.h"
#include "platform/UserDefaults.h"

#include <functional>

namespace brimshade::desktop::session {

// The session's menu bar as the user wants it, kept in the defaults. What the command line says holds for this run,
// until the user chooses otherwise. Main thread; everything it refers to outlives it, the defaults at least until the
// last call.
class SessionPreferences : public QObject, public platform::MenuBarPreferences {
    Q_OBJECT
public:
    // What the defaults say, overridden by the command line.
    static ScreenChoice kept(const platform::UserDefaults &defaults, ScreenChoice said, bool isNotchSaid);

    SessionPreferences(SessionScreens &screens, platform::UserDefaults &defaults, const QDBusConnection &bus);

    // Whether global shortcuts are available; without them the settings say what to bind instead.
    void setShortcutsWork(bool work);

    QStringList screenNames() const override;
    QString screenName() const override;
    void setScreenName(const QString &name) override;
    bool isMachineKnown() const override;
    platform::NotchStyle notchStyle() const override;
    double notchWidth() const override;
    void setNotch(platform::NotchStyle style, double width) override;
    QString advice() const override;
    QString shortcutAdvice() const override;
    QString itemShortcutAdvice(const QString &item) const override;
    void setOnChange(std::function<void()> changed) override { m_onChange = std::move(changed); }

private:
    void choose(const ScreenChoice &choice);
    void tell() const;

    SessionScreens &m_screens;
    platform::UserDefaults &m_defaults;
    OtherHosts m_hosts;
    std::function<void()> m_onChange;
    bool m_shortcutsWork = true;
};

} // namespace brimshade::desktop::session

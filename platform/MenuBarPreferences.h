#pragma once
#include <QString>
#include <QStringList>
#include <functional>

namespace brimshade::platform {

enum class NotchStyle { machine, drawn, none, given };

// Where the menu bar is and which notch it has, on a system whose menu bar is this program's. Main thread. What is set
// takes effect at once and is kept. Lengths are points from the screen's left edge.
class MenuBarPreferences {
public:
    virtual ~MenuBarPreferences() = default;

    virtual QStringList screenNames() const = 0; // those that are there now
    virtual QString screenName() const = 0; // the chosen one, there or not; empty: the system chooses
    virtual void setScreenName(const QString &name) = 0;

    virtual bool isMachineKnown() const = 0; // whether the machine's own notch is known; if not, one is drawn
    virtual NotchStyle notchStyle() const = 0;
    virtual double notchWidth() const = 0; // of a given one, in the middle of the bar
    virtual void setNotch(NotchStyle style, double width) = 0; // the width matters only for a given one

    // One sentence, in the user's language, about another bar or tray host that runs: what works beside it and what to
    // switch off there. Empty for none.
    virtual QString advice() const = 0;
    // What to bind to a key where no global shortcut is available: a line for the compositor's configuration. Empty
    // where the shortcut works.
    virtual QString shortcutAdvice() const = 0;
    // The same for the menu of an item, by the name under which programs may ask for it.
    virtual QString itemShortcutAdvice(const QString &item) const = 0;

    virtual void setOnChange(std::function<void()> changed) = 0; // called when any of these changes; only one is kept
};

} // namespace brimshade::platform

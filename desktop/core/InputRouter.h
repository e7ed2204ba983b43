#pragma once
#include "platform/Application.h"

#include <QObject>
#include <QPointF>
#include <optional>

namespace brimshade::desktop {

enum class MouseButton { left, right };

// Who takes a pointer event, in the order in which they are asked.
enum class Target { menu, window, menuBar, elsewhere };

// Decides what input does, for a real window and for a script alike: it keeps the pointer, tells event monitors,
// opens menus of the bar, runs Command-drags and native views' tracking. Main thread; points in display space.
// The scene passes every event through here first and hands on to its views only what comes back for them.
class InputRouter : public QObject
{
    Q_OBJECT
public:
    QPointF pointer() const;
    Target pointerMoved(QPointF to, std::uint64_t modifierFlags); // window: hand it to the view under it
    Target pressed(MouseButton button, std::uint64_t modifierFlags);
    Target released(MouseButton button, std::uint64_t modifierFlags); // the target of the press
    // Hotkeys, then the local monitors when a window of this program is key. The event comes back when the key
    // window's view shall have it.
    std::optional<platform::Event> keyDown(const platform::Event &event);

Q_SIGNALS:
    void pointerWarped(); // by the program, not by a hand
};

} // namespace brimshade::desktop

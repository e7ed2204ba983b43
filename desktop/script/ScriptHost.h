#pragma once
#include "desktop/core/InputRouter.h"

#include <QImage>
#include <QPointF>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

class QQuickWindow;

namespace brimshade::desktop {

// What shows the desktop, as a script sees and handles it. Main thread; points in display space.
class ScriptHost {
public:
    // A window of the toolkit in which elements can be seen, and where its points are on the display.
    struct View {
        QQuickWindow *window = nullptr;
        std::function<QPointF(QPointF)> toDisplay;
    };

    virtual ~ScriptHost() = default;

    // Delivers queued events and lays out, so that geometry and bindings are final. Renders nothing.
    virtual void settle() = 0;
    virtual std::vector<View> views() const = 0; // those on screen
    virtual QImage picture() = 0; // of the whole desktop; null if that is too large to draw
    // Of one of the program's windows, by its attributes' name; nothing if it is not on screen. It shows that window
    // alone or, in a scene that is on a screen, also what shows through it and lies over it.
    virtual std::optional<QImage> picture(const QString &windowName) = 0;

    // These send the toolkit's own events, so that a script and a hand take the same path.
    virtual void movePointer(QPointF to, std::uint64_t modifierFlags) = 0;
    virtual void press(MouseButton button, std::uint64_t modifierFlags) = 0;
    virtual void release(MouseButton button, std::uint64_t modifierFlags) = 0;
    virtual void scroll(QPoint by, std::uint64_t modifierFlags) = 0; // 120 is a notch of the wheel, up and left
    virtual void key(const platform::Event &event) = 0; // down and up; code and characters arrive exactly as given
};

} // namespace brimshade::desktop

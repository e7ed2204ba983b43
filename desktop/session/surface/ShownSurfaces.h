#pragma once
#include "ShellSurface.h"

#include <vector>

namespace brimshade::desktop::session {

// Those of a back end's surfaces that are shown. Main thread.
class ShownSurfaces : public QObject {
    Q_OBJECT
public:
    void add(ShellSurface &surface); // until it is destroyed

    QRegion inputRegion(const QScreen *screen) const; // of all there, in points of the screen
    bool haveKeyboard() const;
    const std::vector<ShellSurface *> &inOrder() const { return m_shown; } // the last that was shown at the end

Q_SIGNALS:
    void changed();

private:
    void follow(ShellSurface *surface);

    std::vector<ShellSurface *> m_shown;
};

} // namespace brimshade::desktop::session

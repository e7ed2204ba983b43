#pragma once
#include "ShellSurface.h"

#include <vector>

namespace brimshade::desktop::session {

// Those of a back end's surfaces that are shown. Main thread.
class ShownSurfaces : public QObject {
    Q_OBJECT
public:
    void add(ShellSurface &surface); // until it is destroyed

    QRegion inputRegion(const QScreen *screen) const; // of all surfaces on it, in the screen's points
    bool haveKeyboard() const;
    const std::vector<ShellSurface *> &inOrder() const { return m_shown; } // the one shown last comes last

Q_SIGNALS:
    void changed();

private:
    void follow(ShellSurface *surface);

    std::vector<ShellSurface *> m_shown;
};

} // namespace brimshade::desktop::session

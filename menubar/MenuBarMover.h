#pragma once
#include "MenuExtra.h"
#include "platform/Platform.h"
#include "platform/Screens.h"

#include <expected>
#include <memory>

namespace brimshade::menubar {

class MenuBarAccess;

// What the mover needs of the divider. Main thread; the mover sees to that itself.
class DividerControl {
public:
    virtual ~DividerControl() = default;
    virtual QRectF axFrame() const = 0; // display space; zero without a window
    virtual void collapse() = 0; // and stays so, whatever happens meanwhile, until release()
    virtual void release() = 0; // measures and widens anew
    virtual bool isWindowVisible() const = 0; // its button's window reports the visible occlusion state
};

// Moves an item to the other side of the divider as a hand would: with a Command-drag. Keeps nothing between moves.
class MenuBarMover {
public:
    enum class Failure {
        menuBarHidden, // the divider's menu bar is not showing
        noRoom, // the item cannot be reached to be shown
        didNotMove, // after the drag it was not on the side asked for, or its place could not be read
    };
    using Result = std::expected<void, Failure>;

    // The platform's services outlive this object.
    MenuBarMover(const platform::Platform &platform, std::shared_ptr<MenuBarAccess> access);

    // Blocks its thread for two scans and about 2.3 seconds: call it on the scan queue. A divider that is gone
    // counts as one without a window. Unless the item was on the right side already, the divider is collapsed
    // meanwhile, and released on a later turn of the main queue.
    Result move(const MenuExtra &extra, bool hide, const std::weak_ptr<DividerControl> &divider) const;

    // Display space. Blocks for about 1.5 seconds.
    void drag(QPointF from, QPointF to) const;

private:
    struct Collapsed;

    std::optional<platform::Screen> chooseScreen() const;
    bool isAlreadyThere(const MenuExtra &extra, bool hide, const platform::Screen &screen,
                        const std::weak_ptr<DividerControl> &divider) const;
    Result moveAcross(const MenuExtra &extra, bool hide, const platform::Screen &screen,
                      const std::weak_ptr<DividerControl> &divider) const;
    Collapsed collapse(const std::weak_ptr<DividerControl> &divider) const;
    bool isMenuBarShowing(const Collapsed &divider) const;
    void dragAndPutPointerBack(QPointF from, QPointF to) const;
    QRectF axFrame(const std::weak_ptr<DividerControl> &divider) const;

    const platform::Platform m_platform;
    const std::shared_ptr<MenuBarAccess> m_access;
};

} // namespace brimshade::menubar

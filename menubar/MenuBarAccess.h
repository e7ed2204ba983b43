#pragma once
#include "BundleIcons.h"
#include "MenuExtra.h"
#include "platform/Accessibility.h"
#include "platform/Screens.h"

#include <optional>

namespace brimshade::platform {
class Dispatch;
class Log;
struct Platform;
struct RunningApplication;
} // namespace brimshade::platform

namespace brimshade::menubar {

struct BarReading;
struct ItemReading;

// Reads other applications' menu bar items and presses them. Reading blocks its thread until the applications have
// answered. scan belongs to the scan queue, where calls never overlap: its cache has no lock. It asks the applications
// side by side, gives up on each at its first time-out, and adds the items' names and icons on its own thread. The rest
// may be called on any thread.
class MenuBarAccess {
public:
    // The platform's services outlive this object.
    explicit MenuBarAccess(const platform::Platform &platform);
    ~MenuBarAccess();

    // Every item of every other application, left to right. Never fails: an application that cannot be read contributes
    // none, and an attribute that cannot be read has its default. dividerFrame is in display space; absent when no
    // divider tells hidden items from others.
    ExtraList scan(const platform::Screen &screen, std::optional<QRectF> dividerFrame);

    // Display space; absent when a part of it cannot be read.
    std::optional<QRectF> frame(const platform::AXUIElement &element) const;
    // Of the system's menu bar agent; absent where there is none or it cannot be read.
    std::optional<QRectF> firstSystemButtonFrame() const;

    // Presses the item on a global queue and returns at once. A failure is logged.
    void activate(const MenuExtra &extra) const;

private:
    struct Owner;

    std::vector<platform::RunningApplication> otherApplications() const;
    void addItems(const platform::RunningApplication &application, BarReading bar, ExtraList &extras);
    void describe(const Owner &owner, ItemReading item, int position, MenuExtra &extra) const;
    QString appName(const Owner &owner) const;
    TintedIcon appIcon(const Owner &owner);

    platform::Accessibility &m_accessibility;
    platform::Dispatch &m_dispatch;
    platform::Log &m_log;
    platform::Workspace &m_workspace;
    BundleIcons m_icons;
};

} // namespace brimshade::menubar

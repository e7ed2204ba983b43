#pragma once
#include "Application.h"
#include "Image.h"
#include "Menu.h"
#include "Window.h"

#include <memory>

namespace brimshade::platform {

inline constexpr double kSquareStatusItemLength = -2;

// The button that a status item shows in the menu bar. Owned by its item. Main thread.
class StatusBarButton {
public:
    virtual ~StatusBarButton() = default;
    virtual Image image() const = 0;
    virtual void setImage(const Image &image) = 0; // drawn centred; a template image takes the bar's colour
    virtual void setAccessibilityLabel(const QString &label) = 0;
    // Runs on each event of the mask inside the button, as the application's current event.
    virtual void setAction(EventMask sendOn, Work action) = 0;
    virtual Window *window() = 0; // null until the bar has laid the item out
    // With a menu attached to the item: opens it under the item. dismissed runs once it is gone.
    virtual void performClick(Work dismissed) = 0;
};

// Main thread. Destroying the item removes it from the bar.
class StatusItem {
public:
    virtual ~StatusItem() = default;
    virtual double length() const = 0;
    virtual void setLength(double length) = 0; // points, or kSquareStatusItemLength
    // Under this name the toolkit keeps the item's place, in the defaults' key
    // "NSStatusItem Preferred Position " + name.
    virtual void setAutosaveName(const QString &name) = 0;
    virtual StatusBarButton *button() = 0;
    // While a menu is attached a click opens it instead of running the action; null detaches.
    virtual void setMenu(std::optional<Menu> menu) = 0;
};

class StatusBar {
public:
    virtual ~StatusBar() = default;
    virtual std::shared_ptr<StatusItem> createStatusItem(double length) = 0;
};

} // namespace brimshade::platform

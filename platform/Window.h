#pragma once
#include "Screens.h"
#include "View.h"

#include <QString>
#include <memory>
#include <optional>

namespace brimshade::platform {

// NSWindowStyleMask
inline constexpr unsigned kStyleTitled = 0x1;
inline constexpr unsigned kStyleClosable = 0x2;
inline constexpr unsigned kStyleNonactivatingPanel = 0x80;
inline constexpr unsigned kStyleFullSizeContentView = 0x8000;

inline constexpr int kNormalWindowLevel = 0;
inline constexpr int kMainMenuWindowLevel = 24;
inline constexpr int kStatusWindowLevel = 25;

// NSWindowCollectionBehavior
inline constexpr unsigned kCanJoinAllSpaces = 1;
inline constexpr unsigned kStationary = 16;
inline constexpr unsigned kIgnoresCycle = 64;
inline constexpr unsigned kFullScreenAuxiliary = 256;

struct WindowAttributes {
    QString name; // for tools and tests: "panel", "strip", "settings", "setup"
    QRectF contentRect;
    unsigned styleMask = 0;
    int level = kNormalWindowLevel;
    unsigned collectionBehavior = 0;
    QString title;
    bool isPanel = false;
    bool isOpaque = true;
    bool hasShadow = true;
    bool isMovable = true;
    bool isMovableByWindowBackground = false;
    bool hidesOnDeactivate = false;
    bool canBecomeKey = true; // canBecomeKeyWindow
    bool constrainsFrame = true; // false: constrainFrameRect returns the proposed frame
    bool titlebarAppearsTransparent = false;
    bool titleHidden = false;
    bool darkAppearance = false;
    bool contentSizesWindow = false; // the hosting view's own size becomes the window's content size
};

// Main thread; frames in screen space. A window is created off screen and ordered out, not destroyed,
// when closed. Destroying the object destroys the window.
class Window {
public:
    virtual ~Window() = default;

    virtual QRectF frame() const = 0;
    virtual void setFrame(const QRectF &frame) = 0;
    virtual void center() = 0;
    virtual std::optional<Screen> screen() const = 0; // the one that holds most of it

    virtual void orderFrontRegardless() = 0;
    virtual void makeKeyAndOrderFront() = 0;
    virtual void orderOut() = 0;
    virtual void close() = 0; // as its close button does
    virtual bool isVisible() const = 0;
    virtual bool isKeyWindow() const = 0;
    virtual bool occlusionStateVisible() const = 0; // some part of it is drawn
};

class Windows {
public:
    virtual ~Windows() = default;
    virtual std::unique_ptr<Window> createWindow(const WindowAttributes &attributes, const ContentView &content) = 0;
};

} // namespace brimshade::platform

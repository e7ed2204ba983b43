#pragma once
#include <QVariantMap>
#include <vector>

namespace brimshade::platform {

inline constexpr auto kCGWindowLayer = "kCGWindowLayer"; // integer
inline constexpr auto kCGWindowBounds = "kCGWindowBounds"; // map of X, Y, Width, Height; display space
inline constexpr int kCGMainMenuWindowLevelKey = 8;

// The on-screen windows of every application. Any thread.
class WindowServer {
public:
    virtual ~WindowServer() = default;
    // kCGWindowListOptionOnScreenOnly, front to back. A key may be missing or ill-typed.
    virtual std::vector<QVariantMap> copyWindowInfo() const = 0;
    virtual int levelForKey(int key) const = 0;
};

} // namespace brimshade::platform

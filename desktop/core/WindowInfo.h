#pragma once
#include "platform/WindowServer.h"

#include <QRectF>

namespace brimshade::desktop {

class SharedState;

QVariantMap windowInfo(int level, const QRectF &bounds); // bounds in display space

// The bars and the program's windows, as the window server lists them. Any thread.
class WindowInfoService : public platform::WindowServer {
public:
    explicit WindowInfoService(const SharedState &state) : m_state(state) { }

    std::vector<QVariantMap> copyWindowInfo() const override;
    int levelForKey(int key) const override;

private:
    const SharedState &m_state;
};

} // namespace brimshade::desktop

#pragma once
#include "desktop/script/ScriptClock.h"

namespace brimshade::desktop {
class RealDispatch;
class ScriptHost;
} // namespace brimshade::desktop

namespace brimshade::composition {

// Real time: to advance is to wait while the event loop runs.
class RealClock : public desktop::ScriptClock {
public:
    RealClock(desktop::RealDispatch &dispatch, desktop::ScriptHost &host);
    void settle() override;
    void advance(double seconds) override;
    double now() const override;

private:
    desktop::RealDispatch &m_dispatch;
    desktop::ScriptHost &m_host;
    const double m_start;
};

} // namespace brimshade::composition

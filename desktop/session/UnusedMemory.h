#pragma once
#include "desktop/core/Lifetime.h"

#include <memory>

class QQmlEngine;

namespace brimshade::platform {
class Dispatch;
class DispatchWorkItem;
} // namespace brimshade::platform

namespace brimshade::desktop::session {

// Two seconds after the panel or a menu was closed, frees what it used: JavaScript's garbage, and the memory that the
// allocator keeps for later. Otherwise both grow a little with every opening. Main thread.
class UnusedMemory {
public:
    UnusedMemory(QQmlEngine &engine, platform::Dispatch &dispatch); // both outlive it
    ~UnusedMemory();

    void setInUse(bool inUse);

private:
    void giveBack();

    QQmlEngine &m_engine;
    platform::Dispatch &m_dispatch;
    Lifetime m_lifetime;
    std::shared_ptr<platform::DispatchWorkItem> m_due;
    bool m_isInUse = false;
};

} // namespace brimshade::desktop::session

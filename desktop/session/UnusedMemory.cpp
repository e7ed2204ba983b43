#include "UnusedMemory.h"

#include "platform/Dispatch.h"

#include <QQmlEngine>
#include <malloc.h>
#include <utility>

namespace brimshade::desktop::session {

namespace {

constexpr double kPause = 2; // seconds, so that reopening at once is not held up

} // namespace

UnusedMemory::UnusedMemory(QQmlEngine &engine, platform::Dispatch &dispatch)
    : m_engine(engine), m_dispatch(dispatch) { }

UnusedMemory::~UnusedMemory() = default;

void UnusedMemory::setInUse(bool inUse)
{
    if (std::exchange(m_isInUse, inUse) == inUse)
        return;
    if (m_due)
        std::exchange(m_due, nullptr)->cancel();
    if (inUse)
        return;
    m_due = std::make_shared<platform::DispatchWorkItem>(m_lifetime.guard([this] { giveBack(); }));
    m_dispatch.mainAfter(kPause, [due = m_due] { due->perform(); });
}

void UnusedMemory::giveBack()
{
    m_engine.collectGarbage();
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace brimshade::desktop::session

#include "RealClock.h"
#include "desktop/script/ScriptHost.h"
#include "desktop/time/RealDispatch.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace brimshade::composition {

RealClock::RealClock(desktop::RealDispatch &dispatch, desktop::ScriptHost &host)
    : m_dispatch(dispatch), m_host(host), m_start(dispatch.now())
{
}

void RealClock::settle()
{
    QCoreApplication::processEvents();
    m_host.settle();
}

void RealClock::advance(double seconds)
{
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(seconds * 1000), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

double RealClock::now() const
{
    return m_dispatch.now() - m_start;
}

} // namespace brimshade::composition

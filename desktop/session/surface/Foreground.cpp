#include "Foreground.h"

#include <chrono>
#include <utility>

namespace brimshade::desktop::session {

namespace {

// While the focus moves from one window to another, window managers briefly report no focused window.
constexpr std::chrono::milliseconds kBetweenWindows{100};

} // namespace

Foreground::Foreground()
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(kBetweenWindows);
    connect(&m_settled, &QTimer::timeout, this, &Foreground::showApplication);
}

void Foreground::setApplication(const QString &id)
{
    m_application = id;
    if (id.isEmpty())
        return m_settled.start();
    m_settled.stop();
    showApplication();
}

void Foreground::showApplication()
{
    if (std::exchange(m_applicationId, m_application) != m_application)
        Q_EMIT applicationChanged();
}

void Foreground::setCoveredScreens(const QSet<const QScreen *> &screens)
{
    if (std::exchange(m_covered, screens) != screens)
        Q_EMIT coveredScreensChanged();
}

} // namespace brimshade::desktop::session

#pragma once
#include "desktop/core/Lifetime.h"
#include "platform/Dispatch.h"

#include <QDateTime>
#include <QObject>
#include <functional>

namespace brimshade::desktop {

// The time of day as the menu bar shows it; wakes once a minute, on the minute. Main thread.
class WallClock : public QObject {
    Q_OBJECT
public:
    using Now = std::function<QDateTime()>;

    WallClock(platform::Dispatch &dispatch, Now now);

    // The longest of the usual formats that is no wider than this, in points.
    QString text(double width) const;

Q_SIGNALS:
    void changed();

private:
    void waitForMinute();

    platform::Dispatch &m_dispatch;
    const Now m_now;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop

#include "WallClock.h"
#include "desktop/core/BarText.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

WallClock::WallClock(platform::Dispatch &dispatch, Now now) : m_dispatch(dispatch), m_now(std::move(now))
{
    waitForMinute();
}

void WallClock::waitForMinute()
{
    constexpr int minute = 60'000; // milliseconds
    const int left = minute - m_now().time().msecsSinceStartOfDay() % minute;
    const auto minuteIsOver = [this] {
        Q_EMIT changed();
        waitForMinute();
    };
    m_dispatch.mainAfter(left / 1000.0, m_lifetime.guard(minuteIsOver));
}

QString WallClock::text(double width) const
{
    const QDateTime now = m_now();
    const QLocale locale;
    QString text;
    for (const QString &form : {tr("ddd MMM d  HH:mm"), tr("ddd HH:mm"), tr("HH:mm")}) {
        text = locale.toString(now, form);
        if (barTextWidth(text) <= width)
            return text;
    }
    return text;
}

} // namespace brimshade::desktop
